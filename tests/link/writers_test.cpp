#include "link/writers.h"

#include <gtest/gtest.h>

#include <numeric>

#include "image/commands.h"
#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// Frames with the times of their first characters.
struct Sent {
  std::int64_t time;
  std::string frame;
};

class WritersTest : public SessionTest {
 protected:
  WritersTest() { Start(); }

  /// The write of this command from "M70000" to its end, with no module on the line.
  std::vector<Sent> Write(int kind, std::string_view command) {
    ActiveModuleType = kind;
    PendingCommand = command;
    WriteInProgress = 1;
    EXPECT_TRUE(StartTransfer());
    WakeUpWait.Disable();
    MainWindow.transferBar.Start(2000);
    line.written.clear();
    start = clock.Now();
    WriterSelect.Enable();
    EXPECT_TRUE(clock.RunUntil([] { return !TransferUnderWay || WakeUpWait.Enabled(); }, 100'000));
    return Frames();
  }

  /// Single characters belong to paced frames of seven.
  std::vector<Sent> Frames() const {
    std::vector<Sent> frames;
    for (const FakeLine::Written& each : line.written) {
      if (each.characters.size() > 1 || each.characters == "T") {
        frames.push_back({each.time, each.characters});
      } else {
        frames.back().frame += each.characters;
      }
    }
    return frames;
  }

  static void Fill(Table& table, int first) {
    for (int index = 0; index < table.Size(); ++index) table[index] = (first + index) % 200;
  }

  std::int64_t start = 0;
};

std::string Digits(int number, int width) {
  std::string text = std::to_string(number);
  return std::string(static_cast<std::size_t>(width) - text.size(), '0') + text;
}

/// The frames of a run of cells, written down from what the modules expect.
std::vector<std::string> BlockFrames(const Table& table, int first, int last) {
  std::vector<std::string> frames;
  for (int cell = first; cell <= last; ++cell) {
    frames.push_back("T" + Digits(cell - first, 3) + Digits(table[cell].Whole(), 3) + "\n\r");
  }
  return frames;
}

void Append(std::vector<std::string>& frames, const std::vector<std::string>& more) {
  frames.insert(frames.end(), more.begin(), more.end());
}

std::vector<std::string> TextOf(const std::vector<Sent>& sent) {
  std::vector<std::string> frames;
  for (const Sent& each : sent) frames.push_back(each.frame);
  return frames;
}

/// Positions in front of which the tool paused for a second.
std::vector<std::size_t> Pauses(const std::vector<Sent>& sent, std::int64_t tick) {
  std::vector<std::size_t> pauses;
  for (std::size_t i = 1; i < sent.size(); ++i) {
    const std::int64_t gap = sent[i].time - sent[i - 1].time;
    if (gap == 1'000'000) {
      pauses.push_back(i);
    } else {
      EXPECT_EQ(gap, tick) << i;
    }
  }
  return pauses;
}

TEST_F(WritersTest, RelaysAndDimmersGetCells0To162InPacedFrames) {
  Fill(ButtonImage, 3);
  for (const int kind : {0, 1, 4, 11}) {
    const std::vector<Sent> sent = Write(kind, "T70000");
    ASSERT_EQ(sent.size(), 163U) << kind;
    for (int cell = 0; cell < 163; ++cell) {
      EXPECT_EQ(sent[static_cast<std::size_t>(cell)].frame,
                "T" + Digits(cell, 3) + Digits(ButtonImage[cell].Whole(), 3));
    }
    EXPECT_TRUE(Pauses(sent, 20'000).empty());
  }
}

TEST_F(WritersTest, TheFirstFrameComesOneTickAfterTheThirtyMillisecondsOfTheChoice) {
  const std::vector<Sent> sent = Write(8, "T70000");
  EXPECT_EQ(sent.front().time - start, 50'000);
}

TEST_F(WritersTest, TheAlarmModulePausesBehindCell147AndGoesOnWithCell149AsZero) {
  Fill(AlarmImage, 5);
  const std::vector<Sent> sent = Write(5, "T70000");
  std::vector<std::string> expected = BlockFrames(AlarmImage, 0, 147);
  Append(expected, BlockFrames(AlarmImage, 149, 293));
  EXPECT_EQ(TextOf(sent), expected);
  EXPECT_EQ(Pauses(sent, 20'000), std::vector<std::size_t>{148});
}

TEST_F(WritersTest, TheAudioModuleGetsFourBlocks) {
  Fill(AudioImage, 5);
  const std::vector<Sent> sent = Write(6, "T70000");
  std::vector<std::string> expected = BlockFrames(AudioImage, 0, 122);
  Append(expected, BlockFrames(AudioImage, 124, 180));
  Append(expected, BlockFrames(AudioImage, 181, 196));
  Append(expected, BlockFrames(AudioImage, 197, 212));
  EXPECT_EQ(TextOf(sent), expected);
  EXPECT_EQ(Pauses(sent, 20'000), (std::vector<std::size_t>{123, 180, 196}));
}

TEST_F(WritersTest, TheSimulationModuleGetsTwoBlocks) {
  Fill(SimulationImage, 5);
  const std::vector<Sent> sent = Write(7, "T70000");
  std::vector<std::string> expected = BlockFrames(SimulationImage, 0, 123);
  Append(expected, BlockFrames(SimulationImage, 125, 184));
  EXPECT_EQ(TextOf(sent), expected);
  EXPECT_EQ(Pauses(sent, 20'000), std::vector<std::size_t>{124});
}

TEST_F(WritersTest, TheIrModuleGetsFiveBlocksWithItsVersionCell) {
  Fill(IrImage, 5);
  const std::vector<Sent> sent = Write(8, "T70000");
  std::vector<std::string> expected = BlockFrames(IrImage, 0, 124);
  for (const int first : {125, 221, 317, 413}) {
    Append(expected, BlockFrames(IrImage, first, first + 95));
  }
  EXPECT_EQ(TextOf(sent), expected);
  EXPECT_EQ(Pauses(sent, 20'000), (std::vector<std::size_t>{125, 221, 317, 413}));
}

TEST_F(WritersTest, TheDisplayModuleGetsOnlyTheAddressOfItsHeader) {
  LcdHeader[0] = 67;
  LcdHeader[1] = 21;
  EXPECT_EQ(TextOf(Write(3, "T70000")), std::vector<std::string>{"T000067\n\r"});
}

TEST_F(WritersTest, ADisplayTableGoesOutInFourRunsAtThirtyMilliseconds) {
  for (const auto& [command, table] :
       {std::pair{"T71000", &LcdScreen1}, std::pair{"T73000", &LcdScreen2}}) {
    Fill(*table, 5);
    const std::vector<Sent> sent = Write(3, command);
    std::vector<std::string> expected = BlockFrames(*table, 0, 71);
    Append(expected, BlockFrames(*table, 72, 700));
    Append(expected, BlockFrames(*table, 701, 779));
    Append(expected, BlockFrames(*table, 780, 1019));
    EXPECT_EQ(TextOf(sent), expected);
    EXPECT_EQ(Pauses(sent, 30'000), (std::vector<std::size_t>{72, 701, 780}));
  }
}

TEST_F(WritersTest, TheWeekdayNamesGoOutInOneRun) {
  Fill(LcdWeekdayNames, 5);
  const std::vector<Sent> sent = Write(3, "T75000");
  EXPECT_EQ(TextOf(sent), BlockFrames(LcdWeekdayNames, 0, 20));
  EXPECT_TRUE(Pauses(sent, 30'000).empty());
}

TEST_F(WritersTest, TheMastersBaseTableGoesOutInBlockFrames) {
  Fill(ButtonImage, 5);
  EXPECT_EQ(TextOf(Write(9, "T70000")), BlockFrames(ButtonImage, 0, 162));
}

TEST_F(WritersTest, AMasterTableGoesOutToCell999WhenNothingEndsIt) {
  for (const auto& [command, table] :
       {std::pair{"T71000", &ContextTable}, std::pair{"T72000", &TimeProgramTable},
        std::pair{"T73000", &LightProgramTable}}) {
    Fill(*table, 5);
    EXPECT_EQ(TextOf(Write(9, command)), BlockFrames(*table, 0, 999)) << command;
  }
}

TEST_F(WritersTest, AMasterTableThatBeginsWithTwoEmptyCellsEndsAfterTwoFrames) {
  ContextTable[0] = ContextTable[1] = 42;
  EXPECT_EQ(TextOf(Write(9, "T71000")), (std::vector<std::string>{"T000042\n\r", "T001042\n\r"}));
}

TEST_F(WritersTest, TwoNeighboursWithTheEmptyMarkEndAMasterTableWhereverTheyAre) {
  Fill(TimeProgramTable, 100);
  TimeProgramTable[7] = 42;
  TimeProgramTable[8] = "42";  // a digit text counts as its number
  EXPECT_EQ(Write(9, "T72000").size(), 9U);
}

TEST_F(WritersTest, AnAsteriskAndOneEmptyMarkDoNotEndAMasterTable) {
  Fill(LightProgramTable, 100);
  for (int index = 0; index < 1000; ++index) {
    if (LightProgramTable[index].Number() == 42) LightProgramTable[index] = 43;
  }
  LightProgramTable[7] = 42;
  LightProgramTable[8] = "*";
  EXPECT_EQ(Write(9, "T73000").size(), 1000U);
}

TEST_F(WritersTest, CellZeroAloneDoesNotEndAMasterTable) {
  Fill(ContextTable, 100);
  ContextTable[0] = 42;
  ContextTable[999] = 42;
  EXPECT_GT(Write(9, "T71000").size(), 2U);
}

/// The frames of a temperature table by the form that its module expects.
std::vector<std::string> TemperatureFrames(int table) {
  std::vector<std::string> frames;
  const auto add = [&frames](const Table& cells, int count, int width) {
    for (int cell = 0; cell < count; ++cell) {
      const int value = cells[cell].Whole();
      const std::string text = width == 0 ? std::to_string(value) : Digits(value, width);
      frames.push_back("T" + Digits(cell, 3) + text + "\n\r");
    }
  };
  if (table == 0) add(TempHeader, 3, 3);
  if (table == 1) add(TempRoomIds, 64, 0);
  if (table == 2) add(TempPeriods, 672, 2);
  if (table == 3) add(TempSetpoints, 336, 2);
  if (table == 4) add(TempTail, 82, 0);
  return frames;
}

TEST_F(WritersTest, TheTemperatureModuleGetsTheChainOfItsCommand) {
  for (int cell = 0; cell < 4; ++cell) TempHeader[cell] = 65 + cell;
  Fill(TempRoomIds, 90);
  for (int cell = 0; cell < 672; ++cell) TempPeriods[cell] = cell % 60;
  for (int cell = 0; cell < 336; ++cell) TempSetpoints[cell] = cell % 41;
  Fill(TempTail, 95);
  struct {
    const char* command;
    std::vector<int> tables;
  } const chains[] = {{"T70000", {0}},       {"T71000", {1, 4}},    {"T72000", {2, 3}},
                      {"T73000", {0, 1, 4}}, {"T74000", {0, 2, 3}}, {"T75000", {0, 1, 2, 3, 4}}};
  for (const auto& chain : chains) {
    std::vector<std::string> expected;
    std::vector<std::size_t> tableStarts;
    for (const int table : chain.tables) {
      tableStarts.push_back(expected.size());
      Append(expected, TemperatureFrames(table));
    }
    const std::vector<Sent> sent = Write(2, chain.command);
    EXPECT_EQ(TextOf(sent), expected) << chain.command;
    for (std::size_t i = 1; i < sent.size(); ++i) {
      // Between two tables: the pause of 30 ms and the tick of the writer.
      const bool between =
          std::find(tableStarts.begin(), tableStarts.end(), i) != tableStarts.end();
      EXPECT_EQ(sent[i].time - sent[i - 1].time, between ? 50'000 : 20'000) << i;
    }
    EXPECT_EQ(TableSelector.Whole(), chain.tables.back());
  }
}

TEST_F(WritersTest, ARepeatedCommandSendsItsWholeChainAgain) {
  TableSelector = 4;  // where the write before ended
  const std::vector<Sent> sent = Write(2, "T71000");
  EXPECT_EQ(sent.size(), 146U);
}

TEST_F(WritersTest, TheEndOfAWriteIsReadyWithEverythingBack) {
  for (const int kind : AllKinds) {
    Write(kind, "T70000");
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_FALSE(MainWindow.transferBar.visible);
    EXPECT_EQ(WriteInProgress, Cell(0));
    EXPECT_TRUE(MainWindow.connect.enabled);
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_TRUE(MainWindow.bestand.enabled);
    EXPECT_TRUE(MainWindow.moduleList.enabled);
    EXPECT_EQ(MainWindow.Group(ActiveKind()->group).address.enabled, kind != 9);
    EXPECT_TRUE(line.IsOpen());
    for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
  }
}

TEST_F(WritersTest, TheBarMovesWithEachFrame) {
  Write(7, "T70000");
  EXPECT_EQ(MainWindow.transferBar.Value(), 184);
}

TEST_F(WritersTest, ATableThatIsStillDirtyGoesThroughTheWholeConversationAgain) {
  MasterLightDirty = 1;
  Write(9, "T70000");
  EXPECT_EQ(PendingCommand, Cell("T73000"));
  EXPECT_EQ(MasterLightDirty, Cell(0));
  EXPECT_EQ(TableSelector, Cell(3));
  EXPECT_EQ(WriteInProgress, Cell(1));
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_FALSE(MainWindow.connect.enabled);
}

TEST_F(WritersTest, AFurtherTableWhosePortCannotBeOpenedLeavesTheWindowLocked) {
  MasterLightDirty = 1;
  ActiveModuleType = 9;
  PendingCommand = "T70000";
  ASSERT_TRUE(StartTransfer());
  WakeUpWait.Disable();
  WriteInProgress = 1;
  line.canOpen = false;
  WriterSelect.Enable();
  clock.Advance(20'000);
  EXPECT_FALSE(WakeUpWait.Enabled());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_FALSE(MainWindow.connect.enabled);
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(WritersTest, OtherKindsSendNoFurtherTable) {
  MasterLightDirty = 1;
  Write(0, "T70000");
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_EQ(MasterLightDirty, Cell(1));
}

TEST_F(WritersTest, AWriteAcknowledgeForACommandThatWritesNothingSendsNoCell) {
  for (const CommandRow& row : CommandVocabulary) {
    if (!row.command.starts_with("T8")) continue;
    for (const int kind : AllKinds) {
      if (!row.kinds.Contains(kind)) continue;
      // What an earlier write of the temperature module left chosen.
      for (int selector = 0; selector <= 4; ++selector) {
        ActiveModuleType = kind;
        PendingCommand = row.command;
        TableSelector = selector;
        ASSERT_TRUE(StartTransfer());
        WakeUpWait.Disable();
        WriterSelect.Enable();
        EXPECT_THROW(clock.Advance(100), RuntimeError) << kind << " " << row.command;
        EXPECT_EQ(line.AllWritten(), "") << kind << " " << row.command << " " << selector;
        for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
      }
    }
  }
}

TEST_F(WritersTest, APortThatVanishesDuringAWriteIsAnError) {
  ActiveModuleType = 0;
  PendingCommand = "T70000";
  ASSERT_TRUE(StartTransfer());
  WakeUpWait.Disable();
  WriterSelect.Enable();
  clock.Advance(500);
  line.failed = true;
  EXPECT_THROW(clock.Advance(500), RuntimeError);
}

TEST_F(WritersTest, CellsThatWereNeverFilledGoOutAsZero) {
  for (const Sent& each : Write(5, "T70000")) {
    EXPECT_EQ(each.frame.substr(4), "000\n\r");
  }
}

}  // namespace
}  // namespace bkconf
