#include "special/audio_screen_test.h"

#include <gtest/gtest.h>

#include "image/file_lines.h"
#include "shell/module_file.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

Names Numbers(int last) {
  Names items;
  for (int number = 1; number <= last; ++number) items.push_back(std::to_string(number));
  return items;
}

// --- What opens it, and its words ---------------------------------------------------------------

TEST_F(AudioScreenTest, CaptionsAreDutchOrFrench) {
  struct Caption {
    const std::string& shown;
    std::string dutch;
    std::string french;
  };
  for (const int language : {1, 2}) {
    Open(language);
    for (const Caption& row : std::vector<Caption>{
             {AudioScreen.title, "Audio interface KR7920 <adres = C>",
              "Interface audio KR7920 <adresse = C>"},
             {AudioScreen.frame.caption, "Audio instellingen:", "Instellen audio:"},
             {AudioScreen.generalGroup.caption, "Algemeen:", "Général:"},
             {AudioScreen.zones.label.caption, "Aantal zone's", "Nombre de zone"},
             {AudioScreen.sources.label.caption, "Aantal bronnen", "Nombre de sources"},
             {AudioScreen.settingsGroup.caption, "Instellingen:", "Instellen:"},
             {AudioScreen.zone.label.caption, "Zone", "Zone"},
             {AudioScreen.mainGroup.caption, "Hoofdzone", "Zone principale"},
             {AudioScreen.source.label.caption, "Default bron", "Source default"},
             {AudioScreen.mainVolume.label.caption, "Default volume", "Volume default"},
             {AudioScreen.gain.label.caption, "Gain", "Gain"},
             {AudioScreen.secondaryGroup.caption, "Nevenzone", "Zone secondaire"},
             {AudioScreen.secondaryVolume.label.caption, "Default volume", "Volume default"},
             {AudioScreen.loudness.caption, "Loudness", "Loudness"},
             {AudioScreen.surround.caption, "Surround", "Surround"},
             {AudioScreen.surroundHint.caption, "Used for surround", "Used for surround"},
             {AudioScreen.leave.caption, "Verlaten", "Quitter"},
         }) {
      EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
    }
  }
}

TEST_F(AudioScreenTest, TheTitleHasTheLetterOfTheModule) {
  for (const char letter : {'A', 'R'}) {
    Open(1, letter);
    EXPECT_EQ(AudioScreen.title, std::string("Audio interface KR7920 <adres = ") + letter + ">");
  }
  AudioImage[121] = 42;
  OpenAgain();
  EXPECT_EQ(AudioScreen.title, "Audio interface KR7920 <adres = *>");
}

TEST_F(AudioScreenTest, OpensOnAModuleThatWasRead) {
  Start();
  auto& module = Plug(6);
  module.memory().Cells("AudioImage")[130] = 2;
  module.memory().Cells("AudioImage")[131] = 11;
  ReadModule();
  EXPECT_FALSE(AudioScreen.shown);
  OpenAgain();
  EXPECT_TRUE(AudioScreen.shown);
  EXPECT_EQ(AudioScreen.zones.list.Text(), "12");
  EXPECT_EQ(AudioScreen.sources.list.Text(), "3");
}

TEST_F(AudioScreenTest, OpensOnAFileAndShowsTheModel) {
  Start();
  files.content["/house/a.BK1"] = FileOf(6, [](int place) { return place == 131 ? 4 : 0; });
  OpenModule("/house/a.BK1");
  MainWindow.moduleList.Show("");
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_TRUE(AudioScreen.shown);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7920");
  EXPECT_EQ(AudioScreen.zones.list.Text(), "5");
  EXPECT_EQ(AudioScreen.sources.list.Text(), "1");
  ExpectOnlyChanged(before, {});
}

