// The screen of the audio interface: how many zones and sources it has, and what each zone starts
// with. Every pick goes straight into the table.
#pragma once

#include <string>

#include "platform/field.h"

namespace bkconf {

/// A list with its caption.
struct AudioList {
  AudioList(Screen& screen, const std::string& name);

  LabelField label;
  ListField list;
};

struct AudioScreenFields : Screen {
  AudioScreenFields();

  GroupField frame;
  GroupField generalGroup;
  AudioList zones;
  AudioList sources;

  GroupField settingsGroup;
  AudioList zone;
  CheckField surround;      ///< of the first zone
  LabelField surroundHint;  ///< of the two zones that follow it

  GroupField mainGroup;
  AudioList source;
  AudioList mainVolume;
  AudioList gain;
  GroupField secondaryGroup;
  AudioList secondaryVolume;
  CheckField loudness;

  ButtonField leave;
};

inline AudioScreenFields AudioScreen;

/// Captions and handlers, once at start-up.
void LoadAudioScreen();
/// Opens the screen on the module in memory, with no zone chosen.
void OpenAudioScreen();

}  // namespace bkconf
