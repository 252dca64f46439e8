#include <gtest/gtest.h>

#include "image/module_directory.h"
#include "special/composed_action.h"
#include "special/ir_screen_test.h"
#include "special/random_edits.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

/// Places in the list of types.
enum TypePlace { Relay, Dimmer, Temperature, RelayDc, Alarm, Audio, Simulation, Lumenza };

class IrStoreTest : public IrScreenTest {
 protected:
  /// A key and a row are picked, and the picker is idle.
  void Edit(int key = 4, int row = 2, int language = 1) {
    Open(language);
    PressKey(key);
    PickRow(row);
  }
  static void PickTarget(char letter, int type) {
    PickLetter(letter);
    Picker().type.Pick(type);
  }
  /// Stores, and expects that nothing was stored.
  static void ExpectSilence() {
    MainWindow.send.enabled = false;
    const Snapshot before = TakeSnapshot();
    Store();
    ExpectOnlyChanged(before, {});
    EXPECT_TRUE(IrScreen.store.enabled);
    ExpectSignal(false);
  }
  /// The visible fields of the picker below letter and type.
  static int VisibleLower() {
    int count = 0;
    for (const Field* field : IrScreen.fields) {
      const bool upper = field == &Picker().letter || field == &Picker().letterLabel ||
                         field == &Picker().type || field == &Picker().typeLabel;
      if (field->name.starts_with("picker") && !upper && field->visible) ++count;
    }
    return count;
  }
};

// --- What is stored -----------------------------------------------------------------------------

void PickSimulation(ActionPicker& picker, OptionField& choice) {
  picker.letter.Pick('G' - 'A');
  picker.type.Pick(Simulation);
  choice.Choose();
}

const std::vector<Composed> IrActions = {
    {"Relay", [](auto& p) { PickOutput(p, Relay, 11, 2); }, {'A', 11, 2}, "A1202"},
    {"RelayDc", [](auto& p) { PickOutput(p, RelayDc, 0, 0); }, {'A', 0, 0}, "A0100"},
    {"DimmerToggle", [](auto& p) { PickOutput(p, Dimmer, 3, 2); }, {'A', 3, 2}, "A0402"},
    {"DimmerLevel", [](auto& p) { PickOutput(p, Dimmer, 3, 11); }, {'A', 3, 90}, "A0490"},
    {"Alarm", [](auto& p) { PickOutput(p, Alarm, 11, 1); }, {'A', 11, 1}, "A1201"},
    {"Lumenza", [](auto& p) { PickOutput(p, Lumenza, 3, 3); }, {'A', 3, 10}, "A0410"},
    {"LumenzaSwitch", [](auto& p) { PickOutput(p, Lumenza, 7, 1); }, {'A', 7, 1}, "A0801"},
    {"Room", [](auto& p) { PickRoom(p, 0, 2, 21); }, {'R', 2, 21}, "R0321"},
    {"RoomBase", [](auto& p) { PickRoom(p, 1, 7, 0); }, {'R', 7, "99"}, "R0899"},
    {"AllRooms", [](auto& p) { PickRoom(p, 2, 0, 40); }, {'R', "8", 40}, "R0940"},
    {"AllBase", [](auto& p) { PickRoom(p, 3, 0, 0); }, {'R', "8", "99"}, "R0999"},
    {"MainZone", [](auto& p) { PickZone(p, p.mainZone, 15, 9, 0); }, {'H', 15, 9}, "H1609"},
    {"MainSource", [](auto& p) { PickZone(p, p.mainZone, 0, 10, 5); }, {'H', 16, 5}, "H1706"},
    {"MainVolume", [](auto& p) { PickZone(p, p.mainZone, 2, 11, 4); }, {'H', 34, 4}, "H3505"},
    {"SideZone", [](auto& p) { PickZone(p, p.secondaryZone, 1, 4, 0); }, {'H', 1, 20}, "H0220"},
    {"SideVolume", [](auto& p) { PickZone(p, p.secondaryZone, 1, 5, 2); }, {'H', 33, 18}, "H3419"},
    {"SimulationOn",
     [](auto& p) { PickSimulation(p, p.simulationOn); },
     {'G', "00", "01"},
     "G0101"},
    {"SimulationOff",
     [](auto& p) { PickSimulation(p, p.simulationOff); },
     {'G', "00", "00"},
     "G0100"},
    {"Context",
     [](auto& p) {
       p.letter.Pick(18);
       p.output.list.Pick(49);
     },
     {'S', 49, "02"},
     "S5002"},
    {"Codes",
     [](auto& p) {
       p.letter.Pick(19);
       p.output.list.Pick(4);
       p.action.list.Pick(98);
     },
     {'Z', 4, 98},
     "Z0599"},
};

class IrActionTest : public IrStoreTest, public testing::WithParamInterface<Composed> {};

