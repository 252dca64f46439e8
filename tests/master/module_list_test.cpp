#include <gtest/gtest.h>

#include "image/module_directory.h"
#include "master/module_page_test.h"

namespace bkconf {
namespace {

/// The list of modules: how it is drawn, and adding and deleting by hand.
class ModuleListTest : public ModulePageTest {
 protected:
  /// Opens the add panel by a double click behind the list.
  void OpenAdd(int emptyRow) {
    page.modules.DoubleClick(emptyRow, 1);
    ASSERT_TRUE(page.addGroup.visible);
  }
  void Choose(const std::string& letter, int type) {
    const auto& letters = page.addLetter.items;
    const auto item = std::find(letters.begin(), letters.end(), letter);
    ASSERT_NE(item, letters.end()) << letter;
    page.addLetter.Pick(static_cast<int>(item - letters.begin()));
    page.addType.Pick(type);
  }
};

const std::vector<ListedModule> House = {{'A', 0}, {'B', 4}, {'C', 1}, {'D', 11}, {'E', 2},
                                         {'F', 3}, {'G', 5}, {'H', 6}, {'I', 7},  {'J', 8}};

TEST_F(ModuleListTest, ShowsNumberLetterAndTypeInDutch) {
  Open(House);
  ExpectRows({"1 A Relaismodule", "2 B Relaismodule DC", "3 C Dimmodule", "4 D Lumenza module",
              "5 E Temperatuurmodule", "6 F LCD-TOUCH", "7 G Alarmmodule", "8 H Audio interface",
              "9 I Simulatiemodule", "10 J I.R. module"});
}

TEST_F(ModuleListTest, ShowsNumberLetterAndTypeInFrench) {
  Open(House, 2);
  ExpectRows({"1 A Module relais", "2 B Module relais DC", "3 C Module dim", "4 D Module Lumenza",
              "5 E Module température", "6 F LCD-TOUCH", "7 G Module alarme", "8 H Interface audio",
              "9 I Module simulation", "10 J Module I.R."});
}

TEST_F(ModuleListTest, HasThreeColumnsAndEighteenRows) {
  Open({});
  ExpectRows({});
  ASSERT_EQ(page.modules.columns.size(), 3U);
  EXPECT_EQ(page.modules.columns[0].caption, "Module");
  EXPECT_EQ(page.modules.columns[1].caption, "Adres");
  EXPECT_EQ(page.modules.columns[2].caption, "Type");
  EXPECT_EQ(page.modules.columns[0].width, 1000);
  EXPECT_EQ(page.modules.columns[1].width, 1000);
  EXPECT_EQ(page.modules.columns[2].width, 2000);
  Open({}, 2);
  EXPECT_EQ(page.modules.columns[1].caption, "Adresse");
}

TEST_F(ModuleListTest, OnlyTheNumber42EndsTheList) {
  StartWithImage(9);
  const std::vector<Cell> letters = {"65", 66, Cell(), 7, "*", 200, "42", 67};
  for (std::size_t row = 0; row < letters.size(); ++row) {
    DirectoryLetter(static_cast<int>(row)) = letters[row];
    DirectoryType(static_cast<int>(row)) = 0;
  }
  const Snapshot before = TakeSnapshot();
  OpenPage();
  ExpectRows({"1 A Relaismodule", "2 B Relaismodule", "3  Relaismodule", "4  Relaismodule",
              "5  Relaismodule", "6 È Relaismodule"});
  ExpectOnlyChanged(before, {});
}

TEST_F(ModuleListTest, AnUnknownTypeHasNoName) {
  Open({{'A', 9}, {'B', 10}, {'C', 42}, {'D', 12}, {'E', -1}, {'F', 0}, {'G', 0}});
  DirectoryType(5) = Cell();
  DirectoryType(6) = "word";
  OpenPage();
  ExpectRows({"1 A ", "2 B ", "3 C ", "4 D ", "5 E ", "6 F ", "7 G "});
}

TEST_F(ModuleListTest, AFullListIsShownWhole) {
  std::vector<ListedModule> modules;
  for (char letter = 'A'; letter <= 'R'; ++letter) modules.push_back({letter, 1});
  Open(modules);
  EXPECT_EQ(Row(1), "1 A Dimmodule");
  EXPECT_EQ(Row(18), "18 R Dimmodule");
  for (int row = 1; row <= 18; ++row) {
    page.modules.DoubleClick(row, 1);
    ExpectShown(true, false, true);
    page.deleteNo.Click();
  }
}

TEST_F(ModuleListTest, ADoubleClickOnAnEmptyRowOpensTheAddPanel) {
  Open({{'A', 0}, {'C', 1}});
  const Snapshot before = TakeSnapshot();
  for (const int row : {3, 18}) {
    for (const int column : {0, 1, 2}) {
      page.modules.DoubleClick(row, column);
      ExpectShown(true, true, false);
      page.addLeave.Click();
      ExpectShown(true, false, false);
    }
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(ModuleListTest, TheAddPanelOffersTheLettersThatAreFree) {
  Open({{'A', 0}, {'C', 1}});
  // A letter behind a hole stands in the list too.
  DirectoryLetter(10) = int{'R'};
  OpenAdd(3);
  EXPECT_EQ(page.addLetter.items, (std::vector<std::string>{"B", "D", "E", "F", "G", "H", "I", "J",
                                                            "K", "L", "M", "N", "O", "P", "Q"}));
  EXPECT_EQ(page.addLetter.Text() + page.addType.Text(), "");
}

TEST_F(ModuleListTest, ALetterWithoutAKnownTypeIsNotFree) {
  for (const Cell& type : {Cell(), Cell("*"), Cell(42), Cell(0.5)}) {
    Open({{'A', 0}, {'B', 0}});
    DirectoryType(0) = type;
    OpenAdd(3);
    EXPECT_EQ(page.addLetter.items.front(), "C") << type.Text();
  }
}

TEST_F(ModuleListTest, TheAddPanelNeverOffersTheLettersOfContextsAndCodes) {
  Open({});
  OpenAdd(1);
  EXPECT_EQ(page.addLetter.items.size(), 18U);
  EXPECT_EQ(page.addLetter.items.back(), "R");
}

TEST_F(ModuleListTest, TheAddPanelOffersTenTypes) {
  Open({});
  OpenAdd(1);
  EXPECT_EQ(page.addType.items,
            (std::vector<std::string>{"Relaismodule", "Dimmodule", "Temp. module", "LCD-TOUCH",
                                      "Relaismodule DC", "Alarmmodule", "Audio interface",
                                      "Simulatiemodule", "I.R. module", "Lumenza module"}));
  Open({}, 2);
  OpenAdd(1);
  EXPECT_EQ(page.addType.items,
            (std::vector<std::string>{"Module relais", "Module dim", "Module temp.", "LCD-TOUCH",
                                      "Module relais DC", "Module alarme", "Interface audio",
                                      "Module simulation", "Module I.R.", "Module Lumenza"}));
}

TEST_F(ModuleListTest, AddingStoresLetterAndTypeInTheFirstEmptyRow) {
  for (int type = 0; type < 10; ++type) {
    Open({{'A', 0}, {'C', 1}});
    OpenAdd(9);
    const Snapshot before = TakeSnapshot();
    Choose("B", type);
    ExpectOnlyChanged(before, {});
    page.addConfirm.Click();
    ExpectCells({{'A', 0}, {'C', 1}, {'B', type == 9 ? 11 : type}});
    EXPECT_TRUE(Row(3).starts_with("3 B ")) << Row(3);
    ExpectShown(true, false, false);
    EXPECT_TRUE(MainWindow.send.enabled);
    ExpectOnlyChanged(before, {"ButtonImage[125]", "ButtonImage[143]", "MasterBaseDirty"});
    EXPECT_EQ(MasterBaseDirty, Cell(1));
  }
}

TEST_F(ModuleListTest, TheLongNameOfATemperatureModuleIsShownOnceItIsAdded) {
  Open({});
  OpenAdd(1);
  Choose("A", 2);
  page.addConfirm.Click();
  ExpectRows({"1 A Temperatuurmodule"});
}

TEST_F(ModuleListTest, AnAddedLetterIsNotOfferedAgain) {
  Open({});
  OpenAdd(1);
  Choose("A", 0);
  page.addConfirm.Click();
  OpenAdd(2);
  EXPECT_EQ(page.addLetter.items.front(), "B");
  EXPECT_EQ(page.addLetter.Text() + page.addType.Text(), "");
}

TEST_F(ModuleListTest, TheLastRowCanBeFilled) {
  std::vector<ListedModule> modules;
  for (char letter = 'A'; letter <= 'Q'; ++letter) modules.push_back({letter, 1});
  Open(modules);
  OpenAdd(18);
  Choose("R", 9);
  page.addConfirm.Click();
  modules.push_back({'R', 11});
  ExpectCells(modules);
  EXPECT_EQ(Row(18), "18 R Lumenza module");
}

TEST_F(ModuleListTest, AnIncompleteAddIsIgnored) {
  Open({});
  OpenAdd(1);
  const Snapshot before = TakeSnapshot();
  page.addConfirm.Click();
  page.addLetter.Pick(0);
  page.addConfirm.Click();
  ExpectShown(true, true, false);
  page.addLeave.Click();
  OpenAdd(1);
  page.addType.Pick(0);
  page.addConfirm.Click();
  ExpectShown(true, true, false);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(ModuleListTest, EnterAndEscapeAreTheButtonsOfThePanelThatIsOpen) {
  Open({{'A', 0}});
  EXPECT_EQ(MainWindow.enter, nullptr);
  EXPECT_EQ(MainWindow.escape, nullptr);
  OpenAdd(2);
  EXPECT_EQ(MainWindow.enter, &page.addConfirm);
  EXPECT_EQ(MainWindow.escape, &page.addLeave);
  page.addLeave.Click();
  page.modules.DoubleClick(1, 1);
  EXPECT_EQ(MainWindow.enter, &page.deleteYes);
  EXPECT_EQ(MainWindow.escape, &page.deleteNo);
  page.deleteNo.Click();
  EXPECT_EQ(MainWindow.enter, nullptr);
  EXPECT_EQ(MainWindow.escape, nullptr);
}

TEST_F(ModuleListTest, WithTheAddPanelOpenADoubleClickDoesNothing) {
  Open({{'A', 0}});
  OpenAdd(2);
  Choose("B", 1);
  for (const int row : {0, 1, 2, 18}) {
    page.modules.DoubleClick(row, 1);
    ExpectShown(true, true, false);
  }
  EXPECT_EQ(page.addLetter.Text(), "B");
}

TEST_F(ModuleListTest, ADoubleClickOnAFilledRowAsksBeforeItDeletes) {
  Open({{'A', 0}, {'B', 9}});
  const Snapshot before = TakeSnapshot();
  for (const int row : {1, 2}) {
    for (const int column : {0, 1, 2}) {
      page.modules.DoubleClick(row, column);
      ExpectShown(true, false, true);
      page.deleteNo.Click();
      ExpectShown(true, false, false);
    }
  }
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(ModuleListTest, ADoubleClickOnTheCaptionsDoesNothing) {
  Open({{'A', 0}});
  for (const int column : {0, 1, 2}) {
    page.modules.DoubleClick(0, column);
    ExpectShown(true, false, false);
  }
}

TEST_F(ModuleListTest, WithTheQuestionOpenADoubleClickOnAnEmptyRowDoesNothing) {
  Open({{'A', 0}});
  page.modules.DoubleClick(1, 1);
  page.modules.DoubleClick(2, 1);
  ExpectShown(true, false, true);
}

TEST_F(ModuleListTest, DeletingClosesTheGap) {
  Open({{'A', 0}, {'B', 4}, {'C', 1}});
  const Snapshot before = TakeSnapshot();
  page.modules.DoubleClick(2, 1);
  page.deleteYes.Click();
  ExpectCells({{'A', 0}, {'C', 1}});
  ExpectRows({"1 A Relaismodule", "2 C Dimmodule"});
  ExpectShown(true, false, false);
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {"ButtonImage[124..125]", "ButtonImage[142..143]", "MasterBaseDirty"});
  EXPECT_EQ(MasterBaseDirty, Cell(1));
}

TEST_F(ModuleListTest, TheRowOfTheLastDoubleClickIsDeleted) {
  Open({{'A', 0}, {'B', 4}, {'C', 1}});
  page.modules.DoubleClick(1, 1);
  page.modules.DoubleClick(3, 1);
  page.deleteYes.Click();
  ExpectCells({{'A', 0}, {'B', 4}});
}

TEST_F(ModuleListTest, DeletingClosesOlderGapsToo) {
  Open({{'A', 0}, {'B', 4}});
  DirectoryLetter(5) = int{'F'};
  DirectoryType(5) = 5;
  DirectoryLetter(17) = int{'R'};
  DirectoryType(17) = 6;
  page.modules.DoubleClick(1, 0);
  page.deleteYes.Click();
  ExpectCells({{'B', 4}, {'F', 5}, {'R', 6}});
  ExpectRows({"1 B Relaismodule DC", "2 F Alarmmodule", "3 R Audio interface"});
}

TEST_F(ModuleListTest, AFullListCanBeEmptied) {
  std::vector<ListedModule> modules;
  for (char letter = 'A'; letter <= 'R'; ++letter) modules.push_back({letter, 1});
  Open(modules);
  while (!modules.empty()) {
    page.modules.DoubleClick(1, 1);
    page.deleteYes.Click();
    modules.erase(modules.begin());
    ExpectCells(modules);
  }
  ExpectRows({});
}

TEST_F(ModuleListTest, ConfirmAndYesDoNothingWhileTheirPanelIsClosed) {
  Open(House);
  OpenAdd(11);
  Choose("K", 9);
  page.addLeave.Click();
  const Snapshot before = TakeSnapshot();
  page.addConfirm.Click();
  page.deleteYes.Click();
  page.modules.DoubleClick(1, 1);
  ExpectShown(true, false, true);
  page.addConfirm.Click();
  ExpectShown(true, false, true);
  page.deleteNo.Click();
  page.deleteYes.Click();
  ExpectOnlyChanged(before, {});
  ExpectCells(House);
  EXPECT_FALSE(MainWindow.send.enabled);
}

}  // namespace
}  // namespace bkconf
