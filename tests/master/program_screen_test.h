// The fixture of the tests of a master's time and light programmes: their screen, opened as a
// person opens it. What both have alike is tested on both.
#pragma once

#include <string>
#include <vector>

#include "image/tables.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "support/session_test.h"

namespace bkconf {

enum class WhichList { Time, Light };

/// The cells of a slot.
using Slot = std::vector<Cell>;

class ProgramScreenTest : public SessionTest {
 protected:
  explicit ProgramScreenTest(WhichList which);

  const bool light;
  ProgramScreen& screen;
  Table& table;
  Cell& loaded;
  Cell& dirty;
  const int slots;
  const int slotSize;
  Date today{2026, 3, 7};

  /// A master with modules 'A' to 'J', one of each kind, and these programmes from row 1 on, as a
  /// file brings it; and the screen.
  void Open(const std::vector<Slot>& list = {}, int language = 1);
  /// The same with the editor, on the last row.
  void OpenEditor(const std::vector<Slot>& list = {}, int language = 1);
  void OpenAgain();
  void DoubleClick(int row, int column = 1) { screen.programs.DoubleClick(row, column); }
  void Delete(int row);

  void PutSlot(int row, const Slot& cells);
  void ExpectSlot(int row, const Slot& cells) const;
  /// The slots from row 1 on, and 42 in all others.
  void ExpectSlots(const std::vector<Slot>& list) const;
  /// "TimeProgramTable[9..17]", for ExpectOnlyChanged.
  std::string NameOf(int row) const;

  /// "A0101, 07:05, Maandag": what stands behind the number of a row.
  std::string Row(int row) const;
  /// The rows from the first on; the others are blank but for their number.
  void ExpectRows(const std::vector<std::string>& rows) const;
  void ExpectMemory(int free) const { EXPECT_EQ(screen.memory.caption, std::to_string(free)); }
  void ExpectPanels(bool asks, bool edits) const;
  /// The press changes no cell, no row and no panel, and there is nothing to send.
  void ExpectNoChange(const ButtonField& button);
  void ExpectRefused() { ExpectNoChange(screen.editConfirm); }

  static void Pick(ListField& list, const std::string& text);
  void PickLetter(char letter) { Pick(screen.picker.letter, std::string(1, letter)); }
  void PickOutput(const std::string& output) { Pick(screen.picker.output.list, output); }
  void PickAction(const std::string& action) { Pick(screen.picker.action.list, action); }
  /// Every field of the editor: at 07:05 on Mondays, or when it gets darker than 20.
  void FillMoment();
  void Choose(char letter, const std::string& output, const std::string& action);
  void Confirm() { screen.editConfirm.Click(); }

  /// A slot with that action at the same moment, as a module holds it.
  Slot At(const Slot& action) const;
  /// The same as the editor stores it.
  Slot StoredAt(const Slot& action) const;
  /// Output 1 on, of a module.
  Slot On(char letter) const { return At({int{letter}, 0, 1}); }
  Slot Free() const { return Slot(static_cast<std::size_t>(slotSize), 42); }
  /// What such a row shows behind its code.
  std::string Moment() const { return light ? ", Licht -> Donker, 20" : ", 07:05, Maandag"; }
};

class TimeProgramTest : public ProgramScreenTest {
 protected:
  TimeProgramTest() : ProgramScreenTest(WhichList::Time) {}
};

class LightProgramTest : public ProgramScreenTest {
 protected:
  LightProgramTest() : ProgramScreenTest(WhichList::Light) {}
};

/// Both screens, one after the other.
class EachProgramTest : public ProgramScreenTest, public testing::WithParamInterface<WhichList> {
 protected:
  EachProgramTest() : ProgramScreenTest(GetParam()) {}
};

}  // namespace bkconf
