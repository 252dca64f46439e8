// The walk that closes the gap of a deleted programme. The two lists differ in it, on purpose.
#include "master/program_screen_test.h"

namespace bkconf {
namespace {

TEST_P(EachProgramTest, TheProgrammesBehindTheDeletedOneMoveUp) {
  const std::vector<Slot> all = {On('A'), On('B'), StoredAt({67, 3, 90}), At({83, 6, "02"})};
  for (int row = 1; row <= 4; ++row) {
    Open(all);
    const Snapshot before = TakeSnapshot();
    Delete(row);
    std::vector<Slot> remaining = all;
    remaining.erase(remaining.begin() + row - 1);
    ExpectSlots(remaining);
    ExpectMemory(slots - 3);
    ExpectPanels(false, false);
    EXPECT_EQ(dirty, Cell(1));
    EXPECT_TRUE(MainWindow.send.enabled);
    std::vector<std::string> changed = {light ? "MasterLightDirty" : "MasterTimeDirty"};
    for (int slot = row; slot <= 4; ++slot) changed.push_back(NameOf(slot));
    ExpectOnlyChanged(before, changed);
  }
}

TEST_P(EachProgramTest, TheRowsAreDrawnAnewAfterADelete) {
  Open({On('A'), On('B'), On('C')});
  Delete(2);
  ExpectRows({"A0101" + Moment(), "C0101" + Moment()});
  Delete(1);
  ExpectRows({"C0101" + Moment()});
  Delete(1);
  ExpectRows({});
  ExpectMemory(slots);
}

TEST_P(EachProgramTest, AGapMovesUpAndIsNotClosed) {
  Open({On('A'), Free(), On('B')});
  Delete(1);
  ExpectSlots({Free(), On('B')});
  ExpectRows({"", "B0101" + Moment()});
}

TEST_P(EachProgramTest, WhatAFreeSlotHoldsBecomes42WhereTheWalkPasses) {
  // The first row stays, though its letter is none: the walk does not come there.
  const Slot other = At({"*", 7, 7});
  Open({other, On('A'), other, On('B'), other});
  Delete(2);
  ExpectSlots({other, Free(), On('B'), Free(), Free()});
}

TEST_F(TimeProgramTest, ACorvelaCodeMovesUpLikeAnyOther) {
  const Slot code = At({90, 4, 11});
  Open({On('A'), code, On('B'), code, On('C')});
  Delete(1);
  ExpectSlots({code, On('B'), code, On('C')});
  Delete(1);
  ExpectSlots({On('B'), code, On('C')});
}

/// Those below the deleted row are lost, with a gap at each; those above it are safe.
TEST_F(LightProgramTest, CorvelaCodesBelowTheDeletedRowAreLost) {
  const Slot code = At({90, 4, 11});
  Open({On('A'), code, On('B')});
  Delete(1);
  ExpectSlots({Free(), On('B')});
  ExpectRows({"", "B0101" + Moment()});
  ExpectMemory(199);

  Open({On('A'), code, On('B'), code, On('C')});
  Delete(1);
  ExpectSlots({Free(), On('B'), Free(), On('C')});

  Open({code, On('A'), On('B')});
  Delete(2);
  ExpectSlots({code, On('B')});

  Open({On('A'), code, On('B')});
  Delete(2);
  ExpectSlots({On('A'), On('B')});

  Open({On('A'), code, code, On('B')});
  Delete(1);
  ExpectSlots({Free(), Free(), On('B')});
}

// --- The end of the table -----------------------------------------------------------------------

class FullTimeListTest : public TimeProgramTest {
 protected:
  FullTimeListTest() {
    for (int row = 1; row <= 110; ++row) full.push_back(At({65 + row % 18, row % 12, 1}));
  }
  std::vector<Slot> full;
};

TEST_F(FullTimeListTest, TheLastSlotTakesTheEmptyTailOfTheTable) {
  for (const int row : {1, 57, 110}) {
    Open(full);
    Delete(row);
    std::vector<Slot> remaining = full;
    remaining.erase(remaining.begin() + row - 1);
    ExpectSlots(remaining);
    ExpectSlot(110, Free());
    ExpectMemory(1);
  }
}

/// The cells behind the last slot belong to no programme, but the walk reads them as one.
TEST_F(FullTimeListTest, AnActionInTheTailOfTheTableComesInAtEveryDelete) {
  for (const int letter : {65, 83, 90}) {
    Open(full);
    const Slot tail = At({letter, 3, 1});
    PutSlot(111, tail);
    table[999] = 7;
    for (int times = 0; times < 2; ++times) {
      Delete(110);
      ExpectSlot(109, full[108]);
      ExpectSlot(110, tail);
      ExpectSlot(111, tail);
      EXPECT_EQ(table[999], Cell(7));
      ExpectMemory(0);
    }
  }
}

TEST_F(FullTimeListTest, ATailThatIsNoActionEmptiesTheLastSlotAndStays) {
  Open(full);
  const Slot tail = At({84, 3, 1});
  PutSlot(111, tail);
  Delete(1);
  ExpectSlot(110, Free());
  ExpectSlot(111, tail);
}

class FullLightListTest : public LightProgramTest {
 protected:
  FullLightListTest() {
    for (int row = 1; row <= 200; ++row) full.push_back(At({65 + row % 18, row % 12, 1}));
  }
  std::vector<Slot> full;
};

TEST_F(FullLightListTest, TheLastProgrammeStandsTwiceAfterADelete) {
  for (const int row : {1, 100, 199}) {
    Open(full);
    Delete(row);
    std::vector<Slot> remaining = full;
    remaining.erase(remaining.begin() + row - 1);
    remaining.push_back(full.back());
    ExpectSlots(remaining);
    ExpectMemory(0);
    EXPECT_EQ(Row(199), Row(200));
  }
}

TEST_F(FullLightListTest, TheLastRowCannotBeDeletedAndCountsAsAChangeAllTheSame) {
  Open(full);
  const Snapshot before = TakeSnapshot();
  Delete(200);
  ExpectOnlyChanged(before, {"MasterLightDirty"});
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectMemory(0);
  ExpectPanels(false, false);
}

TEST_F(FullLightListTest, ACorvelaCodeInTheLastSlotStaysThereAndEmptiesTheOneBefore) {
  full.back() = At({90, 4, 11});
  Open(full);
  Delete(1);
  ExpectSlot(198, full[198]);
  ExpectSlot(199, Free());
  ExpectSlot(200, full.back());
  ExpectMemory(1);
}

}  // namespace
}  // namespace bkconf
