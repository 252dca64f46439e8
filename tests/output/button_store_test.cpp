#include <gtest/gtest.h>

#include "image/module_directory.h"
#include "output/button_screen_test.h"

namespace bkconf {
namespace {

/// Filling the list and storing, on every kind of image that holds buttons.
class ButtonStoreTest : public ButtonScreenTest, public testing::WithParamInterface<int> {
 protected:
  void Open() { ButtonScreenTest::Open(GetParam()); }
};

TEST_P(ButtonStoreTest, OpeningShowsEveryFunctionOfTheTableOfTheKind) {
  StartWithImage(GetParam());
  // Each button has an output of its own: those of the first twelve on one module, the others on
  // the next.
  for (int button = 1; button <= 20; ++button) {
    Put(button, 1, {button <= 12 ? 65 : 66, (button - 1) % 12, 1});
    Put(button, 2, {90, button - 1, 11});
  }
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  const auto twoDigits = [](int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
  };
  for (int button = 1; button <= 20; ++button) {
    EXPECT_EQ(Shown(button, 1),
              (button <= 12 ? "A" : "B") + twoDigits((button - 1) % 12 + 1) + "01");
    EXPECT_EQ(Shown(button, 2), "Z" + twoDigits(button) + "12");
  }
  ExpectOnlyChanged(before, {});
}

TEST_P(ButtonStoreTest, OpeningTurnsEveryCellOfAnEmptyRecordInto42) {
  StartWithImage(GetParam());
  Put(1, 1, {Cell(), Cell(), Cell()});
  Put(2, 1, {"*", "*", "*"});
  Put(3, 1, {84, 3, 1});
  Put(20, 1, {0, 255, 255});
  Put(1, 2, {64, 0, 0});
  Put(20, 2, {"*", 5, 1});
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  for (const int column : {1, 2}) {
    for (int button = 1; button <= 20; ++button) {
      EXPECT_EQ(Shown(button, column), "***");
      ExpectRecord(button, column, Empty());
    }
  }
  ExpectOnlyChanged(before, {NameOf(1, 1), NameOf(2, 1), NameOf(3, 1), NameOf(20, 1), NameOf(1, 2),
                             NameOf(20, 2)});
}

TEST_P(ButtonStoreTest, AStoreWritesBothFunctionsOfTheButtonAndNothingElse) {
  Open();
  const Snapshot before = TakeSnapshot();
  PickButton(5);
  ChooseOn(ButtonScreen.first, 'A', 1);
  ChooseOn(ButtonScreen.second, 'B', 12);
  ExpectOnlyChanged(before, {});
  Store();
  ExpectRecord(5, 1, {65, 0, 1});
  ExpectRecord(5, 2, {66, 11, 1});
  EXPECT_EQ(Shown(5, 1), "A0101");
  EXPECT_EQ(Shown(5, 2), "B1201");
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {NameOf(5, 1), NameOf(5, 2), "MasterBaseDirty"});
  EXPECT_EQ(MasterBaseDirty, Cell(1));
}

TEST_P(ButtonStoreTest, TheLastButtonFits) {
  Open();
  const Snapshot before = TakeSnapshot();
  PickButton(20);
  ChooseOn(ButtonScreen.first, 'A', 2);
  ChooseOn(ButtonScreen.second, 'B', 3);
  Store();
  EXPECT_EQ(Shown(20, 1) + Shown(20, 2), "A0201B0301");
  ExpectOnlyChanged(before,
                    {TableName() + "[57..59]", TableName() + "[117..119]", "MasterBaseDirty"});
}

TEST_P(ButtonStoreTest, OnlyASecondFunctionLeavesTheFirstAsItWas) {
  Open();
  Put(5, 1, {67, 2, 21});
  const Snapshot before = TakeSnapshot();
  PickButton(5);
  ChooseOn(ButtonScreen.second, 'B', 1);
  Store();
  ExpectRecord(5, 1, {67, 2, 21});
  ExpectOnlyChanged(before, {NameOf(5, 2), "MasterBaseDirty"});
}

TEST_P(ButtonStoreTest, OnlyAFirstFunctionLeavesTheSecondAsItWas) {
  Open();
  Put(5, 2, {67, 2, 21});
  const Snapshot before = TakeSnapshot();
  PickButton(5);
  ChooseOn(ButtonScreen.first, 'B', 1);
  Store();
  ExpectOnlyChanged(before, {NameOf(5, 1), "MasterBaseDirty"});
  EXPECT_EQ(Shown(5, 2), "C0321");
}

TEST_P(ButtonStoreTest, AnIncompleteFirstFunctionLetsTheSecondBeStored) {
  Open();
  Put(5, 1, {67, 2, 21});
  const Snapshot before = TakeSnapshot();
  PickButton(5);
  ButtonScreen.first.letter.Pick(0);
  ChooseOn(ButtonScreen.second, 'B', 1);
  Store();
  ExpectOnlyChanged(before, {NameOf(5, 2), "MasterBaseDirty"});
}

TEST_P(ButtonStoreTest, NothingInThePickersWritesNoCellAndIsAChangeAllTheSame) {
  Open();
  const Snapshot before = TakeSnapshot();
  PickButton(5);
  Store();
  ExpectOnlyChanged(before, {"MasterBaseDirty"});
  EXPECT_TRUE(MainWindow.send.enabled);
}

TEST_P(ButtonStoreTest, NoSecondFunctionEndsInEmptyCells) {
  Open();
  Put(5, 2, {67, 2, 21});
  PickButton(5);
  ButtonScreen.noSecond.Set(true);
  Store();
  // The stars that are stored are 42 when the list is filled anew.
  ExpectRecord(5, 2, Empty());
  EXPECT_EQ(Shown(5, 2), "***");
}

TEST_P(ButtonStoreTest, WithoutAButtonNothingIsStored) {
  Open();
  EXPECT_FALSE(ButtonScreen.store.Usable());
  ButtonScreen.first.Reset();
  ChooseOn(ButtonScreen.first, 'A', 1);
  ButtonScreen.store.enabled = true;
  const Snapshot before = TakeSnapshot();
  Store();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ButtonStoreTest, testing::ValuesIn(ButtonKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

class ButtonFieldsTest : public ButtonScreenTest {
 protected:
  static void ExpectClosed(const ActionPicker& picker) {
    EXPECT_FALSE(picker.letter.enabled);
    EXPECT_FALSE(picker.type.enabled);
    EXPECT_FALSE(picker.output.list.visible || picker.action.list.visible);
    EXPECT_EQ(picker.letter.Text() + picker.type.Text() + picker.output.list.Text() +
                  picker.action.list.Text(),
              "");
  }
  static void ExpectIdle(const ActionPicker& picker) {
    EXPECT_TRUE(picker.letter.enabled);
    EXPECT_FALSE(picker.type.enabled);
    EXPECT_FALSE(picker.output.list.visible || picker.action.list.visible);
    EXPECT_EQ(picker.letter.Text() + picker.type.Text(), "");
  }
};

TEST_F(ButtonFieldsTest, OpeningWaitsForAButton) {
  Open(0);
  EXPECT_EQ(ButtonScreen.chooser.Text(), "");
  EXPECT_FALSE(ButtonScreen.store.Usable());
  ExpectClosed(ButtonScreen.first);
  ExpectClosed(ButtonScreen.second);
  EXPECT_FALSE(ButtonScreen.noSecond.checked);
  EXPECT_FALSE(ButtonScreen.clearFirst.checked || ButtonScreen.clearSecond.checked);
  EXPECT_TRUE(ButtonScreen.clearFirst.enabled && ButtonScreen.clearSecond.enabled);
  EXPECT_FALSE(ButtonScreen.baseGroup.visible);
  EXPECT_EQ(ButtonScreen.description.caption, "");
}

TEST_F(ButtonFieldsTest, AButtonMakesBothPickersIdleAndTheStoreUsable) {
  Open(0);
  PickButton(5);
  ExpectIdle(ButtonScreen.first);
  ExpectIdle(ButtonScreen.second);
  EXPECT_TRUE(ButtonScreen.store.Usable());
  EXPECT_TRUE(ButtonScreen.noSecond.enabled);
}

TEST_F(ButtonFieldsTest, AnotherButtonAndTheSameButtonClearThePickers) {
  Open(0);
  for (const int button : {6, 6, 7}) {
    PickButton(5);
    ChooseOn(ButtonScreen.first, 'A', 1);
    ButtonScreen.noSecond.Set(true);
    PickButton(button);
    ExpectIdle(ButtonScreen.first);
    ExpectIdle(ButtonScreen.second);
    EXPECT_FALSE(ButtonScreen.noSecond.checked);
  }
}

TEST_F(ButtonFieldsTest, AStoreDisablesTheStoreAndLeavesThePickers) {
  Open(0);
  PickButton(5);
  ChooseOn(ButtonScreen.first, 'A', 3);
  Store();
  EXPECT_FALSE(ButtonScreen.store.Usable());
  EXPECT_EQ(ButtonScreen.first.letter.Text() + ButtonScreen.first.output.list.Text(), "A3");
  EXPECT_EQ(ButtonScreen.chooser.Text(), "5");
  const Snapshot before = TakeSnapshot();
  Store();
  ExpectOnlyChanged(before, {});
  PickButton(5);
  EXPECT_TRUE(ButtonScreen.store.Usable());
}

TEST_F(ButtonFieldsTest, NoSecondFunctionClosesTheSecondPicker) {
  Open(0);
  PickButton(5);
  ChooseOn(ButtonScreen.second, 'A', 3);
  ButtonScreen.noSecond.Set(true);
  ExpectClosed(ButtonScreen.second);
  ExpectIdle(ButtonScreen.first);
  ButtonScreen.noSecond.Set(false);
  ExpectIdle(ButtonScreen.second);
}

TEST_F(ButtonFieldsTest, AStoreClearsTheDescription) {
  Open(0);
  Put(5, 1, {83, 6, 2});
  OpenAgain();
  ButtonScreen.buttons.Select(5, 1);
  EXPECT_EQ(ButtonScreen.description.caption, "Sfeer 07");
  PickButton(6);
  Store();
  EXPECT_EQ(ButtonScreen.description.caption, "");
}

TEST_F(ButtonFieldsTest, EveryStoredFormReachesTheCells) {
  Open(9);
  const std::vector<std::pair<char, int>> modules = {{'B', 4}, {'C', 1}, {'D', 11}, {'E', 2},
                                                     {'G', 5}, {'H', 6}, {'I', 7}};
  for (std::size_t row = 0; row < modules.size(); ++row) {
    DirectoryLetter(static_cast<int>(row)) = int{modules[row].first};
    DirectoryType(static_cast<int>(row)) = modules[row].second;
  }
  struct Row {
    char letter;
    std::function<void(ActionPicker&)> choose;
    ActionCells cells;
  };
  const auto outputAndAction = [](int output, int action) {
    return [=](ActionPicker& picker) {
      picker.output.list.Pick(output);
      picker.action.list.Pick(action);
    };
  };
  for (const Row& row : std::vector<Row>{
           {'S', [](ActionPicker& picker) { picker.output.list.Pick(6); }, {83, 6, "02"}},
           {'Z', outputAndAction(4, 11), {90, 4, 11}},
           {'B', outputAndAction(11, 2), {66, 11, 2}},
           {'C', outputAndAction(3, 11), {67, 3, 90}},
           {'D', outputAndAction(7, 2), {68, 7, 2}},
           {'G', outputAndAction(11, 1), {71, 11, 1}},
           {'E',
            [](ActionPicker& picker) { picker.temperatures[3].option.Choose(); },
            {69, "8", "99"}},
           {'I', [](ActionPicker& picker) { picker.simulationOn.Choose(); }, {73, "00", "01"}},
           {'H',
            [](ActionPicker& picker) {
              picker.secondaryZone.Choose();
              picker.output.list.Pick(1);
              picker.action.list.Pick(5);
              picker.value.list.Pick(2);
            },
            {72, 33, 18}},
       }) {
    PickButton(7);
    for (ActionPicker* picker : {&ButtonScreen.first, &ButtonScreen.second}) {
      const auto letter = std::find(picker->letter.items.begin(), picker->letter.items.end(),
                                    std::string(1, row.letter));
      picker->letter.Pick(static_cast<int>(letter - picker->letter.items.begin()));
      row.choose(*picker);
    }
    Store();
    ExpectRecord(7, 1, row.cells);
    ExpectRecord(7, 2, row.cells);
  }
}

}  // namespace
}  // namespace bkconf
