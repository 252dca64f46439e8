// Send brings back what was changed of a master's lists.
#include "image/file_lines.h"
#include "master/master_line_test.h"

namespace bkconf {
namespace {

class MasterSendTest : public MasterLineTest {
 protected:
  static void PickFirstRelay(ActionPicker& picker) {
    picker.letter.Pick(0);
    picker.output.list.Pick(0);
    picker.action.list.Pick(2);
  }
  /// Adds an action to the third context, or a programme, and deletes the first action, or
  /// programme.
  static void EditContexts() {
    ContextScreen.chooser.Pick(2);
    ContextScreen.actions.DoubleClick(20, 4);
    PickFirstRelay(ContextScreen.picker);
    ContextScreen.editConfirm.Click();
    ContextScreen.actions.DoubleClick(1, 0);
    ContextScreen.deleteConfirm.Click();
  }
  static void EditTime() {
    TimeProgramScreen.programs.DoubleClick(110, 1);
    PickFirstRelay(TimeProgramScreen.picker);
    TimeProgramScreen.time.Pick(1);
    TimeProgramScreen.day.Pick(8);
    TimeProgramScreen.editConfirm.Click();
    TimeProgramScreen.programs.DoubleClick(1, 1);
    TimeProgramScreen.deleteYes.Click();
  }
  static void EditLight() {
    LightProgramScreen.programs.DoubleClick(200, 1);
    PickFirstRelay(LightProgramScreen.picker);
    LightProgramScreen.darkToLight.Choose();
    LightProgramScreen.level.Pick(8);
    LightProgramScreen.editConfirm.Click();
    LightProgramScreen.programs.DoubleClick(1, 1);
    LightProgramScreen.deleteYes.Click();
  }
  void OpenEditAndLeave(int place) {
    static constexpr void (*edits[])() = {EditContexts, EditTime, EditLight};
    const MasterList& entry = MasterLists[place];
    PressAndWait(entry);
    ASSERT_TRUE(entry.screen->shown);
    const Snapshot before = TakeSnapshot();
    edits[place]();
    EXPECT_NE(TakeSnapshot(), before);
    entry.screen->Close();
  }

