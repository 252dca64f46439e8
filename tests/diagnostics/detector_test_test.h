// The fixture of the tests of the detectors, with lines in the place of an alarm module.
#pragma once

#include <string>

#include "diagnostics/detector_panel.h"
#include "diagnostics/diagnostics_test.h"
#include "image/tables.h"

namespace bkconf {

class DetectorTestTest : public DiagnosticsTest {
 protected:
  /// Opens the panel of a module with that version and so many detectors in use.
  void OpenDetectors(int version = 65, int count = 4, int language = 1);
  /// The same, and the test runs.
  void RunDetectors(int version = 65, int count = 4, int language = 1);
  /// Tells "M00" contact measured level code and so on, for every detector in use.
  void TellAll(const std::string& rest = "0012304201");

  /// Counts from 1, as a user sees them.
  static DetectorFields& Row(int detector) {
    return *DiagnosticsScreen.detectors.detectors.at(static_cast<std::size_t>(detector - 1));
  }
  static void PickLevel(int detector, int level);
  /// What a detector shows: contact, measured, logic and level.
  static std::string Shown(int detector);
  static Cell& Level(int detector) { return DiagBuffer[detector - 1]; }
  static Cell& Code(int detector) { return DiagBuffer[11 + detector]; }

  DetectorPanel& panel = DiagnosticsScreen.detectors;
};

inline constexpr Colour Green{0xC0, 0xFF, 0xC0};
inline constexpr Colour Red{0xFF, 0x80, 0x80};
inline constexpr Colour Blue{0xC0, 0xC0, 0xFF};
inline constexpr Colour Pink{0xFF, 0xC0, 0xC0};

}  // namespace bkconf