TEST_F(AudioScreenTest, LeavingOrClosingLeavesTheImageAsItStands) {
  for (const bool byButton : {true, false}) {
    OpenAll();
    AudioScreen.zones.list.Pick(4);
    const Snapshot before = TakeSnapshot();
    if (byButton) {
      AudioScreen.leave.Click();
    } else {
      AudioScreen.Close();
    }
    EXPECT_FALSE(AudioScreen.shown);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(AudioScreenTest, OpenedAgainNoZoneIsChosen) {
  OpenAll();
  PickZone(1);
  AudioScreen.surround.Set(true);
  AudioScreen.leave.Click();
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_EQ(AudioScreen.zone.list.Text(), "");
  EXPECT_EQ(AudioScreen.zone.list.Index(), -1);
  EXPECT_EQ(Usable(), Names{});
  EXPECT_FALSE(AudioScreen.surround.visible || AudioScreen.surroundHint.visible);
  ExpectOnlyChanged(before, {});
}

// --- Zones and sources --------------------------------------------------------------------------

TEST_F(AudioScreenTest, ANewImageShowsThatNothingIsChosen) {
  StartWithImage(6);
  MainWindow.send.enabled = false;
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_EQ(AudioScreen.zones.list.Text(), "#");
  EXPECT_EQ(AudioScreen.sources.list.Text(), "#");
  EXPECT_EQ(AudioScreen.zones.list.Index(), -1);
  EXPECT_EQ(AudioScreen.sources.list.Index(), -1);
  EXPECT_EQ(AudioScreen.zone.list.items, Names{});
  EXPECT_EQ(AudioScreen.source.list.items, Names{});
  EXPECT_EQ(AudioScreen.zone.list.Text(), "");
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_F(AudioScreenTest, TheListsOfFixedLengthAreFull) {
  Open();
  EXPECT_EQ(AudioScreen.zones.list.items, Numbers(16));
  EXPECT_EQ(AudioScreen.sources.list.items, Numbers(4));
  for (const AudioList* field :
       {&AudioScreen.mainVolume, &AudioScreen.gain, &AudioScreen.secondaryVolume}) {
    EXPECT_EQ(field->list.items, Numbers(16)) << field->list.name;
  }
}

TEST_F(AudioScreenTest, TheNumbersOfZonesAndSourcesAreShownFromTheirCells) {
  Open();
  for (int count = 1; count <= 16; ++count) {
    const int sources = 1 + count % 4;
    At(131) = count - 1;
    // As digits, too.
    At(130) = count % 2 == 0 ? Cell(sources - 1) : Cell(std::to_string(sources - 1));
    const std::vector<Cell> cells = ImageCells();
    OpenAgain();
    EXPECT_EQ(ImageCells(), cells);
    EXPECT_EQ(AudioScreen.zones.list.Text(), std::to_string(count));
    EXPECT_EQ(AudioScreen.zones.list.Index(), count - 1);
    EXPECT_EQ(AudioScreen.zone.list.items, Numbers(count));
    EXPECT_EQ(AudioScreen.sources.list.Text(), std::to_string(sources));
    EXPECT_EQ(AudioScreen.source.list.items, Numbers(sources));
  }
  ExpectSignal(false);
}

TEST_F(AudioScreenTest, NumbersBeyondTheListsAreShownAsTheyAre) {
  Open();
  At(130) = 4;
  At(131) = 255;
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_EQ(AudioScreen.zones.list.Text(), "256");
  EXPECT_EQ(AudioScreen.zone.list.items, Numbers(16));
  EXPECT_EQ(AudioScreen.sources.list.Text(), "5");
  EXPECT_EQ(AudioScreen.source.list.items, Numbers(4));
  ExpectOnlyChanged(before, {});
}

TEST_F(AudioScreenTest, NumbersBeyondThoseOfAModuleAreShownAsTheyAre) {
  struct Row {
    Cell cell;
    std::string shown;
    int zones;
  };
  for (const Row& row :
       {Row{2147483647.0, "2147483648", 16}, Row{"3000000000", "3000000001", 16},
        Row{-2147483648.0, "-2147483647", 0}, Row{-3e9, "-2999999999", 0}, Row{-1, "0", 0}}) {
    Open();
    At(130) = At(131) = row.cell;
    OpenAgain();
    EXPECT_EQ(AudioScreen.zones.list.Text(), row.shown);
    EXPECT_EQ(AudioScreen.sources.list.Text(), row.shown);
    EXPECT_EQ(AudioScreen.zone.list.items, Numbers(row.zones));
    EXPECT_EQ(AudioScreen.source.list.items, Numbers(std::min(row.zones, 4)));
  }
}

TEST_F(AudioScreenTest, ANumberOfZonesIsStoredLessOneAndClearsTheChosenZone) {
  for (const int count : {1, 2, 9, 15, 16}) {
    OpenAll();
    At(131) = 200;
    PickZone(1);
    const Snapshot before = TakeSnapshot();
    AudioScreen.zones.list.Pick(count - 1);
    EXPECT_EQ(At(131), Cell(count - 1));
    ExpectOnlyChanged(before, {NameOf(131)});
    ExpectSignal(true);
    EXPECT_EQ(AudioScreen.zones.list.Text(), std::to_string(count));
    EXPECT_EQ(AudioScreen.zone.list.items, Numbers(count));
    EXPECT_EQ(AudioScreen.zone.list.Text(), "");
    EXPECT_EQ(AudioScreen.zone.list.Index(), -1);
  }
}

TEST_F(AudioScreenTest, ANumberOfZonesDisablesAndClearsTheFieldsOfAZone) {
  OpenAll();
  for (const ZoneList& row : ZoneLists()) At(row.cell) = 2;
  At(149) = 1;
  PickZone(1);
  EXPECT_EQ(Usable(), AllZoneFields);
  AudioScreen.zones.list.Pick(15);
  EXPECT_EQ(Usable(), Names{});
  EXPECT_FALSE(AudioScreen.mainGroup.enabled || AudioScreen.secondaryGroup.enabled);
  for (const ZoneList& row : ZoneLists()) EXPECT_EQ(row.field->list.Text(), "");
  EXPECT_FALSE(AudioScreen.loudness.checked || AudioScreen.surround.visible);
}

TEST_F(AudioScreenTest, FewerZonesKeepTheCellsOfTheHigherOnes) {
  OpenAll();
  PickZone(16);
  for (const ZoneList& row : ZoneLists()) row.field->list.Pick(3);
  AudioScreen.loudness.Set(true);
  const Snapshot before = TakeSnapshot();
  AudioScreen.zones.list.Pick(0);
  PickZone(16);
  EXPECT_EQ(AudioScreen.zone.list.Index(), -1);
  ExpectOnlyChanged(before, {NameOf(131)});
  for (const ZoneList& row : ZoneLists()) EXPECT_EQ(At(row.cell + 15), Cell(3));
  EXPECT_EQ(At(149 + 15), Cell(1));
  AudioScreen.zones.list.Pick(15);
  PickZone(16);
  EXPECT_EQ(AudioScreen.mainVolume.list.Text(), "4");
}

TEST_F(AudioScreenTest, ANumberOfSourcesIsStoredLessOneAndClearsTheSource) {
  for (int count = 1; count <= 4; ++count) {
    OpenAll();
    At(130) = 200;
    At(133) = 3;
    At(181) = 7;
    PickZone(1);
    EXPECT_EQ(AudioScreen.source.list.Text(), "4");
    const Snapshot before = TakeSnapshot();
    AudioScreen.sources.list.Pick(count - 1);
    EXPECT_EQ(At(130), Cell(count - 1));
    ExpectOnlyChanged(before, {NameOf(130)});
    ExpectSignal(true);
    EXPECT_EQ(AudioScreen.source.list.items, Numbers(count));
    EXPECT_EQ(AudioScreen.source.list.Text(), "");
    // The zone stays, with all else.
    EXPECT_EQ(AudioScreen.zone.list.Text(), "1");
    EXPECT_EQ(AudioScreen.mainVolume.list.Text(), "8");
    EXPECT_EQ(Usable(), AllZoneFields);
  }
}

TEST_F(AudioScreenTest, TypingPutsBackWhatIsStored) {
  for (const bool unset : {true, false}) {
    Open();
    if (!unset) {
      At(130) = 1;
      At(131) = 9;
      OpenAgain();
    }
    const Snapshot before = TakeSnapshot();
    for (const char* text : {"3", "x", "", "#", "17"}) {
      AudioScreen.zones.list.Type(text);
      AudioScreen.sources.list.Type(text);
      EXPECT_EQ(AudioScreen.zones.list.Text(), unset ? "#" : "10") << text;
      EXPECT_EQ(AudioScreen.sources.list.Text(), unset ? "#" : "2") << text;
    }
    ExpectOnlyChanged(before, {});
    ExpectSignal(false);
  }
}

// --- The module ---------------------------------------------------------------------------------

TEST_F(AudioScreenTest, WhatWasEditedGoesToTheModuleWithTheNextSend) {
  Start();
  auto& module = Plug(6);
  ReadModule();
  OpenAgain();
  AudioScreen.zones.list.Pick(15);
  AudioScreen.sources.list.Pick(2);
  PickZone(16);
  AudioScreen.source.list.Pick(2);
  AudioScreen.mainVolume.list.Pick(11);
  AudioScreen.gain.list.Pick(12);
  AudioScreen.secondaryVolume.list.Pick(13);
  AudioScreen.loudness.Set(true);
  AudioScreen.leave.Click();
  std::vector<int> expected;
  for (int cell = 0; cell < AudioImage.Size(); ++cell) expected.push_back(At(cell).Whole());
  const std::size_t received = module.received().size();
  SendToModule();
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_EQ(module.memory().Cells("AudioImage"), expected);
  std::map<int, std::string> frames;
  for (std::size_t i = received; i < module.received().size(); ++i) {
    const auto& record = module.received()[i];
    if (record.kind == virtual_module::UnitKind::Frame) frames[record.cell] = record.text;
  }
  // Each block of cells counts its frames anew.
  EXPECT_EQ(frames[130], "T006002\n\r");
  EXPECT_EQ(frames[131], "T007015\n\r");
  EXPECT_EQ(frames[148], "T024002\n\r");
  EXPECT_EQ(frames[164], "T040001\n\r");
  EXPECT_EQ(frames[180], "T056012\n\r");
  EXPECT_EQ(frames[196], "T015011\n\r");
  EXPECT_EQ(frames[212], "T015013\n\r");
}

TEST_F(AudioScreenTest, EveryValueStandsInTheFileAsANumber) {
  OpenAll();
  AudioScreen.zones.list.Pick(4);
  AudioScreen.sources.list.Pick(1);
  PickZone(1);
  AudioScreen.mainVolume.list.Pick(6);
  AudioScreen.surround.Set(true);
  AudioScreen.loudness.Set(true);
  SaveModuleAs("/house", "a");
  const Names lines = LinesOf(files.content["/house/a.BK1"]);
  const std::map<int, std::string> expected = {
      {129, " 1 "}, {130, " 1 "}, {131, " 4 "}, {133, " 0 "}, {134, " 1 "},
      {135, " 1 "}, {149, " 1 "}, {181, " 6 "}, {182, " 6 "}, {183, " 6 "}};
  for (const auto& [cell, form] : expected) {
    EXPECT_EQ(lines[static_cast<std::size_t>(1 + cell)], form) << cell;
  }
}

}  // namespace
}  // namespace bkconf
