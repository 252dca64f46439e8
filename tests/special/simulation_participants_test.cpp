#include <gtest/gtest.h>

#include "special/random_edits.h"
#include "special/simulation_screen_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

/// Places in the list of types.
enum TypePlace { Relay, Dimmer, RelayDc, Lumenza };
/// Places of letters that are no module's.
constexpr int ContextPlace = 18;
constexpr int CodePlace = 19;

Names Numbers(int first, int last, bool twoDigits) {
  Names items;
  for (int number = first; number <= last; ++number) {
    items.push_back((twoDigits && number < 10 ? "0" : "") + std::to_string(number));
  }
  return items;
}

/// The grid of the outputs that take part, and its editor.
class ParticipantsTest : public SimulationScreenTest {
 protected:
  /// Opens the editor by a double click on the first entry.
  void Edit(int language = 1) {
    Open(language);
    DoubleClick(0);
    ASSERT_TRUE(Editing());
  }
  static bool Editing() { return SimulationScreen.editGroup.visible; }
  static void PickLetter(char letter) { SimulationScreen.letter.Pick(letter - 'A'); }
  static void PickTarget(char letter, int type = Relay) {
    PickLetter(letter);
    SimulationScreen.type.Pick(type);
  }
  /// Switches count from 1, as a user sees them.
  static void SwitchOn(const std::vector<int>& numbers) {
    for (const int each : numbers) Switch(each).Set(true);
  }
  static CheckField& Switch(int number) {
    return *SimulationScreen.switches[static_cast<std::size_t>(number - 1)];
  }
  static int VisibleSwitches() {
    int count = 0;
    for (const auto& each : SimulationScreen.switches) count += each->visible ? 1 : 0;
    return count;
  }
  static int TickedSwitches() {
    int count = 0;
    for (const auto& each : SimulationScreen.switches) count += each->checked ? 1 : 0;
    return count;
  }
  static void Confirm() { SimulationScreen.editConfirm.Click(); }
  /// Confirms, and expects that nothing was stored and that the editor is still open.
  static void ExpectSilence() {
    MainWindow.send.enabled = false;
    const Snapshot before = TakeSnapshot();
    Confirm();
    ExpectOnlyChanged(before, {});
    EXPECT_TRUE(Editing());
    ExpectSignal(false);
  }
};

// --- What is shown ------------------------------------------------------------------------------

TEST_F(ParticipantsTest, EachEntryIsShownFromItsTwoCells) {
  Open();
  for (int participant = 0; participant < 25; ++participant) {
    const int letter = participant < 18 ? 'A' + participant : participant % 2 == 0 ? 'S' : 'Z';
    Put(participant, letter,
        participant % 3 == 0 ? Cell(std::to_string(participant)) : participant);
  }
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_EQ(AllShown(),
            "A01 B02 C03 D04 E05 F06 G07 H08 I09 J10 K11 L12 M13 N14 O15 P16 Q17 R18 S19 Z20 S21 "
            "Z22 S23 Z24 S25");
  EXPECT_EQ(SimulationScreen.participants.At(1, 4), "E05");
  EXPECT_EQ(SimulationScreen.participants.At(5, 0), "S21");
  ExpectOnlyChanged(before, {});
}

TEST_F(ParticipantsTest, AnEntryHasTheLastTwoDigitsOfItsNumber) {
  Open();
  Put(0, 'Z', 98);
  Put(1, 'A', 99);
  Put(2, "66", "0");
  Put(3, 'S', 42);
  OpenAgain();
  EXPECT_EQ(AllShown(), "Z99 A00 B01 S43");
}

TEST_F(ParticipantsTest, WhatIsNoTargetIsFreeAndStays) {
  Open();
  for (const Cell& target : {Cell(42), Cell(0), Cell("*"), Cell(), Cell(64), Cell(84), Cell(89),
                             Cell(91), Cell(255), Cell("word")}) {
    Put(7, target, 3);
    const std::vector<Cell> cells = {At(149), At(150)};
    OpenAgain();
    EXPECT_EQ(Shown(7), "*");
    EXPECT_EQ((std::vector<Cell>{At(149), At(150)}), cells);
    DoubleClick(7);
    EXPECT_TRUE(Editing());
  }
}

