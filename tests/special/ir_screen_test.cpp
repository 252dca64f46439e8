#include "special/ir_screen_test.h"

#include <gtest/gtest.h>

#include "image/file_lines.h"
#include "shell/module_file.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

/// What each row shows.
class IrRowsTest : public IrScreenTest {
 protected:
  static Names AllShown() {
    Names all;
    for (int row = 1; row <= 8; ++row) all.push_back(Shown(row));
    return all;
  }
  static Names Nothing() { return Names(8, "***"); }
};

// --- What opens it, and its words ---------------------------------------------------------------

TEST_F(IrScreenTest, CaptionsAreDutchOrFrench) {
  struct Caption {
    const std::string& shown;
    std::string dutch;
    std::string french;
  };
  for (const int language : {1, 2}) {
    Open(language);
    for (const Caption& row : std::vector<Caption>{
             {IrScreen.title, "I.R. module  KR7180 <adres = C>",
              "Module I.R. KR7180 <adresse = C>"},
             {IrScreen.instruction.caption,
              "Druk de gewenste toets in op de afbeelding.(0,1,2..9,AAN/UIT, CH+ of CH-)",
              "Poussez sur un boutton sur l'image.(0,1,2..9,AAN/UIT, CH+ of CH-)"},
             {IrScreen.editGroup.caption, "IR code wijzigen, max 4 ruimtes.",
              " Modification code IR"},
             {IrScreen.copy.caption, "Kopiëren voor alle IR's", "Copie pour toutes IR"},
             {IrScreen.store.caption, "Invoegen", "Ajouter"},
             {IrScreen.leave.caption, "Verlaten", "Quitter"},
             {Picker().mainZone.caption, "Hoofdzone", "Zone principale"},
             {Picker().secondaryZone.caption, "Nevenzone", "Zone secondaire"},
             {Picker().simulationOn.caption, "Simulatie aan", "Simulation ON"},
             {Picker().simulationOff.caption, "Simulatie uit", "Simulation OFF"},
             {Picker().temperatures[0].option.caption,
              "              °C in ruimte:", "              °C ds pièce:"},
         }) {
      EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
    }
    for (std::size_t row = 0; row < 8; ++row) {
      EXPECT_EQ(IrScreen.rows[row]->number.caption, std::to_string(row + 1));
      EXPECT_EQ(IrScreen.rows[row]->erase.caption, language == 1 ? "Wissen" : "Effacer");
    }
  }
}

TEST_F(IrScreenTest, EachKeyHasItsTitle) {
  for (const int language : {1, 2}) {
    const bool dutch = language == 1;
    Open(language);
    for (int key = 0; key < IrKeys; ++key) {
      PressKey(key);
      const std::string digit = dutch ? "Acties voor toets " : "Actions pour touche ";
      const std::string channel = dutch ? "Acties voor channel " : "Actions pour channel ";
      EXPECT_EQ(IrScreen.listGroup.caption, key < 10    ? digit + std::to_string(key)
                                            : key == 10 ? digit + "ON/OFF"
                                            : key == 11 ? channel + "+"
                                                        : channel + "-");
    }
  }
}

TEST_F(IrScreenTest, TheRemoteControlHasAnAreaForEachKeyThatOverlapsNoOther) {
  for (const int language : {1, 2}) {
    Open(language);
    const auto& areas = IrScreen.remote.areas;
    Names names;
    for (const auto& area : areas) {
      names.push_back(area.name);
      EXPECT_GE(std::min(area.left, area.top), 0) << area.name;
      EXPECT_GT(std::min(area.width, area.height), 0) << area.name;
      EXPECT_LE(std::max(area.left + area.width, area.top + area.height), 1000) << area.name;
      for (const auto& other : areas) {
        const bool beside =
            area.left + area.width <= other.left || other.left + other.width <= area.left ||
            area.top + area.height <= other.top || other.top + other.height <= area.top;
        EXPECT_TRUE(beside || &area == &other) << area.name << " and " << other.name;
      }
    }
    EXPECT_EQ(names, (Names{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9",
                            language == 1 ? "AAN/UIT" : "ON/OFF", "CH+", "CH-"}));
  }
}

