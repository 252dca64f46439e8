#include <gtest/gtest.h>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

enum class Form { Paced, Three, Two, Unpadded };

struct Block {
  const char* table;
  int first;
  int last;
  Form form;
};

struct WriteCase {
  int kind;
  const char* command;
  std::vector<Block> blocks;
  int frames;
};

const std::vector<WriteCase>& WriteCases() {
  const Block header = {"TempHeader", 0, 2, Form::Three};
  const Block ids = {"TempRoomIds", 0, 63, Form::Unpadded};
  const Block periods = {"TempPeriods", 0, 671, Form::Two};
  const Block setpoints = {"TempSetpoints", 0, 335, Form::Two};
  const Block tail = {"TempTail", 0, 81, Form::Unpadded};
  const auto screen = [](const char* table) {
    return std::vector<Block>{{table, 0, 71, Form::Three},
                              {table, 72, 700, Form::Three},
                              {table, 701, 779, Form::Three},
                              {table, 780, 1019, Form::Three}};
  };
  static const std::vector<WriteCase> cases = {
      {0, "T70000", {{"ButtonImage", 0, 162, Form::Paced}}, 163},
      {1, "T70000", {{"ButtonImage", 0, 162, Form::Paced}}, 163},
      {4, "T70000", {{"ButtonImage", 0, 162, Form::Paced}}, 163},
      {11, "T70000", {{"ButtonImage", 0, 162, Form::Paced}}, 163},
      {9, "T70000", {{"ButtonImage", 0, 162, Form::Three}}, 163},
      {9, "T71000", {{"ContextTable", 0, 999, Form::Three}}, 1000},
      {9, "T72000", {{"TimeProgramTable", 0, 999, Form::Three}}, 1000},
      {9, "T73000", {{"LightProgramTable", 0, 999, Form::Three}}, 1000},
      {5,
       "T70000",
       {{"AlarmImage", 0, 147, Form::Three}, {"AlarmImage", 149, 293, Form::Three}},
       293},
      {6,
       "T70000",
       {{"AudioImage", 0, 122, Form::Three},
        {"AudioImage", 124, 180, Form::Three},
        {"AudioImage", 181, 196, Form::Three},
        {"AudioImage", 197, 212, Form::Three}},
       212},
      {7,
       "T70000",
       {{"SimulationImage", 0, 123, Form::Three}, {"SimulationImage", 125, 184, Form::Three}},
       184},
      {8,
       "T70000",
       {{"IrImage", 0, 124, Form::Three},
        {"IrImage", 125, 220, Form::Three},
        {"IrImage", 221, 316, Form::Three},
        {"IrImage", 317, 412, Form::Three},
        {"IrImage", 413, 508, Form::Three}},
       509},
      {2, "T70000", {header}, 3},
      {2, "T71000", {ids, tail}, 146},
      {2, "T72000", {periods, setpoints}, 1008},
      {2, "T73000", {header, ids, tail}, 149},
      {2, "T74000", {header, periods, setpoints}, 1011},
      {2, "T75000", {header, ids, periods, setpoints, tail}, 1157},
      {3, "T70000", {{"LcdHeader", 0, 0, Form::Three}}, 1},
      {3, "T71000", screen("LcdScreen1"), 1020},
      {3, "T73000", screen("LcdScreen2"), 1020},
      {3, "T75000", {{"LcdWeekdayNames", 0, 20, Form::Three}}, 21},
  };
  return cases;
}

std::string Frame(Form form, int index, int value) {
  const std::string start = "T" + Digits(index, 3);
  switch (form) {
    case Form::Paced:
      return start + Digits(value, 3);
    case Form::Three:
      return start + Digits(value, 3) + "\n\r";
    case Form::Two:
      return start + Digits(value, 2) + "\n\r";
    case Form::Unpadded:
      return start + std::to_string(value) + "\n\r";
  }
  return {};
}

// A value for each cell that no default holds in the same order, never two 42 in a row.
int NewValue(int cell) {
  return (cell * 13 + 5) % 97;
}

// Sends the whole chain, a frame every 20 ms and a second between blocks; `wanted` gets the values.
void SendChain(Conversation& line, const WriteCase& write, Memory& wanted) {
  for (const Block& block : write.blocks) {
    for (int cell = block.first; cell <= block.last; ++cell) {
      EXPECT_EQ(line.RunFor(10 * millisecond), "");
      line.Send(Frame(block.form, cell - block.first, NewValue(cell)));
      wanted.Cells(block.table)[static_cast<std::size_t>(cell)] = NewValue(cell);
    }
    if (&block != &write.blocks.back()) {
      EXPECT_EQ(line.RunFor(second), "");
    }
  }
}

