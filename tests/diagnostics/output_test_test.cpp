#include <gtest/gtest.h>

#include "diagnostics/diagnostics_test.h"
#include "link/transfer.h"

namespace bkconf {
namespace {

/// Switching outputs by hand.
class OutputTestTest : public DiagnosticsTest, public testing::WithParamInterface<int> {
 protected:
  void OpenOutputs() {
    Open(GetParam());
    Choose("outputsChoice");
  }
  void RunOutputs() {
    OpenOutputs();
    Run(DiagnosticsScreen.outputs.start);
    WritesSince();
  }
  static ButtonField& Output(int output) {
    return *DiagnosticsScreen.outputs.outputs.at(static_cast<std::size_t>(output - 1));
  }
  static void ExpectUsable(bool usable) {
    for (int output = 1; output <= 12; ++output) EXPECT_EQ(Output(output).Usable(), usable);
  }
};

TEST_P(OutputTestTest, TwelveOutputsAreNumbered) {
  OpenOutputs();
  ASSERT_EQ(DiagnosticsScreen.outputs.outputs.size(), 12U);
  EXPECT_EQ(Output(1).caption, "01");
  EXPECT_EQ(Output(12).caption, "12");
}

TEST_P(OutputTestTest, TheyWorkFromTheAcknowledgeToTheEnd) {
  OpenOutputs();
  ExpectUsable(false);
  Begin(DiagnosticsScreen.outputs.start);
  ExpectUsable(false);
  Tell("M80000");
  ExpectUsable(true);
  DiagnosticsScreen.outputs.stop.Click();
  ExpectUsable(false);
}

TEST_P(OutputTestTest, EveryOutputHasItsFrame) {
  RunOutputs();
  const std::vector<std::string> frames = {"\x54\x30\x30\x0A\x0D",
                                           "T01\n\r",
                                           "T02\n\r",
                                           "T03\n\r",
                                           "T04\n\r",
                                           "T05\n\r",
                                           "T06\n\r",
                                           "T07\n\r",
                                           "T08\n\r",
                                           "T09\n\r",
                                           "T10\n\r",
                                           "\x54\x31\x31\x0A\x0D"};
  for (int output = 1; output <= 12; ++output) {
    Output(output).Click();
    EXPECT_EQ(WrittenSince(), frames.at(static_cast<std::size_t>(output - 1)));
  }
}

TEST_P(OutputTestTest, APauseFollowsTheFirstTwoCharactersOnly) {
  RunOutputs();
  const std::int64_t start = clock.Now();
  Output(12).Click();
  const std::vector<FakeLine::Written> writes = WritesSince();
  ASSERT_EQ(writes.size(), 3U);
  EXPECT_EQ(writes[0].characters, "T");
  EXPECT_EQ(writes[1].characters, "1");
  EXPECT_EQ(writes[2].characters, "1\n\r");
  EXPECT_EQ(writes[0].time, start);
  EXPECT_EQ(writes[1].time, start + 2001);
  EXPECT_EQ(writes[2].time, start + 4002);
  EXPECT_EQ(clock.Now(), start + 4002);
}

TEST_P(OutputTestTest, TheScreenKeepsNoStateOfThem) {
  RunOutputs();
  const Snapshot before = TakeSnapshot();
  const std::string caption = Output(3).caption;
  Output(3).Click();
  Output(3).Click();
  EXPECT_EQ(WrittenSince(), "T02\n\rT02\n\r");
  EXPECT_EQ(Output(3).caption, caption);
  EXPECT_FALSE(Output(3).colour);
  ExpectOnlyChanged(before, {});
}

TEST_P(OutputTestTest, LinesOfTheModuleAreDropped) {
  RunOutputs();
  for (const char* text : {"M00", "M10042", "C0010002"}) Tell(text);
  ExpectUsable(true);
  EXPECT_EQ(Status(), "Uitgangen test...");
  EXPECT_FALSE(DiagnosticsScreen.bar.visible);
}

TEST_P(OutputTestTest, APortThatVanishesAtAClickEndsTheTest) {
  RunOutputs();
  line.failed = true;
  EXPECT_THROW(Output(1).Click(), RuntimeError);
  LeaveFailedTransfer();
  ExpectUsable(false);
  ExpectFree(true);
}

INSTANTIATE_TEST_SUITE_P(Kinds, OutputTestTest, testing::Values(0, 1, 4, 11),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