// --- The editor ---------------------------------------------------------------------------------

TEST_F(ParticipantsTest, ADoubleClickOnAFreeEntryOpensTheEditorIdle) {
  Open();
  Snapshot before = TakeSnapshot();
  for (const int participant : {0, 12, 24}) {
    DoubleClick(participant);
    EXPECT_TRUE(Editing());
    EXPECT_EQ(SimulationScreen.letter.Text() + SimulationScreen.type.Text(), "");
    EXPECT_TRUE(SimulationScreen.letter.enabled);
    EXPECT_FALSE(SimulationScreen.type.enabled);
    EXPECT_EQ(VisibleSwitches() + TickedSwitches(), 0);
    EXPECT_FALSE(SimulationScreen.number.visible || SimulationScreen.numberLabel.visible);
    EXPECT_EQ(SimulationScreen.enter, &SimulationScreen.editConfirm);
    EXPECT_EQ(SimulationScreen.escape, &SimulationScreen.editLeave);
    PickTarget('A');
    SwitchOn({1, 12});
  }
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_F(ParticipantsTest, OutsideTheEntriesADoubleClickDoesNothing) {
  Open();
  FillGrid();
  Put(24, 42, 42);
  OpenAgain();
  const Snapshot before = TakeSnapshot();
  for (const auto& [row, column] : std::vector<std::pair<int, int>>{
           {0, 0}, {0, 4}, {-1, 0}, {6, 0}, {1, 5}, {5, 5}, {1, -1}, {99, 99}}) {
    SimulationScreen.participants.DoubleClick(row, column);
    EXPECT_FALSE(Editing()) << row << " " << column;
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(ParticipantsTest, TheEditorIsDutchOrFrench) {
  for (const int language : {1, 2}) {
    const bool dutch = language == 1;
    Edit(language);
    EXPECT_EQ(SimulationScreen.editGroup.caption, dutch ? "Editeren:" : "Editer:");
    EXPECT_EQ(SimulationScreen.editConfirm.caption, dutch ? "Bevestigen" : "Confirmer");
    EXPECT_EQ(SimulationScreen.editLeave.caption, dutch ? "Verlaten" : "Quitter");
    EXPECT_EQ(SimulationScreen.type.items,
              dutch ? (Names{"Relaismodule", "Dimmodule", "Relaismodule DC", "Lumenza module"})
                    : (Names{"Module relais", "Module dim", "Module relais DC", "Module Lumenza"}));
    PickLetter('A');
    EXPECT_EQ(SimulationScreen.type.Text(), dutch ? "Module type?" : "Type module?");
    SimulationScreen.letter.Pick(ContextPlace);
    EXPECT_EQ(SimulationScreen.type.Text(), dutch ? "Sfeer" : "Contexte");
    EXPECT_EQ(SimulationScreen.numberLabel.caption, dutch ? "Sfeer:" : "Contexte:");
    SimulationScreen.letter.Pick(CodePlace);
    EXPECT_EQ(SimulationScreen.type.Text(), "Corvela");
    EXPECT_EQ(SimulationScreen.numberLabel.caption, "Code:");
  }
}

TEST_F(ParticipantsTest, TheLettersAreThoseOfModulesContextsAndCodes) {
  Edit();
  Names letters;
  for (char letter = 'A'; letter <= 'S'; ++letter) letters.emplace_back(1, letter);
  letters.emplace_back("Z");
  EXPECT_EQ(SimulationScreen.letter.items, letters);
}

TEST_F(ParticipantsTest, EveryTypeHasTwelveSwitches) {
  for (int type = Relay; type <= Lumenza; ++type) {
    Edit();
    PickLetter('A');
    EXPECT_TRUE(SimulationScreen.type.enabled);
    EXPECT_EQ(VisibleSwitches(), 0);
    SimulationScreen.type.Pick(type);
    EXPECT_EQ(VisibleSwitches(), 12);
    EXPECT_EQ(TickedSwitches(), 0);
    EXPECT_FALSE(SimulationScreen.number.visible);
    for (int number = 1; number <= 12; ++number) {
      EXPECT_TRUE(Switch(number).enabled);
      EXPECT_EQ(Switch(number).caption, Numbers(1, 12, true)[static_cast<std::size_t>(number - 1)]);
    }
  }
}

TEST_F(ParticipantsTest, ContextsAndCodesHaveAListOfNumbers) {
  Edit();
  SimulationScreen.letter.Pick(ContextPlace);
  EXPECT_FALSE(SimulationScreen.type.enabled);
  EXPECT_TRUE(SimulationScreen.number.visible && SimulationScreen.numberLabel.visible);
  EXPECT_EQ(SimulationScreen.number.items, Numbers(1, 50, false));
  EXPECT_EQ(VisibleSwitches(), 0);
  SimulationScreen.number.Pick(3);
  SimulationScreen.letter.Pick(CodePlace);
  EXPECT_FALSE(SimulationScreen.type.enabled);
  EXPECT_EQ(SimulationScreen.number.items, Numbers(1, 99, true));
  EXPECT_EQ(SimulationScreen.number.Text(), "");
  EXPECT_EQ(VisibleSwitches(), 0);
}

TEST_F(ParticipantsTest, AnotherLetterBeginsAnew) {
  Edit();
  PickTarget('A', Dimmer);
  SwitchOn({3});
  PickLetter('B');
  EXPECT_EQ(SimulationScreen.type.Index(), -1);
  EXPECT_EQ(VisibleSwitches() + TickedSwitches(), 0);
  SimulationScreen.letter.Pick(ContextPlace);
  PickLetter('A');
  EXPECT_FALSE(SimulationScreen.number.visible || SimulationScreen.numberLabel.visible);
  EXPECT_TRUE(SimulationScreen.type.enabled);
}

TEST_F(ParticipantsTest, TheModulesOwnLetterIsNoTarget) {
  Edit();
  PickTarget('A');
  SwitchOn({1});
  PickLetter('C');
  EXPECT_EQ(SimulationScreen.type.Text(), "---");
  EXPECT_FALSE(SimulationScreen.type.enabled);
  EXPECT_EQ(VisibleSwitches(), 0);
  SimulationScreen.type.Pick(Relay);
  EXPECT_EQ(VisibleSwitches(), 0);
  ExpectSilence();
}

TEST_F(ParticipantsTest, WhatIsNotCompleteIsNotStored) {
  Edit();
  ExpectSilence();
  SimulationScreen.type.Pick(Relay);
  ExpectSilence();
  PickLetter('A');
  ExpectSilence();
  SimulationScreen.letter.Pick(ContextPlace);
  ExpectSilence();
  SimulationScreen.letter.Pick(CodePlace);
  ExpectSilence();
}

TEST_F(ParticipantsTest, TheEditorTakesNoTypedText) {
  Edit();
  SimulationScreen.letter.Type("A");
  EXPECT_EQ(SimulationScreen.letter.Text(), "");
  PickLetter('A');
  SimulationScreen.type.Type("Relaismodule");
  EXPECT_EQ(SimulationScreen.type.Text(), "Module type?");
  SimulationScreen.letter.Pick(ContextPlace);
  SimulationScreen.number.Type("7");
  ExpectSilence();
}

TEST_F(ParticipantsTest, WithNoSwitchOnNothingIsStoredAndTheEditorCloses) {
  Edit();
  PickTarget('A');
  SwitchOn({4});
  Switch(4).Set(false);
  const Snapshot before = TakeSnapshot();
  Confirm();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(Editing());
  ExpectSignal(false);
}

TEST_F(ParticipantsTest, LeavingTheEditorStoresNothing) {
  Edit();
  PickTarget('A');
  SwitchOn({1, 2});
  const Snapshot before = TakeSnapshot();
  SimulationScreen.editLeave.Click();
  EXPECT_FALSE(Editing());
  EXPECT_TRUE(SimulationScreen.shown);
  EXPECT_EQ(SimulationScreen.enter, nullptr);
  EXPECT_EQ(SimulationScreen.escape, nullptr);
  Confirm();
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(AllShown(), "");
  ExpectSignal(false);
}

TEST_F(ParticipantsTest, OpenedAgainTheEditorIsClosed) {
  Edit();
  PickTarget('A');
  SwitchOn({1});
  OpenAgain();
  EXPECT_FALSE(Editing());
  EXPECT_EQ(SimulationScreen.participants.CurrentRow(), 0);
  const Snapshot before = TakeSnapshot();
  Confirm();
  ExpectOnlyChanged(before, {});
}

// --- Adding -------------------------------------------------------------------------------------

TEST_F(ParticipantsTest, EachSwitchThatIsOnBecomesAnEntry) {
  for (int type = Relay; type <= Lumenza; ++type) {
    Edit();
    const Snapshot before = TakeSnapshot();
    PickTarget('R', type);
    SwitchOn({12, 1, 3});
    Confirm();
    ExpectCells(0, 'R', "0");
    ExpectCells(1, 'R', "2");
    ExpectCells(2, 'R', "11");
    ExpectOnlyChanged(
        before, {NameOf(135), NameOf(136), NameOf(137), NameOf(138), NameOf(139), NameOf(140)});
    EXPECT_EQ(AllShown(), "R01 R03 R12");
    EXPECT_FALSE(Editing());
    EXPECT_EQ(SimulationScreen.enter, nullptr);
    ExpectSignal(true);
  }
}

TEST_F(ParticipantsTest, AllTwelveSwitchesAreStoredInTheirOrder) {
  Edit();
  PickTarget('A', Dimmer);
  for (int number = 12; number >= 1; --number) SwitchOn({number});
  Confirm();
  EXPECT_EQ(AllShown(), "A01 A02 A03 A04 A05 A06 A07 A08 A09 A10 A11 A12");
  for (int output = 0; output < 12; ++output) ExpectCells(output, 'A', std::to_string(output));
}

TEST_F(ParticipantsTest, AContextIsOneEntryWithANumber) {
  for (const int number : {1, 7, 50}) {
    Edit();
    const Snapshot before = TakeSnapshot();
    SimulationScreen.letter.Pick(ContextPlace);
    SimulationScreen.number.Pick(number - 1);
    Confirm();
    ExpectCells(0, 83, number - 1);
    ExpectOnlyChanged(before, {NameOf(135), NameOf(136)});
    EXPECT_EQ(AllShown(), "S" + Numbers(1, 50, true)[static_cast<std::size_t>(number - 1)]);
    EXPECT_FALSE(Editing());
    ExpectSignal(true);
  }
}

TEST_F(ParticipantsTest, ACodeIsOneEntryWithANumber) {
  for (const int number : {1, 12, 99}) {
    Edit();
    const Snapshot before = TakeSnapshot();
    SimulationScreen.letter.Pick(CodePlace);
    SimulationScreen.number.Pick(number - 1);
    Confirm();
    ExpectCells(0, 90, number - 1);
    ExpectOnlyChanged(before, {NameOf(135), NameOf(136)});
    EXPECT_EQ(AllShown(), "Z" + Numbers(1, 99, true)[static_cast<std::size_t>(number - 1)]);
    ExpectSignal(true);
  }
}

TEST_F(ParticipantsTest, WhatIsAddedTakesTheFirstFreeEntriesWhereverTheClickWas) {
  Open();
  Put(0, 'B', 0);
  Put(2, 'B', 1);
  Put(3, 'S', 4);
  // Free, whatever stands there.
  Put(1, 0, 7);
  Put(4, "*", "*");
  Put(5, 'Z', 5);
  OpenAgain();
  const Snapshot before = TakeSnapshot();
  DoubleClick(24);
  PickTarget('A');
  SwitchOn({2, 5, 9});
  Confirm();
  EXPECT_EQ(AllShown(), "B01 A02 B02 S05 A05 Z06 A09");
  ExpectCells(1, 'A', "1");
  ExpectCells(4, 'A', "4");
  ExpectCells(6, 'A', "8");
  ExpectOnlyChanged(before, {NameOf(137, 138), NameOf(143, 144), NameOf(147, 148)});
}

TEST_F(ParticipantsTest, WhatFindsNoFreeEntryIsDropped) {
  Open();
  FillGrid();
  Put(24, 42, 42);
  Put(10, 42, 42);
  OpenAgain();
  const Snapshot before = TakeSnapshot();
  DoubleClick(24);
  PickTarget('D');
  SwitchOn({2, 4, 6, 8, 10, 12});
  Confirm();
  ExpectCells(10, 'D', "1");
  ExpectCells(24, 'D', "3");
  ExpectOnlyChanged(before, {NameOf(155, 156), NameOf(183, 184)});
  EXPECT_EQ(Shown(24), "D04");
  EXPECT_FALSE(Editing());
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(ParticipantsTest, TheSameCanBeAddedTwice) {
  Edit();
  for (int times = 0; times < 2; ++times) {
    DoubleClick(5);
    PickTarget('A');
    SwitchOn({1});
    Confirm();
  }
  EXPECT_EQ(AllShown(), "A01 A01");
}

// --- Deleting -----------------------------------------------------------------------------------

TEST_F(ParticipantsTest, TheFirstOfAFullGridLeavesTheLastEntryFree) {
  Open();
  FillGrid();
  const Snapshot before = TakeSnapshot();
  DoubleClick(0);
  EXPECT_EQ(AllShown(),
            "A02 A03 A04 A05 A06 A07 A08 A09 A10 A11 A12 B01 B02 B03 B04 B05 B06 B07 B08 B09 B10 "
            "B11 B12 S07");
  EXPECT_EQ(Shown(24), "*");
  // Each keeps its form.
  ExpectCells(0, 'A', "1");
  ExpectCells(11, 'B', 0);
  ExpectCells(23, 'S', 6);
  ExpectCells(24, 42, 42);
  ExpectOnlyChanged(before, {NameOf(135, 184)});
  ExpectSignal(true);
  EXPECT_FALSE(Editing());
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(ParticipantsTest, OneInTheMiddleMovesOnlyTheEntriesBehindIt) {
  Open();
  FillGrid();
  const Snapshot before = TakeSnapshot();
  DoubleClick(23);
  EXPECT_EQ(Shown(22), "B11");
  EXPECT_EQ(Shown(23), "S07");
  EXPECT_EQ(Shown(24), "*");
  ExpectCells(23, 'S', 6);
  ExpectCells(24, 42, 42);
  ExpectOnlyChanged(before, {NameOf(181, 184)});
}

TEST_F(ParticipantsTest, TheLastOneIsJustFreed) {
  Open();
  FillGrid();
  const Snapshot before = TakeSnapshot();
  DoubleClick(24);
  ExpectCells(24, 42, 42);
  ExpectOnlyChanged(before, {NameOf(183), NameOf(184)});
  EXPECT_EQ(Shown(23), "B12");
  EXPECT_EQ(Shown(24), "*");
}

TEST_F(ParticipantsTest, FreeEntriesMoveUpWithTheOthers) {
  Open();
  Put(0, 'A', 0);
  Put(1, 0, 7);
  Put(2, 'B', "3");
  OpenAgain();
  const Snapshot before = TakeSnapshot();
  DoubleClick(0);
  ExpectCells(0, 0, 7);
  ExpectCells(1, 'B', "3");
  ExpectCells(2, 42, 42);
  EXPECT_EQ(AllShown(), "* B04");
  ExpectOnlyChanged(before, {NameOf(135, 136), NameOf(137, 138), NameOf(139, 140)});
}

TEST_F(ParticipantsTest, AGridCanBeEmptiedOneByOne) {
  Open();
  FillGrid();
  for (int left = 24; left >= 0; --left) {
    DoubleClick(left % 2 == 0 ? 0 : left);
    EXPECT_EQ(Shown(left), "*");
  }
  EXPECT_EQ(AllShown(), "");
  for (int cell = 135; cell <= 184; ++cell) EXPECT_EQ(At(cell), Cell(42)) << cell;
}

TEST_F(ParticipantsTest, DeletingClosesTheEditor) {
  Open();
  Put(0, 'A', 0);
  OpenAgain();
  DoubleClick(1);
  PickTarget('B');
  SwitchOn({1});
  DoubleClick(0);
  EXPECT_FALSE(Editing());
  EXPECT_EQ(AllShown(), "");
  Confirm();
  EXPECT_EQ(AllShown(), "");
}

// --- Anything at all ----------------------------------------------------------------------------

bool IsBetween(const Cell& cell, int lowest, int highest) {
  const auto number = cell.WholeNumber();
  return number && *number >= lowest && *number <= highest;
}

bool IsParticipant(const Cell& target, const Cell& index) {
  if (target == Cell(42)) return index == Cell(42);
  if (target == Cell(83)) return index.IsNumber() && IsBetween(index, 0, 49);
  if (target == Cell(90)) return index.IsNumber() && IsBetween(index, 0, 98);
  return target.IsNumber() && IsBetween(target, 'A', 'R') && target != Cell('C') &&
         index.IsText() && IsBetween(index, 0, 11);
}

void ExpectRanges(int step) {
  const Table& image = SimulationImage;
  bool good = IsBetween(image[123], 0, 1) && IsBetween(image[130], 0, 1) &&
              IsBetween(image[132], 0, 4) &&
              (IsBetween(image[125], 1, 50) || image[125] == Cell(60));
  for (const int from : {126, 128}) {
    good = good && IsBetween(image[from], 0, 23) && IsBetween(image[from + 1], 1, 25);
  }
  for (int cell = 135; cell < 185; cell += 2) {
    good = good && IsParticipant(image[cell], image[cell + 1]);
  }
  if (good) return;
  std::string cells;
  for (int cell = 123; cell < 185; ++cell) cells += image[cell].Text() + " ";
  FAIL() << "step " << step << ": " << cells;
}

TEST_F(ParticipantsTest, TenThousandRandomEditsChangeNoCellButThoseOfTheScreen) {
  Open();
  At(123) = "0";
  At(132) = "2";
  for (int participant = 0; participant < 12; ++participant) Put(participant, 'A', "3");
  const int conditions[] = {30, 3, 7, 8, 9, 0};
  for (int i = 0; i < 6; ++i) At(125 + i) = conditions[i];
  OpenAgain();
  const Snapshot before = TakeSnapshot();
  RandomEdits edits(SimulationScreen, 11, {"leave", "editLeave", "participants"});
  std::size_t longest = 0;
  std::size_t shortest = 99;
  for (int step = 0; step < 10'000; ++step) {
    // Often enough to fill and to empty entries, and seldom enough to end what was begun.
    if (step % 40 == 0) {
      edits.StepIn(SimulationScreen.participants);
    } else {
      edits.Step();
    }
    ASSERT_NO_FATAL_FAILURE(ExpectRanges(step));
    longest = std::max(longest, AllShown().size());
    shortest = std::min(shortest, AllShown().size());
  }
  ExpectOnlyChanged(before, {NameOf(123), NameOf(125, 130), NameOf(132), NameOf(135, 184)});
  EXPECT_TRUE(messages.told.empty());
  EXPECT_TRUE(SimulationScreen.shown);
  // Some were added, and some were deleted.
  EXPECT_GE(longest, 14U * 4);
  EXPECT_LE(shortest, 9U * 4);
}

}  // namespace
}  // namespace bkconf