TEST(Write, EveryCommandOfEveryKindFillsItsBlocksAndNothingElse) {
  for (const WriteCase& write : WriteCases()) {
    SCOPED_TRACE(std::to_string(write.kind) + " " + write.command);
    Conversation line(write.kind);
    Memory wanted = line.module.memory();
    ASSERT_EQ(line.StartWrite(write.command), "M70000\r");
    SendChain(line, write, wanted);
    EXPECT_TRUE(line.module.memory() == wanted);
    EXPECT_EQ(line.module.errors(), 0);
    EXPECT_EQ(line.module.completedWrites(), 1);
    EXPECT_EQ(line.module.received().size(), 2U + static_cast<std::size_t>(write.frames));
    EXPECT_TRUE(line.module.polling());
    EXPECT_EQ(line.RunUntil("M"), "M");
  }
}

TEST(Write, FramesOfABlockStartAtZeroOnItsFirstCell) {
  for (const WriteCase& write : WriteCases()) {
    Conversation line(write.kind);
    Memory wanted = line.module.memory();
    line.StartWrite(write.command);
    SendChain(line, write, wanted);
    std::size_t record = 2;  // behind burst and command
    for (const Block& block : write.blocks) {
      const FrameRecord& first = line.module.received()[record];
      EXPECT_EQ(first.wireIndex, 0);
      EXPECT_EQ(first.cell, block.first);
      EXPECT_EQ(NameOf(*first.table), block.table);
      record += static_cast<std::size_t>(block.last - block.first);
      const FrameRecord& last = line.module.received()[record];
      EXPECT_EQ(last.wireIndex, block.last - block.first);
      EXPECT_EQ(last.cell, block.last);
      EXPECT_EQ(last.command, write.command);
      ++record;
    }
  }
}

TEST(Write, ARecordTellsWhenAFrameCameAndWhatItSaid) {
  Conversation line(6);
  line.StartWrite("T70000");
  line.now = 3 * second;
  line.Send("T000123\n\r", 100);
  const FrameRecord& record = line.module.received().back();
  EXPECT_EQ(record.kind, UnitKind::Frame);
  EXPECT_EQ(record.firstByte, 3 * second + 100);
  EXPECT_EQ(record.lastByte, 3 * second + 900);
  EXPECT_EQ(record.text, "T000123\n\r");
  EXPECT_EQ(record.value, 123);
}

struct Example {
  int kind;
  const char* command;
  const char* table;
  int cell;
  int value;
  const char* frame;
};

// Sends a chain of zeros with the one frame in its place.
void SendChainWith(Conversation& line, const WriteCase& write, const Example& example) {
  for (const Block& block : write.blocks) {
    for (int cell = block.first; cell <= block.last; ++cell) {
      const bool here = std::string(block.table) == example.table && cell == example.cell;
      line.Send(here ? example.frame : Frame(block.form, cell - block.first, 0), 1);
    }
  }
}

