#include "actions/picker_test.h"

#include <algorithm>

#include "image/module_directory.h"

namespace bkconf {

void PickerTest::Begin(int language, int kind, char ownLetter) {
  Language = language;
  ActiveModuleType = kind;
  const ModuleKind& row = *FindKind(kind);
  if (row.address.table != nullptr) (*row.address.table)[row.address.index] = int{ownLetter};
  for (int each = 0; each < DirectoryRows; ++each) List(each, EmptyCell, EmptyCell);
  picker.Load();
  picker.Reset();
}

void PickerTest::BeginOnMaster(int language) {
  Begin(language, 9, ' ');
  int row = 0;
  for (const int kind : {0, 4, 1, 11, 2, 3, 5, 6, 7, 8}) {
    List(row, 'A' + row, kind);
    ++row;
  }
}

void PickerTest::List(int row, const Cell& letter, const Cell& kind) {
  DirectoryLetter(row) = letter;
  DirectoryType(row) = kind;
}

void PickerTest::Pick(ListField& list, const std::string& text) {
  const auto item = std::find(list.items.begin(), list.items.end(), text);
  ASSERT_NE(item, list.items.end()) << text << " in " << list.name;
  list.Pick(static_cast<int>(item - list.items.begin()));
  ASSERT_EQ(list.Text(), text) << list.name << " takes no pick";
}

void PickerTest::PickTarget(char letter, int type) {
  PickLetter(letter);
  picker.type.Pick(type);
  ASSERT_EQ(picker.type.Index(), type);
}

std::vector<std::string> PickerTest::Below() const {
  std::vector<std::string> shown;
  const auto note = [&shown](const Field& field, const std::string& name) {
    if (field.visible) shown.push_back(name);
  };
  note(picker.mainZone, "main zone");
  note(picker.secondaryZone, "secondary zone");
  note(picker.output.list, "output");
  note(picker.action.list, "action");
  note(picker.value.list, "value");
  for (std::size_t i = 0; i < picker.temperatures.size(); ++i) {
    const std::string number = std::to_string(i);
    note(picker.temperatures[i].option, "option " + number);
    note(picker.temperatures[i].temperature, "temperature " + number);
    note(picker.temperatures[i].room, "room " + number);
  }
  note(picker.simulationOn, "simulation on");
  note(picker.simulationOff, "simulation off");
  EXPECT_EQ(picker.output.label.visible, picker.output.list.visible);
  EXPECT_EQ(picker.action.label.visible, picker.action.list.visible);
  EXPECT_EQ(picker.value.label.visible, picker.value.list.visible);
  return shown;
}

void PickerTest::ExpectCells(const ActionCells& cells) const {
  const auto composed = picker.Compose();
  ASSERT_TRUE(composed);
  EXPECT_EQ(*composed, cells);
}

Items Numbers(int first, int last) {
  Items items;
  for (int number = first; number <= last; ++number) items.push_back(std::to_string(number));
  return items;
}

}  // namespace bkconf
