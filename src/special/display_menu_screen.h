// The screen of the menus of a display: six screens of ten lines, each line an output of the
// installation under the display's two keys. It serves both displays of a module.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/field.h"

namespace bkconf {

inline constexpr int MenuScreens = 6;
inline constexpr int MenuLines = 10;

/// A line of a screen.
struct MenuLineFields {
  MenuLineFields(Screen& screen, const std::string& name);

  LabelField number;
  TextField text;
  ListField module;
  ListField output;
  ButtonField outputs;  ///< the two outputs of an automation
};

/// One of the two outputs of an automation.
struct AutomationFields {
  AutomationFields(Screen& screen, const std::string& name);

  LabelField label;
  ListField module;
  ListField output;
};

struct DisplayMenuScreenFields : Screen {
  DisplayMenuScreenFields();

  ListBoxField screens;
  GroupField frame;
  LabelField nameLabel;
  TextField name;
  LabelField categoryLabel;
  ListField category;
  LabelField scrollUp;
  LabelField scrollDown;
  LabelField mainArrowA;
  TextField mainKeyA;  ///< of the main screen
  LabelField mainArrowB;
  TextField mainKeyB;
  LabelField moduleHead;  ///< over what the lines switch
  LabelField outputHead;
  std::vector<std::unique_ptr<MenuLineFields>> lines;
  LabelField arrowA;
  TextField keyA;  ///< of the screen that is chosen
  LabelField arrowB;
  TextField keyB;

  GroupField outputsGroup;
  AutomationFields open;
  AutomationFields close;
  ButtonField ok;
  ButtonField outputsLeave;

  LabelField status;
  ProgressField bar;
  ButtonField leave;
};

inline DisplayMenuScreenFields DisplayMenuScreen;

/// Captions and handlers, once at start-up.
void LoadDisplayMenuScreen();
/// Each opens the screen on one of the two displays. A display that is not in memory yet is read
/// behind the screen, which is of no use until the last cell has come.
void OpenDisplay1();
void OpenDisplay2();

}  // namespace bkconf