TEST(Write, FramesOfTheTemperatureAndDisplayModulesAreTheseLiterally) {
  const Example examples[] = {
      {2, "T70000", "TempHeader", 0, 65, "\x54\x30\x30\x30\x30\x36\x35\x0A\x0D"},
      {2, "T70000", "TempHeader", 1, 8, "T001008\n\r"},
      {2, "T70000", "TempHeader", 2, 10, "T002010\n\r"},
      {2, "T71000", "TempRoomIds", 0, 40, "\x54\x30\x30\x30\x34\x30\x0A\x0D"},
      {2, "T71000", "TempRoomIds", 0, 5, "T0005\n\r"},
      {2, "T71000", "TempRoomIds", 63, 255, "T063255\n\r"},
      {2, "T71000", "TempTail", 64, 65, "T06465\n\r"},
      {2, "T71000", "TempTail", 65, 0, "T0650\n\r"},
      {2, "T71000", "TempTail", 81, 8, "T0818\n\r"},
      {2, "T73000", "TempTail", 7, 7, "T00707\n\r"},
      {2, "T72000", "TempPeriods", 0, 6, "T00006\n\r"},
      {2, "T72000", "TempPeriods", 671, 5, "T67105\n\r"},
      {2, "T74000", "TempSetpoints", 335, 21, "T33521\n\r"},
      {2, "T75000", "TempTail", 81, 8, "T0818\n\r"},
      {3, "T70000", "LcdHeader", 0, 67, "T000067\n\r"},
      {3, "T71000", "LcdScreen1", 72, 75, "T000075\n\r"},
      {3, "T71000", "LcdScreen1", 683, 126, "T611126\n\r"},
      {3, "T71000", "LcdScreen1", 695, 3, "T623003\n\r"},
      {3, "T73000", "LcdScreen2", 701, 32, "T000032\n\r"},
      {3, "T73000", "LcdScreen2", 780, 35, "T000035\n\r"},
      {3, "T73000", "LcdScreen2", 1019, 0, "T239000\n\r"},
      {3, "T75000", "LcdWeekdayNames", 0, 90, "\x54\x30\x30\x30\x30\x39\x30\x0A\x0D"},
      {3, "T75000", "LcdWeekdayNames", 20, 32, "T020032\n\r"},
  };
  for (const Example& example : examples) {
    SCOPED_TRACE(example.frame);
    for (const WriteCase& write : WriteCases()) {
      if (write.kind == example.kind && std::string(write.command) == example.command) {
        Conversation line(write.kind);
        line.StartWrite(write.command);
        SendChainWith(line, write, example);
        EXPECT_EQ(line.module.errors(), 0);
        EXPECT_EQ(line.module.completedWrites(), 1);
        const auto& cells = line.module.memory().Cells(example.table);
        EXPECT_EQ(cells[static_cast<std::size_t>(example.cell)], example.value);
      }
    }
  }
}

TEST(Write, AMasterTableEndsBehindTwoEmptyCells) {
  const std::pair<const char*, const char*> tables[] = {
      {"T71000", "ContextTable"}, {"T72000", "TimeProgramTable"}, {"T73000", "LightProgramTable"}};
  for (const auto& [command, table] : tables) {
    Conversation line(9);
    const std::vector<int> before = line.module.memory().Cells(table);
    line.StartWrite(command);
    line.Send("T000042\n\rT001007\n\rT002042\n\r");
    EXPECT_EQ(line.module.completedWrites(), 0);
    line.Send("T003042\n\r");
    EXPECT_EQ(line.module.completedWrites(), 1);
    EXPECT_EQ(line.module.errors(), 0);
    std::vector<int> wanted = before;
    wanted[0] = wanted[2] = wanted[3] = 42;
    wanted[1] = 7;
    EXPECT_EQ(line.module.memory().Cells(table), wanted);
  }
}

TEST(Write, AMasterTableOfNothingEndsAfterTwoFrames) {
  Conversation line(9);
  line.StartWrite("T71000");
  line.Send("T000042\n\rT001042\n\r");
  EXPECT_EQ(line.module.completedWrites(), 1);
}

TEST(Write, TheBaseTableOfAMasterDoesNotEndEarly) {
  Conversation line(9);
  line.StartWrite("T70000");
  line.Send("T000042\n\rT001042\n\rT002042\n\r");
  EXPECT_EQ(line.module.completedWrites(), 0);
  EXPECT_EQ(line.module.errors(), 0);
}

TEST(Write, AMasterTableWithoutTwoEmptyCellsEndsAtCell999) {
  Conversation line(9);
  line.StartWrite("T73000");
  for (int cell = 0; cell < 999; ++cell) {
    line.Send(Frame(Form::Three, cell, cell % 2 == 0 ? 42 : 1), 1);
  }
  EXPECT_EQ(line.module.completedWrites(), 0);
  line.Send("T999001\n\r");
  EXPECT_EQ(line.module.completedWrites(), 1);
}

struct WrongFrame {
  int kind;
  const char* command;
  const char* table;
  const char* sent;
  int errors;
  std::vector<int> cells;  // the first cells of the table afterwards; -1: as before
  const char* error;       // of the first wrong unit
};

