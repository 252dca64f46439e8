#include "image/tables.h"
#include "special/alarm_screen_test.h"

namespace bkconf {

void AlarmScreenTest::Open(int language, char letter) {
  StartWithImage(5, language, letter);
  for (int detector = 0; detector < 12; ++detector) {
    AlarmImage[124 + detector] = 0;
    AlarmImage[136 + detector] = 0;
    AlarmImage[221 + 5 * detector] = 60;
    for (const int period : {0, 2}) {
      AlarmImage[222 + 5 * detector + period] = 0;
      AlarmImage[223 + 5 * detector + period] = 25;
    }
    AlarmImage[281 + detector] = 1;
  }
  OpenAgain();
  ASSERT_TRUE(AlarmScreen.shown);
  MainWindow.send.enabled = false;
}

void AlarmScreenTest::Put(int cell, const ActionCells& cells) {
  for (int i = 0; i < 3; ++i) AlarmImage[cell + i] = cells[static_cast<std::size_t>(i)];
}

void AlarmScreenTest::ExpectCells(int cell, const ActionCells& cells) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(AlarmImage[cell + i], cells[static_cast<std::size_t>(i)]) << cell + i;
  }
}

std::string AlarmScreenTest::NameOf(int first, int last) {
  const std::string end = last < 0 ? "" : ".." + std::to_string(last);
  return "AlarmImage[" + std::to_string(first) + end + "]";
}

std::vector<std::string> NumberTexts(int first, int last) {
  std::vector<std::string> items;
  for (int number = first; number <= last; ++number) items.push_back(std::to_string(number));
  return items;
}

}  // namespace bkconf
