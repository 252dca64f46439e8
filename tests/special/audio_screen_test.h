// The fixture of the tests of the audio interface: its screen, opened as a person opens it.
#pragma once

#include <string>
#include <vector>

#include "image/tables.h"
#include "special/audio_screen.h"
#include "support/session_test.h"

namespace bkconf {

class AudioScreenTest : public SessionTest {
 protected:
  /// Starts with an image in which every cell is unset but the letter, and opens the screen.
  void Open(int language = 1, char letter = 'C');
  /// The same with all zones, all sources, and no surround.
  void OpenAll();
  static void OpenAgain() { ShownAction(Action::AudioSettings).Click(); }

  /// Zones count from 1 here, as a user sees them.
  static void PickZone(int zone) { AudioScreen.zone.list.Pick(zone - 1); }
  static Cell& At(int cell) { return AudioImage[cell]; }
  /// All cells of the image: where a snapshot of everything would take too long.
  static std::vector<Cell> ImageCells();
  /// "AudioImage[149]" or "AudioImage[149..151]", for ExpectOnlyChanged.
  static std::string NameOf(int first, int last = -1);
  /// Whether the main window was told of a change since the last look.
  static void ExpectSignal(bool expected);

  /// The four lists of a zone, in the order of their cells.
  struct ZoneList {
    AudioList* field;
    int cell;  ///< of zone 1
  };
  static const std::vector<ZoneList>& ZoneLists();
  /// The names of the fields that can be used, out of those in the two groups of a zone, labels
  /// aside.
  static std::vector<std::string> Usable();
};

inline const std::vector<std::string> AllZoneFields = {"source", "mainVolume", "gain",
                                                       "secondaryVolume", "loudness"};

}  // namespace bkconf
