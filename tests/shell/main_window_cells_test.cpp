// The fields of the main window that store a cell of the image at once.
#include <gtest/gtest.h>

#include <ostream>

#include "image/tables.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

struct AddressRow {
  int kind;
  DataGroup group;
  Table* table;
  int cell;
  const char* name;  ///< of the cell in a snapshot
  Cell* dirty;       ///< null where Send needs no flag
  const char* flag;
};

/// In the names and messages of the tests.
void PrintTo(const AddressRow& row, std::ostream* out) {
  *out << row.name;
}

const AddressRow Rows[] = {
    {0, DataGroup::General, &ButtonImage, 121, "ButtonImage[121]", nullptr, nullptr},
    {1, DataGroup::General, &ButtonImage, 121, "ButtonImage[121]", nullptr, nullptr},
    {4, DataGroup::General, &ButtonImage, 121, "ButtonImage[121]", nullptr, nullptr},
    {11, DataGroup::General, &ButtonImage, 121, "ButtonImage[121]", nullptr, nullptr},
    {2, DataGroup::DisplayTemperature, &TempHeader, 0, "TempHeader[0]", &TempHeaderDirty,
     "TempHeaderDirty"},
    {3, DataGroup::DisplayTemperature, &LcdHeader, 0, "LcdHeader[0]", &LcdHeaderDirty,
     "LcdHeaderDirty"},
    {5, DataGroup::Alarm, &AlarmImage, 121, "AlarmImage[121]", nullptr, nullptr},
    {6, DataGroup::Special, &AudioImage, 121, "AudioImage[121]", nullptr, nullptr},
    {7, DataGroup::Special, &SimulationImage, 121, "SimulationImage[121]", nullptr, nullptr},
    {8, DataGroup::Special, &IrImage, 121, "IrImage[121]", nullptr, nullptr},
};

class AddressPickTest : public SessionTest, public testing::WithParamInterface<AddressRow> {
 protected:
  AddressPickTest() {
    Start();
    Plug(GetParam().kind);
    ReadModule();
  }

  ListField& List() const { return MainWindow.Group(GetParam().group).address; }
  Cell& Stored() const { return (*GetParam().table)[GetParam().cell]; }
};

TEST_P(AddressPickTest, StoresTheCodeOfTheLetterAndNothingElseButTheFlagOfItsKind) {
  const int other = (List().Index() + 1) % 18;
  const Snapshot before = TakeSnapshot();
  List().Pick(other);
  EXPECT_EQ(Stored(), Cell('A' + other));
  if (GetParam().flag == nullptr) {
    ExpectOnlyChanged(before, {GetParam().name});
  } else {
    EXPECT_EQ(before.at(GetParam().flag), Cell(0));
    EXPECT_EQ(*GetParam().dirty, Cell(1));
    ExpectOnlyChanged(before, {GetParam().name, GetParam().flag});
  }
}

TEST_P(AddressPickTest, EveryLetterHasItsCode) {
  for (int index = 0; index < 18; ++index) {
    List().Pick(index);
    EXPECT_EQ(Stored(), Cell(65 + index));
    EXPECT_EQ(List().Text(), std::string(1, static_cast<char>('A' + index)));
  }
}

TEST_P(AddressPickTest, TypingPutsTheStoredLetterBackAndStoresNothing) {
  List().Pick(6);
  const Snapshot before = TakeSnapshot();
  for (const char* text : {"Q", "x", "", "G", "GG"}) {
    List().Type(text);
    EXPECT_EQ(List().Text(), "G") << text;
    EXPECT_EQ(List().Index(), 6) << text;
  }
  ExpectOnlyChanged(before, {});
}

TEST_P(AddressPickTest, TypingPutsALetterBackThatTheListDoesNotHave) {
  Stored() = '*';
  List().Type("B");
  EXPECT_EQ(List().Text(), "*");
  EXPECT_EQ(Stored(), Cell('*'));
}

TEST_P(AddressPickTest, GoesToTheModuleWithTheNextSend) {
  List().Pick(17);
  SendToModule();
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  const auto& cells = line.module->memory().Cells(GetParam().table->name);
  EXPECT_EQ(cells[static_cast<std::size_t>(GetParam().cell)], 'R');
}

TEST_P(AddressPickTest, IsNotPossibleDuringATransfer) {
  MainWindow.send.Click();
  const Snapshot before = TakeSnapshot();
  EXPECT_FALSE(List().enabled);
  List().Pick(0);
  List().Pick(1);
  ExpectOnlyChanged(before, {});
  FinishTransfer();
  EXPECT_TRUE(List().enabled);
}

INSTANTIATE_TEST_SUITE_P(Kinds, AddressPickTest, testing::ValuesIn(Rows),
                         [](const auto& row) { return "kind" + std::to_string(row.param.kind); });

