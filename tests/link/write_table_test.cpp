#include "link/write_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "link/read_table.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

bool Knows(int kind, std::string_view command) {
  for (const CommandRow& row : CommandVocabulary) {
    if (row.command == command) return row.kinds.Contains(kind);
  }
  return false;
}

TEST(TransferTablesTest, EveryCommandOfTheTablesIsInTheVocabularyOfItsKinds) {
  for (const int kind : AllKinds) {
    for (const ReadRow& row : ReadTable) {
      if (!row.kinds.Contains(kind)) continue;
      EXPECT_TRUE(Knows(kind, row.command)) << kind << row.command;
    }
    for (const WriteRow& row : WriteTable) {
      if (!row.kinds.Contains(kind)) continue;
      EXPECT_TRUE(Knows(kind, row.command)) << kind << row.command;
    }
  }
}

TEST(TransferTablesTest, EveryReadAndWriteOfTheVocabularyHasItsRow) {
  for (const CommandRow& row : CommandVocabulary) {
    for (const int kind : AllKinds) {
      if (!row.kinds.Contains(kind)) continue;
      const bool write = row.command.starts_with("T7");
      const bool read = row.command.starts_with("T8") && row.command.ends_with("000");
      EXPECT_EQ(FindWriteRow(kind, row.command) != nullptr, write) << kind << row.command;
      const bool scan = kind == 9 && row.command == "T80400";
      EXPECT_EQ(FindReadRow(kind, row.command) != nullptr, read || scan) << kind << row.command;
    }
  }
}

/// The cells of each table that are never sent; everything else goes out exactly once.
const std::map<std::pair<int, std::string_view>, std::set<int>> NeverSent = {
    {{0, "ButtonImage"}, {163}},
    {{1, "ButtonImage"}, {163}},
    {{4, "ButtonImage"}, {163}},
    {{11, "ButtonImage"}, {163}},
    {{9, "ButtonImage"}, {163}},
    {{9, "ContextTable"}, {}},
    {{9, "TimeProgramTable"}, {}},
    {{9, "LightProgramTable"}, {}},
    {{5, "AlarmImage"}, {148}},
    {{6, "AudioImage"}, {123}},
    {{7, "SimulationImage"}, {124}},
    {{8, "IrImage"}, {}},
    {{3, "LcdHeader"}, {1}},
    {{3, "LcdWeekdayNames"}, {}},
    {{3, "LcdScreen1"}, {1020, 1021, 1022, 1023, 1024, 1025, 1026, 1027, 1028, 1029}},
    {{3, "LcdScreen2"}, {1020, 1021, 1022, 1023, 1024, 1025, 1026, 1027, 1028, 1029}},
    {{2, "TempHeader"}, {3}},
    {{2, "TempRoomIds"}, {64, 65, 66, 67, 68, 69, 70, 71}},
    {{2, "TempPeriods"}, {}},
    {{2, "TempSetpoints"}, {}},
    {{2, "TempTail"}, {}},
};

TEST(TransferTablesTest, TheBlocksAndTheCellsNeverSentCoverEachTableOnce) {
  std::set<std::pair<int, std::string_view>> covered;
  for (const TableRow& row : WrittenTables) {
    for (const int kind : AllKinds) {
      if (!row.kinds.Contains(kind)) continue;
      const auto key = std::pair(kind, row.table->name);
      EXPECT_TRUE(covered.insert(key).second) << row.table->name;
      std::set<int> cells = NeverSent.at(key);
      int last = -1;
      for (const WriteBlock& block : row.blocks) {
        EXPECT_EQ(block.wireBase, block.first) << "a block counts from 0";
        EXPECT_GT(block.first, last);
        for (int cell = block.first; cell <= block.last; ++cell) {
          EXPECT_TRUE(cells.insert(cell).second) << row.table->name << cell;
        }
        last = block.last;
      }
      EXPECT_EQ(cells.size(), static_cast<std::size_t>(row.table->Size())) << row.table->name;
      EXPECT_EQ(*cells.begin(), 0);
      EXPECT_EQ(*cells.rbegin(), row.table->Size() - 1);
    }
  }
  EXPECT_EQ(covered.size(), NeverSent.size());
}

TEST(TransferTablesTest, NoWriteSendsMoreFramesThanItsBarHolds) {
  for (const WriteRow& row : WriteTable) {
    for (const int kind : AllKinds) {
      if (!row.kinds.Contains(kind)) continue;
      const auto selectors = row.tables.Selectors();
      std::vector<int> chain(selectors.begin(), selectors.end());
      if (chain.empty()) chain.push_back(-1);
      int frames = 0;
      for (const int selector : chain) {
        const TableRow* table = FindWrittenTable(kind, row.command, selector);
        ASSERT_NE(table, nullptr) << kind << row.command;
        for (const WriteBlock& block : table->blocks) frames += block.last - block.first + 1;
      }
      EXPECT_LE(frames, row.barMaximum) << kind << row.command;
      if (kind == 2) {
        EXPECT_EQ(frames, row.barMaximum) << row.command;
      }
    }
  }
}

TEST(TransferTablesTest, EachLastIndexIsACellOfItsTable) {
  for (const ReadRow& row : ReadTable) EXPECT_LT(row.lastIndex, row.table->Size()) << row.command;
}

TEST(TransferTablesTest, ACommandThatAKindDoesNotKnowHasNoRow) {
  EXPECT_EQ(FindReadRow(0, "T81000"), nullptr);
  EXPECT_EQ(FindReadRow(NoModule, "T80000"), nullptr);
  EXPECT_EQ(FindWriteRow(8, "T71000"), nullptr);
  EXPECT_EQ(FindWriteRow(NoModule, "T70000"), nullptr);
  EXPECT_EQ(FindWrittenTable(2, "T71000", 5), nullptr);
  EXPECT_EQ(FindWrittenTable(0, "T80000", 0), nullptr);
}

}  // namespace
}  // namespace bkconf
