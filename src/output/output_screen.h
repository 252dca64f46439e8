// The screen of the outputs: what the outputs of a relay module do by themselves, and with what
// value the channels of a dimmer begin.
#pragma once

#include "platform/field.h"

namespace bkconf {

struct OutputScreenFields : Screen {
  OutputScreenFields();

  // Relay and DC relay modules
  GroupField functionsGroup;
  GridField functions;  ///< number, function and time of each output
  GroupField editGroup;
  LabelField outputLabel;
  ListField output;
  LabelField functionLabel;
  ListField function;
  LabelField linkedLabel;
  ListField linked;  ///< the output that this one follows, or is locked against
  LabelField timeLabel;
  ListField time;
  LabelField unit;
  ButtonField confirm;

  // Dimmer and Lumenza modules
  GroupField startGroup;
  GridField startValues;
  GroupField startEditGroup;
  LabelField channelLabel;
  ListField channel;
  LabelField startLabel;
  ListField start;
  ButtonField confirmStart;

  ButtonField leave;
};

inline OutputScreenFields OutputScreen;

/// Captions and handlers, once at start-up.
void LoadOutputScreen();
/// Opens the screen on the module in memory: functions of a relay module, start values of a dimmer.
void OpenOutputScreen();

}  // namespace bkconf
