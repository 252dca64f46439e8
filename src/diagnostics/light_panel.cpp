// The level of a master's light sensor, sampled ten times.
#include <string>

#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/commands.h"
#include "link/rx_line.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr std::size_t LineLength = 3;

void TakeLine() {
  if (RxLine.size() < LineLength) return;
  AdvanceTestBar();
  DiagnosticsScreen.light.level.caption = CharactersOfLine(2, LineLength);
}

const LiveTest Test{.command = TestLightSensor,
                    .running = TextId::TestingLight,
                    .steps = 10,
                    .stop = nullptr,
                    .takeLine = TakeLine};

}  // namespace

void LoadLightTest() {
  LightPanel& panel = DiagnosticsScreen.light;
  Show(panel.group.caption, TextId::LightPanel);
  Show(panel.help.caption, TextId::LightHelp);
  panel.start.onClick = [] { StartTest(Test); };
  panel.stop.visible = false;
}

void OpenLightTest() {
  DiagnosticsScreen.light.level.caption.clear();
  DiagnosticsScreen.light.level.colour = PanelColour;
}

}  // namespace bkconf
