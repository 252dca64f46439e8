// Whole conversations: every test of every kind, with a virtual module at the other end of the
// line, from the click on Start to the end.
#include <gtest/gtest.h>

#include "diagnostics/detector_panel.h"
#include "diagnostics/detector_test_test.h"
#include "diagnostics/live_test.h"
#include "link/transfer.h"

namespace bkconf {
namespace {

using virtual_module::Fault;

class ConversationTest : public DetectorTestTest {
 protected:
  /// Reads a module of the row's kind and version, opens the screen and its panel.
  virtual_module::Module& Prepare(const TestRow& row, std::optional<Fault> fault = std::nullopt,
                                  int detectors = 4) {
    Start();
    virtual_module::Memory memory = virtual_module::DefaultMemory(row.kind, 1);
    const ModuleKind& kind = *FindKind(row.kind);
    const std::string_view table = kind.version.table->name;
    memory.Cells(table).at(static_cast<std::size_t>(kind.version.index)) = row.version;
    if (row.kind == 5) memory.Cells(table).at(123) = detectors;
    Plug({.kind = row.kind, .memory = memory});
    ReadModule();
    OpenAgain();
    Choose(row.choice);
    EXPECT_EQ(Status(), "");
    return Plug({.kind = row.kind, .memory = memory, .fault = fault});
  }
  /// Clicks, and waits until the module has taken the command.
  void StartAndWait(const TestRow& row) {
    row.start->Click();
    const auto accepted = [&row] {
      return row.stop == nullptr ? Status() == row.dutch : row.stop->enabled;
    };
    ASSERT_TRUE(clock.RunUntil(accepted, 10'000)) << Status();
    EXPECT_EQ(Status(), row.dutch);
    ExpectFree(false);
  }
  /// Stops the test, and lets the last characters arrive.
  void StopAndWait(const TestRow& row) {
    row.stop->Click();
    ExpectFree(true);
    EXPECT_EQ(Status(), "Ready");
    Arrive(600);
  }
  void Arrive(std::int64_t milliseconds) {
    clock.Advance(milliseconds);
    line.Settle();
  }
  /// A person presses a button of the module, a second after the one before.
  void Press(virtual_module::Module& module, int index) {
    now.second = (now.second + 1) % 60;
    EXPECT_TRUE(module.PressButton(index, clock.Now()));
    clock.Advance(30);
  }
};

class EveryTestTest : public ConversationTest, public testing::WithParamInterface<TestRow> {};

TEST_P(EveryTestTest, RunsToItsEndWithoutAnErrorOfTheModule) {
  virtual_module::Module& module = Prepare(GetParam());
  StartAndWait(GetParam());
  if (GetParam().endsByItself) {
    FinishTransfer(10'000);
    ExpectFree(true);
    EXPECT_EQ(Status(), "Ready");
  } else {
    clock.Advance(2000);
    StopAndWait(GetParam());
  }
  EXPECT_EQ(module.runningTest(), std::nullopt);
  EXPECT_EQ(module.errors(), 0);
  EXPECT_EQ(module.completedTests(), 1);
  EXPECT_FALSE(DiagnosticsScreen.bar.visible);
}

TEST_P(EveryTestTest, RunsThreeTimes) {
  virtual_module::Module& module = Prepare(GetParam());
  for (int turn = 1; turn <= 3; ++turn) {
    StartAndWait(GetParam());
    if (GetParam().endsByItself) {
      FinishTransfer(10'000);
    } else {
      clock.Advance(300);
      StopAndWait(GetParam());
    }
    EXPECT_EQ(module.completedTests(), turn);
  }
  EXPECT_EQ(module.errors(), 0);
}

TEST_P(EveryTestTest, AfterItTheModuleIsReadAgain) {
  virtual_module::Module& module = Prepare(GetParam());
  StartAndWait(GetParam());
  if (GetParam().endsByItself) {
    FinishTransfer(10'000);
  } else {
    StopAndWait(GetParam());
  }
  DiagnosticsScreen.leave.Click();
  Arrive(1000);
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(module.completedReads(), 1);
}

TEST_P(EveryTestTest, ChangesNoCellOfTheImage) {
  Prepare(GetParam());
  const Snapshot before = TakeSnapshot();
  StartAndWait(GetParam());
  clock.Advance(3000);
  const Snapshot after = TakeSnapshot();
  for (const auto& [name, cell] : before) {
    if (name.starts_with("DiagBuffer") || name == "PendingCommand" || name == "RxLine") continue;
    EXPECT_EQ(after.at(name), cell) << name;
  }
}

TEST_P(EveryTestTest, AModuleThatFallsSilentKeepsTheTestRunning) {
  Prepare(GetParam(), Fault::SilentAfterCommand);
  GetParam().start->Click();
  clock.Advance(10'000);
  EXPECT_EQ(Status(), GetParam().dutch);
  ExpectFree(false);
  LeaveTransfer();
  ExpectFree(true);
}

TEST_P(EveryTestTest, AModuleOfAnUnknownKindIsRefused) {
  Prepare(GetParam(), Fault::UnknownIdentity);
  GetParam().start->Click();
  ASSERT_TRUE(clock.RunUntil([] { return RunningTest == nullptr; }, 10'000));
  EXPECT_EQ(messages.told.size(), 1U);
  ExpectFree(true);
}

TEST_P(EveryTestTest, APollDuringTheIdentityIsLivedThrough) {
  Prepare(GetParam(), Fault::PollDuringIdentity);
  StartAndWait(GetParam());
}

TEST_P(EveryTestTest, CorruptDigitsAndIndexesBreakNothing) {
  for (const Fault fault : {Fault::CorruptDigits, Fault::IndexBeyondTable, Fault::OutOfOrder}) {
    Prepare(GetParam(), fault);
    StartAndWait(GetParam());
    if (GetParam().endsByItself) {
      FinishTransfer(10'000);
    } else {
      clock.Advance(5000);
      StopAndWait(GetParam());
    }
    ExpectFree(true);
  }
}

INSTANTIATE_TEST_SUITE_P(Tests, EveryTestTest, testing::ValuesIn(TestRows()),
                         [](const auto& row) { return row.param.name; });

TEST_F(ConversationTest, TheLineIsSampledTenTimes) {
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    Prepare(RowOf("LineOfKind" + std::to_string(kind)));
    StartAndWait(RowOf("LineOfKind" + std::to_string(kind)));
    int highest = 0;
    while (TransferUnderWay) {
      clock.Advance(10);
      highest = std::max(highest, DiagnosticsScreen.bar.Value());
    }
    EXPECT_EQ(highest, 10);
    const int level = Cell(DiagnosticsScreen.line.level.caption).Whole();
    EXPECT_GT(level, 0);
    EXPECT_LT(level, 1000);
  }
}

TEST_F(ConversationTest, TheLineTestCanBeStoppedHalfWay) {
  virtual_module::Module& module = Prepare(RowOf("LineOfKind0"));
  StartAndWait(RowOf("LineOfKind0"));
  ASSERT_TRUE(clock.RunUntil([] { return DiagnosticsScreen.bar.Value() == 4; }, 5000));
  StopAndWait(RowOf("LineOfKind0"));
  EXPECT_EQ(module.runningTest(), std::nullopt);
}

TEST_F(ConversationTest, MoreSamplesThanTenStartTheBarAnew) {
  for (const char* name : {"LineOfKind0", "LightOfKind9"}) {
    Prepare(RowOf(name), Fault::TooManyLines);
    StartAndWait(RowOf(name));
    FinishTransfer(10'000);
    ExpectFree(true);
  }
}

TEST_F(ConversationTest, PressesAppearInTheHistory) {
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    const TestRow& row = RowOf("ButtonsOfKind" + std::to_string(kind));
    virtual_module::Module& module = Prepare(row);
    StartAndWait(row);
    Press(module, 0);
    Press(module, 19);
    const auto& history = DiagnosticsScreen.buttons.history.Items();
    ASSERT_EQ(history.size(), 2U);
    EXPECT_TRUE(history[0].ends_with("  Knop: 1"));
    EXPECT_TRUE(history[1].ends_with("  Knop: 20"));
    EXPECT_EQ(DiagnosticsScreen.buttons.number.caption, "20");
    StopAndWait(row);
    EXPECT_FALSE(module.PressButton(3, clock.Now()));
  }
}

TEST_F(ConversationTest, TheModuleSwitchesItsOutputs) {
  for (const int kind : {0, 1, 4, 11}) {
    const TestRow& row = RowOf("OutputsOfKind" + std::to_string(kind));
    virtual_module::Module& module = Prepare(row);
    StartAndWait(row);
    for (const std::size_t output : {0U, 4U, 11U, 4U}) {
      DiagnosticsScreen.outputs.outputs[output]->Click();
      Arrive(100);
    }
    std::array<bool, 12> on{};
    on[0] = on[11] = true;
    EXPECT_EQ(module.Outputs(), on);
    StopAndWait(row);
    EXPECT_EQ(module.runningTest(), std::nullopt);
    EXPECT_EQ(module.Outputs(), on);
    EXPECT_EQ(module.errors(), 0);
  }
}

TEST_F(ConversationTest, TheLightSensorShowsTwoDigits) {
  Prepare(RowOf("LightOfKind9"));
  StartAndWait(RowOf("LightOfKind9"));
  FinishTransfer(10'000);
  const std::string& light = DiagnosticsScreen.light.level.caption;
  ASSERT_EQ(light.size(), 2U);
  EXPECT_LE(Cell(light).Whole(), 50);
}

TEST_F(ConversationTest, TheMastersClockIsAskedAndSet) {
  const TestRow& row = RowOf("ClockOfKind9");
  virtual_module::Module& module = Prepare(row);
  StartAndWait(row);
  FinishTransfer(10'000);
  ClockPanel& clocks = DiagnosticsScreen.clock;
  EXPECT_EQ(clocks.master.hour.caption, "08:30");
  EXPECT_EQ(clocks.master.date.caption, "02-03-2026");
  EXPECT_EQ(clocks.master.weekday.caption, "2");
  ASSERT_TRUE(clocks.synchronise.Usable());
  clocks.synchronise.Click();
  Arrive(100);
  const virtual_module::ClockTime set = module.ClockAt(clock.Now());
  EXPECT_EQ(set, (virtual_module::ClockTime{
                     .year = 2026, .month = 3, .day = 7, .hour = 9, .minute = 5, .weekday = 7}));
  EXPECT_EQ(clocks.synchronise.caption, "OK");
  DiagnosticsScreen.leave.Click();
  Arrive(600);
  EXPECT_EQ(module.errors(), 0);
  EXPECT_TRUE(module.polling());
}

TEST_F(ConversationTest, DetectorsOfEitherVersionShowTheirContacts) {
  for (const char* name : {"ShortDetectorsOfKind5", "LongDetectorsOfKind5"}) {
    virtual_module::Module& module = Prepare(RowOf(name));
    module.SetContact(2, true);
    StartAndWait(RowOf(name));
    clock.Advance(1000);
    for (const int detector : {1, 2, 4}) EXPECT_EQ(Row(detector).contact.caption, "Rust");
    EXPECT_EQ(Row(3).contact.caption, "TRIGGER!");
    EXPECT_EQ(Row(3).contact.colour, Red);
    module.SetContact(2, false);
    clock.Advance(1000);
    EXPECT_EQ(Row(3).contact.caption, "Rust");
    EXPECT_EQ(Row(3).contact.colour, Green);
    StopAndWait(RowOf(name));
  }
}

TEST_F(ConversationTest, TheModuleTakesEditedDetectorsOver) {
  for (const int count : {1, 4, 12}) {
    const TestRow& row = RowOf("LongDetectorsOfKind5");
    virtual_module::Module& module = Prepare(row, std::nullopt, count);
    StartAndWait(row);
    ASSERT_TRUE(clock.RunUntil([this] { return panel.update.enabled; }, 10'000));
    const auto before = module.DetectorsNow();
    PickLevel(1, 160);
    Row(1).logic.Pick(1);
    PickLevel(count, 5000);
    Row(count).logic.Pick(0);
    panel.update.Click();
    ASSERT_TRUE(clock.RunUntil([this] { return panel.update.enabled; }, 10'000));
    Arrive(2000);
    EXPECT_EQ(module.errors(), 0);
    const auto& after = module.DetectorsNow();
    const auto last = static_cast<std::size_t>(count - 1);
    if (count > 1) {
      EXPECT_EQ(after[0].level, 16);
      EXPECT_EQ(after[0].code, 11);
    }
    EXPECT_EQ(after[last].level, 250);
    EXPECT_EQ(after[last].code, 20);
    for (std::size_t i = 1; i < last; ++i) EXPECT_EQ(after[i], before[i]);
    EXPECT_EQ(Row(count).level.Text(), "5000");
    EXPECT_EQ(Row(count).logic.Text(), "<");
    EXPECT_EQ(Row(count).level.colour, Blue);
    StopAndWait(row);
  }
}

TEST_F(ConversationTest, APortThatVanishesAmongTheLinesGivesEverythingBack) {
  for (const char* name : {"LineOfKind0", "LightOfKind9", "ClockOfKind9", "LongDetectorsOfKind5",
                           "ShortDetectorsOfKind5"}) {
    Prepare(RowOf(name), Fault::VanishInRead);
    StartAndWait(RowOf(name));
    EXPECT_THROW(clock.Advance(10'000), RuntimeError) << name;
    LeaveFailedTransfer();
    ExpectFree(true);
    EXPECT_EQ(Status(), "Ready");
    EXPECT_FALSE(DetectorUpdate.Enabled());
  }
}

TEST_F(ConversationTest, ALineThatIsBrokenOffHoldsTheProgram) {
  Prepare(RowOf("LineOfKind0"), Fault::StopsWithinLine);
  StartAndWait(RowOf("LineOfKind0"));
  EXPECT_THROW(clock.Advance(60'000), SpinLimit);
}

}  // namespace
}  // namespace bkconf
