#include "special/ir_screen_test.h"

namespace bkconf {

void IrScreenTest::Open(int language, char letter) {
  StartWithImage(8, language, letter);
  OpenAgain();
  ASSERT_TRUE(IrScreen.shown);
  MainWindow.send.enabled = false;
}

void IrScreenTest::Compose() {
  PickLetter('A');
  Picker().type.Pick(0);
  Picker().output.list.Pick(3);
  Picker().action.list.Pick(1);
}

void IrScreenTest::Put(int key, int row, const ActionCells& cells) {
  for (int i = 0; i < 3; ++i) IrImage[CellOf(key, row) + i] = cells[static_cast<std::size_t>(i)];
}

void IrScreenTest::ExpectCells(int key, int row, const ActionCells& cells) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(IrImage[CellOf(key, row) + i], cells[static_cast<std::size_t>(i)])
        << CellOf(key, row) + i;
  }
}

std::string IrScreenTest::NameOf(int key, int row) {
  const int cell = CellOf(key, row);
  return "IrImage[" + std::to_string(cell) + ".." + std::to_string(cell + 2) + "]";
}

const std::string& IrScreenTest::Shown(int row) {
  return IrScreen.rows.at(static_cast<std::size_t>(row - 1))->code.caption;
}

void IrScreenTest::Erase(int row) {
  IrScreen.rows.at(static_cast<std::size_t>(row - 1))->erase.Click();
}

void IrScreenTest::ExpectSignal(bool expected) {
  EXPECT_EQ(MainWindow.send.enabled, expected);
  MainWindow.send.enabled = false;
}

}  // namespace bkconf
