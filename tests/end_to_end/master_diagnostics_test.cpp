// The live tests of a master alone: its light sensor, and its clock, which is asked and set.
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include "end_to_end/action_code.h"
#include "end_to_end/deadline.h"
#include "end_to_end/diagnostics_stage.h"

namespace end_to_end {
namespace {

std::tm Now() {
  const std::time_t now = std::time(nullptr);
  std::tm time{};
  localtime_r(&now, &time);
  return time;
}

// What a clock shows.
struct ClockTexts {
  std::string time;
  std::string date;
  std::string weekday;
};

ClockTexts TextsOf(const std::tm& time) {
  return {TwoDigits(time.tm_hour) + ":" + TwoDigits(time.tm_min),
          TwoDigits(time.tm_mday) + "-" + TwoDigits(time.tm_mon + 1) + "-" +
              std::to_string(1900 + time.tm_year),
          std::to_string(time.tm_wday + 1)};
}

// The frames that set a clock.
std::vector<std::string> FramesOf(const std::tm& time) {
  return {"T" + TwoDigits(time.tm_hour) + TwoDigits(time.tm_min) +
              std::to_string(time.tm_wday + 1) + "\\n\\r",
          "T" + TwoDigits(time.tm_mday) + TwoDigits(time.tm_mon + 1) + TwoDigits(time.tm_year) +
              "\\n\\r"};
}

class MasterTests : public DiagnosticsStage, public ::testing::WithParamInterface<ButtonModule> {
 protected:
  void ExpectClock(const char* clock, const ClockTexts& wanted) {
    for (const std::string& text : {wanted.time, wanted.date, wanted.weekday}) {
      AwaitIn(clock, "label", text);
    }
  }
  // Asks the module for its clock, and gives what it tells.
  ClockTexts Ask() {
    Mark();
    ClickIn(Panel(texts().clock), "push button", texts().ask);
    const std::vector<std::string> lines = AwaitAnswer(2);
    AwaitStatus("Ready");
    AwaitIn(Panel(texts().clock), "push button", texts().ask);
    const std::string time = lines[0].substr(1);
    const std::string date = lines[1].substr(1);
    return {time.substr(0, 2) + ":" + time.substr(2, 2),
            date.substr(0, 2) + "-" + date.substr(2, 2) + "-20" + date.substr(4, 2),
            date.substr(7, 1)};
  }
  void ExpectComputerClock() {
    EXPECT_TRUE(WaitFor([&] {
      const std::tm before = Now();
      const std::vector<Widget> labels = AllIn(texts().computerClock, "label");
      const auto shows = [&](const std::string& text) {
        return std::any_of(labels.begin(), labels.end(),
                           [&](const Widget& each) { return each.name == text; });
      };
      const ClockTexts wanted = TextsOf(before);
      return shows(wanted.time + ":" + TwoDigits(before.tm_sec)) && shows(wanted.date) &&
             shows(wanted.weekday);
    }));
  }
  // The time that was sent, which may be a minute after the press.
  std::tm Synchronise() {
    std::tm sent = Now();
    ClickIn(Panel(texts().clock), "push button", texts().synchronise);
    EXPECT_FALSE(AwaitIn(Panel(texts().clock), "push button", "OK", false).enabled);
    if (const auto heard = Heard(true); heard.empty() || heard[0] != FramesOf(sent)[0]) {
      sent = Now();
    }
    ExpectHeard(true, FramesOf(sent));
    AwaitStatus("Ready");
    return sent;
  }
  void ExpectTaken(const std::tm& sent) {
    const std::vector<LogUnit> units = Units(true);
    ASSERT_EQ(units.size(), 2U);
    const ClockTexts texts = TextsOf(sent);
    EXPECT_EQ(units[0].meaning, "clock set to " + texts.time + ", weekday " + texts.weekday);
    EXPECT_EQ(units[1].meaning, "date set to " + std::to_string(1900 + sent.tm_year) + "-" +
                                    TwoDigits(sent.tm_mon + 1) + "-" + TwoDigits(sent.tm_mday));
  }
  void ExpectStopFramesBehind(std::vector<std::string> frames) {
    frames.insert(frames.end(), stopFrames, stopFrame);
    ExpectHeard(true, frames);
  }
};

TEST_P(MasterTests, LightSensorIsSampledTenTimes) {
  constexpr std::size_t samples = 10;
  OpenDiagnostics(GetParam());
  Choose(texts().light);
  for (const Widget& each : AllIn(Panel(texts().light), "push button")) {
    EXPECT_EQ(each.name, "Start") << "it cannot be stopped";
  }
  Start(texts().light);
  const std::vector<std::string> lines = AwaitAnswer(samples);
  ExpectReady(texts().light);
  AwaitIn(Panel(texts().light), "label", lines.back().substr(1, 2));
  EXPECT_EQ(Heard(true), std::vector<std::string>());
  LeaveByButton(title());
  CloseTool();
}

TEST_P(MasterTests, ClockIsAskedSetAndLeft) {
  OpenDiagnostics(GetParam(), {}, {"--clock", "2027-05-14T21:47"});
  Mark();
  Choose(texts().clock);
  ExpectComputerClock();
  Choose(texts().line);
  EXPECT_EQ(Heard(true), std::vector<std::string>()) << "nothing was asked";

  Choose(texts().clock);
  const ClockTexts told = Ask();
  EXPECT_EQ(told.date, "14-05-2027");
  EXPECT_EQ(told.weekday, "6") << "a Friday";
  ExpectClock(texts().masterClock, told);
  const std::tm sent = Synchronise();
  ExpectTaken(sent);
  ExpectClock(texts().masterClock, TextsOf(sent));
  Choose(texts().line);
  ExpectStopFramesBehind(FramesOf(sent));

  Choose(texts().clock);
  const ClockTexts set = Ask();
  EXPECT_EQ(set.date, TextsOf(sent).date);
  EXPECT_EQ(set.weekday, TextsOf(sent).weekday);
  ExpectClock(texts().masterClock, set);
  LeaveByButton(title());
  ExpectStopFramesBehind({});
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, MasterTests, ::testing::Values(masterButtons, masterInFrench),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace end_to_end