TEST(Write, FramesThatAreNotDueAreRecordedAndStoredWhereTheyCanBe) {
  const WrongFrame wrongs[] = {
      {6,
       "T70000",
       "AudioImage",
       "T000001\n\rT002003\n\rT003004\n\r",
       1,
       {1, -1, 3, 4},
       "index 2 where 1 was due"},
      {6,
       "T70000",
       "AudioImage",
       "T000001\n\rT000002\n\rT001003\n\r",
       1,
       {2, 3},
       "index 0 where 1 was due"},
      {6,
       "T70000",
       "AudioImage",
       "T500001\n\rT001002\n\r",
       1,
       {-1, 2},
       "index 500 where 0 was due"},
      {6,
       "T70000",
       "AudioImage",
       "T0x0001\n\rT001002\n\r",
       1,
       {-1, 2},
       "not the digits of a frame"},
      {6, "T70000", "AudioImage", "T00T001002\n\r", 1, {-1, 2}, "cut off by the next frame"},
      {6, "T70000", "AudioImage", "T000001T001002\n\r", 1, {1, 2}, "cut off by the next frame"},
      {6,
       "T70000",
       "AudioImage",
       "T00001\n\rT001002\n\r",
       1,
       {1, 2},
       "a value that is not of three digits"},
      {6, "T70000", "AudioImage", "T000001\rT001002\n\r", 1, {1, 2}, "without LF and CR"},
      {6, "T70000", "AudioImage", "abcT000001\n\r", 1, {1}, "between frames"},
      {6,
       "T70000",
       "AudioImage",
       "T0000011234567890T001002\n\r",
       1,
       {-1, 2},
       "longer than a frame"},
      {0, "T70000", "ButtonImage", "T000001\n\rT001002\n\rT002003", 2, {1, 2, 3}, "between frames"},
      {0, "T70000", "ButtonImage", "T00T001002", 1, {-1, 2}, "cut off by the next frame"},
      {0, "T70000", "ButtonImage", "T00x001T001002", 1, {-1, 2}, "not the digits of a frame"},
      {2,
       "T72000",
       "TempPeriods",
       "T000006\n\rT00107\n\r",
       1,
       {6, 7},
       "a value that is not of two digits"},
      {2,
       "T71000",
       "TempRoomIds",
       "T000040\n\rT0015\n\r",
       1,
       {40, 5},
       "a value with leading zeros"},
      {2,
       "T71000",
       "TempRoomIds",
       "T0001234\n\rT0015\n\r",
       1,
       {-1, 5},
       "not the digits of a frame"},
      {2, "T71000", "TempRoomIds", "T000\n\rT0015\n\r", 1, {-1, 5}, "not the digits of a frame"},
  };
  for (const WrongFrame& wrong : wrongs) {
    SCOPED_TRACE(wrong.sent);
    Conversation line(wrong.kind);
    const std::vector<int> before = line.module.memory().Cells(wrong.table);
    line.StartWrite(wrong.command);
    line.Send(wrong.sent);
    EXPECT_EQ(line.module.errors(), wrong.errors);
    for (const FrameRecord& record : line.module.received()) {
      if (!record.error.empty()) {
        EXPECT_EQ(record.error, wrong.error);
        break;
      }
    }
    std::vector<int> wanted = before;
    for (std::size_t cell = 0; cell < wrong.cells.size(); ++cell) {
      wanted[cell] = wrong.cells[cell] < 0 ? before[cell] : wrong.cells[cell];
    }
    EXPECT_EQ(line.module.memory().Cells(wrong.table), wanted);
  }
}

TEST(Write, AFrameBeyondItsBlockIsNotStoredInTheNextOne) {
  Conversation line(5);
  const std::vector<int> before = line.module.memory().Cells("AlarmImage");
  line.StartWrite("T70000");
  line.Send("T148007\n\r");
  EXPECT_EQ(line.module.errors(), 1);
  EXPECT_EQ(line.module.received().back().table, std::nullopt);
  EXPECT_EQ(line.module.memory().Cells("AlarmImage"), before);
}

TEST(Write, AWriteWithoutFramesForFiveSecondsIsAbandoned) {
  Conversation line(7);
  line.StartWrite("T70000");
  line.Send("T000009\n\rT001");
  EXPECT_EQ(line.RunFor(4990 * millisecond), "");
  EXPECT_EQ(line.RunFor(20 * millisecond), "M");
  EXPECT_EQ(line.module.completedWrites(), 0);
  EXPECT_EQ(line.module.errors(), 1);
  EXPECT_EQ(line.module.received().back().error, "broken off");
  EXPECT_EQ(line.module.memory().Cells("SimulationImage")[0], 9);
  EXPECT_EQ(line.Wake(), "DISPL7\r");
}

TEST(Write, APauseOfASecondIsNoReasonToAbandon) {
  Conversation line(3);
  line.StartWrite("T75000");
  for (int cell = 0; cell < 21; ++cell) {
    EXPECT_EQ(line.RunFor(second), "");
    line.Send(Frame(Form::Three, cell, 65));
  }
  EXPECT_EQ(line.module.completedWrites(), 1);
}

}  // namespace
}  // namespace virtual_module
