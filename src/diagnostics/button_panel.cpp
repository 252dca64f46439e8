// Which push-buttons are pressed, with a history.
#include <string>
#include <vector>

#include "actions/action_code.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/commands.h"
#include "link/rx_line.h"
#include "platform/date.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr std::size_t LineLength = 3;

/// Of the last row of the history, which has one row in a second at most.
std::string LastButtonTime;

std::string ClockText() {
  const Moment now = Now();
  return Padded(now.hour) + ":" + Padded(now.minute) + ":" + Padded(now.second);
}

void TakeLine() {
  const std::string time = ClockText();
  // A line that was torn on the way is no press of the first button.
  if (!HasDigits(2, LineLength) || time == LastButtonTime) return;
  LastButtonTime = time;
  const std::string number = std::to_string(1 + NumberInLine(2, LineLength));
  ButtonPanel& panel = DiagnosticsScreen.buttons;
  panel.number.caption = number;
  std::vector<std::string> rows = panel.history.Items();
  rows.push_back(std::string(Text(TextId::HistoryTime)) + time +
                 std::string(Text(TextId::HistoryButton)) + number);
  panel.history.SetItems(std::move(rows));
}

const LiveTest Test{.command = TestButtons,
                    .running = TextId::TestingButtons,
                    .steps = 0,
                    .stop = &DiagnosticsScreen.buttons.stop,
                    .takeLine = TakeLine,
                    .sendStop = SendStop};

void Clear() {
  LastButtonTime.clear();
  DiagnosticsScreen.buttons.number.caption.clear();
  DiagnosticsScreen.buttons.history.SetItems({});
}

void Start() {
  Clear();
  StartTest(Test);
}

}  // namespace

void LoadButtonTest() {
  ButtonPanel& panel = DiagnosticsScreen.buttons;
  Show(panel.group.caption, TextId::ButtonList);
  Show(panel.help.caption, TextId::ButtonsHelp);
  Show(panel.numberLabel.caption, TextId::PressedButton);
  Show(panel.historyLabel.caption, TextId::History);
  panel.start.onClick = Start;
}

void OpenButtonTest() {
  Clear();
  DiagnosticsScreen.buttons.number.colour = PanelColour;
}

}  // namespace bkconf
