// The state and level of the module's input line, sampled ten times.
#include <string>

#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/commands.h"
#include "link/rx_line.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr std::size_t LineLength = 6;
/// A level comes with this added, so that it always has five digits.
constexpr int Offset = 10000;

void TakeLine() {
  if (RxLine.size() < LineLength) return;
  AdvanceTestBar();
  DiagnosticsScreen.line.level.caption = std::to_string(NumberInLine(2, LineLength) - Offset);
}

const LiveTest Test{.command = TestLine,
                    .running = TextId::TestingLine,
                    .steps = 10,
                    .stop = &DiagnosticsScreen.line.stop,
                    .takeLine = TakeLine,
                    .sendStop = SendStop};

}  // namespace

void LoadLineTest() {
  LinePanel& panel = DiagnosticsScreen.line;
  Show(panel.group.caption, TextId::LinePanel);
  Show(panel.help.caption, TextId::LineHelp);
  Show(panel.levelLabel.caption, TextId::LineLevel);
  panel.start.onClick = [] { StartTest(Test); };
}

void OpenLineTest() {
  DiagnosticsScreen.line.level.caption.clear();
  DiagnosticsScreen.line.level.colour = PanelColour;
}

}  // namespace bkconf
