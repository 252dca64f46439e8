#include <algorithm>

#include "image/module_directory.h"
#include "master/program_screen_test.h"

namespace bkconf {

ProgramScreenTest::ProgramScreenTest(WhichList which)
    : light(which == WhichList::Light),
      screen(light ? static_cast<ProgramScreen&>(LightProgramScreen) : TimeProgramScreen),
      table(light ? LightProgramTable : TimeProgramTable),
      loaded(light ? MasterLightLoaded : MasterTimeLoaded),
      dirty(light ? MasterLightDirty : MasterTimeDirty),
      slots(light ? 200 : 110),
      slotSize(light ? 5 : 9) {
  Now = [this] { return bkconf::Moment{.date = today}; };
}

void ProgramScreenTest::Open(const std::vector<Slot>& list, int language) {
  StartWithImage(9, language);
  int row = 0;
  for (const int kind : {0, 4, 1, 11, 2, 3, 5, 6, 7, 8}) {
    DirectoryLetter(row) = 'A' + row;
    DirectoryType(row) = kind;
    ++row;
  }
  for (int cell = 0; cell < 1000; ++cell) table[cell] = 42;
  row = 0;
  for (const Slot& slot : list) PutSlot(++row, slot);
  loaded = 1;
  OpenAgain();
  ASSERT_TRUE(screen.shown);
  MainWindow.send.enabled = false;
}

void ProgramScreenTest::OpenEditor(const std::vector<Slot>& list, int language) {
  Open(list, language);
  DoubleClick(slots);
  ExpectPanels(false, true);
}

void ProgramScreenTest::OpenAgain() {
  ShownAction(light ? Action::LightPrograms : Action::TimePrograms).Click();
}

void ProgramScreenTest::Delete(int row) {
  DoubleClick(row);
  ASSERT_TRUE(screen.deleteGroup.visible);
  screen.deleteYes.Click();
}

void ProgramScreenTest::PutSlot(int row, const Slot& cells) {
  int cell = (row - 1) * slotSize;
  for (const Cell& each : cells) table[cell++] = each;
}

void ProgramScreenTest::ExpectSlot(int row, const Slot& cells) const {
  ASSERT_EQ(cells.size(), static_cast<std::size_t>(slotSize));
  int cell = (row - 1) * slotSize;
  for (const Cell& each : cells) {
    EXPECT_EQ(table[cell], each) << "row " << row << " cell " << cell;
    ++cell;
  }
}

void ProgramScreenTest::ExpectSlots(const std::vector<Slot>& list) const {
  for (int row = 1; row <= slots; ++row) {
    const auto place = static_cast<std::size_t>(row - 1);
    ExpectSlot(row, place < list.size() ? list[place] : Free());
  }
}

std::string ProgramScreenTest::NameOf(int row) const {
  const int cell = (row - 1) * slotSize;
  return std::string(table.name) + "[" + std::to_string(cell) + ".." +
         std::to_string(cell + slotSize - 1) + "]";
}

std::string ProgramScreenTest::Row(int row) const {
  const GridField& grid = screen.programs;
  EXPECT_EQ(grid.At(row, 0), std::to_string(row));
  if ((grid.At(row, 1) + grid.At(row, 2) + grid.At(row, 3)).empty()) return {};
  return grid.At(row, 1) + ", " + grid.At(row, 2) + ", " + grid.At(row, 3);
}

void ProgramScreenTest::ExpectRows(const std::vector<std::string>& rows) const {
  ASSERT_EQ(screen.programs.Rows(), slots);
  for (int row = 1; row <= slots; ++row) {
    const auto place = static_cast<std::size_t>(row - 1);
    EXPECT_EQ(Row(row), place < rows.size() ? rows[place] : "") << row;
  }
}

void ProgramScreenTest::ExpectPanels(bool asks, bool edits) const {
  EXPECT_EQ(screen.deleteGroup.visible, asks) << "question";
  EXPECT_EQ(screen.editGroup.visible, edits) << "editor";
}

void ProgramScreenTest::ExpectNoChange(const ButtonField& button) {
  const bool edits = screen.editGroup.visible;
  const bool asks = screen.deleteGroup.visible;
  const std::string row = Row(1) + Row(2) + Row(slots) + screen.memory.caption;
  const Snapshot before = TakeSnapshot();
  button.Click();
  ExpectOnlyChanged(before, {});
  ExpectPanels(asks, edits);
  EXPECT_EQ(Row(1) + Row(2) + Row(slots) + screen.memory.caption, row);
  EXPECT_FALSE(MainWindow.send.enabled);
  EXPECT_TRUE(messages.told.empty());
}

void ProgramScreenTest::Pick(ListField& list, const std::string& text) {
  const auto item = std::find(list.items.begin(), list.items.end(), text);
  ASSERT_NE(item, list.items.end()) << text << " in " << list.name;
  list.Pick(static_cast<int>(item - list.items.begin()));
  ASSERT_EQ(list.Text(), text) << list.name << " takes no pick";
}

void ProgramScreenTest::FillMoment() {
  if (light) {
    LightProgramScreen.lightToDark.Choose();
    Pick(LightProgramScreen.level, "20");
  } else {
    Pick(TimeProgramScreen.time, "07:05");
    TimeProgramScreen.day.Pick(1);
  }
}

void ProgramScreenTest::Choose(char letter, const std::string& output, const std::string& action) {
  PickLetter(letter);
  PickOutput(output);
  PickAction(action);
}

Slot ProgramScreenTest::At(const Slot& action) const {
  Slot cells = light ? Slot{0, 20} : Slot{7, 5, 2, 0, 0, 0};
  cells.insert(cells.end(), action.begin(), action.end());
  return cells;
}

Slot ProgramScreenTest::StoredAt(const Slot& action) const {
  Slot cells = light ? Slot{0, "20"} : Slot{"07", "05", 2, 0, 0, 0};
  cells.insert(cells.end(), action.begin(), action.end());
  return cells;
}

}  // namespace bkconf
