#include "master/program_screen.h"

#include <string>
#include <utility>

#include "link/transfer.h"
#include "master/module_page.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {
namespace {

/// Column of the action's code. It tells whether a row is used; the number stands in every row.
constexpr int ActionPlace = 1;
constexpr int Columns = 4;

}  // namespace

ProgramScreen::ProgramScreen(std::string_view screenName, const ProgramList& list,
                             const PickerVariant& variant)
    : Screen(screenName),
      listLabel(*this, "listLabel"),
      memoryLabel(*this, "memoryLabel"),
      memory(*this, "memory"),
      programs(*this, "programs"),
      descriptionGroup(*this, "descriptionGroup"),
      description(*this, "description"),
      deleteGroup(*this, "deleteGroup"),
      deleteQuestion(*this, "deleteQuestion"),
      deleteYes(*this, "deleteYes"),
      deleteNo(*this, "deleteNo"),
      editGroup(*this, "editGroup"),
      picker(*this, "picker", variant),
      editConfirm(*this, "editConfirm"),
      editLeave(*this, "editLeave"),
      leave(*this, "leave"),
      list_(list) {}

/// Question and editor exclude each other; null closes both. Enter and Escape mean the buttons of
/// the one that is open.
void ProgramScreen::ShowPanel(const GroupField* panel) {
  const bool edits = panel == &editGroup;
  const bool asks = panel == &deleteGroup;
  editGroup.visible = edits;
  deleteGroup.visible = asks;
  enter = edits ? &editConfirm : asks ? &deleteYes : nullptr;
  escape = edits ? &editLeave : asks ? &deleteNo : nullptr;
}

void ProgramScreen::SignalListChange() {
  list_.dirty = 1;
  SignalChange();
}

// --- The list -----------------------------------------------------------------------------------

void ProgramScreen::Draw(Drawing drawing) {
  int free = 0;
  for (int slot = 0; slot < list_.programs.slots; ++slot) {
    const int row = slot + 1;
    programs.Put(row, 0, std::to_string(row));
    if (IsFree(list_.programs, slot)) {
      ++free;
      for (int column = 1; column < Columns; ++column) programs.Put(row, column, "");
      continue;
    }
    programs.Put(row, ActionPlace, ActionCodeOf(list_.programs, slot));
    DrawMoment(row, CellOf(list_.programs, slot), drawing);
  }
  memory.caption = std::to_string(free);
}

void ProgramScreen::ShowDescription(int row) {
  description.caption = MasterActionSentence(programs.At(row, ActionPlace), list_.sentences);
}

void ProgramScreen::DoubleClick(int row) {
  if (row == 0) return;
  if (!editGroup.visible) {
    if (!programs.At(row, ActionPlace).empty()) {
      rowToDelete_ = row;
      ShowPanel(&deleteGroup);
      return;
    }
    if (deleteGroup.visible) return;
  }
  OpenEditor();
}

// --- The panels ---------------------------------------------------------------------------------

/// An editor that is open already begins anew.
void ProgramScreen::OpenEditor() {
  ClearMoment();
  picker.Reset();
  ShowPanel(&editGroup);
}

/// The first free slot takes the programme, whichever was clicked. What is not complete is not
/// stored, and nothing is said.
void ProgramScreen::Store() {
  if (!editGroup.visible) return;
  int row = 1;
  while (row <= programs.Rows() && !programs.At(row, ActionPlace).empty()) ++row;
  const auto cells = picker.Compose();
  if (row > programs.Rows() || !cells || !IsMomentComplete()) return;
  SignalListChange();
  ShowPanel(nullptr);
  const int cell = CellOf(list_.programs, row - 1);
  StoreMoment(cell);
  PutAction(list_.programs.table, cell + list_.programs.action, *cells);
  Draw(Drawing::AfterChange);
  ShowDescription(programs.CurrentRow());
}

void ProgramScreen::Delete() {
  if (!deleteGroup.visible) return;
  SignalListChange();
  DeleteSlot(list_.programs, rowToDelete_ - 1);
  Draw(Drawing::AfterChange);
  ShowDescription(programs.CurrentRow());
  ShowPanel(nullptr);
}

// --- Opening ------------------------------------------------------------------------------------

void ProgramScreen::LoadList(std::vector<GridField::Column> momentColumns) {
  ShowAll({
      {listLabel.caption, list_.title},
      {memoryLabel.caption, TextId::FreeMemory},
      {programs.toolTip, TextId::EditHint},
      {descriptionGroup.caption, TextId::DescriptionTitle},
      {deleteGroup.caption, TextId::DeleteTitle},
      {deleteQuestion.caption, TextId::DeleteProgram},
      {deleteYes.caption, TextId::Yes},
      {deleteNo.caption, TextId::No},
      {editGroup.caption, TextId::EditTitle},
      {editConfirm.caption, TextId::Confirm},
      {editLeave.caption, TextId::Leave},
      {leave.caption, TextId::Leave},
  });
  programs.columns = {{std::string(Text(TextId::NumberColumn)), 500},
                      {std::string(Text(TextId::ActionColumn)), 1500}};
  for (GridField::Column& column : momentColumns) programs.columns.push_back(std::move(column));
  programs.Resize(list_.programs.slots);
  picker.Load();
  picker.onTarget = [this] { ShowMoment(picker.TargetKnown()); };
  programs.onSelect = [this](int row, int) { ShowDescription(row); };
  programs.rowIsEntry = true;
  programs.onDoubleClick = [this](int row, int) { DoubleClick(row); };
  deleteYes.onClick = [this] { Delete(); };
  deleteNo.onClick = [this] { ShowPanel(nullptr); };
  editConfirm.onClick = [this] { Store(); };
  editLeave.onClick = [this] { ShowPanel(nullptr); };
  leave.onClick = [this] { Close(); };
  Listen(list_.read, [this] { Open(Drawing::AfterRead); });
}

void ProgramScreen::Open(Drawing drawing) {
  SelectMaster();
  title = ModuleTitle();
  programs.Blank();
  programs.ClearSelection();
  description.caption.clear();
  ClearMoment();
  picker.Close();
  ShowPanel(nullptr);
  Draw(drawing);
  shown = true;
}

void ProgramScreen::Enter() {
  if (list_.loaded.Number() == 1) {
    Open(Drawing::OnOpening);
    return;
  }
  SelectMaster();
  list_.programs.table.Fill(0, list_.programs.table.Size() - 1, EmptyCell);
  StartRequest(list_.command);
}

}  // namespace bkconf