TEST_F(IrScreenTest, TheTitleHasTheLetterOfTheModule) {
  for (const char letter : {'A', 'R'}) {
    Open(2, letter);
    EXPECT_EQ(IrScreen.title, std::string("Module I.R. KR7180 <adresse = ") + letter + ">");
  }
}

TEST_F(IrScreenTest, OpensOnAModuleThatWasRead) {
  Start();
  auto& cells = Plug(8).memory().Cells("IrImage");
  cells[497] = 'K';
  cells[498] = 11;
  cells[499] = 2;
  ReadModule();
  EXPECT_FALSE(IrScreen.shown);
  OpenAgain();
  EXPECT_TRUE(IrScreen.shown);
  PressKey(12);
  EXPECT_EQ(Shown(8), "K1202");
}

TEST_F(IrScreenTest, OpensOnAFileAndShowsTheModel) {
  Start();
  files.content["/house/a.BK1"] = FileOf(8, [](int place) { return place % 10 + 65; });
  OpenModule("/house/a.BK1");
  MainWindow.moduleList.Show("");
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_TRUE(IrScreen.shown);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7180");
  PressKey(0);
  EXPECT_EQ(Shown(1).front(), 'F');
  ExpectOnlyChanged(before, {});
}

TEST_F(IrScreenTest, LeavingOrClosingLeavesTheImageAsItStands) {
  for (const bool byButton : {true, false}) {
    Open();
    PressKey(3);
    PickRow(1);
    Compose();
    Store();
    const Snapshot before = TakeSnapshot();
    if (byButton) {
      IrScreen.leave.Click();
    } else {
      IrScreen.Close();
    }
    EXPECT_FALSE(IrScreen.shown);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(IrScreenTest, UntilAKeyIsPressedThereIsOnlyTheRemoteControl) {
  Open();
  PressKey(4);
  PickRow(1);
  Compose();
  OpenAgain();
  EXPECT_EQ(IrScreen.remote.Picked(), -1);
  EXPECT_TRUE(IrScreen.remote.visible && IrScreen.instruction.visible);
  EXPECT_FALSE(IrScreen.listGroup.visible || IrScreen.editGroup.visible);
  MainWindow.send.enabled = false;
  const Snapshot before = TakeSnapshot();
  Store();
  for (int row = 1; row <= 8; ++row) Erase(row);
  PressKey(-1);
  PressKey(13);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
  EXPECT_FALSE(IrScreen.listGroup.visible);
}

// --- The rows -----------------------------------------------------------------------------------

TEST_F(IrRowsTest, AKeyShowsItsListAndWhatCanBeDone) {
  Open();
  const Snapshot before = TakeSnapshot();
  for (int key = 0; key < IrKeys; ++key) {
    PressKey(key);
    EXPECT_EQ(IrScreen.remote.Picked(), key);
    EXPECT_TRUE(IrScreen.listGroup.visible && IrScreen.editGroup.visible);
    EXPECT_TRUE(IrScreen.copy.visible && IrScreen.instruction.visible);
    EXPECT_EQ(IrScreen.row.Text() + Picker().letter.Text() + Picker().type.Text(), "");
    EXPECT_TRUE(Picker().letter.enabled && IrScreen.store.enabled);
    EXPECT_FALSE(Picker().type.enabled);
    EXPECT_EQ(AllShown(), Nothing());
  }
  EXPECT_EQ(IrScreen.row.items, (Names{"1", "2", "3", "4"}));
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_F(IrRowsTest, EachRowOfEachKeyIsShownFromCellsOfItsOwn) {
  Open();
  for (int key = 0; key < IrKeys; ++key) {
    for (int row = 1; row <= 8; ++row) Put(key, row, {'A' + key, row, key * 7});
  }
  const Snapshot before = TakeSnapshot();
  const auto twoDigits = [](int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
  };
  for (int key = IrKeys - 1; key >= 0; --key) {
    PressKey(key);
    for (int row = 1; row <= 8; ++row) {
      EXPECT_EQ(Shown(row), static_cast<char>('A' + key) + twoDigits(row + 1) + twoDigits(key * 7));
    }
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(IrRowsTest, TheLastRowOfTheLastKeyEndsAtCell499) {
  Open();
  IrImage[497] = 'B';
  IrImage[498] = 0;
  IrImage[499] = 1;
  PressKey(12);
  EXPECT_EQ(Shown(8), "B0101");
  const Snapshot before = TakeSnapshot();
  Erase(8);
  EXPECT_EQ(IrImage[497], Cell(42));
  ExpectOnlyChanged(before, {"IrImage[497]", "IrImage[498]", "IrImage[499]"});
}

TEST_F(IrRowsTest, AnActionIsShownAsItsCode) {
  struct Row {
    ActionCells cells;
    std::string code;
  };
  Open();
  for (const Row& row : std::vector<Row>{{{'A', 0, 0}, "A0100"},
                                         {{'R', 11, 2}, "R1202"},
                                         {{'B', 3, 90}, "B0490"},
                                         {{'E', "8", "99"}, "E0999"},
                                         {{'G', "00", "01"}, "G0101"},
                                         {{'H', 15, 5}, "H1605"},
                                         {{'H', 16, 5}, "H1706"},
                                         {{'H', 33, 18}, "H3419"},
                                         {{'S', 20, 7}, "S2107"},
                                         {{'S', 11, "02"}, "S1202"},
                                         {{'Z', 4, 11}, "Z0512"},
                                         {{'Z', 98, 98}, "Z9999"},
                                         {{"65", "0", "1"}, "A0101"}}) {
    Put(2, 6, row.cells);
    PressKey(2);
    EXPECT_EQ(Shown(6), row.code);
    EXPECT_EQ(Shown(5) + Shown(7), "******");
  }
}

TEST_F(IrRowsTest, WhatHoldsNoActionIsShownAsNoneAndStays) {
  Open();
  const std::vector<Cell> targets = {Cell(42), Cell(0),  Cell("*"), Cell(),
                                     Cell(64), Cell(84), Cell(91),  Cell("word")};
  for (int row = 1; row <= 8; ++row) {
    Put(7, row, {targets[static_cast<std::size_t>(row - 1)], 3, "*"});
  }
  const Snapshot before = TakeSnapshot();
  PressKey(7);
  EXPECT_EQ(AllShown(), Nothing());
  PressKey(8);
  ExpectOnlyChanged(before, {});
}

// --- Deleting -----------------------------------------------------------------------------------

TEST_F(IrRowsTest, EachRowCanBeDeleted) {
  for (const int key : {0, 10, 12}) {
    Open();
    for (int row = 1; row <= 8; ++row) Put(key, row, {'A', row, "1"});
    PressKey(key);
    for (int row = 8; row >= 1; --row) {
      Names shown = AllShown();
      std::vector<Cell> cells;
      for (int cell = 0; cell < IrImage.Size(); ++cell) cells.push_back(IrImage[cell]);
      Erase(row);
      shown[static_cast<std::size_t>(row - 1)] = "***";
      EXPECT_EQ(AllShown(), shown);
      for (int cell = 0; cell < IrImage.Size(); ++cell) {
        const bool erased = cell >= CellOf(key, row) && cell <= CellOf(key, row) + 2;
        EXPECT_EQ(IrImage[cell], erased ? Cell(42) : cells[static_cast<std::size_t>(cell)]) << cell;
      }
      ExpectSignal(true);
    }
  }
}

TEST_F(IrRowsTest, DeletingChangesNothingBesideTheRow) {
  Open();
  Put(5, 3, {'A', 2, 1});
  PressKey(5);
  PickRow(3);
  Compose();
  const Snapshot before = TakeSnapshot();
  Erase(3);
  ExpectOnlyChanged(before, {NameOf(5, 3)});
  ExpectCells(5, 3, {42, 42, 42});
  EXPECT_EQ(IrScreen.row.Text(), "3");
  EXPECT_EQ(Picker().letter.Text(), "A");
  EXPECT_TRUE(IrScreen.copy.visible);
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(IrRowsTest, AnActionWithoutATypeCanBeDeletedToo) {
  Open();
  Put(0, 1, {"*", "*", "*"});
  PressKey(0);
  Erase(1);
  ExpectCells(0, 1, {42, 42, 42});
}

TEST_F(IrRowsTest, ARowBehindTheFourthIsShownAndDeletedButNeverFilled) {
  Start();
  const int cell = CellOf(6, 5);
  files.content["/house/a.BK1"] = FileOf(8, [cell](int place) {
    return place == cell ? int{'B'} : place == cell + 1 ? 3 : place == cell + 2 ? 1 : 42;
  });
  OpenModule("/house/a.BK1");
  OpenAgain();
  PressKey(6);
  EXPECT_EQ(Shown(5), "B0401");
  Compose();
  const Snapshot before = TakeSnapshot();
  for (const int row : {5, 6, 7, 8}) {
    PickRow(row);
    Store();
  }
  for (const char* text : {"5", "8"}) {
    IrScreen.row.Type(text);
    EXPECT_EQ(IrScreen.row.Text(), "");
    Store();
  }
  ExpectOnlyChanged(before, {});
  Erase(5);
  EXPECT_EQ(Shown(5), "***");
  ExpectOnlyChanged(before, {NameOf(6, 5)});
}

// --- The module ---------------------------------------------------------------------------------

TEST_F(IrScreenTest, WhatWasEditedGoesToTheModuleWithTheNextSend) {
  Start();
  auto& module = Plug(8);
  module.memory().Cells("IrImage")[121] = 'K';
  ReadModule();
  OpenAgain();
  PressKey(12);
  PickRow(4);
  Compose();
  Store();
  PressKey(0);
  PickRow(1);
  PickLetter('A');
  Store();
  Erase(8);
  std::vector<int> expected;
  // A word goes out as 0.
  for (int cell = 0; cell < IrImage.Size(); ++cell) expected.push_back(IrImage[cell].Whole());
  const std::size_t received = module.received().size();
  SendToModule();
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_EQ(module.memory().Cells("IrImage"), expected);
  std::map<int, std::string> frames;
  for (std::size_t i = received; i < module.received().size(); ++i) {
    const auto& record = module.received()[i];
    if (record.kind == virtual_module::UnitKind::Frame) frames[record.cell] = record.text;
  }
  // Each block of cells counts its frames anew.
  const std::map<int, std::string> edited = {
      {305, "T084065\n\r"}, {306, "T085003\n\r"}, {307, "T086001\n\r"}, {125, "T000000\n\r"},
      {126, "T001000\n\r"}, {127, "T002000\n\r"}, {461, "T048042\n\r"}, {463, "T050042\n\r"}};
  for (const auto& [cell, frame] : edited) EXPECT_EQ(frames[cell], frame) << cell;
}

TEST_F(IrScreenTest, TheFormsOfTheCellsStandInTheFile) {
  Open();
  PressKey(1);
  PickRow(1);
  Compose();
  Store();
  PickRow(2);
  PickLetter('B');
  Store();
  PickRow(3);
  PickLetter('S');
  Picker().output.list.Pick(6);
  Store();
  SaveModuleAs("/house", "a");
  const Names lines = LinesOf(files.content["/house/a.BK1"]);
  const std::map<int, std::string> expected = {
      {128, " 65 "}, {129, " 3 "},  {130, " 1 "}, {176, "*"},  {177, "*"},
      {178, "*"},    {224, " 83 "}, {225, " 6 "}, {226, "02"}, {227, " 42 "}};
  for (const auto& [cell, form] : expected) {
    EXPECT_EQ(lines[static_cast<std::size_t>(1 + cell)], form) << cell;
  }
  OpenModule("/house/a.BK1");
  OpenAgain();
  PressKey(1);
  EXPECT_EQ(Shown(1) + Shown(2) + Shown(3), "A0401***S0702");
  ExpectCells(1, 2, {"*", "*", "*"});
}

}  // namespace
}  // namespace bkconf
