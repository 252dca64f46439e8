#include <gtest/gtest.h>

#include "special/audio_screen_test.h"
#include "special/random_edits.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

/// What each zone starts with, and what surround makes of it.
class AudioZoneTest : public AudioScreenTest {
 protected:
  static std::string Shown(const AudioList& field) { return field.list.Text(); }
  /// All zones, with surround turned on in zone 1, which stays chosen.
  void OpenInSurround() {
    OpenAll();
    At(181) = 9;
    PickZone(1);
    AudioScreen.surround.Set(true);
    MainWindow.send.enabled = false;
  }
};

// --- Without surround ---------------------------------------------------------------------------

TEST_F(AudioZoneTest, WithoutAZoneNothingCanBeSet) {
  OpenAll();
  const Snapshot before = TakeSnapshot();
  EXPECT_EQ(Usable(), Names{});
  EXPECT_FALSE(AudioScreen.mainGroup.enabled || AudioScreen.secondaryGroup.enabled);
  EXPECT_FALSE(AudioScreen.surround.visible || AudioScreen.surroundHint.visible);
  for (const ZoneList& row : ZoneLists()) {
    row.field->list.Pick(2);
    row.field->list.Type("3");
    EXPECT_EQ(Shown(*row.field), "");
  }
  AudioScreen.loudness.Set(true);
  AudioScreen.surround.Set(true);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_F(AudioZoneTest, AZoneShowsItsOwnCells) {
  OpenAll();
  for (int zone = 0; zone < 16; ++zone) {
    At(133 + zone) = zone % 4;
    At(149 + zone) = zone % 2;
    At(165 + zone) = zone;
    At(181 + zone) = 15 - zone;
    At(197 + zone) = std::to_string((zone + 5) % 16);
  }
  const Snapshot before = TakeSnapshot();
  for (int zone = 15; zone >= 0; --zone) {
    PickZone(zone + 1);
    EXPECT_EQ(Usable(), AllZoneFields);
    EXPECT_TRUE(AudioScreen.mainGroup.enabled && AudioScreen.secondaryGroup.enabled);
    EXPECT_EQ(Shown(AudioScreen.source), std::to_string(zone % 4 + 1));
    EXPECT_EQ(Shown(AudioScreen.gain), std::to_string(zone + 1));
    EXPECT_EQ(Shown(AudioScreen.mainVolume), std::to_string(16 - zone));
    EXPECT_EQ(Shown(AudioScreen.secondaryVolume), std::to_string((zone + 5) % 16 + 1));
    EXPECT_EQ(AudioScreen.loudness.checked, zone % 2 == 1);
  }
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_F(AudioZoneTest, UnsetCellsShowNothingAndStay) {
  OpenAll();
  At(197) = "42";
  const Snapshot before = TakeSnapshot();
  for (int zone = 1; zone <= 16; ++zone) {
    PickZone(zone);
    for (const ZoneList& row : ZoneLists()) {
      EXPECT_EQ(Shown(*row.field), "");
      EXPECT_EQ(row.field->list.Index(), -1);
    }
    EXPECT_FALSE(AudioScreen.loudness.checked);
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(AudioZoneTest, ValuesBeyondTheListsAreShownAsTheyAre) {
  OpenAll();
  for (const ZoneList& row : ZoneLists()) At(row.cell + 3) = 254;
  At(149 + 3) = 2;
  const Snapshot before = TakeSnapshot();
  PickZone(4);
  for (const ZoneList& row : ZoneLists()) EXPECT_EQ(Shown(*row.field), "255");
  EXPECT_FALSE(AudioScreen.loudness.checked);
  ExpectOnlyChanged(before, {});
}

TEST_F(AudioZoneTest, ValuesBeyondThoseOfAModuleAreShownAsTheyAre) {
  OpenAll();
  for (const ZoneList& row : ZoneLists()) {
    At(row.cell + 3) = 2147483647.0;
    At(row.cell + 4) = "-3000000000";
  }
  const Snapshot before = TakeSnapshot();
  PickZone(4);
  for (const ZoneList& row : ZoneLists()) EXPECT_EQ(Shown(*row.field), "2147483648");
  PickZone(5);
  for (const ZoneList& row : ZoneLists()) EXPECT_EQ(Shown(*row.field), "-2999999999");
  ExpectOnlyChanged(before, {});
}

TEST_F(AudioZoneTest, EachPickIsStoredInTheCellOfItsZoneAlone) {
  OpenAll();
  const Snapshot before = TakeSnapshot();
  for (int zone = 1; zone <= 16; ++zone) {
    PickZone(zone);
    for (const ZoneList& row : ZoneLists()) {
      std::vector<Cell> cells = ImageCells();
      for (int value = static_cast<int>(row.field->list.items.size()) - 1; value >= 0; --value) {
        row.field->list.Pick(value);
        cells[static_cast<std::size_t>(row.cell + zone - 1)] = value;
        EXPECT_EQ(ImageCells(), cells) << row.field->list.name << zone;
        EXPECT_EQ(Shown(*row.field), std::to_string(value + 1));
        ExpectSignal(true);
      }
    }
  }
  ExpectOnlyChanged(before, {NameOf(133, 148), NameOf(165, 212)});
}

TEST_F(AudioZoneTest, LoudnessIsStoredAsOneOrNought) {
  OpenAll();
  for (const int zone : {1, 16}) {
    PickZone(zone);
    const Snapshot before = TakeSnapshot();
    AudioScreen.loudness.Set(true);
    EXPECT_EQ(At(148 + zone), Cell(1));
    ExpectOnlyChanged(before, {NameOf(148 + zone)});
    ExpectSignal(true);
    AudioScreen.loudness.Set(false);
    EXPECT_EQ(At(148 + zone), Cell(0));
    ExpectOnlyChanged(before, {NameOf(148 + zone)});
    ExpectSignal(true);
  }
}

TEST_F(AudioZoneTest, TypingPutsBackWhatIsStored) {
  OpenAll();
  for (const Cell& value : {Cell(2), Cell("2"), Cell(42)}) {
    for (const ZoneList& row : ZoneLists()) At(row.cell + 4) = value;
    PickZone(5);
    const Snapshot before = TakeSnapshot();
    const std::string stored = value == Cell(42) ? "" : "3";
    for (const char* text : {"1", "x", "", "99"}) {
      for (const ZoneList& row : ZoneLists()) {
        row.field->list.Type(text);
        EXPECT_EQ(Shown(*row.field), stored) << row.field->list.name << text;
      }
      AudioScreen.zone.list.Type(text);
      EXPECT_EQ(Shown(AudioScreen.zone), "5");
    }
    ExpectOnlyChanged(before, {});
    ExpectSignal(false);
  }
}

TEST_F(AudioZoneTest, TypingShowsTheStoredSourceThatANewNumberOfSourcesCleared) {
  OpenAll();
  At(133) = 3;
  PickZone(1);
  AudioScreen.sources.list.Pick(1);
  EXPECT_EQ(Shown(AudioScreen.source), "");
  AudioScreen.source.list.Type("1");
  EXPECT_EQ(Shown(AudioScreen.source), "4");
  EXPECT_EQ(At(133), Cell(3));
}

TEST_F(AudioZoneTest, OnlyTheFirstZoneOffersSurround) {
  OpenAll();
  for (int zone = 1; zone <= 16; ++zone) {
    PickZone(zone);
    EXPECT_EQ(AudioScreen.surround.visible, zone == 1);
    EXPECT_FALSE(AudioScreen.surround.checked);
    EXPECT_FALSE(AudioScreen.surroundHint.visible);
  }
  for (const Cell& value : {Cell(0), Cell(2), Cell(42), Cell("word")}) {
    At(129) = value;
    PickZone(1);
    EXPECT_FALSE(AudioScreen.surround.checked);
    EXPECT_EQ(Usable(), AllZoneFields);
    EXPECT_EQ(At(129), value);
  }
}

// --- Surround -----------------------------------------------------------------------------------

TEST_F(AudioZoneTest, SurroundMakesTheNextTwoZonesChannelsOfTheFirst) {
  for (const Cell& volume : {Cell(9), Cell(0), Cell("4"), Cell(42)}) {
    OpenAll();
    At(133) = At(134) = At(135) = 3;
    At(181) = volume;
    At(182) = At(183) = 11;
    PickZone(1);
    const Snapshot before = TakeSnapshot();
    AudioScreen.surround.Set(true);
    EXPECT_EQ(At(129), Cell(1));
    EXPECT_EQ(At(133), Cell(0));
    EXPECT_EQ(At(134), Cell(1));
    EXPECT_EQ(At(135), Cell(1));
    EXPECT_EQ(At(182), volume);
    EXPECT_EQ(At(183), volume);
    ExpectOnlyChanged(
        before, {NameOf(129), NameOf(133), NameOf(134), NameOf(135), NameOf(182), NameOf(183)});
    ExpectSignal(true);
    EXPECT_EQ(Shown(AudioScreen.source), "1");
    EXPECT_EQ(Usable(), (Names{"mainVolume", "gain", "secondaryVolume", "loudness"}));
    EXPECT_TRUE(AudioScreen.surround.visible && AudioScreen.surround.enabled);
    EXPECT_FALSE(AudioScreen.surroundHint.visible);
  }
}

TEST_F(AudioZoneTest, WithoutSurroundTheSourceIsFreeAndOtherCellsStay) {
  OpenInSurround();
  const Snapshot before = TakeSnapshot();
  AudioScreen.surround.Set(false);
  EXPECT_EQ(At(129), Cell(0));
  ExpectOnlyChanged(before, {NameOf(129)});
  ExpectSignal(true);
  EXPECT_EQ(Usable(), AllZoneFields);
  EXPECT_EQ(Shown(AudioScreen.source), "1");
  EXPECT_EQ(At(134), Cell(1));
  EXPECT_EQ(At(182), Cell(9));
  PickZone(2);
  EXPECT_EQ(Usable(), AllZoneFields);
  EXPECT_FALSE(AudioScreen.surroundHint.visible);
}

TEST_F(AudioZoneTest, TheFirstZonePlaysTheFirstSourceInSurround) {
  for (const Cell& source : {Cell(2), Cell(42), Cell("3")}) {
    OpenAll();
    At(129) = 1;
    At(133) = source;
    const Snapshot before = TakeSnapshot();
    PickZone(1);
    EXPECT_TRUE(AudioScreen.surround.visible && AudioScreen.surround.checked);
    EXPECT_EQ(Shown(AudioScreen.source), "1");
    EXPECT_EQ(At(133), Cell(0));
    ExpectOnlyChanged(before, {NameOf(133)});
    ExpectSignal(true);
    EXPECT_EQ(Usable(), (Names{"mainVolume", "gain", "secondaryVolume", "loudness"}));
  }
}

TEST_F(AudioZoneTest, AWordInTheSourceOfTheFirstZoneBecomesTheFirstSourceToo) {
  OpenAll();
  At(129) = 1;
  At(133) = "*";
  PickZone(1);
  EXPECT_EQ(At(133), Cell(0));
}

TEST_F(AudioZoneTest, TheFirstZoneInSurroundIsNoChangeWhereItPlaysTheFirstSourceAlready) {
  OpenInSurround();
  PickZone(5);
  const Snapshot before = TakeSnapshot();
  PickZone(1);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_F(AudioZoneTest, ZonesThatFollowTheFirstHaveNothingOfTheirOwnButTheGain) {
  for (const int zone : {2, 3}) {
    OpenInSurround();
    // What a module may hold: it is shown as far as it is the zone's own.
    At(132 + zone) = 2;
    At(180 + zone) = 4;
    At(164 + zone) = 5;
    At(196 + zone) = 6;
    At(148 + zone) = 1;
    Snapshot before = TakeSnapshot();
    PickZone(zone);
    EXPECT_TRUE(AudioScreen.surroundHint.visible);
    EXPECT_FALSE(AudioScreen.surround.visible);
    EXPECT_EQ(Shown(AudioScreen.source), "3");
    EXPECT_EQ(Shown(AudioScreen.mainVolume), "10");
    EXPECT_EQ(Shown(AudioScreen.gain), "6");
    EXPECT_EQ(Shown(AudioScreen.secondaryVolume), "7");
    EXPECT_TRUE(AudioScreen.loudness.checked);
    EXPECT_EQ(Usable(), Names{"gain"});
    for (AudioList* field :
         {&AudioScreen.source, &AudioScreen.mainVolume, &AudioScreen.secondaryVolume}) {
      field->list.Pick(0);
      field->list.Type("1");
    }
    AudioScreen.loudness.Set(false);
    AudioScreen.surround.Set(false);
    ExpectOnlyChanged(before, {});
    ExpectSignal(false);
    AudioScreen.gain.list.Pick(15);
    EXPECT_EQ(At(164 + zone), Cell(15));
    ExpectOnlyChanged(before, {NameOf(164 + zone)});
    AudioScreen.gain.list.Type("2");
    EXPECT_EQ(Shown(AudioScreen.gain), "16");
  }
}

TEST_F(AudioZoneTest, TheFourthZoneDoesNotFollow) {
  OpenInSurround();
  At(184) = 2;
  for (int zone = 4; zone <= 16; ++zone) {
    PickZone(zone);
    EXPECT_EQ(Usable(), AllZoneFields) << zone;
    EXPECT_FALSE(AudioScreen.surroundHint.visible || AudioScreen.surround.visible) << zone;
  }
  PickZone(4);
  EXPECT_EQ(Shown(AudioScreen.mainVolume), "3");
}

TEST_F(AudioZoneTest, WithOneSourceTheListHasOneThoughTheOtherChannelsPlayTheSecond) {
  OpenAll();
  AudioScreen.sources.list.Pick(0);
  PickZone(1);
  AudioScreen.surround.Set(true);
  EXPECT_EQ(AudioScreen.source.list.items, Names{"1"});
  EXPECT_EQ(At(134), Cell(1));
  EXPECT_EQ(At(135), Cell(1));
  PickZone(2);
  EXPECT_EQ(Shown(AudioScreen.source), "2");
  EXPECT_EQ(AudioScreen.source.list.Index(), -1);
}

TEST_F(AudioZoneTest, TheVolumeOfTheFirstZoneGoesToItsOtherChannels) {
  OpenInSurround();
  const Snapshot before = TakeSnapshot();
  AudioScreen.mainVolume.list.Pick(13);
  EXPECT_EQ(At(181), Cell(13));
  EXPECT_EQ(At(182), Cell(13));
  EXPECT_EQ(At(183), Cell(13));
  ExpectOnlyChanged(before, {NameOf(181), NameOf(182), NameOf(183)});
  ExpectSignal(true);
  PickZone(3);
  EXPECT_EQ(Shown(AudioScreen.mainVolume), "14");
}

TEST_F(AudioZoneTest, InSurroundTheVolumeOfAnyZoneGoesToTheNextTwoThatThereAre) {
  for (int zone = 4; zone <= 16; ++zone) {
    OpenInSurround();
    PickZone(zone);
    std::vector<Cell> cells = ImageCells();
    AudioScreen.mainVolume.list.Pick(0);
    // The volumes of the secondary zones begin at cell 197.
    const auto end = std::min(180 + zone + 3, 197);
    std::fill(cells.begin() + 180 + zone, cells.begin() + end, Cell(0));
    EXPECT_EQ(ImageCells(), cells) << zone;
  }
}

TEST_F(AudioZoneTest, InSurroundNothingButTheMainVolumeSpreads) {
  OpenInSurround();
  const Snapshot before = TakeSnapshot();
  AudioScreen.gain.list.Pick(1);
  AudioScreen.secondaryVolume.list.Pick(2);
  AudioScreen.loudness.Set(true);
  ExpectOnlyChanged(before, {NameOf(165), NameOf(197), NameOf(149)});
}

TEST_F(AudioZoneTest, AnotherNumberOfSourcesInSurroundStoresNothingElse) {
  OpenInSurround();
  const Snapshot before = TakeSnapshot();
  AudioScreen.sources.list.Pick(1);
  ExpectOnlyChanged(before, {NameOf(130)});
  EXPECT_EQ(Shown(AudioScreen.source), "");
  EXPECT_FALSE(AudioScreen.source.list.enabled);
}

// --- Anything at all ----------------------------------------------------------------------------

/// What a cell may hold after any edits of an image in which it was unset.
bool InRange(int cell, double value) {
  if (value == 42) return true;
  const int last = cell == 129 ? 1 : cell == 130 ? 3 : cell == 131 ? 15 : cell < 149 ? 3 : 15;
  return value >= 0 && value <= (cell >= 149 && cell < 165 ? 1 : last);
}

TEST_F(AudioZoneTest, TenThousandRandomEditsChangeNoCellButThoseOfTheScreen) {
  OpenAll();
  At(129) = 42;
  const Snapshot before = TakeSnapshot();
  // As long as the number of zones stays, all zones are there to be reached.
  RandomEdits most(AudioScreen, 3, {"leave", "zones"});
  RandomEdits all(AudioScreen, 4, {"leave"});
  for (int step = 0; step < 10'000; ++step) {
    (step < 6'000 ? most : all).Step();
    for (int cell = 129; cell < AudioImage.Size(); ++cell) {
      ASSERT_TRUE(AudioImage[cell].IsNumber() && InRange(cell, AudioImage[cell].Number()))
          << "cell " << cell << " in step " << step << ": " << AudioImage[cell].Text();
    }
  }
  // Each of its cells was reached, and no other.
  Names own = {NameOf(129), NameOf(130), NameOf(131)};
  for (int cell = 133; cell < AudioImage.Size(); ++cell) own.push_back(NameOf(cell));
  ExpectOnlyChanged(before, own);
  EXPECT_TRUE(messages.told.empty());
  EXPECT_TRUE(AudioScreen.shown);
}

}  // namespace
}  // namespace bkconf