class MainWindowCellsTest : public SessionTest {
 protected:
  void Read(int kind) {
    Start();
    Plug(kind);
    ReadModule();
  }
};

TEST_F(MainWindowCellsTest, TheMasterHasNoAddressToPick) {
  Read(9);
  const Snapshot before = TakeSnapshot();
  for (int index = 0; index < 18; ++index) {
    MainWindow.general.address.Pick(index);
    MainWindow.general.address.Type("Q");
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(MainWindowCellsTest, ThereIsNothingToPickWithoutAnImage) {
  Start();
  const Snapshot before = TakeSnapshot();
  for (ListField* list :
       {&MainWindow.general.address, &MainWindow.displayTemperature.address,
        &MainWindow.alarm.address, &MainWindow.special.address, &MainWindow.roomCount,
        &MainWindow.tolerance, &MainWindow.detectorCount}) {
    list->Pick(1);
    list->Type("1");
    EXPECT_EQ(list->Text(), "") << list->name;
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(MainWindowCellsTest, TheNumberOfRoomsIsStoredWithItsCopyAndItsFlag) {
  Read(2);
  for (int rooms = 1; rooms <= 8; ++rooms) {
    TempHeader[1] = Cell();
    TempRoomCount = Cell();
    TempHeaderDirty = 0;
    const Snapshot before = TakeSnapshot();
    MainWindow.roomCount.Pick(rooms - 1);
    EXPECT_EQ(TempHeader[1], Cell(rooms));
    EXPECT_EQ(TempRoomCount, Cell(rooms));
    EXPECT_EQ(TempHeaderDirty, Cell(1));
    ExpectOnlyChanged(before, {"TempHeader[1]", "TempRoomCount", "TempHeaderDirty"});
  }
}

TEST_F(MainWindowCellsTest, AReadTakesTheNumberOfRoomsOver) {
  Start();
  Plug(2).memory().Cells(std::string_view("TempHeader"))[1] = 6;
  ReadModule();
  EXPECT_EQ(TempRoomCount, Cell(6));
}

TEST_F(MainWindowCellsTest, TheToleranceIsStoredAsItStandsWithItsFlag) {
  Read(2);
  for (const int index : {0, 1, 98, 253}) {
    TempHeader[2] = Cell();
    TempHeaderDirty = 0;
    const Snapshot before = TakeSnapshot();
    MainWindow.tolerance.Pick(index);
    EXPECT_EQ(TempHeader[2], Cell(index + 2));
    EXPECT_EQ(TempHeaderDirty, Cell(1));
    ExpectOnlyChanged(before, {"TempHeader[2]", "TempHeaderDirty"});
  }
}

TEST_F(MainWindowCellsTest, TheNumberOfDetectorsIsStoredAndSetsNoFlag) {
  Read(5);
  for (int detectors = 1; detectors <= 12; ++detectors) {
    AlarmImage[123] = Cell();
    const Snapshot before = TakeSnapshot();
    MainWindow.detectorCount.Pick(detectors - 1);
    EXPECT_EQ(AlarmImage[123], Cell(detectors));
    ExpectOnlyChanged(before, {"AlarmImage[123]"});
  }
}

TEST_F(MainWindowCellsTest, TypingInANumberListPutsTheStoredNumberBack) {
  Read(2);
  MainWindow.roomCount.Pick(4);
  MainWindow.tolerance.Pick(8);
  const Snapshot before = TakeSnapshot();
  MainWindow.roomCount.Type("7");
  MainWindow.tolerance.Type("abc");
  EXPECT_EQ(MainWindow.roomCount.Text(), "5");
  EXPECT_EQ(MainWindow.tolerance.Text(), "10");
  ExpectOnlyChanged(before, {});
}

TEST_F(MainWindowCellsTest, TypingInTheDetectorListPutsTheStoredNumberBack) {
  Read(5);
  MainWindow.detectorCount.Pick(11);
  const Snapshot before = TakeSnapshot();
  MainWindow.detectorCount.Type("3");
  EXPECT_EQ(MainWindow.detectorCount.Text(), "12");
  ExpectOnlyChanged(before, {});
}

TEST_F(MainWindowCellsTest, AnyOtherToleranceOfAModuleIsShownAsItIs) {
  Start();
  Plug(2).memory().Cells(std::string_view("TempHeader"))[2] = 1;
  ReadModule();
  EXPECT_EQ(MainWindow.tolerance.Text(), "1");
  EXPECT_EQ(MainWindow.tolerance.Index(), -1);
}

class HiddenGroupTest : public SessionTest {};

TEST_F(HiddenGroupTest, OnlyTheAddressOfTheGroupOfTheKindCanBePicked) {
  Start();
  Plug(5);
  ReadModule();
  const Snapshot before = TakeSnapshot();
  MainWindow.general.address.Pick(3);
  MainWindow.special.address.Pick(3);
  MainWindow.roomCount.Pick(3);
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
