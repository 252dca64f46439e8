#include "platform/field.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/runtime_error.h"
#include "shell/main_window.h"
#include "support/open_screen.h"

namespace bkconf {
namespace {

class ListFieldTest : public testing::Test {
 protected:
  ListFieldTest() {
    list.items = {"A", "B", "C"};
    list.onPick = [this] { ++picks; };
    list.onTyped = [this] { ++typed; };
  }

  void ExpectShows(int index, const std::string& text) {
    EXPECT_EQ(list.Index(), index);
    EXPECT_EQ(list.Text(), text);
  }

  OpenScreen screen;
  ListField list{screen, "list"};
  int picks = 0;
  int typed = 0;
};

TEST_F(ListFieldTest, NothingIsPickedOrTypedInAScreenThatIsNotShown) {
  screen.shown = false;
  list.Pick(1);
  list.Type("B");
  ExpectShows(-1, "");
  EXPECT_EQ(picks + typed, 0);
  screen.shown = true;
  list.Pick(1);
  ExpectShows(1, "B");
}

TEST_F(ListFieldTest, ShowsNothingAtFirst) {
  ExpectShows(-1, "");
}

TEST_F(ListFieldTest, ShowFindsTheItemAndRunsNoHandler) {
  list.Show("C");
  ExpectShows(2, "C");
  EXPECT_EQ(picks, 0);
  EXPECT_EQ(typed, 0);
}

TEST_F(ListFieldTest, ShowsATextThatIsNoItem) {
  list.Show("B");
  list.Show("*");
  ExpectShows(-1, "*");
}

TEST_F(ListFieldTest, ShowFindsTheFirstOfEqualItems) {
  list.items = {"A", "B", "B"};
  list.Show("B");
  ExpectShows(1, "B");
}

TEST_F(ListFieldTest, ClearShowsNothingAndRunsNoHandler) {
  list.Show("B");
  list.Clear();
  ExpectShows(-1, "");
  EXPECT_EQ(picks + typed, 0);
}

TEST_F(ListFieldTest, ADisabledOrHiddenListStillShowsWhatLogicPutsThere) {
  list.enabled = false;
  list.visible = false;
  list.Show("B");
  ExpectShows(1, "B");
}

TEST_F(ListFieldTest, APickShowsTheItemAndRunsItsHandlerOnce) {
  list.Pick(1);
  ExpectShows(1, "B");
  EXPECT_EQ(picks, 1);
  EXPECT_EQ(typed, 0);
}

TEST_F(ListFieldTest, ThePickStandsWhenItsHandlerRuns) {
  std::string seen;
  list.onPick = [&] { seen = list.Text() + std::to_string(list.Index()); };
  list.Pick(2);
  EXPECT_EQ(seen, "C2");
}

TEST_F(ListFieldTest, PickingTheSameItemAgainRunsItsHandlerAgain) {
  list.Pick(1);
  list.Pick(1);
  EXPECT_EQ(picks, 2);
}

TEST_F(ListFieldTest, APickOutsideTheItemsChangesNothing) {
  list.Pick(1);
  for (const int index : {-1, 3, 1000}) list.Pick(index);
  ExpectShows(1, "B");
  EXPECT_EQ(picks, 1);
}

TEST_F(ListFieldTest, APickInADisabledListChangesNothing) {
  list.enabled = false;
  list.Pick(1);
  ExpectShows(-1, "");
  EXPECT_EQ(picks, 0);
}

TEST_F(ListFieldTest, APickInAHiddenListChangesNothing) {
  list.visible = false;
  list.Pick(1);
  ExpectShows(-1, "");
  EXPECT_EQ(picks, 0);
}

TEST_F(ListFieldTest, APickWithoutAHandlerShowsTheItem) {
  list.onPick = nullptr;
  list.Pick(1);
  ExpectShows(1, "B");
}

TEST_F(ListFieldTest, TypingShowsTheTextAndRunsItsHandlerOnce) {
  list.Type("B");
  ExpectShows(1, "B");
  list.Type("Bx");
  ExpectShows(-1, "Bx");
  EXPECT_EQ(typed, 2);
  EXPECT_EQ(picks, 0);
}

TEST_F(ListFieldTest, TypingWithoutAHandlerBringsBackWhatWasShown) {
  list.onTyped = nullptr;
  list.Show("B");
  list.Type("x");
  ExpectShows(1, "B");
}

TEST_F(ListFieldTest, TypingInADisabledOrHiddenListChangesNothing) {
  list.enabled = false;
  list.Type("B");
  list.enabled = true;
  list.visible = false;
  list.Type("B");
  ExpectShows(-1, "");
  EXPECT_EQ(typed, 0);
}

class ButtonFieldTest : public testing::Test {
 protected:
  ButtonFieldTest() {
    button.onClick = [this] { ++clicks; };
  }