TEST_P(IrActionTest, IsStoredInTheRowOfTheKey) {
  for (const auto& [key, row] : std::vector<std::pair<int, int>>{{0, 1}, {7, 3}, {12, 4}}) {
    Edit(key, row);
    Put(key, row, {1, 255, 255});
    std::optional<Snapshot> before;
    if (row == 3) before = TakeSnapshot();
    GetParam().pick(Picker());
    Store();
    ExpectCells(key, row, GetParam().cells);
    if (before) ExpectOnlyChanged(*before, {NameOf(key, row)});
    for (int each = 1; each <= 8; ++each) {
      EXPECT_EQ(Shown(each), each == row ? GetParam().code : "***") << each;
    }
    ExpectSignal(true);
    EXPECT_TRUE(messages.told.empty());
  }
}

INSTANTIATE_TEST_SUITE_P(Actions, IrActionTest, testing::ValuesIn(IrActions),
                         [](const auto& row) { return row.param.name; });

TEST_F(IrStoreTest, EachOfTheFourRowsOfEachKeyIsFilledInItsOwnCells) {
  Open();
  const Snapshot before = TakeSnapshot();
  Names changed;
  for (int key = 0; key < IrKeys; ++key) {
    PressKey(key);
    for (int row = 1; row <= 4; ++row) {
      PickRow(row);
      PickTarget(static_cast<char>('D' + key), Relay);
      Picker().output.list.Pick(row);
      Picker().action.list.Pick(1);
      Store();
      changed.push_back(NameOf(key, row));
    }
  }
  ExpectOnlyChanged(before, changed);
  for (int key = 0; key < IrKeys; ++key) {
    for (int row = 1; row <= 4; ++row) ExpectCells(key, row, {'D' + key, row, 1});
  }
}

TEST_F(IrStoreTest, AStoreIsDoneOnceUntilARowOrAKeyIsPicked) {
  Edit();
  Compose();
  Store();
  EXPECT_FALSE(IrScreen.store.enabled);
  Picker().action.list.Pick(0);
  Store();
  ExpectCells(4, 2, {'A', 3, 1});
  PickRow(2);
  EXPECT_TRUE(IrScreen.store.enabled);
  Store();
  ExpectCells(4, 2, {'A', 3, 0});
  PressKey(4);
  EXPECT_TRUE(IrScreen.store.enabled);
}

TEST_F(IrStoreTest, AnotherKeyResetsThePicker) {
  for (const int key : {5, 4}) {
    Edit(4, 2);
    Compose();
    PressKey(key);
    EXPECT_EQ(IrScreen.row.Text() + Picker().letter.Text() + Picker().type.Text(), "");
    EXPECT_FALSE(Picker().type.enabled);
    EXPECT_EQ(VisibleLower(), 0);
    ExpectSilence();
  }
}

TEST_F(IrStoreTest, AnotherRowKeepsWhatWasComposed) {
  Edit(4, 1);
  Compose();
  PickRow(3);
  Store();
  EXPECT_EQ(Shown(3), "A0401");
  EXPECT_EQ(Shown(1), "***");
}

TEST_F(IrStoreTest, TheCopyBoxIsHiddenByAStoreAndNeverRead) {
  Edit();
  IrScreen.copy.Set(true);
  const Snapshot before = TakeSnapshot();
  Compose();
  Store();
  ExpectOnlyChanged(before, {NameOf(4, 2)});
  EXPECT_FALSE(IrScreen.copy.visible);
  PressKey(5);
  EXPECT_TRUE(IrScreen.copy.visible);
  // Also by one that stores nothing.
  ExpectSilence();
  EXPECT_FALSE(IrScreen.copy.visible);
}

// --- What is not complete -----------------------------------------------------------------------

TEST_F(IrStoreTest, WithoutALetterOrARowNothingChanges) {
  Edit();
  Put(4, 2, {'B', 1, 1});
  ExpectSilence();
  PressKey(4);
  Compose();
  ExpectSilence();
  PressKey(4);
  PickLetter('A');
  ExpectSilence();
}

TEST_F(IrStoreTest, AnEmptyFieldLeavesTheRowAsItWas) {
  for (int type = Relay; type <= Lumenza; ++type) {
    Edit();
    Put(4, 2, {'B', 1, 1});
    PickTarget('A', type);
    ExpectSilence();
    if (Picker().output.list.visible && type != Audio) {
      Picker().output.list.Pick(0);
      ExpectSilence();
      PickTarget('A', type);
      Picker().action.list.Pick(0);
      ExpectSilence();
    }
  }
}

