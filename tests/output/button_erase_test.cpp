#include <gtest/gtest.h>

#include "image/module_directory.h"
#include "output/button_screen_test.h"

namespace bkconf {
namespace {

/// Deleting one function, clearing all and the base functions, on every kind that has buttons.
class ButtonEraseTest : public ButtonScreenTest, public testing::WithParamInterface<int> {
 protected:
  /// All buttons have both functions, of another module.
  void OpenFull() {
    StartWithImage(GetParam());
    for (int button = 1; button <= 20; ++button) {
      Put(button, 1, {81, button - 1, 1});
      Put(button, 2, {82, button - 1, 0});
    }
    OpenAgain();
    MainWindow.send.enabled = false;
  }
};

TEST_P(ButtonEraseTest, ADoubleClickErasesTheFunctionOfItsCell) {
  OpenFull();
  for (const int button : {1, 13, 20}) {
    for (const int column : {1, 2}) {
      const Snapshot before = TakeSnapshot();
      MasterBaseDirty = 0;
      MainWindow.send.enabled = false;
      ButtonScreen.buttons.DoubleClick(button, column);
      ExpectRecord(button, column, Empty());
      EXPECT_EQ(Shown(button, column), "***");
      EXPECT_EQ(ButtonScreen.description.caption, "");
      EXPECT_TRUE(MainWindow.send.enabled);
      EXPECT_EQ(MasterBaseDirty, Cell(1));
      MasterBaseDirty = before.at("MasterBaseDirty");
      ExpectOnlyChanged(before, {NameOf(button, column)});
    }
  }
  EXPECT_EQ(Shown(2, 1) + Shown(2, 2), "Q0201R0200");
}

TEST_P(ButtonEraseTest, ADoubleClickOnAnEmptyFunctionIsAChangeToo) {
  Open(GetParam());
  const Snapshot before = TakeSnapshot();
  ButtonScreen.buttons.DoubleClick(4, 2);
  ExpectOnlyChanged(before, {"MasterBaseDirty"});
  EXPECT_TRUE(MainWindow.send.enabled);
}

TEST_P(ButtonEraseTest, ADoubleClickOnTheRowHeaderPicksTheButtonAndChangesNoCell) {
  OpenFull();
  const Snapshot before = TakeSnapshot();
  for (const int button : {20, 1, 7}) {
    ButtonScreen.buttons.DoubleClick(button, 0);
    EXPECT_EQ(ButtonScreen.chooser.Text(), std::to_string(button));
    EXPECT_TRUE(ButtonScreen.store.Usable());
    EXPECT_TRUE(ButtonScreen.first.letter.enabled);
  }
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_P(ButtonEraseTest, ADoubleClickOnTheCaptionsDoesNothing) {
  OpenFull();
  const Snapshot before = TakeSnapshot();
  for (const int column : {0, 1, 2}) ButtonScreen.buttons.DoubleClick(0, column);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(ButtonScreen.chooser.Text(), "");
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_P(ButtonEraseTest, ClearingAllErasesOneColumn) {
  for (const int column : {1, 2}) {
    OpenFull();
    CheckField& box = column == 1 ? ButtonScreen.clearFirst : ButtonScreen.clearSecond;
    CheckField& other = column == 1 ? ButtonScreen.clearSecond : ButtonScreen.clearFirst;
    const Snapshot before = TakeSnapshot();
    box.Set(true);
    for (int button = 1; button <= 20; ++button) {
      ExpectRecord(button, column, Empty());
      EXPECT_EQ(Shown(button, column), "***");
      EXPECT_NE(Shown(button, 3 - column), "***");
    }
    const std::string range = column == 1 ? "[0..59]" : "[60..119]";
    ExpectOnlyChanged(before, {TableName() + range, "MasterBaseDirty"});
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_TRUE(box.checked);
    EXPECT_FALSE(box.enabled);
    EXPECT_FALSE(other.checked);
    EXPECT_TRUE(other.enabled);
  }
}

TEST_P(ButtonEraseTest, TheBoxesStayTickedUntilTheNextStore) {
  OpenFull();
  ButtonScreen.clearFirst.Set(true);
  ButtonScreen.clearSecond.Set(true);
  ButtonScreen.clearFirst.Set(false);
  EXPECT_TRUE(ButtonScreen.clearFirst.checked);
  PickButton(3);
  EXPECT_TRUE(ButtonScreen.clearFirst.checked && ButtonScreen.clearSecond.checked);
  Store();
  for (const CheckField* box : {&ButtonScreen.clearFirst, &ButtonScreen.clearSecond}) {
    EXPECT_FALSE(box->checked);
    EXPECT_TRUE(box->enabled);
  }
}

TEST_P(ButtonEraseTest, TheBoxesAreFreeAfterOpeningAgain) {
  OpenFull();
  ButtonScreen.clearFirst.Set(true);
  ButtonScreen.leave.Click();
  OpenAgain();
  EXPECT_FALSE(ButtonScreen.clearFirst.checked);
  EXPECT_TRUE(ButtonScreen.clearFirst.enabled);
}

TEST_P(ButtonEraseTest, NothingIsWrittenWhileTheScreenOrItsFunctionsAreNotShown) {
  const auto expectNothingWritten = [this] {
    const Snapshot before = TakeSnapshot();
    ButtonScreen.buttons.DoubleClick(1, 1);
    ButtonScreen.buttons.DoubleClick(1, 2);
    ButtonScreen.clearFirst.Set(true);
    ButtonScreen.clearSecond.Set(true);
    ButtonScreen.store.Click();
    ButtonScreen.baseYes.Click();
    ButtonScreen.baseNo.Click();
    ButtonScreen.base.Click();
    ButtonScreen.baseYes.Click();
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
    EXPECT_EQ(Shown(1, 1) + Shown(1, 2), "Q0101R0100");
  };
  const auto prepare = [this] {
    OpenFull();
    ButtonScreen.base.Click();
    PickButton(1);
    ChooseOn(ButtonScreen.first, 'A', 1);
  };
  prepare();
  ButtonScreen.leave.Click();
  expectNothingWritten();
  prepare();
  ButtonScreen.leave.Click();
  ShownAction(Action::SecondFunctionTime).Click();
  PickButton(1);
  ChooseOn(ButtonScreen.first, 'A', 1);
  expectNothingWritten();
}

TEST_P(ButtonEraseTest, NoPressTimeIsWrittenWhileTheScreenOrThatTimeIsNotShown) {
  OpenFull();
  const Snapshot before = TakeSnapshot();
  const auto choose = [] {
    ButtonScreen.time.Pick(1);
    ButtonScreen.time.Type("3");
  };
  choose();
  ButtonScreen.leave.Click();
  ShownAction(Action::SecondFunctionTime).Click();
  ButtonScreen.leave.Click();
  choose();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ButtonEraseTest, testing::ValuesIn(ButtonKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

struct Base {
  int kind;
  int first;   ///< how many buttons toggle the output of their number
  int second;  ///< the same with a long press
};

class BaseFunctionsTest : public ButtonScreenTest, public testing::WithParamInterface<Base> {
 protected:
  void OpenFull() {
    StartWithImage(GetParam().kind, 1, 'M');
    for (int button = 1; button <= 20; ++button) {
      Put(button, 1, {81, button - 1, 1});
      Put(button, 2, {82, button - 1, 0});
    }
    OpenAgain();
    MainWindow.send.enabled = false;
  }
  static void ExpectToggles(int column, int count) {
    for (int button = 1; button <= 20; ++button) {
      if (button <= count) {
        ExpectRecord(button, column, {77, button - 1, 2});
        const std::string number = (button < 10 ? "0" : "") + std::to_string(button);
        EXPECT_EQ(Shown(button, column), "M" + number + "02");
      } else {
        ExpectRecord(button, column, Empty());
        EXPECT_EQ(Shown(button, column), "***");
      }
    }
  }
};

TEST_P(BaseFunctionsTest, AreAskedForFirst) {
  OpenFull();
  const Snapshot before = TakeSnapshot();
  EXPECT_FALSE(ButtonScreen.baseGroup.visible);
  ButtonScreen.base.Click();
  EXPECT_TRUE(ButtonScreen.baseGroup.visible);
  ExpectOnlyChanged(before, {});
}

TEST_P(BaseFunctionsTest, ToggleTheOutputOfTheirButton) {
  OpenFull();
  const Snapshot before = TakeSnapshot();
  ButtonScreen.base.Click();
  ButtonScreen.baseYes.Click();
  ExpectToggles(1, GetParam().first);
  ExpectToggles(2, GetParam().second);
  EXPECT_FALSE(ButtonScreen.baseGroup.visible);
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {TableName() + "[0..119]", "MasterBaseDirty"});
  EXPECT_EQ(MasterBaseDirty, Cell(1));
}

TEST_P(BaseFunctionsTest, NoChangesNoCellAndIsNoChangeToSend) {
  OpenFull();
  const Snapshot before = TakeSnapshot();
  ButtonScreen.base.Click();
  ButtonScreen.baseNo.Click();
  EXPECT_FALSE(ButtonScreen.baseGroup.visible);
  EXPECT_FALSE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {"MasterBaseDirty"});
  EXPECT_EQ(Shown(13, 1), "Q1301");
}

INSTANTIATE_TEST_SUITE_P(Kinds, BaseFunctionsTest,
                         testing::Values(Base{0, 12, 0}, Base{4, 12, 0}, Base{1, 4, 4},
                                         Base{11, 8, 4}, Base{5, 12, 0}, Base{6, 12, 0},
                                         Base{7, 12, 0}, Base{8, 12, 0}),
                         [](const auto& base) { return "kind" + std::to_string(base.param.kind); });

class MasterBaseFunctionsTest : public ButtonScreenTest {};

TEST_F(MasterBaseFunctionsTest, AssignNothingButEraseCorvelaCodesAndShowValuesAsStored) {
  Open(9);
  Put(1, 1, {65, 0, 1});
  Put(2, 1, {90, 4, 11});
  Put(3, 1, {72, 33, 18});
  Put(4, 2, {83, 6, "02"});
  Put(5, 2, {90, 0, 0});
  OpenAgain();
  EXPECT_EQ(Shown(2, 1), "Z0512");
  EXPECT_EQ(Shown(3, 1), "H3419");
  const Snapshot before = TakeSnapshot();
  ButtonScreen.base.Click();
  ButtonScreen.baseYes.Click();
  EXPECT_EQ(Shown(1, 1), "A0101");
  EXPECT_EQ(Shown(2, 1), "***");
  EXPECT_EQ(Shown(3, 1), "H3418");
  EXPECT_EQ(Shown(4, 2), "S0702");
  EXPECT_EQ(Shown(5, 2), "***");
  ExpectRecord(2, 1, Empty());
  ExpectOnlyChanged(before, {NameOf(2, 1), NameOf(5, 2), "MasterBaseDirty"});
  OpenAgain();
  EXPECT_EQ(Shown(3, 1), "H3419");
}

TEST_F(MasterBaseFunctionsTest, NoLeavesCorvelaCodes) {
  Open(9);
  Put(2, 1, {90, 4, 11});
  OpenAgain();
  ButtonScreen.base.Click();
  ButtonScreen.baseNo.Click();
  EXPECT_EQ(Shown(2, 1), "Z0512");
  ExpectRecord(2, 1, {90, 4, 11});
  EXPECT_EQ(MasterBaseDirty, Cell(1));
}

class AssignedBaseFunctionsTest : public ButtonScreenTest {};

TEST_F(AssignedBaseFunctionsTest, OfARelayModuleHaveASentence) {
  Open(0, 1, 'M');
  ButtonScreen.base.Click();
  ButtonScreen.baseYes.Click();
  ButtonScreen.buttons.Select(12, 1);
  EXPECT_EQ(ButtonScreen.description.caption, "Relaismodule 'M':  Uitgang 12 toggle");
  ButtonScreen.buttons.Select(13, 1);
  EXPECT_EQ(ButtonScreen.description.caption, "");
}

TEST_F(AssignedBaseFunctionsTest, OfAModuleThatDoesNotToggleHaveNoSentence) {
  for (const int kind : {5, 7, 8}) {
    Open(kind, 1, 'M');
    ButtonScreen.base.Click();
    ButtonScreen.baseYes.Click();
    ButtonScreen.buttons.Select(1, 1);
    EXPECT_EQ(Shown(1, 1), "M0102");
    EXPECT_EQ(ButtonScreen.description.caption, "") << kind;
  }
}

TEST_F(AssignedBaseFunctionsTest, OfAModuleWithoutALetterAreEmpty) {
  Open(0);
  ButtonImage[121] = 42;
  ButtonScreen.base.Click();
  ButtonScreen.baseYes.Click();
  for (int button = 1; button <= 20; ++button) {
    EXPECT_EQ(Shown(button, 1), "***");
    ExpectRecord(button, 1, Empty());
  }
}

TEST_F(AssignedBaseFunctionsTest, TheDescriptionFollowsTheSelectedFunction) {
  Open(0, 1, 'M');
  ButtonScreen.buttons.Select(3, 1);
  ButtonScreen.base.Click();
  ButtonScreen.baseYes.Click();
  EXPECT_EQ(ButtonScreen.description.caption, "Relaismodule 'M':  Uitgang 03 toggle");
  ButtonScreen.clearFirst.Set(true);
  EXPECT_EQ(ButtonScreen.description.caption, "");
}

/// The frame that asks before they are assigned.
class BaseQuestionTest : public ButtonScreenTest {};

TEST_F(BaseQuestionTest, EscapeMeansNoWhileTheQuestionIsOpen) {
  Open(0);
  EXPECT_EQ(ButtonScreen.escape, nullptr);
  ButtonScreen.base.Click();
  EXPECT_EQ(ButtonScreen.escape, &ButtonScreen.baseNo);
  ButtonScreen.baseNo.Click();
  EXPECT_EQ(ButtonScreen.escape, nullptr);
}

TEST_F(BaseQuestionTest, EnterMeansYesWhileTheQuestionIsOpenAndStoresOtherwise) {
  Open(0);
  EXPECT_EQ(ButtonScreen.enter, &ButtonScreen.store);
  for (const ButtonField* answer : {&ButtonScreen.baseYes, &ButtonScreen.baseNo}) {
    ButtonScreen.base.Click();
    EXPECT_EQ(ButtonScreen.enter, &ButtonScreen.baseYes);
    answer->Click();
    EXPECT_EQ(ButtonScreen.enter, &ButtonScreen.store);
  }
  ButtonScreen.base.Click();
  ButtonScreen.leave.Click();
  OpenAgain();
  EXPECT_EQ(ButtonScreen.enter, &ButtonScreen.store);
}

TEST_F(BaseQuestionTest, TheQuestionIsGoneAfterOpeningAgain) {
  Open(0);
  ButtonScreen.base.Click();
  ButtonScreen.leave.Click();
  OpenAgain();
  EXPECT_FALSE(ButtonScreen.baseGroup.visible);
}

}  // namespace
}  // namespace bkconf
