// Deleting an action of a context, or all of them.
#include "image/tables.h"
#include "master/context_screen_test.h"

namespace bkconf {
namespace {

const ActionCells Code = {90, 4, 11};
const ActionCells OtherCode = {90, 5, 12};

class ContextDeleteTest : public ContextScreenTest {
 protected:
  /// What remains of a list when the action at that place is deleted.
  void ExpectRemaining(const ActionList& actions, int place, const ActionList& remaining) {
    SCOPED_TRACE(std::to_string(actions.size()) + " actions, place " + std::to_string(place));
    OpenOn(6, actions);
    Delete(place);
    ExpectStored(6, remaining);
    // Nothing that was cut off is left to come up again.
    for (int cell = 3 * static_cast<int>(remaining.size()); cell < 150; ++cell) {
      ASSERT_EQ(ContextWork[1500 + cell], Cell(42)) << cell;
    }
    EXPECT_EQ(Shown().size(), remaining.size());
    ExpectMemory(std::to_string(283 - static_cast<int>(remaining.size())));
  }
};

TEST_F(ContextDeleteTest, ADoubleClickOnAnActionAsksWithTheSingleActionTaken) {
  OpenOn(1, {On('A'), On('B')});
  for (int times = 0; times < 2; ++times) {
    const Snapshot before = TakeSnapshot();
    DoubleClick(1);
    ExpectPanels(true, false);
    EXPECT_TRUE(ContextScreen.deleteAction.Chosen());
    EXPECT_FALSE(ContextScreen.deleteContext.Chosen());
    ContextScreen.deleteContext.Choose();
    ContextScreen.deleteCancel.Click();
    ExpectPanels(false, false);
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
  }
}

TEST_F(ContextDeleteTest, TheActionsBehindItMoveUp) {
  ExpectRemaining({On('A'), On('B'), On('C')}, 0, {On('B'), On('C')});
  ExpectRemaining({On('A'), On('B'), On('C')}, 1, {On('A'), On('C')});
  ExpectRemaining({On('A'), On('B'), On('C')}, 2, {On('A'), On('B')});
  ExpectRemaining({{65, "03", "02"}, {83, 6, 2}, {67, "00", 90}}, 0, {{83, 6, 2}, {67, "00", 90}});
}

TEST_F(ContextDeleteTest, ADeleteChangesThisContextAndTheTableAndIsToBeSent) {
  Open({{1, {On('A'), On('B')}}, {2, {On('C')}}});
  PickContext(1);
  const Snapshot before = TakeSnapshot();
  Delete(0);
  ExpectOnlyChanged(before, {"ContextWork[0..5]", "ContextTable[0..99]", "ContextTable[100..109]",
                             "MasterContextsDirty"});
  EXPECT_EQ(MasterContextsDirty, Cell(1));
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectPanels(false, false);
  ExpectStored(1, {On('B')});
  ExpectStored(2, {On('C')});
  EXPECT_EQ(ContextTable[2].Text() + ContextTable[3].Text(), "104");
}

TEST_F(ContextDeleteTest, TheOnlyActionLeavesAnEmptyContext) {
  ExpectRemaining({On('A')}, 0, {});
  EXPECT_EQ(ContextTable[10], Cell(0));
  EXPECT_EQ(ContextTable[11], Cell(0));
  EXPECT_EQ(ContextTable[100], Cell(42));
}

/// The first Corvela code behind a deleted action moves up, and all behind it is cut off.
TEST_F(ContextDeleteTest, ACorvelaCodeBehindItEndsTheList) {
  const ActionList five = {On('A'), On('B'), Code, On('C'), On('D')};
  ExpectRemaining(five, 0, {On('B'), Code});
  ExpectRemaining(five, 2, {On('A'), On('B')});
  ExpectRemaining(five, 3, {On('A'), On('B'), Code, On('D')});
  ExpectRemaining({On('A'), Code, On('B')}, 0, {Code});
  ExpectRemaining({On('A'), Code, On('B')}, 1, {On('A')});
  ExpectRemaining({On('A'), Code, OtherCode}, 0, {Code});
  ExpectRemaining({Code, On('A')}, 1, {Code});
}

TEST_F(ContextDeleteTest, AFullListLosesItsLastPlace) {
  ActionList actions;
  for (int place = 0; place < 100; ++place) actions.push_back({65, place % 12, 1});
  for (const int place : {0, 57, 99}) {
    OpenOn(1, actions);
    Delete(place);
    ActionList remaining = actions;
    remaining.erase(remaining.begin() + place);
    ExpectStored(1, remaining);
    for (int cell = 297; cell < 300; ++cell) EXPECT_EQ(ContextWork[cell], Cell(42));
    EXPECT_EQ(Shown().size(), 99U);
  }
}

TEST_F(ContextDeleteTest, AllActionsOfTheContextCanBeDeletedAtOnce) {
  Open({{1, {On('A'), Code}}, {2, ActionList(100, On('B'))}, {3, {On('C')}}});
  PickContext(2);
  DoubleClick(40);
  ContextScreen.deleteContext.Choose();
  ContextScreen.deleteConfirm.Click();
  EXPECT_EQ(Shown(), Codes{});
  for (int cell = 300; cell < 600; ++cell) ASSERT_EQ(ContextWork[cell], Cell(42)) << cell;
  ExpectStored(1, {On('A'), Code});
  ExpectStored(2, {});
  ExpectStored(3, {On('C')});
  ExpectMemory("280");
  EXPECT_EQ(MasterContextsDirty, Cell(1));
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectPanels(false, false);
}

TEST_F(ContextDeleteTest, CodesAreShownAsStoredAfterADeleteUntilTheNextDrawing) {
  Open({{1, {On('A'), {72, 33, 4}, {83, 6, 2}, Code}}});
  PickContext(1);
  EXPECT_EQ(Shown(), (Codes{"A0101", "H3405", "S0702", "Z0512"}));
  Delete(0);
  EXPECT_EQ(Shown(), (Codes{"H3404", "S0702", "Z0511"}));
  Select(2);
  EXPECT_EQ(ContextScreen.description.caption, "Corvela code: Z0511");
  PickContext(1);
  EXPECT_EQ(Shown(), (Codes{"H3405", "S0702", "Z0512"}));
  Delete(1);
  ASSERT_EQ(Shown(), (Codes{"H3404", "Z0511"}));
  DoubleClick(60);
  Choose(1);
  Confirm();
  EXPECT_EQ(Shown(), (Codes{"H3405", "Z0512", "A0101"}));
}

TEST_F(ContextDeleteTest, TheDoubleClickedActionIsDeletedNotTheOneThatIsSelectedLater) {
  OpenOn(1, {On('A'), On('B'), On('C')});
  DoubleClick(0);
  Select(2);
  EXPECT_EQ(ContextScreen.description.caption, "Dimmodule 'C':  Uitgang 01 aan");
  ContextScreen.deleteConfirm.Click();
  ExpectStored(1, {On('B'), On('C')});
}

TEST_F(ContextDeleteTest, ADoubleClickOnAnotherActionMovesTheTarget) {
  OpenOn(1, {On('A'), On('B'), On('C')});
  DoubleClick(0);
  DoubleClick(2);
  ExpectPanels(true, false);
  ContextScreen.deleteConfirm.Click();
  ExpectStored(1, {On('A'), On('B')});
}

TEST_F(ContextDeleteTest, ADoubleClickOnAnEmptyPlaceClosesTheQuestionAndOpensTheEditor) {
  OpenOn(1, {On('A')});
  DoubleClick(0);
  DoubleClick(9);
  ExpectPanels(false, true);
  ExpectNoChange(ContextScreen.deleteConfirm);
  Choose(2);
  Confirm();
  ExpectStored(1, {On('A'), {65, "01", "01"}});
}

TEST_F(ContextDeleteTest, ConfirmDoesNothingWhileNothingIsAsked) {
  OpenOn(1, {On('A')});
  ExpectNoChange(ContextScreen.deleteConfirm);
  DoubleClick(0);
  ContextScreen.deleteCancel.Click();
  ExpectNoChange(ContextScreen.deleteConfirm);
  EXPECT_EQ(Shown(), Codes{"A0101"});
}

}  // namespace
}  // namespace bkconf