  /// The first cell of two neighbours that both hold 42; the table goes out up to the second.
  static int EarlyEnd(const Table& table) {
    int cell = 0;
    while (table[cell].Number() != 42 || table[cell + 1].Number() != 42) ++cell;
    return cell;
  }
  /// The conversation of each table: a wake-up, its command, and its cells up to the early end.
  static void ExpectConversations(const virtual_module::Module& module, std::size_t from,
                                  const std::vector<std::pair<std::string, const Table*>>& tables) {
    std::vector<std::string> expected;
    std::vector<std::string> sent;
    for (const auto& [command, table] : tables) {
      expected.push_back("wake-up");
      expected.push_back(command);
      for (int cell = 0; cell <= EarlyEnd(*table) + 1; ++cell) {
        expected.push_back(std::string(table->name) + " " + std::to_string(cell) + " " +
                           std::to_string((*table)[cell].Whole()));
      }
    }
    for (std::size_t i = from; i < module.received().size(); ++i) {
      const FrameRecord& record = module.received()[i];
      EXPECT_EQ(record.error, "");
      if (record.kind == UnitKind::Burst) {
        sent.emplace_back("wake-up");
      } else if (record.kind == UnitKind::Command) {
        sent.push_back(record.text.substr(0, 6));
      } else {
        ASSERT_TRUE(record.table) << record.text;
        sent.push_back(std::string(virtual_module::NameOf(*record.table)) + " " +
                       std::to_string(record.cell) + " " + std::to_string(record.value));
      }
    }
    EXPECT_EQ(sent, expected);
  }
  static void ExpectHolds(const virtual_module::Module& module,
                          const virtual_module::Memory& before, const Table& table) {
    const auto& cells = module.memory().Cells(table.name);
    const auto& old = before.Cells(table.name);
    const int end = EarlyEnd(table) + 1;
    for (int cell = 0; cell < 1000; ++cell) {
      const auto place = static_cast<std::size_t>(cell);
      ASSERT_EQ(cells[place], cell <= end ? table[cell].Whole() : old[place]) << table.name << cell;
    }
  }
  static void ExpectNothingDirty() {
    for (const Cell* flag :
         {&MasterBaseDirty, &MasterContextsDirty, &MasterTimeDirty, &MasterLightDirty}) {
      EXPECT_EQ(*flag, Cell(0));
    }
  }
};

TEST_F(MasterSendTest, OnlyTheListThatWasChangedGoesOut) {
  const std::pair<std::string, const Table*> tables[] = {
      {"T71000", &ContextTable}, {"T72000", &TimeProgramTable}, {"T73000", &LightProgramTable}};
  for (int place = 0; place < 3; ++place) {
    virtual_module::Module& module = ReadMaster();
    for (int each = 0; each < 3; ++each) {
      if (each == place) {
        OpenEditAndLeave(each);
      } else {
        PressAndWait(MasterLists[each]);
        MasterLists[each].screen->Close();
      }
    }
    const virtual_module::Memory before = module.memory();
    const std::size_t received = module.received().size();
    SendToModule();
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    ExpectConversations(module, received, {tables[place]});
    for (const auto& [command, table] : tables) {
      if (table == tables[place].second) {
        ExpectHolds(module, before, *table);
        EXPECT_NE(module.memory().Cells(table->name), before.Cells(table->name));
      } else {
        EXPECT_EQ(module.memory().Cells(table->name), before.Cells(table->name));
      }
    }
    EXPECT_EQ(module.memory().Cells("ButtonImage"), before.Cells("ButtonImage"));
    ExpectNothingDirty();
  }
}

TEST_F(MasterSendTest, ThreeListsThatWereChangedGoOutInAConversationEach) {
  virtual_module::Module& module = ReadMaster();
  for (const int place : {2, 0, 1}) OpenEditAndLeave(place);
  const virtual_module::Memory before = module.memory();
  const std::size_t received = module.received().size();
  SendToModule();
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  ExpectConversations(
      module, received,
      {{"T71000", &ContextTable}, {"T72000", &TimeProgramTable}, {"T73000", &LightProgramTable}});
  for (const MasterList& entry : MasterLists) ExpectHolds(module, before, *entry.table);
  ExpectNothingDirty();
}

TEST_F(MasterSendTest, WhatWasSentComesBackWithTheNextRead) {
  ReadMaster();
  for (const int place : {0, 1, 2}) OpenEditAndLeave(place);
  std::vector<double> sent;
  for (const MasterList& entry : MasterLists) {
    for (int cell = 0; cell <= EarlyEnd(*entry.table) + 1; ++cell) {
      sent.push_back((*entry.table)[cell].Number());
    }
  }
  SendToModule();
  ReadModule();
  for (const MasterList& entry : MasterLists) {
    PressAndWait(entry);
    entry.screen->Close();
  }
  std::vector<double> read;
  for (const MasterList& entry : MasterLists) {
    for (int cell = 0; cell <= EarlyEnd(*entry.table) + 1; ++cell) {
      read.push_back((*entry.table)[cell].Number());
    }
  }
  EXPECT_EQ(read, sent);
}

/// Twice 43 as a Corvela code is two neighbours of 42: the rest does not go out.
TEST_F(MasterSendTest, ACorvelaCodeOfTwice43EndsTheTableEarly) {
  virtual_module::Module& module = ReadMaster();
  PressAndWait(MasterLists[1]);
  TimeProgramTable[7] = TimeProgramTable[8] = 42;
  MasterTimeDirty = 1;
  const virtual_module::Memory before = module.memory();
  SendToModule();
  EXPECT_EQ(EarlyEnd(TimeProgramTable), 7);
  ExpectHolds(module, before, TimeProgramTable);
}

TEST_F(MasterSendTest, EditedListsComeBackFromAFileCellByCell) {
  ReadMaster();
  for (const int place : {0, 1, 2}) OpenEditAndLeave(place);
  std::vector<double> saved;
  for (const Cell* cell : CellsInFile(9)) saved.push_back(cell->Number());
  ASSERT_TRUE(SaveDialogGuard());
  SaveModuleAs("/house", "Master");
  const auto lines = LinesOf(files.content["/house/Master.BK1"]);
  // The place of a context is text, that of an empty one a number.
  const auto first = static_cast<std::size_t>(1 + LineOf(9, "ContextTable", 0));
  EXPECT_EQ(lines[first], "1");
  EXPECT_EQ(lines[first + 1], "00");
  const auto empty = static_cast<std::size_t>(1 + LineOf(9, "ContextTable", 12));
  EXPECT_EQ(lines[empty], " 0 ");
  MainWindow.nieuw.Click();
  for (const MasterList& entry : MasterLists) entry.table->Fill(0, 999, 7);
  OpenModule("/house/Master.BK1");
  std::vector<double> opened;
  for (const Cell* cell : CellsInFile(9)) opened.push_back(cell->Number());
  EXPECT_EQ(opened, saved);
}

}  // namespace
}  // namespace bkconf