  void ExpectUnusable() {
    EXPECT_FALSE(button.Usable());
    button.Click();
    EXPECT_EQ(clicks, 0);
  }

  OpenScreen screen;
  ButtonField button{screen, "button"};
  int clicks = 0;
};

TEST_F(ButtonFieldTest, AClickRunsTheHandlerOnce) {
  EXPECT_TRUE(button.Usable());
  button.Click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonFieldTest, ADisabledButtonDoesNothing) {
  button.enabled = false;
  ExpectUnusable();
}

TEST_F(ButtonFieldTest, AHiddenButtonDoesNothing) {
  button.visible = false;
  ExpectUnusable();
}

TEST_F(ButtonFieldTest, AButtonWithoutAHandlerIsNotUsable) {
  button.onClick = nullptr;
  ExpectUnusable();
}

class MenuFieldTest : public testing::Test {
 protected:
  MenuFieldTest() {
    entry.onClick = [this] { ++clicks; };
  }

  void ExpectUnusable() {
    EXPECT_FALSE(entry.Usable());
    entry.Click();
    EXPECT_EQ(clicks, 0);
  }

  OpenScreen screen;
  MenuField menu{screen, nullptr, "menu"};
  MenuField submenu{screen, &menu, "submenu"};
  MenuField entry{screen, &submenu, "entry"};
  int clicks = 0;
};

TEST_F(MenuFieldTest, AMenuKnowsItsEntriesInTheirOrder) {
  MenuField last{screen, &submenu, "last"};
  EXPECT_EQ(menu.entries, std::vector<MenuField*>{&submenu});
  EXPECT_EQ(submenu.entries, (std::vector<MenuField*>{&entry, &last}));
}

TEST_F(MenuFieldTest, AClickRunsTheHandlerOnce) {
  EXPECT_TRUE(entry.Usable());
  entry.Click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenuFieldTest, ADisabledEntryDoesNothing) {
  entry.enabled = false;
  ExpectUnusable();
}

TEST_F(MenuFieldTest, AHiddenEntryDoesNothing) {
  entry.visible = false;
  ExpectUnusable();
}

TEST_F(MenuFieldTest, AnEntryWithoutAHandlerIsNotUsable) {
  entry.onClick = nullptr;
  ExpectUnusable();
}

TEST_F(MenuFieldTest, AnEntryOfADisabledMenuDoesNothing) {
  submenu.enabled = false;
  ExpectUnusable();
}

TEST_F(MenuFieldTest, AnEntryBelowADisabledMenuBarEntryDoesNothing) {
  menu.enabled = false;
  ExpectUnusable();
}

TEST_F(MenuFieldTest, AnEntryOfAHiddenMenuDoesNothing) {
  menu.visible = false;
  ExpectUnusable();
}

class ProgressFieldTest : public testing::Test {
 protected:
  OpenScreen screen;
  ProgressField bar{screen, "bar"};
};

TEST_F(ProgressFieldTest, IsHiddenAtFirst) {
  EXPECT_FALSE(bar.visible);
}

TEST_F(ProgressFieldTest, StartShowsItEmptyWithItsNewEnd) {
  bar.Start(5);
  bar.SetValue(4);
  bar.visible = false;
  bar.Start(20000);
  EXPECT_TRUE(bar.visible);
  EXPECT_EQ(bar.Value(), 0);
  EXPECT_EQ(bar.Maximum(), 20000);
}

TEST_F(ProgressFieldTest, AdvancesOneByOneToItsMaximum) {
  bar.Start(3);
  for (int value = 1; value <= 3; ++value) {
    bar.Advance();
    EXPECT_EQ(bar.Value(), value);
  }
}

TEST_F(ProgressFieldTest, PastTheMaximumIsAnErrorThatNamesTheBarAndKeepsTheValue) {
  bar.Start(3);
  bar.SetValue(3);
  try {
    bar.Advance();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::BarPastMaximum);
    EXPECT_EQ(std::string(error.what()), "bar: 4 > 3");
  }
  EXPECT_EQ(bar.Value(), 3);
}

TEST_F(ProgressFieldTest, AJumpPastTheMaximumKeepsTheValue) {
  bar.Start(3);
  bar.SetValue(1);
  EXPECT_THROW(bar.SetValue(100), RuntimeError);
  EXPECT_EQ(bar.Value(), 1);
}

TEST_F(ProgressFieldTest, ABarOfNothingOverflowsAtItsFirstStep) {
  bar.Start(0);
  EXPECT_THROW(bar.Advance(), RuntimeError);
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(ProgressFieldTest, ANewValueIsNotDrawnAtOnceSoThatNoFrameWaitsForAPicture) {
  int drawn = 0;
  bar.draw = [&] { ++drawn; };
  bar.Start(3);
  bar.Advance();
  bar.SetValue(3);
  EXPECT_EQ(drawn, 0);
}

TEST(ScreenTest, FindsAFieldByItsName) {
  OpenScreen screen;
  LabelField label{screen, "label"};
  ListField list{screen, "list"};
  EXPECT_EQ(screen.Find("label"), &label);
  EXPECT_EQ(screen.Find("list"), &list);
}

TEST(ScreenTest, FindsNothingUnderAnotherName) {
  OpenScreen screen;
  LabelField label{screen, "label"};
  for (const char* name : {"", "lab", "labels", "Label"}) {
    EXPECT_EQ(screen.Find(name), nullptr) << name;
  }
}

TEST(ScreenTest, HoldsItsFieldsInTheOrderOfTheirDeclaration) {
  OpenScreen screen;
  GroupField group{screen, "group"};
  PictureField picture{screen, "picture"};
  ButtonField button{screen, "button"};
  EXPECT_EQ(screen.fields, (std::vector<Field*>{&group, &picture, &button}));
}

TEST(ScreenTest, EachFieldKnowsItsKindForTheView) {
  OpenScreen screen;
  EXPECT_EQ(GroupField(screen, "1").kind, FieldKind::Group);
  EXPECT_EQ(LabelField(screen, "2").kind, FieldKind::Label);
  EXPECT_EQ(ListField(screen, "3").kind, FieldKind::List);
  EXPECT_EQ(ButtonField(screen, "4").kind, FieldKind::Button);
  EXPECT_EQ(ProgressField(screen, "5").kind, FieldKind::Progress);
  EXPECT_EQ(PictureField(screen, "6").kind, FieldKind::Picture);
  EXPECT_EQ(MenuField(screen, nullptr, "7").kind, FieldKind::Menu);
  EXPECT_EQ(CheckField(screen, "8").kind, FieldKind::Check);
  EXPECT_EQ(OptionField(screen, "9", nullptr).kind, FieldKind::Option);
  EXPECT_EQ(GridField(screen, "10").kind, FieldKind::Grid);
}

TEST(ScreenTest, TheFieldsOfTheMainWindowHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Field* field : MainWindow.fields) {
    EXPECT_FALSE(field->name.empty());
    EXPECT_TRUE(names.insert(field->name).second) << field->name;
    EXPECT_EQ(MainWindow.Find(field->name), field);
  }
  EXPECT_GT(names.size(), 60U);
}

}  // namespace
}  // namespace bkconf
