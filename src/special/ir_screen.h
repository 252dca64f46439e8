// The screen of the infrared module: what each key of a remote control does, up to eight actions a
// key.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "actions/action_picker.h"
#include "platform/field.h"

namespace bkconf {

inline constexpr int IrRows = 8;

/// One action of the chosen key.
struct IrRowFields {
  IrRowFields(Screen& screen, const std::string& name);

  LabelField number;
  LabelField code;
  ButtonField erase;
};

struct IrScreenFields : Screen {
  IrScreenFields();

  LabelField instruction;
  AreaPictureField remote;  ///< an area for each key
  GroupField listGroup;     ///< its caption tells the key
  std::vector<std::unique_ptr<IrRowFields>> rows;
  GroupField editGroup;
  LabelField rowLabel;
  ListField row;
  CheckField copy;  ///< nothing reads it
  ActionPicker picker;
  ButtonField store;
  ButtonField leave;
};

inline IrScreenFields IrScreen;

/// Captions and handlers, once at start-up.
void LoadIrScreen();
/// Opens the screen on the module in memory, with no key chosen.
void OpenIrScreen();

}  // namespace bkconf
