#include "special/simulation_screen_test.h"

namespace bkconf {

void SimulationScreenTest::Open(int language, char letter) {
  StartWithImage(7, language, letter);
  At(123) = 0;
  At(125) = 60;
  At(126) = At(128) = 0;
  At(127) = At(129) = 25;
  At(130) = 1;
  At(132) = 2;
  OpenAgain();
  ASSERT_TRUE(SimulationScreen.shown);
  MainWindow.send.enabled = false;
}

std::string SimulationScreenTest::NameOf(int first, int last) {
  const std::string end = last < 0 ? "" : ".." + std::to_string(last);
  return "SimulationImage[" + std::to_string(first) + end + "]";
}

void SimulationScreenTest::ExpectSignal(bool expected) {
  EXPECT_EQ(MainWindow.send.enabled, expected);
  MainWindow.send.enabled = false;
}

void SimulationScreenTest::Put(int participant, const Cell& target, const Cell& index) {
  At(135 + 2 * participant) = target;
  At(136 + 2 * participant) = index;
}

void SimulationScreenTest::ExpectCells(int participant, const Cell& target, const Cell& index) {
  EXPECT_EQ(At(135 + 2 * participant), target) << participant;
  EXPECT_EQ(At(136 + 2 * participant), index) << participant;
}

std::string SimulationScreenTest::Shown(int participant) {
  return SimulationScreen.participants.At(participant / 5 + 1, participant % 5);
}

void SimulationScreenTest::DoubleClick(int participant) {
  SimulationScreen.participants.DoubleClick(participant / 5 + 1, participant % 5);
}

std::string SimulationScreenTest::AllShown() {
  std::string all;
  for (int participant = 0; participant < 25; ++participant) all += Shown(participant) + " ";
  while (all.ends_with("* ")) all.resize(all.size() - 2);
  if (all.ends_with(" ")) all.pop_back();
  return all;
}

void SimulationScreenTest::FillGrid() {
  for (int output = 0; output < 12; ++output) {
    Put(output, 'A', std::to_string(output));
    Put(12 + output, 'B', output);
  }
  Put(24, 'S', 6);
  OpenAgain();
  MainWindow.send.enabled = false;
}

}  // namespace bkconf
