#include <algorithm>

#include "image/module_directory.h"
#include "image/tables.h"
#include "master/context_screen_test.h"

namespace bkconf {

void ContextScreenTest::Open(const std::map<int, ActionList>& contexts, int language) {
  StartWithImage(9, language);
  int row = 0;
  for (const int kind : {0, 4, 1, 11, 2, 3, 5, 6, 7, 8}) {
    DirectoryLetter(row) = 'A' + row;
    DirectoryType(row) = kind;
    ++row;
  }
  PutContexts(contexts);
  MasterContextsLoaded = 1;
  OpenAgain();
  ASSERT_TRUE(ContextScreen.shown);
  MainWindow.send.enabled = false;
}

void ContextScreenTest::OpenOn(int context, const ActionList& actions, int language) {
  Open({{context, actions}}, language);
  PickContext(context);
}

void ContextScreenTest::PutContexts(const std::map<int, ActionList>& contexts) {
  for (int cell = 0; cell < 1000; ++cell) ContextTable[cell] = cell < 100 ? 0 : 42;
  int place = 100;
  for (const auto& [context, actions] : contexts) {
    if (actions.empty()) continue;
    ContextTable[2 * context - 2] = place / 100;
    ContextTable[2 * context - 1] = place % 100;
    for (const ActionCells& action : actions) {
      for (const Cell& cell : action) ContextTable[place++] = cell;
    }
    ++place;
  }
}

void ContextScreenTest::DoubleClick(int place) {
  ContextScreen.actions.DoubleClick(place / 5 + 1, place % 5);
}

void ContextScreenTest::Select(int place) {
  ContextScreen.actions.Select(place / 5 + 1, place % 5);
}

Codes ContextScreenTest::Shown() {
  Codes codes;
  for (int place = 0; place < 100; ++place) {
    codes.push_back(ContextScreen.actions.At(place / 5 + 1, place % 5));
  }
  while (!codes.empty() && codes.back().empty()) codes.pop_back();
  return codes;
}

void ContextScreenTest::ExpectStored(int context, const ActionList& actions) {
  int cell = (context - 1) * 300;
  int place = ContextTable[2 * context - 2].Whole() * 100 + ContextTable[2 * context - 1].Whole();
  if (actions.empty()) {
    EXPECT_EQ(ContextTable[2 * context - 2], Cell(0));
    EXPECT_EQ(ContextTable[2 * context - 1], Cell(0));
  }
  for (const ActionCells& action : actions) {
    for (const Cell& each : action) {
      EXPECT_EQ(ContextWork[cell], each) << "context " << context << " cell " << cell;
      ++cell;
      EXPECT_EQ(ContextTable[place], each) << "context " << context << " place " << place;
      ++place;
    }
  }
  if (!actions.empty()) {
    EXPECT_EQ(ContextTable[place], Cell(42)) << "context " << context;
  }
  if (cell < context * 300) {
    EXPECT_EQ(ContextWork[cell], Cell(42)) << "context " << context;
  }
}

void ContextScreenTest::ExpectMemory(const std::string& free) {
  EXPECT_EQ(ContextScreen.memory.caption, free);
}

void ContextScreenTest::ExpectPanels(bool asksToDelete, bool edits) {
  EXPECT_EQ(ContextScreen.deleteGroup.visible, asksToDelete) << "delete frame";
  EXPECT_EQ(ContextScreen.editGroup.visible, edits) << "edit frame";
}

void ContextScreenTest::ExpectNoChange(const ButtonField& button) const {
  const bool edits = ContextScreen.editGroup.visible;
  const bool asks = ContextScreen.deleteGroup.visible;
  const Codes shown = Shown();
  const std::string memory = ContextScreen.memory.caption;
  const Snapshot before = TakeSnapshot();
  button.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(Shown(), shown);
  EXPECT_EQ(ContextScreen.editGroup.visible, edits);
  EXPECT_EQ(ContextScreen.deleteGroup.visible, asks);
  EXPECT_EQ(ContextScreen.memory.caption, memory);
  EXPECT_TRUE(messages.told.empty());
  EXPECT_FALSE(MainWindow.send.enabled);
}

void ContextScreenTest::Pick(ListField& list, const std::string& text) {
  const auto item = std::find(list.items.begin(), list.items.end(), text);
  ASSERT_NE(item, list.items.end()) << text << " in " << list.name;
  list.Pick(static_cast<int>(item - list.items.begin()));
  ASSERT_EQ(list.Text(), text) << list.name << " takes no pick";
}

void ContextScreenTest::PickLetter(const std::string& letter) {
  Pick(ContextScreen.picker.letter, letter);
}

void ContextScreenTest::Choose(int output, const std::string& action) {
  PickLetter("A");
  Pick(ContextScreen.picker.output.list, std::to_string(output));
  Pick(ContextScreen.picker.action.list, action);
}

void ContextScreenTest::Delete(int place) {
  DoubleClick(place);
  ASSERT_TRUE(ContextScreen.deleteGroup.visible);
  ContextScreen.deleteConfirm.Click();
}

}  // namespace bkconf
