#include <gtest/gtest.h>

#include <cstdio>

#include "image/tables.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

/// The look with the identities of sensors and LEDs, and the outputs of the valves.
class RoomIdsTest : public TemperatureScreenTest {};

using Texts = std::vector<std::string>;

std::string Hex(int value) {
  char text[8];
  std::snprintf(text, sizeof text, "%02X", static_cast<unsigned>(value));
  return text;
}

// --- Rooms --------------------------------------------------------------------------------------

TEST_F(RoomIdsTest, TheRoomsOfTheModuleAreListedWithThePumpBehindTheValves) {
  OpenIds(3);
  EXPECT_EQ(Ids().room.items, (Texts{"Ruimte 1", "Ruimte 2", "Ruimte 3"}));
  EXPECT_EQ(Ids().valve.items, (Texts{"Ruimte 1", "Ruimte 2", "Ruimte 3", "Pomp"}));
  OpenIds(1, 2);
  EXPECT_EQ(Ids().room.items, Texts{"Pièce 1"});
  EXPECT_EQ(Ids().valve.items, (Texts{"Pièce 1", "Circul."}));
  OpenIds(8);
  EXPECT_EQ(Ids().room.items.size(), 8U);
  EXPECT_EQ(Ids().valve.items.back(), "Pomp");
}

TEST_F(RoomIdsTest, AnImpossibleNumberOfRoomsListsNoneOrEight) {
  for (const auto& [count, listed] : {std::pair{Cell(), 0U},
                                      {Cell(-3), 0U},
                                      {Cell("word"), 0U},
                                      {Cell(9), 8U},
                                      {Cell(255), 8U}}) {
    StartWithRooms();
    TempRoomCount = count;
    Open(Action::RoomIds);
    EXPECT_EQ(Ids().room.items.size(), listed);
    EXPECT_EQ(Ids().valve.items.size(), listed + 1);
  }
}

TEST_F(RoomIdsTest, ANumberOfRoomsPickedInTheMainWindowIsTheNextList) {
  StartWithRooms(8);
  MainWindow.roomCount.Pick(1);
  Open(Action::RoomIds);
  EXPECT_EQ(Ids().room.items, (Texts{"Ruimte 1", "Ruimte 2"}));
}

TEST_F(RoomIdsTest, WithNoRoomChosenThereIsNothingToUse) {
  OpenIds();
  EXPECT_EQ(Ids().room.Text(), "Ruimte ?");
  EXPECT_EQ(Ids().valve.Text(), "Ruimte ?");
  for (int byte = 0; byte < 8; ++byte) {
    EXPECT_FALSE(SensorByte(byte).enabled || LedByte(byte).enabled) << byte;
    EXPECT_EQ(SensorByte(byte).Text() + LedByte(byte).Text(), "");
  }
  EXPECT_FALSE(Ids().own.enabled || Ids().other.enabled);
  EXPECT_FALSE(Ids().own.Chosen() || Ids().other.Chosen());
  EXPECT_FALSE(Ids().ownText.visible || Ids().letter.visible || Ids().output.visible);
  EXPECT_FALSE(Ids().letterLabel.visible || Ids().outputLabel.visible);
}

TEST_F(RoomIdsTest, OpeningAgainForgetsTheChoice) {
  OpenIds();
  Ids().room.Pick(2);
  Ids().valve.Pick(2);
  SensorByte(0).Pick(7);
  TemperatureScreen.leave.Click();
  Open(Action::RoomIds);
  EXPECT_EQ(Ids().room.Index(), -1);
  EXPECT_EQ(Ids().valve.Index(), -1);
  EXPECT_EQ(Ids().room.Text(), "Ruimte ?");
  EXPECT_FALSE(SensorByte(0).enabled || Ids().own.enabled || Ids().own.Chosen());
  EXPECT_EQ(SensorByte(0).Text(), "");
  EXPECT_FALSE(Ids().ownText.visible);
}

