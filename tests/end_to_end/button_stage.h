// The modules with push-buttons, and the screen that all of them have for these. The base of its
// tests.
#pragma once

#include <ostream>
#include <string>

#include "end_to_end/stage.h"

namespace end_to_end {

struct ButtonModule {
  const Captions* captions;
  int kind;
  const char* name;
  const char* demoFile;
  const char* screen;  // its title
};

inline void PrintTo(const ButtonModule& each, std::ostream* out) {
  *out << each.name;
}

inline constexpr ButtonModule relayButtons = {&dutch, 0, "Relay", "Relais A.BK1",
                                              "Relaismodule KR7021 <adres = A>"};
inline constexpr ButtonModule dimmerButtons = {&french, 1, "Dimmer", "Dimmer C.BK1",
                                               "Module dim KR73XX <adresse = C>"};
inline constexpr ButtonModule relayDcButtons = {
    &dutch, 4, "RelayOnDirectCurrent", "Relais_DC B.BK1", "Relaismodule DC KR7023 <adres = B>"};
inline constexpr ButtonModule lumenzaButtons = {&french, 11, "DimmerWithSwitchedOutputs",
                                                "Dimmer D.BK1",
                                                "Module Lumenza KR7061 <adresse = D>"};
inline constexpr ButtonModule alarmButtons = {&dutch, 5, "Alarm", "Alarm G.BK1",
                                              "Alarmmodule KR7160 <adres = G>"};
inline constexpr ButtonModule audioButtons = {&french, 6, "Audio", "Audio H.BK1",
                                              "Interface audio KR7920 <adresse = H>"};
inline constexpr ButtonModule simulationButtons = {&dutch, 7, "Simulation", "Simulatie I.BK1",
                                                   "Simulatiemodule KR7170 <adres = I>"};
inline constexpr ButtonModule infraredButtons = {&french, 8, "Infrared", "I.R. J.BK1",
                                                 "Module I.R. KR7180 <adresse = J>"};
inline constexpr ButtonModule masterButtons = {&dutch, 9, "Master", "Master.BK1",
                                               "Mastermodule KR7110"};

class ButtonStage : public Stage {
 protected:
  // Starts the module with its file of the demo house, and the tool.
  void StartWithModule(const ButtonModule& module) {
    module_ = &module;
    LayOutDirectory(*module.captions);
    StartModule(module.kind,
                {"--image", DemoFile(module.demoFile).string(), "--save", savedImage().string()});
    StartTool();
  }

  void OpenScreen() {
    ClickOn("push button", captions().buttons);
    AwaitWindow(module_->screen);
  }
  std::string Row(int number) const { return captions().buttonRow + std::to_string(number); }

 private:
  const ButtonModule* module_ = nullptr;
};

}  // namespace end_to_end