TEST_F(IrStoreTest, AnEmptyFieldOfARoomAZoneAContextOrACodeLeavesTheRowAsItWas) {
  Edit();
  PickTarget('A', Temperature);
  for (std::size_t choice = 0; choice < 3; ++choice) {
    Picker().temperatures.at(choice).option.Choose();
    ExpectSilence();
  }
  Picker().temperatures[0].option.Choose();
  Picker().temperatures[0].room.Pick(0);
  ExpectSilence();
  for (OptionField* zone : {&Picker().mainZone, &Picker().secondaryZone}) {
    PickTarget('A', Audio);
    zone->Choose();
    ExpectSilence();
    Picker().action.list.Pick(1);
    ExpectSilence();
    Picker().output.list.Pick(0);
    Picker().action.list.Pick(zone == &Picker().mainZone ? 14 : 6);
    ExpectSilence();
  }
  PickLetter('S');
  ExpectSilence();
  Picker().letter.Pick(19);
  ExpectSilence();
  Picker().output.list.Pick(0);
  ExpectSilence();
  PressKey(4);
  PickRow(2);
  Picker().letter.Pick(19);
  Picker().action.list.Pick(0);
  ExpectSilence();
}

TEST_F(IrStoreTest, ALetterWithoutATypeStoresThreeAsterisks) {
  for (const int row : {1, 4}) {
    Edit(12, row);
    Put(12, row, {'B', 1, 1});
    const Snapshot before = TakeSnapshot();
    PickLetter('A');
    EXPECT_EQ(Picker().type.Text(), "Module type?");
    Store();
    ExpectCells(12, row, {"*", "*", "*"});
    ExpectOnlyChanged(before, {NameOf(12, row)});
    EXPECT_EQ(Shown(row), "***");
    ExpectSignal(true);
    // They stay until the row is deleted.
    PressKey(0);
    PressKey(12);
    OpenAgain();
    PressKey(12);
    ExpectCells(12, row, {"*", "*", "*"});
    Erase(row);
    ExpectCells(12, row, {42, 42, 42});
  }
}

TEST_F(IrStoreTest, ThePickerTakesNoTypedText) {
  Edit();
  const Snapshot before = TakeSnapshot();
  Picker().letter.Type("A");
  EXPECT_EQ(Picker().letter.Text(), "");
  PickLetter('A');
  Picker().type.Type("Relaismodule");
  EXPECT_EQ(Picker().type.Text(), "Module type?");
  Picker().type.Pick(Relay);
  Picker().output.list.Type("1");
  Picker().action.list.Type("Aan");
  ExpectSilence();
  ExpectOnlyChanged(before, {});
}

// --- Letters and types --------------------------------------------------------------------------

TEST_F(IrStoreTest, LettersAndTypesAreThoseOfThePushButtons) {
  Edit();
  Names letters;
  for (char letter = 'A'; letter <= 'S'; ++letter) letters.emplace_back(1, letter);
  letters.emplace_back("Z");
  EXPECT_EQ(Picker().letter.items, letters);
  EXPECT_EQ(Picker().type.items,
            (Names{"Relaismodule", "Dimmodule", "Temp. module", "Relaismodule DC", "Alarmmodule",
                   "Audio interface", "Simulatiemodule", "Lumenza dimmer"}));
  Edit(4, 2, 2);
  EXPECT_EQ(Picker().type.items,
            (Names{"Module relais", "Module dim", "Module temp.", "Module relais DC",
                   "Module alarme", "Interface audio", "Module simulation", "Dimmer Lumenza"}));
}

TEST_F(IrStoreTest, TheModuleCannotSendToItself) {
  for (const int language : {1, 2}) {
    Edit(4, 2, language);
    Put(4, 2, {'B', 1, 1});
    Compose();
    messages.told.clear();
    PickLetter('C');
    EXPECT_EQ(messages.told, Names{language == 1 ? "IR module kan niet naar zichzelf sturen!"
                                                 : " Module IR est la source et la distination!"});
    EXPECT_EQ(VisibleLower(), 0);
    EXPECT_FALSE(Picker().type.enabled);
    ExpectSilence();
    // Another letter goes on.
    Compose();
    Store();
    ExpectCells(4, 2, {'A', 3, 1});
    EXPECT_EQ(messages.told.size(), 1U);
  }
}

TEST_F(IrStoreTest, TheOwnLetterIsRefusedWhateverTheListOfModulesSays) {
  Edit();
  DirectoryLetter(0) = 'C';
  DirectoryType(0) = 0;
  PickLetter('C');
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(VisibleLower(), 0);
  ExpectSilence();
}

TEST_F(IrStoreTest, OnlyTheOwnLetterIsRefused) {
  Open(1, 'R');
  PressKey(0);
  PickRow(1);
  for (char letter = 'A'; letter < 'R'; ++letter) PickLetter(letter);
  PickLetter('S');
  Picker().letter.Pick(19);
  EXPECT_TRUE(messages.told.empty());
  PickLetter('R');
  EXPECT_EQ(messages.told.size(), 1U);
}

