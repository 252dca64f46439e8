// The live tests that most modules have, with a module of each kind that has them: the input line,
// the push-buttons and the outputs.
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/action_code.h"
#include "end_to_end/deadline.h"
#include "end_to_end/diagnostics_stage.h"

namespace end_to_end {
namespace {

constexpr int versionCell = 163;
constexpr std::size_t samples = 10;

std::string ClockText() {
  const std::time_t now = std::time(nullptr);
  std::tm time{};
  localtime_r(&now, &time);
  return TwoDigits(time.tm_hour) + ":" + TwoDigits(time.tm_min) + ":" + TwoDigits(time.tm_sec);
}

class LiveTests : public DiagnosticsStage, public ::testing::WithParamInterface<ButtonModule> {
 protected:
  void SetUp() override { OpenDiagnostics(GetParam()); }

  void ExpectChoicesOfTheKind() const {
    std::vector<std::string> names;
    for (const Widget& each : AllIn(texts().choice, "push button")) names.push_back(each.name);
    std::vector<std::string> wanted = {texts().line, captions().buttons};
    if (GetParam().kind == 9) {
      wanted.insert(wanted.end(), {texts().light, texts().clock});
    } else {
      wanted.emplace_back(GetParam().kind == 5 ? texts().detectors : texts().outputs);
    }
    EXPECT_EQ(names, wanted);
  }
  std::size_t CountOnLine(bool fromTool, std::string_view text) const {
    const std::vector<std::string> heard = Heard(fromTool);
    return static_cast<std::size_t>(std::count(heard.begin(), heard.end(), text));
  }

  // The test of the line takes a second: where it ends before the button is pressed, or while that
  // is told, it is started again. A press of a disabled button does nothing.
  void StopLineTestWhileItRuns() {
    const Widget stop = AwaitIn(Panel(texts().line), "push button", "Stop", false);
    const bool stopped = WaitFor([&] {
      Start(texts().line);
      return WaitFor([&] {
               desktop().Click(stop);
               return CountOnLine(true, stopFrame) > 0 || CountOnLine(false, "STOP\\r") > 0;
             }) &&
             StopWasHeardInTime();
    });
    EXPECT_TRUE(stopped);
  }
  bool StopWasHeardInTime() {
    if (CountOnLine(true, stopFrame) > 0) {
      ExpectHeard(true, std::vector<std::string>(stopFrames, stopFrame));
    }
    ExpectReady(texts().line);
    const std::vector<LogUnit> stops = Units(true);
    return !stops.empty() && stops.front().meaning == "the test ends";
  }

  // Presses a button of the module and waits for it. Gives the time of its row in the history.
  std::string PressModuleButton(int number, std::size_t row) {
    const std::string panel = Panel(captions().buttons);
    const std::string before = ClockText();
    module().Tell("button " + std::to_string(number));
    AwaitIn(panel, "label", std::to_string(number));
    std::vector<Widget> rows;
    WaitFor([&] {
      rows = AllIn(panel, "list item");
      return rows.size() > row;
    });
    EXPECT_EQ(rows.size(), row + 1);
    const std::string text = rows.empty() ? "" : rows.back().name;
    const std::string head = texts().pressedAt;
    const std::string time = text.substr(std::min(head.size(), text.size()), before.size());
    EXPECT_EQ(text, head + time + texts().pressed + std::to_string(number));
    const std::string after = ClockText();
    EXPECT_TRUE((before <= time && time <= after) || after < before) << time;
    return time;
  }
};

TEST_P(LiveTests, LineIsSampledTenTimesAndTheTestCanBeStopped) {
  ExpectChoicesOfTheKind();
  Choose(texts().line);
  Start(texts().line);
  const std::vector<std::string> lines = AwaitAnswer(samples);
  ExpectReady(texts().line);
  AwaitIn(Panel(texts().line), "label",
          std::to_string(std::stoi(lines.back().substr(1, 5)) - 10000));
  EXPECT_EQ(Heard(true), std::vector<std::string>()) << "it ended by itself";
  StopLineTestWhileItRuns();
  LeaveByButton(title());
  CloseTool();
}

TEST_P(LiveTests, PressedButtonsAreShownWithTheirTimesUntilTheTestIsStopped) {
  const char* choice = captions().buttons;
  Choose(choice);
  Start(choice);
  AwaitRunning(choice, texts().testingButtons);
  const std::string time = PressModuleButton(3, 0);
  // One row in a second at most.
  ASSERT_TRUE(WaitFor([&] { return ClockText() != time; }));
  PressModuleButton(100, 1);
  const std::vector<std::string> heard = Heard(false);
  ASSERT_EQ(heard.size(), 3U);
  EXPECT_EQ(heard[0], "M80000\\r");
  EXPECT_EQ(heard[1].substr(1), "02\\r");
  EXPECT_EQ(heard[2].substr(1), "99\\r");
  Stop(choice);
  LeaveByButton(title());
  CloseTool();
}

std::string NameOf(const ::testing::TestParamInfo<ButtonModule>& each) {
  return each.param.name;
}

INSTANTIATE_TEST_SUITE_P(AModule, LiveTests,
                         ::testing::Values(relayButtons, dimmerButtons, relayDcButtons,
                                           lumenzaButtons, masterButtons, masterInFrench,
                                           alarmButtons, alarmInFrench),
                         NameOf);

// --- Outputs ------------------------------------------------------------------------------------

class OutputTests : public DiagnosticsStage, public ::testing::WithParamInterface<ButtonModule> {
 protected:
  void Switch(int output, const char* state) {
    ClickIn(Panel(texts().outputs), "push button", TwoDigits(output));
    frames_.push_back("T" + TwoDigits(output - 1) + "\\n\\r");
    ExpectHeard(true, frames_);
    EXPECT_EQ(Units(true).back().meaning, "output " + std::to_string(output) + " " + state);
  }
  bool IsOutputEnabled(int output) {
    return AwaitIn(Panel(texts().outputs), "push button", TwoDigits(output), false).enabled;
  }

 private:
  std::vector<std::string> frames_;
};

TEST_P(OutputTests, EveryOutputIsSwitchedUntilTheTestIsStopped) {
  OpenDiagnostics(GetParam());
  Choose(texts().outputs);
  EXPECT_FALSE(IsOutputEnabled(1)) << "nothing is started";
  Start(texts().outputs);
  AwaitRunning(texts().outputs, texts().testingOutputs);
  for (int output = 1; output <= 12; ++output) Switch(output, "on");
  Switch(3, "off");
  constexpr int frames = 20;
  Stop(texts().outputs, "T99\\n\\r", frames);
  EXPECT_FALSE(IsOutputEnabled(12));
  LeaveByButton(title());
  CloseTool();
}

TEST_P(OutputTests, LaterModuleIsTestedWithAnotherTool) {
  OpenDiagnostics(GetParam(), {{versionCell, 80}});
  AwaitIn(title(), "label", texts().otherTool);
  EXPECT_FALSE(AwaitIn(texts().choice, "push button", captions().buttons, false).enabled);
  EXPECT_FALSE(AwaitIn(texts().choice, "push button", texts().outputs, false).enabled);
  Choose(texts().line);
  Start(texts().line);
  AwaitAnswer(samples);
  ExpectReady(texts().line);
  EXPECT_FALSE(AwaitIn(texts().choice, "push button", texts().outputs, false).enabled);
  LeaveScreen(title());
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, OutputTests,
                         ::testing::Values(relayButtons, dimmerButtons, relayDcButtons,
                                           lumenzaButtons),
                         NameOf);

}  // namespace
}  // namespace end_to_end
