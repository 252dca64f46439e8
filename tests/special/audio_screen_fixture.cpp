#include "special/audio_screen_test.h"

namespace bkconf {

void AudioScreenTest::Open(int language, char letter) {
  StartWithImage(6, language, letter);
  OpenAgain();
  ASSERT_TRUE(AudioScreen.shown);
  MainWindow.send.enabled = false;
}

void AudioScreenTest::OpenAll() {
  Open();
  AudioImage[129] = 0;
  AudioImage[130] = 3;
  AudioImage[131] = 15;
  OpenAgain();
  MainWindow.send.enabled = false;
}

std::vector<Cell> AudioScreenTest::ImageCells() {
  std::vector<Cell> cells;
  for (int cell = 0; cell < AudioImage.Size(); ++cell) cells.push_back(AudioImage[cell]);
  return cells;
}

std::string AudioScreenTest::NameOf(int first, int last) {
  const std::string end = last < 0 ? "" : ".." + std::to_string(last);
  return "AudioImage[" + std::to_string(first) + end + "]";
}

void AudioScreenTest::ExpectSignal(bool expected) {
  EXPECT_EQ(MainWindow.send.enabled, expected);
  MainWindow.send.enabled = false;
}

const std::vector<AudioScreenTest::ZoneList>& AudioScreenTest::ZoneLists() {
  static const std::vector<ZoneList> lists = {{&AudioScreen.source, 133},
                                              {&AudioScreen.mainVolume, 181},
                                              {&AudioScreen.gain, 165},
                                              {&AudioScreen.secondaryVolume, 197}};
  return lists;
}

std::vector<std::string> AudioScreenTest::Usable() {
  std::vector<std::string> names;
  for (const ZoneList& row : ZoneLists()) {
    EXPECT_EQ(row.field->label.enabled, row.field->list.enabled) << row.field->list.name;
    if (row.field->list.enabled) names.push_back(row.field->list.name);
  }
  if (AudioScreen.loudness.enabled) names.push_back(AudioScreen.loudness.name);
  return names;
}

}  // namespace bkconf