TEST_F(RoomIdsTest, TypingWhatIsNoRoomBringsTheQuestionBackAndLeavesNothingToUse) {
  for (const char* typed : {"", "9", "Ruimte", "ruimte 1", "Ruimte 4", "Ruimte ?", "Pomp"}) {
    OpenIds(3);
    Ids().room.Pick(2);
    const Snapshot before = TakeSnapshot();
    Ids().room.Type(typed);
    EXPECT_EQ(Ids().room.Text(), "Ruimte ?") << typed;
    EXPECT_EQ(Ids().room.Index(), -1);
    for (int byte = 0; byte < 8; ++byte) {
      SensorByte(byte).Pick(1);
      LedByte(byte).Pick(1);
    }
    ExpectOnlyChanged(before, {});
  }
  OpenIds(3, 2);
  Ids().room.Type("x");
  EXPECT_EQ(Ids().room.Text(), "Pièce ?");
}

TEST_F(RoomIdsTest, TypingWhatIsNoValveBringsTheQuestionBackAndLeavesNothingToUse) {
  for (const char* typed : {"", "9", "Ruimte 4", "pomp"}) {
    OpenIds(3);
    TempTail[64] = int{'B'};
    Ids().valve.Pick(0);
    const Snapshot before = TakeSnapshot();
    Ids().valve.Type(typed);
    EXPECT_EQ(Ids().valve.Text(), "Ruimte ?") << typed;
    EXPECT_FALSE(Ids().own.Chosen() || Ids().other.Chosen());
    Ids().own.Choose();
    Ids().other.Choose();
    Ids().letter.Pick(4);
    Ids().output.Pick(4);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(RoomIdsTest, ARoomThatIsTypedInFullIsPicked) {
  OpenIds(3);
  Ids().room.Type("Ruimte 2");
  EXPECT_EQ(Ids().room.Index(), 1);
  EXPECT_EQ(SensorByte(0).Text(), "08");
  Ids().valve.Type("Pomp");
  EXPECT_EQ(Ids().ownText.caption, "Aansluiting P op de temperatuurmodule");
}

// --- Identities ---------------------------------------------------------------------------------

TEST_F(RoomIdsTest, EachByteOffersAllHexadecimalValuesInCapitals) {
  OpenIds();
  Texts values;
  for (int value = 0; value < 256; ++value) values.push_back(Hex(value));
  ASSERT_EQ(Ids().sensor.bytes.size(), 8U);
  ASSERT_EQ(Ids().led.bytes.size(), 8U);
  for (int byte = 0; byte < 8; ++byte) {
    EXPECT_EQ(SensorByte(byte).items, values) << byte;
    EXPECT_EQ(LedByte(byte).items, values) << byte;
  }
}

TEST_F(RoomIdsTest, ARoomShowsTheIdentitiesInItsCellsAndChangesNone) {
  OpenIds();
  const Snapshot before = TakeSnapshot();
  for (int room = 7; room >= 0; --room) {
    Ids().room.Pick(room);
    for (int byte = 0; byte < 8; ++byte) {
      EXPECT_EQ(SensorByte(byte).Text(), Hex(8 * room + byte)) << room << byte;
      EXPECT_EQ(LedByte(byte).Text(), Hex(255 - 8 * room - byte)) << room << byte;
      EXPECT_EQ(SensorByte(byte).Index(), 8 * room + byte);
      for (const ListField* list : {&SensorByte(byte), &LedByte(byte)}) {
        EXPECT_TRUE(list->enabled && list->visible);
        EXPECT_EQ(list->textColour, (Colour{0x40, 0x40, 0x40}));
      }
    }
  }
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(RoomIdsTest, ACellThatHoldsNoNumberShowsAsNought) {
  OpenIds();
  TempRoomIds[0] = Cell();
  TempRoomIds[1] = "word";
  TempRoomIds[2] = "10";
  Ids().room.Pick(0);
  EXPECT_EQ(SensorByte(0).Text() + SensorByte(1).Text() + SensorByte(2).Text(), "00000A");
}

TEST_F(RoomIdsTest, APickedByteIsStoredInItsOwnCellAndMarked) {
  for (const int room : {0, 3, 7}) {
    for (const int byte : {0, 1, 7}) {
      OpenIds();
      Ids().room.Pick(room);
      const Snapshot before = TakeSnapshot();
      SensorByte(byte).Pick(0xAB);
      EXPECT_EQ(TempRoomIds[8 * room + byte], Cell(0xAB));
      ExpectOnlyChanged(before, {CellName("TempRoomIds", 8 * room + byte), "TempRoomsDirty"});
      EXPECT_EQ(SensorByte(byte).textColour, (Colour{0xFF, 0x00, 0xFF}));
      EXPECT_EQ(LedByte(byte).textColour, (Colour{0x40, 0x40, 0x40}));
      LedByte(byte).Pick(0);
      EXPECT_EQ(TempTail[8 * room + byte], Cell(0));
      ExpectOnlyChanged(before, {CellName("TempRoomIds", 8 * room + byte),
                                 CellName("TempTail", 8 * room + byte), "TempRoomsDirty"});
      EXPECT_EQ(LedByte(byte).textColour, (Colour{0xFF, 0x00, 0xFF}));
      EXPECT_EQ(LedByte((byte + 1) % 8).textColour, (Colour{0x40, 0x40, 0x40}));
      EXPECT_EQ(TempRoomsDirty, Cell(1));
      EXPECT_TRUE(MainWindow.send.enabled);
    }
  }
}

TEST_F(RoomIdsTest, TheNextRoomShowsNoMarks) {
  OpenIds();
  Ids().room.Pick(0);
  SensorByte(2).Pick(9);
  LedByte(2).Pick(9);
  Ids().room.Pick(0);
  EXPECT_EQ(SensorByte(2).Text() + LedByte(2).Text(), "0909");
  EXPECT_EQ(SensorByte(2).textColour, (Colour{0x40, 0x40, 0x40}));
  EXPECT_EQ(LedByte(2).textColour, (Colour{0x40, 0x40, 0x40}));
}

TEST_F(RoomIdsTest, TypingInAByteBringsItsValueBack) {
  OpenIds();
  Ids().room.Pick(1);
  const Snapshot before = TakeSnapshot();
  for (const char* typed : {"", "G0", "100", "ff", "8"}) {
    SensorByte(0).Type(typed);
    LedByte(7).Type(typed);
    EXPECT_EQ(SensorByte(0).Text(), "08") << typed;
    EXPECT_EQ(LedByte(7).Text(), "F0") << typed;
  }
  ExpectOnlyChanged(before, {});
}

// --- Valves -------------------------------------------------------------------------------------

void ExpectOnThisModule(const std::string& text) {
  RoomIdFields& ids = TemperatureScreen.ids;
  EXPECT_TRUE(ids.own.Chosen());
  EXPECT_FALSE(ids.other.Chosen());
  EXPECT_TRUE(ids.ownText.visible);
  EXPECT_EQ(ids.ownText.caption, text);
  EXPECT_FALSE(ids.letter.visible || ids.letterLabel.visible);
  EXPECT_FALSE(ids.output.visible || ids.outputLabel.visible);
}

void ExpectElsewhere(const std::string& letter, const std::string& output) {
  RoomIdFields& ids = TemperatureScreen.ids;
  EXPECT_TRUE(ids.other.Chosen());
  EXPECT_FALSE(ids.own.Chosen());
  EXPECT_FALSE(ids.ownText.visible);
  EXPECT_TRUE(ids.letter.visible && ids.letterLabel.visible);
  EXPECT_TRUE(ids.output.visible && ids.outputLabel.visible);
  EXPECT_EQ(ids.letter.Text(), letter);
  EXPECT_EQ(ids.output.Text(), output);
}

TEST_F(RoomIdsTest, AnotherModuleIsALetterUpToRAndOneOfTwelveOutputs) {
  OpenIds();
  Texts letters;
  for (char letter = 'A'; letter <= 'R'; ++letter) letters.emplace_back(1, letter);
  EXPECT_EQ(Ids().letter.items, letters);
  EXPECT_EQ(Ids().output.items,
            (Texts{"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"}));
}

TEST_F(RoomIdsTest, AValveOnThisModuleShowsTheNumberOfItsRoom) {
  OpenIds();
  const Snapshot before = TakeSnapshot();
  for (int room = 0; room < 8; ++room) {
    Ids().valve.Pick(room);
    ExpectOnThisModule("Aansluiting " + std::to_string(room + 1) + " op de temperatuurmodule");
    EXPECT_TRUE(Ids().own.enabled && Ids().other.enabled);
  }
  Ids().valve.Pick(8);
  ExpectOnThisModule("Aansluiting P op de temperatuurmodule");
  ExpectOnlyChanged(before, {});
  OpenIds(8, 2);
  Ids().valve.Pick(7);
  ExpectOnThisModule("Borne 8 du module température");
  Ids().valve.Pick(8);
  ExpectOnThisModule("Borne P du module température");
}

TEST_F(RoomIdsTest, AValveElsewhereShowsItsLetterAndOutput) {
  OpenIds();
  const char* outputs[] = {"01", "02", "08", "09", "10", "11", "12", "08"};
  const int places[] = {0, 1, 7, 8, 9, 10, 11, 7};
  for (int room = 0; room < 8; ++room) {
    TempTail[64 + 2 * room] = 'D' + room;
    TempTail[65 + 2 * room] = places[room];
  }
  TempTail[80] = int{'R'};
  TempTail[81] = 3;
  const Snapshot before = TakeSnapshot();
  for (int room = 0; room < 8; ++room) {
    Ids().valve.Pick(room);
    ExpectElsewhere(std::string(1, static_cast<char>('D' + room)), outputs[room]);
    EXPECT_EQ(Ids().letter.textColour, (Colour{0x40, 0x40, 0x40}));
    EXPECT_EQ(Ids().output.textColour, (Colour{0x40, 0x40, 0x40}));
  }
  Ids().valve.Pick(8);
  ExpectElsewhere("R", "04");
  ExpectOnlyChanged(before, {});
}

TEST_F(RoomIdsTest, AValveIsShownHereByItsLetterAloneAndItsNumberStays) {
  OpenIds();
  TempTail[67] = 11;
  const Snapshot before = TakeSnapshot();
  Ids().valve.Pick(1);
  ExpectOnThisModule("Aansluiting 2 op de temperatuurmodule");
  Ids().own.Choose();  // it is chosen already
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(RoomIdsTest, ChoosingThisModuleStoresItsLetterAndTheOutputOfTheRoom) {
  for (const int room : {0, 2, 7}) {
    OpenIds();
    TempTail[64 + 2 * room] = int{'Q'};
    TempTail[65 + 2 * room] = 11;
    Ids().valve.Pick(room);
    const Snapshot before = TakeSnapshot();
    Ids().own.Choose();
    ExpectOnThisModule("Aansluiting " + std::to_string(room + 1) + " op de temperatuurmodule");
    EXPECT_EQ(TempTail[64 + 2 * room], Cell(int{'C'}));
    EXPECT_EQ(TempTail[65 + 2 * room], Cell(room));
    ExpectOnlyChanged(before, {CellName("TempTail", 64 + 2 * room),
                               CellName("TempTail", 65 + 2 * room), "TempRoomsDirty"});
    EXPECT_TRUE(MainWindow.send.enabled);
  }
}

TEST_F(RoomIdsTest, ThePumpOnThisModuleStoresTheNumberEight) {
  OpenIds(3);
  TempTail[80] = int{'Q'};
  TempTail[81] = 11;
  Ids().valve.Pick(3);
  const Snapshot before = TakeSnapshot();
  Ids().own.Choose();
  ExpectOnThisModule("Aansluiting P op de temperatuurmodule");
  EXPECT_EQ(TempTail[80], Cell(int{'C'}));
  EXPECT_EQ(TempTail[81], Cell(8));
  ExpectOnlyChanged(before, {"TempTail[80]", "TempTail[81]", "TempRoomsDirty"});
}

TEST_F(RoomIdsTest, ChoosingAnotherModuleStoresNothingUntilOneIsPicked) {
  OpenIds();
  Ids().valve.Pick(4);
  const Snapshot before = TakeSnapshot();
  Ids().other.Choose();
  ExpectElsewhere("C", "05");
  EXPECT_EQ(Ids().letter.textColour, (Colour{0x40, 0x40, 0x40}));
  EXPECT_EQ(Ids().output.textColour, (Colour{0x40, 0x40, 0x40}));
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
  Ids().own.Choose();
  ExpectOnThisModule("Aansluiting 5 op de temperatuurmodule");
}

TEST_F(RoomIdsTest, LetterAndOutputAreStoredEachInTheirOwnCell) {
  for (const int room : {0, 5, 7}) {
    OpenIds();
    Ids().valve.Pick(room);
    Ids().other.Choose();
    const Snapshot before = TakeSnapshot();
    Ids().letter.Pick(17);
    EXPECT_EQ(TempTail[64 + 2 * room], Cell(int{'R'}));
    ExpectOnlyChanged(before, {CellName("TempTail", 64 + 2 * room), "TempRoomsDirty"});
    EXPECT_EQ(Ids().letter.textColour, (Colour{0xFF, 0x00, 0xFF}));
    EXPECT_EQ(Ids().output.textColour, (Colour{0x40, 0x40, 0x40}));
    Ids().output.Pick(11);
    EXPECT_EQ(TempTail[65 + 2 * room], Cell(11));
    ExpectOnlyChanged(before, {CellName("TempTail", 64 + 2 * room),
                               CellName("TempTail", 65 + 2 * room), "TempRoomsDirty"});
    EXPECT_EQ(Ids().output.textColour, (Colour{0xFF, 0x00, 0xFF}));
    EXPECT_EQ(TempRoomsDirty, Cell(1));
    EXPECT_TRUE(MainWindow.send.enabled);
    Ids().valve.Pick(room);
    ExpectElsewhere("R", "12");
    EXPECT_EQ(Ids().letter.textColour, (Colour{0x40, 0x40, 0x40}));
    EXPECT_EQ(Ids().output.textColour, (Colour{0x40, 0x40, 0x40}));
  }
}

TEST_F(RoomIdsTest, AnOutputAloneIsStoredAndMarkedToo) {
  OpenIds();
  Ids().valve.Pick(2);
  Ids().other.Choose();
  const Snapshot before = TakeSnapshot();
  Ids().output.Pick(0);
  EXPECT_EQ(TempTail[69], Cell(0));
  ExpectOnlyChanged(before, {"TempTail[69]", "TempRoomsDirty"});
  EXPECT_TRUE(MainWindow.send.enabled);
}

TEST_F(RoomIdsTest, ThePumpElsewhereLeavesTheValvesOfRoomsThatAreNotThere) {
  OpenIds(3);
  Ids().valve.Pick(3);
  Ids().other.Choose();
  const Snapshot before = TakeSnapshot();
  Ids().letter.Pick(1);
  ExpectOnlyChanged(before, {"TempTail[80]", "TempRoomsDirty"});
  EXPECT_EQ(TempTail[80], Cell(int{'B'}));
  Ids().output.Pick(4);
  ExpectOnlyChanged(before, {"TempTail[80]", "TempTail[81]", "TempRoomsDirty"});
  EXPECT_EQ(TempTail[81], Cell(4));
}

TEST_F(RoomIdsTest, TypingInLetterAndOutputBringsTheStoredValuesBack) {
  OpenIds();
  TempTail[64] = int{'B'};
  TempTail[65] = 4;
  Ids().valve.Pick(0);
  const Snapshot before = TakeSnapshot();
  for (const char* typed : {"", "S", "a", "12", "Q", "05 "}) {
    Ids().letter.Type(typed);
    Ids().output.Type(typed);
    ExpectElsewhere("B", "05");
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(RoomIdsTest, OtherValuesOfAModuleAreShownAsTheyAre) {
  OpenIds();
  TempTail[64] = 90;  // Z
  TempTail[65] = 12;
  TempTail[66] = 0;
  TempTail[67] = Cell();
  TempTail[68] = "word";
  TempTail[69] = 1e15;
  Ids().valve.Pick(0);
  ExpectElsewhere("Z", "13");
  EXPECT_EQ(Ids().output.Index(), -1);
  Ids().valve.Pick(1);
  ExpectElsewhere("", "01");
  Ids().valve.Pick(2);
  ExpectElsewhere("", "1000000000000001");
}

TEST_F(RoomIdsTest, AnotherLetterOfTheModuleItselfLeavesItsValvesBehind) {
  StartWithRooms();
  const Snapshot before = TakeSnapshot();
  MainWindow.displayTemperature.address.Pick(6);
  ExpectOnlyChanged(before, {"TempHeader[0]", "TempHeaderDirty"});
  Open(Action::RoomIds);
  Ids().valve.Pick(2);
  ExpectElsewhere("C", "03");
  Ids().own.Choose();
  EXPECT_EQ(TempTail[68], Cell(int{'G'}));
}

}  // namespace
}  // namespace bkconf