TEST_F(IrStoreTest, ALetterInTheListOfModulesHasItsType) {
  struct Row {
    int kind;
    std::string type;
  };
  const std::vector<Row> rows = {
      {0, "Relaismodule"},    {1, "Dimmodule"},   {11, "Lumenza dimmer"}, {2, "Temp. module"},
      {4, "Relaismodule DC"}, {5, "Alarmmodule"}, {6, "Audio interface"}, {7, "Simulatiemodule"}};
  Edit();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    // The list ends with the last of its 18 rows.
    const int row = i == 0 ? 17 : static_cast<int>(i);
    DirectoryLetter(row) = 'D' + static_cast<int>(i);
    DirectoryType(row) = rows[i].kind;
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    PickLetter(static_cast<char>('D' + i));
    EXPECT_EQ(Picker().type.Text(), rows[i].type);
    EXPECT_FALSE(Picker().type.enabled);
    EXPECT_GT(VisibleLower(), 0);
  }
  PickLetter('P');
  EXPECT_EQ(Picker().type.Text(), "Module type?");
  EXPECT_TRUE(Picker().type.enabled);
  EXPECT_EQ(VisibleLower(), 0);
}

TEST_F(IrStoreTest, ADisplayIsNoTarget) {
  Edit();
  DirectoryLetter(2) = 'D';
  DirectoryType(2) = 3;
  PickLetter('D');
  EXPECT_EQ(Picker().type.Text(), "---");
  EXPECT_FALSE(Picker().type.enabled);
  EXPECT_EQ(VisibleLower(), 0);
  Store();
  ExpectCells(4, 2, {"*", "*", "*"});
}

TEST_F(IrStoreTest, RowsOfModulesThatAreNoTargetAreNoHit) {
  Edit();
  for (const int kind : {8, 9, 42, 99}) {
    DirectoryLetter(0) = 'D';
    DirectoryType(0) = kind;
    PickLetter('D');
    EXPECT_EQ(Picker().type.Text(), "Module type?") << kind;
    EXPECT_TRUE(Picker().type.enabled);
  }
}

// --- Anything at all ----------------------------------------------------------------------------

bool IsOneOfTheForms(const Cell* cells) {
  const auto all = [cells](const Cell& value) {
    return cells[0] == value && cells[1] == value && cells[2] == value;
  };
  if (all(42) || all("*")) return true;
  const auto index = cells[1].WholeNumber();
  const auto value = cells[2].WholeNumber();
  if (!cells[0].IsNumber() || !HoldsAction(cells[0]) || !index || !value) return false;
  const int target = cells[0].Whole();
  if (target == 'S') return *index >= 0 && *index < 50 && cells[2] == Cell("02");
  const int last = target == 'Z' ? 98 : 95;
  return target != 'C' && *index >= 0 && *index <= last && *value >= 0 && *value <= 99;
}

TEST_F(IrStoreTest, TenThousandRandomEditsChangeNoCellButThoseOfTheScreen) {
  Open();
  for (int key = 0; key < IrKeys; ++key) {
    for (int row = 1; row <= 8; ++row) Put(key, row, {'B', 1, 1});
  }
  const Snapshot before = TakeSnapshot();
  RandomEdits edits(IrScreen, 5, {"leave", "remote"});
  std::set<int> filled;
  for (int step = 0; step < 10'000; ++step) {
    // Another key ends what was begun, so not too often.
    if (step % 200 == 0) {
      edits.StepIn(IrScreen.remote);
    } else {
      edits.Step();
    }
    for (int key = 0; key < IrKeys; ++key) {
      for (int row = 1; row <= 8; ++row) {
        const int cell = CellOf(key, row);
        const Cell cells[] = {IrImage[cell], IrImage[cell + 1], IrImage[cell + 2]};
        ASSERT_TRUE(IsOneOfTheForms(cells)) << "cell " << cell << " in step " << step;
        const bool stored = cells[0] != Cell(42) && cells[0] != Cell('B');
        if (stored) filled.insert(cell);
        ASSERT_FALSE(row > 4 && stored) << "cell " << cell << " in step " << step;
      }
    }
  }
  EXPECT_GE(filled.size(), 20U);
  // Of each row only the cells of the thirteen keys.
  Names own;
  for (int row = 1; row <= 8; ++row) {
    own.push_back("IrImage[" + std::to_string(CellOf(0, row)) + ".." +
                  std::to_string(CellOf(12, row) + 2) + "]");
  }
  ExpectOnlyChanged(before, own);
  EXPECT_TRUE(IrScreen.shown);
  for (const std::string& each : messages.told) {
    EXPECT_EQ(each, "IR module kan niet naar zichzelf sturen!");
  }
}

}  // namespace
}  // namespace bkconf
