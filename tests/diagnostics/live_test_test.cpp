#include "diagnostics/live_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>

#include "diagnostics/clock_panel.h"
#include "diagnostics/detector_panel.h"
#include "diagnostics/diagnostics_test.h"
#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"

namespace bkconf {
namespace {

/// What all tests have in common: how they start, run and end.
class LiveTestTest : public DiagnosticsTest, public testing::WithParamInterface<TestRow> {
 protected:
  static const TestRow& Row() { return GetParam(); }
  void OpenPanel(int language = 1) {
    Open(Row().kind, language, Row().version);
    Choose(Row().choice);
    WrittenSince();
  }
  void Begin() { DiagnosticsTest::Begin(*Row().start); }
  void Run() { DiagnosticsTest::Run(*Row().start); }
  static const std::string& Running(int language) {
    return language == 1 ? Row().dutch : Row().french;
  }
  /// The port fails: the error leaves its event, and the window's handler does the rest.
  void Fail(std::int64_t milliseconds) {
    line.failed = true;
    EXPECT_THROW(clock.Advance(milliseconds), RuntimeError);
    LeaveFailedTransfer();
  }
  static std::vector<std::string> StartedCells() {
    return {"PendingCommand", "WriteInProgress", "RxLine"};
  }
};

/// Those that a person can stop, that end by themselves, and that run until they are stopped.
class StoppedTestTest : public LiveTestTest {};
class EndingTestTest : public LiveTestTest {};
class EndlessTestTest : public LiveTestTest {};

TEST_P(LiveTestTest, StartingDoesFiveThings) {
  for (const int language : {1, 2}) {
    OpenPanel(language);
    RxLine = "left over";
    WriteInProgress = 1;
    PendingCommand = "T70000";
    line.Open();
    line.calls.clear();
    const Snapshot before = TakeSnapshot();
    Row().start->Click();
    ExpectOnlyChanged(before, StartedCells());
    EXPECT_EQ(PendingCommand, Cell(Row().command));
    EXPECT_EQ(RxLine, "");
    const std::string searching = language == 1 ? "Module zoeken..." : "Recherche module...";
    EXPECT_EQ(MainWindow.status.caption, searching);
    EXPECT_EQ(Status(), searching);
    EXPECT_TRUE(MainWindow.transferBar.visible);
    EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
    EXPECT_EQ(MainWindow.transferBar.Value(), 0);
    EXPECT_EQ(line.calls, (std::vector<std::string>{"close", "open"}));
    EXPECT_TRUE(WakeUpWait.Enabled());
    ExpectFree(false);
  }
}

TEST_P(LiveTestTest, NothingCanBeUsedUntilTheModuleHasTakenTheCommand) {
  OpenPanel();
  Begin();
  for (const Field* field : DiagnosticsScreen.fields) {
    // Those of panels that the module does not have are never seen.
    const bool isOutput = field->name.starts_with("output") && field->name != "outputsChoice";
    const bool isUpdate = field == &DiagnosticsScreen.detectors.update;
    const bool seen = (!isOutput || Row().choice == "outputsChoice") &&
                      (!isUpdate || Row().choice == "detectorsChoice");
    if (field->kind == FieldKind::Button && seen) {
      EXPECT_FALSE(field->enabled) << field->name;
    }
  }
}

TEST_P(LiveTestTest, TheCommandGoesOutAsSixPacedCharactersAndACr) {
  OpenPanel();
  Begin();
  EXPECT_EQ(WrittenSince(), Repeated(22, "D") + Row().command + "\r");
}

TEST_P(LiveTestTest, BothStatusFieldsTellWhatRuns) {
  for (const int language : {1, 2}) {
    OpenPanel(language);
    Begin();
    EXPECT_EQ(MainWindow.status.caption, language == 1 ? "Diagnose" : "Diagnostics");
    EXPECT_FALSE(MainWindow.transferBar.visible);
    EXPECT_EQ(Status(), Running(language));
    EXPECT_EQ(DiagnosticsScreen.bar.visible, Row().steps > 0);
    if (Row().steps > 0) {
      EXPECT_EQ(DiagnosticsScreen.bar.Maximum(), Row().steps);
      EXPECT_EQ(DiagnosticsScreen.bar.Value(), 0);
    }
  }
}

TEST_P(LiveTestTest, TheAcknowledgeLetsOnlyItsOwnTestBeStopped) {
  OpenPanel();
  Run();
  for (const TestRow& row : TestRows()) {
    if (row.stop != nullptr) {
      EXPECT_EQ(row.stop->enabled, row.stop == Row().stop) << row.name;
    }
  }
  EXPECT_FALSE(DiagnosticsScreen.leave.enabled);
  EXPECT_TRUE(LinkTick.Enabled());
  EXPECT_EQ(RxLine, "");
}

TEST_P(LiveTestTest, ATestWithoutAStopHasNoStopButtonToSee) {
  OpenPanel();
  if (Row().stop != nullptr) {
    EXPECT_TRUE(Row().stop->visible);
  } else if (Row().choice == "lightChoice") {
    EXPECT_FALSE(DiagnosticsScreen.light.stop.visible);
  }
}

TEST_P(StoppedTestTest, StoppingEndsItAtOnce) {
  OpenPanel();
  Run();
  const Snapshot before = TakeSnapshot();
  Row().stop->Click();
  ExpectOnlyChanged(before, {"PendingCommand"});
  EXPECT_EQ(PendingCommand, Cell());
  ExpectFree(true);
  EXPECT_EQ(Status(), "Ready");
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_FALSE(DiagnosticsScreen.bar.visible || MainWindow.transferBar.visible);
  EXPECT_TRUE(line.IsOpen());
  // What the module still says is not read any more.
  Tell("STOP");
  EXPECT_EQ(RxLine, "");
  EXPECT_EQ(line.BytesWaiting(), 5);
}

TEST_P(StoppedTestTest, TheFramesOfTheStopAreTheTestsOwn) {
  OpenPanel();
  Run();
  WrittenSince();
  const std::int64_t start = clock.Now();
  Row().stop->Click();
  const std::vector<FakeLine::Written> writes = WritesSince();
  if (Row().choice == "outputsChoice") {
    // A pause of 2001 turns after each of the five characters.
    const std::vector<std::string> frame = {"T", "9", "9", "\n", "\r"};
    ASSERT_EQ(writes.size(), 100U);
    for (std::size_t i = 0; i < writes.size(); ++i) {
      EXPECT_EQ(writes[i].characters, frame[i % 5]) << i;
      EXPECT_EQ(writes[i].time - start, static_cast<std::int64_t>(i) * 2001) << i;
    }
    EXPECT_EQ(clock.Now() - start, 100 * 2001);
  } else {
    ASSERT_EQ(writes.size(), 50U);
    for (const FakeLine::Written& write : writes) {
      EXPECT_EQ(write.characters, "\x54\x39\x39\x39\x39\x39\x0A\x0D");
      EXPECT_EQ(write.time, start);
    }
  }
}

TEST_P(LiveTestTest, AStopButtonOfAnotherTestDoesNothing) {
  OpenPanel();
  Run();
  WrittenSince();
  for (const TestRow& row : TestRows()) {
    if (row.stop != nullptr && row.stop != Row().stop) row.stop->Click();
  }
  EXPECT_EQ(WrittenSince(), "");
  ExpectFree(false);
}

TEST_P(EndingTestTest, StopOfTheModuleEndsTheTestsThatEndByThemselves) {
  OpenPanel();
  Run();
  WrittenSince();
  Tell("STOP");
  ExpectFree(true);
  EXPECT_EQ(Status(), "Ready");
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_FALSE(DiagnosticsScreen.bar.visible);
  EXPECT_EQ(WrittenSince(), "");
  EXPECT_TRUE(line.IsOpen());
}

TEST_P(LiveTestTest, ASendAfterItRepeatsWhatWasAskedBefore) {
  PendingCommand = "T80000";
  OpenPanel();
  Run();
  LeaveTransfer();
  EXPECT_EQ(PendingCommand, Cell("T80000"));
}

TEST_P(EndlessTestTest, APortThatFailsAtTheStopDoesNotLockTheScreen) {
  OpenPanel();
  Run();
  line.failed = true;
  EXPECT_THROW(Row().stop->Click(), RuntimeError);
  ExpectFree(true);
  EXPECT_EQ(RunningTest, nullptr);
}

TEST_P(EndlessTestTest, StopOfTheModuleEndsTheOthersToo) {
  OpenPanel();
  Run();
  Tell("STOP");
  EXPECT_FALSE(LinkTick.Enabled());
  ExpectFree(true);
  EXPECT_EQ(Status(), "Ready");
}

TEST_P(LiveTestTest, NeitherLeavingNorAChoiceEndsARunningTest) {
  OpenPanel();
  for (const bool accepted : {false, true}) {
    if (accepted) {
      Run();
    } else {
      Row().start->Click();
    }
    DiagnosticsScreen.leave.Click();
    for (const auto& choice : DiagnosticsScreen.choices) choice->Click();
    Row().start->Click();
    EXPECT_TRUE(DiagnosticsScreen.shown);
    ExpectFree(false);
    EXPECT_EQ(RunningTest == nullptr, false);
    LeaveTransfer();
  }
}

TEST_P(LiveTestTest, ClosingTheWindowLeavesATestThatNobodyAnswers) {
  for (const bool portOpens : {true, false}) {
    OpenPanel();
    line.canOpen = portOpens;
    Row().start->Click();
    clock.Advance(3000);
    const std::string before = line.AllWritten();
    DiagnosticsScreen.Close();
    EXPECT_FALSE(DiagnosticsScreen.shown);
    ExpectFree(true);
    EXPECT_FALSE(DiagnosticsScreen.bar.visible || MainWindow.transferBar.visible);
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    EXPECT_EQ(PendingCommand, Cell());
    // A clock that was asked is told, as whenever its panel is left.
    const std::string told = portOpens && Row().choice == "clockChoice" ? "T99999\n\r" : "";
    EXPECT_EQ(line.AllWritten(), before + Repeated(50, told));
  }
}

TEST_P(StoppedTestTest, ClosingTheWindowStopsARunningTest) {
  OpenPanel();
  Run();
  WrittenSince();
  Row().stop->Click();
  const std::string stop = WrittenSince();
  ASSERT_FALSE(stop.empty());
  Run();
  WrittenSince();
  DiagnosticsScreen.Close();
  EXPECT_EQ(WrittenSince(), stop);
  EXPECT_FALSE(DiagnosticsScreen.shown);
  ExpectFree(true);
  EXPECT_EQ(MainWindow.status.caption, "Ready");
}

TEST_P(LiveTestTest, ARefusedIdentityGivesEverythingBack) {
  for (const char* identity : {"DISPL2", "DISPLX", "nobody"}) {
    for (const int language : {1, 2}) {
      OpenPanel(language);
      messages.told.clear();
      DiagnosticsTest::Begin(*Row().start, identity);
      EXPECT_EQ(messages.told,
                std::vector<std::string>{language == 1
                                             ? "De gevonden module is niet van het juiste type !"
                                             : "Le module trouvé n'est pas du bon type !"});
      ExpectFree(true);
      EXPECT_EQ(MainWindow.status.caption, "Edit mode");
      EXPECT_FALSE(DiagnosticsScreen.bar.visible || MainWindow.transferBar.visible);
      EXPECT_EQ(WrittenSince(), Repeated(22, "D"));
      EXPECT_TRUE(line.IsOpen());
      EXPECT_EQ(ActiveModuleType, Cell(Row().kind));
      DiagnosticsScreen.leave.Click();
      EXPECT_FALSE(DiagnosticsScreen.shown);
      WrittenSince();
    }
  }
}

TEST_P(LiveTestTest, WithNoAnswerTheSearchGoesOn) {
  OpenPanel();
  Row().start->Click();
  clock.Advance(3000);
  EXPECT_EQ(Status(), "Module zoeken...");
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_EQ(WrittenSince(), "");
  EXPECT_TRUE(messages.told.empty());
  ExpectFree(false);
  LeaveTransfer();
}

TEST_P(LiveTestTest, APortThatVanishesGivesEverythingBack) {
  for (const bool accepted : {false, true}) {
    OpenPanel();
    if (accepted) {
      Run();
    } else {
      Begin();
    }
    Fail(2);
    ExpectFree(true);
    EXPECT_FALSE(DiagnosticsScreen.bar.visible || MainWindow.transferBar.visible);
    EXPECT_FALSE(DetectorUpdate.Enabled() || ClockSend.Enabled());
    EXPECT_EQ(RxLine, "");
    line.failed = false;
    Run();
    EXPECT_EQ(Status(), Running(1));
    LeaveTransfer();
  }
}

TEST_P(StoppedTestTest, APortThatVanishesAtTheStopGivesEverythingBack) {
  OpenPanel();
  Run();
  line.failed = true;
  EXPECT_THROW(Row().stop->Click(), RuntimeError);
  LeaveFailedTransfer();
  ExpectFree(true);
}

TEST_P(LiveTestTest, AfterItsEndItCanBeStartedAgain) {
  OpenPanel();
  for (int turn = 0; turn < 3; ++turn) {
    Run();
    EXPECT_EQ(Status(), Running(1));
    if (Row().stop != nullptr) {
      Row().stop->Click();
    } else {
      Tell("STOP");
    }
    ExpectFree(true);
  }
}

TEST_P(LiveTestTest, ItsLinesChangeNoImage) {
  OpenPanel();
  Run();
  const Snapshot before = TakeSnapshot();
  for (const char* text : {"M10042", "M05", "M0930", "M010226-7", "M0010012304511"}) Tell(text);
  const bool fillsBuffer = Row().command == "T80400";
  ExpectOnlyChanged(before, fillsBuffer
                                ? std::vector<std::string>{"DiagBuffer[0..2]", "DiagBuffer[12..14]"}
                                : std::vector<std::string>{});
}

/// The rows of which that holds.
std::vector<TestRow> RowsThat(bool (*holds)(const TestRow&)) {
  std::vector<TestRow> rows;
  std::copy_if(TestRows().begin(), TestRows().end(), std::back_inserter(rows), holds);
  return rows;
}

// --- Lines without meaning ----------------------------------------------------------------------

/// All that a line of a test can change on the screen.
std::vector<std::string> ShownTexts() {
  std::vector<std::string> texts;
  for (const Field* field : DiagnosticsScreen.fields) {
    texts.push_back(field->name + " " + field->caption + (field->enabled ? " +" : " -") +
                    (field->visible ? "+" : "-"));
    if (field->colour) texts.back() += std::to_string(field->colour->red);
    if (const auto* list = dynamic_cast<const ListField*>(field)) texts.back() += list->Text();
    if (const auto* box = dynamic_cast<const ListBoxField*>(field)) {
      texts.back() += std::to_string(box->Items().size());
    }
  }
  texts.push_back(std::to_string(DiagnosticsScreen.bar.Value()));
  return texts;
}

TEST_P(LiveTestTest, ALineThatIsTooShortOrTooLongChangesNothing) {
  OpenPanel();
  Run();
  const Snapshot before = TakeSnapshot();
  const std::vector<std::string> shown = ShownTexts();
  for (const std::size_t length : {0U, 1U, 2U}) Tell(std::string(length, '1'));
  for (const std::size_t length : {15U, 16U, 28U, 300U, 5000U}) Tell(std::string(length, '0'));
  EXPECT_EQ(ShownTexts(), shown);
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(LinkTick.Enabled());
}

/// Characters of a line, some of them like those of a real one; never a CR, and no beginning that
/// means the end of a test or of a write.
std::string MadeUpLine(std::mt19937& random) {
  const auto below = [&random](unsigned end) { return random() % end; };
  constexpr std::string_view likely = "0123456789MCKR- xT";
  std::string text(1, "MCKRS0x"[below(7)]);
  const std::size_t length = below(8) == 0 ? below(200) : below(17);
  while (text.size() < length) {
    const bool wild = below(10) == 0;
    text += wild ? static_cast<char>(below(256)) : likely[below(likely.size())];
    if (text.back() == '\r') text.back() = '?';
  }
  const bool ends = text.starts_with("STOP") || text.starts_with("M70000");
  return ends ? "x" : text;
}

TEST_P(LiveTestTest, TenThousandMadeUpLinesBreakNothing) {
  OpenPanel();
  Run();
  const bool endless = !Row().endsByItself;
  const Snapshot before = TakeSnapshot();
  std::mt19937 random(20260307);
  for (int i = 0; i < 10'000; ++i) {
    const std::string text = MadeUpLine(random);
    const std::vector<std::string> shown = i % 50 == 0 ? ShownTexts() : std::vector<std::string>{};
    now.second = static_cast<unsigned>(i / 50 % 60);
    RxLine.clear();
    Tell(text);
    ASSERT_EQ(RxLine, "") << text;
    ASSERT_TRUE(LinkTick.Enabled()) << text;
    ASSERT_LE(DiagnosticsScreen.bar.Value(), DiagnosticsScreen.bar.Maximum());
    const bool meaningless = text.size() < 3 || text.size() > 14;
    if (meaningless && !shown.empty()) {
      ASSERT_EQ(ShownTexts(), shown) << text;
    }
  }
  // Of all tables only the one of the tests may have changed.
  const Snapshot after = TakeSnapshot();
  for (const auto& [name, cell] : before) {
    if (name.starts_with("DiagBuffer")) continue;
    EXPECT_EQ(after.at(name), cell) << name;
  }
  EXPECT_EQ(Status(), Running(1));
  if (endless) {
    Row().stop->Click();
  } else {
    Tell("STOP");
  }
  ExpectFree(true);
}

TEST_P(LiveTestTest, AWriteThatTheModuleAcknowledgesByMistakeSendsNoCell) {
  OpenPanel();
  Run();
  WrittenSince();
  line.Receive("M70000\r");
  try {
    clock.Advance(200);
  } catch (const RuntimeError&) {
    LeaveFailedTransfer();
  }
  EXPECT_EQ(WrittenSince(), "");
  ExpectFree(true);
}

const auto NameOfRow = [](const auto& row) { return row.param.name; };

INSTANTIATE_TEST_SUITE_P(Tests, LiveTestTest, testing::ValuesIn(TestRows()), NameOfRow);
INSTANTIATE_TEST_SUITE_P(Tests, StoppedTestTest, testing::ValuesIn(RowsThat([](const TestRow& row) {
                           return row.stop != nullptr;
                         })),
                         NameOfRow);
INSTANTIATE_TEST_SUITE_P(Tests, EndingTestTest, testing::ValuesIn(RowsThat([](const TestRow& row) {
                           return row.endsByItself;
                         })),
                         NameOfRow);
INSTANTIATE_TEST_SUITE_P(Tests, EndlessTestTest, testing::ValuesIn(RowsThat([](const TestRow& row) {
                           return !row.endsByItself;
                         })),
                         NameOfRow);

}  // namespace
}  // namespace bkconf
