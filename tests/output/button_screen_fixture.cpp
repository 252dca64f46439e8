#include "output/button_screen_test.h"

namespace bkconf {

void ButtonScreenTest::Open(int kind, int language, char letter) {
  StartWithImage(kind, language, letter);
  OpenAgain();
  ASSERT_TRUE(ButtonScreen.shown);
  MainWindow.send.enabled = false;
}

const std::string& ButtonScreenTest::TableName() {
  static const std::map<int, std::string> names = {
      {5, "AlarmImage"}, {6, "AudioImage"}, {7, "SimulationImage"}, {8, "IrImage"}};
  static const std::string others = "ButtonImage";
  const auto name = names.find(ActiveCode());
  return name == names.end() ? others : name->second;
}

Table& ButtonScreenTest::Cells() {
  for (Table* table : AllTables) {
    if (table->name == TableName()) return *table;
  }
  return ButtonImage;
}

void ButtonScreenTest::Put(int button, int column, const ActionCells& cells) {
  for (int i = 0; i < 3; ++i) {
    Cells()[CellOf(button, column) + i] = cells[static_cast<std::size_t>(i)];
  }
}

void ButtonScreenTest::ExpectRecord(int button, int column, const ActionCells& cells) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Cells()[CellOf(button, column) + i], cells[static_cast<std::size_t>(i)])
        << "button " << button << " function " << column << " cell " << i;
  }
}

std::string ButtonScreenTest::NameOf(int button, int column) {
  const int cell = CellOf(button, column);
  return TableName() + "[" + std::to_string(cell) + ".." + std::to_string(cell + 2) + "]";
}

void ButtonScreenTest::ChooseOn(ActionPicker& picker, char letter, int output) {
  picker.letter.Pick(letter - 'A');
  picker.type.Pick(0);
  picker.output.list.Pick(output - 1);
  picker.action.list.Pick(1);
  ASSERT_TRUE(picker.Compose());
}

}  // namespace bkconf
