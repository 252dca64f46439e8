#include "master/context_screen.h"

#include <string>

#include "actions/action_code.h"
#include "actions/action_sentence.h"
#include "image/commands.h"
#include "link/transfer.h"
#include "master/context_table.h"
#include "master/module_page.h"
#include "platform/machine.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {

ContextScreenFields::ContextScreenFields()
    : Screen("ContextScreen"),
      chooserLabel(*this, "chooserLabel"),
      chooser(*this, "chooser"),
      memoryLabel(*this, "memoryLabel"),
      memory(*this, "memory"),
      actions(*this, "actions"),
      hint(*this, "hint"),
      descriptionGroup(*this, "descriptionGroup"),
      description(*this, "description"),
      deleteGroup(*this, "deleteGroup"),
      deleteAction(*this, "deleteAction", nullptr),
      deleteContext(*this, "deleteContext", &deleteAction),
      deleteConfirm(*this, "deleteConfirm"),
      deleteCancel(*this, "deleteCancel"),
      editGroup(*this, "editGroup"),
      picker(*this, "picker", ContextPicker),
      editConfirm(*this, "editConfirm"),
      editLeave(*this, "editLeave"),
      leave(*this, "leave") {}

namespace {

constexpr int GridRows = 20;
constexpr int GridColumns = 5;
constexpr int LastAction = ContextCells - ActionSize;
/// Behind the last action that is drawn, the cells up to this one are emptied before packing.
/// Only half of a context is emptied behind its end. It is kept so, on purpose.
constexpr int LastCleanedCell = 149;

/// The first cell of the action that the open frame is about.
int target = 0;
int freeActions = 0;

/// The frames exclude each other; null closes both. Enter and Escape mean the buttons of the one
/// that is open.
void ShowFrame(const GroupField* frame) {
  const bool edits = frame == &ContextScreen.editGroup;
  const bool deletes = frame == &ContextScreen.deleteGroup;
  ContextScreen.editGroup.visible = edits;
  ContextScreen.deleteGroup.visible = deletes;
  ContextScreen.enter = edits     ? &ContextScreen.editConfirm
                        : deletes ? &ContextScreen.deleteConfirm
                                  : nullptr;
  ContextScreen.escape = edits     ? &ContextScreen.editLeave
                         : deletes ? &ContextScreen.deleteCancel
                                   : nullptr;
}

/// Part of an action counts as a whole one that does not fit.
void ShowFreeCells(int cells) {
  freeActions = cells / ActionSize;
  ContextScreen.memory.caption = std::to_string(freeActions);
}

// --- The grid -----------------------------------------------------------------------------------

int CellOf(int row, int column) {
  return ((row - 1) * GridColumns + column) * ActionSize;
}

/// Gives the cell at which the drawing stopped: the first 42, or the end of the list.
int Draw(ValueForm form) {
  const int context = ContextScreen.chooser.Index();
  ContextScreen.actions.Blank();
  for (int row = 1; row <= GridRows; ++row) {
    for (int column = 0; column < GridColumns; ++column) {
      const int cell = CellOf(row, column);
      const Cell& letter = ContextCell(context, cell);
      if (letter.Number() == EmptyCell) return cell;
      ContextScreen.actions.Put(
          row, column,
          ActionCode(letter, ContextCell(context, cell + 1), ContextCell(context, cell + 2), form));
    }
  }
  return ContextCells;
}

void ShowDescription(int row, int column) {
  ContextScreen.description.caption =
      MasterActionSentence(ContextScreen.actions.At(row, column), ContextSentences);
}

void PickContext() {
  ShowFrame(nullptr);
  ContextScreen.actions.ClearSelection();
  ContextScreen.description.caption.clear();
  Draw(ValueForm::OneBasedInBlocks);
}

/// What every change ends in: the table of the master is made anew.
void Finish(ValueForm form) {
  const int context = ContextScreen.chooser.Index();
  MasterContextsDirty = 1;
  SignalChange();
  for (int cell = Draw(form); cell <= LastCleanedCell; ++cell) {
    ContextCell(context, cell) = EmptyCell;
  }
  ShowFreeCells(PackContexts());
  ShowDescription(ContextScreen.actions.CurrentRow(), ContextScreen.actions.CurrentColumn());
  ShowFrame(nullptr);
}

// --- Double click -------------------------------------------------------------------------------

void AskDelete(int cell) {
  target = cell;
  ContextScreen.deleteAction.Show();
  ShowFrame(&ContextScreen.deleteGroup);
}

/// The place of the first action that is not there yet. There is one: an empty place was clicked.
int FirstEmptyCell() {
  for (int cell = 0; cell < ContextCells; cell += ActionSize) {
    const int place = cell / ActionSize;
    if (ContextScreen.actions.At(place / GridColumns + 1, place % GridColumns).empty()) return cell;
  }
  return LastAction;
}

void OpenEditor() {
  if (ContextCell(ContextScreen.chooser.Index(), LastAction).Number() != EmptyCell) {
    Messages->Tell(ContextScreen.chooser.Text() + std::string(Text(TextId::ContextFull)));
  } else if (freeActions <= 0) {
    Messages->Tell(std::string(Text(TextId::MemoryFull)));
  } else {
    target = FirstEmptyCell();
    ContextScreen.picker.Reset();
    ShowFrame(&ContextScreen.editGroup);
  }
}

void DoubleClick(int row, int column) {
  if (row == 0 || ContextScreen.chooser.Index() < 0) return;
  if (ContextScreen.editGroup.visible) {
    ContextScreen.description.caption.clear();
  } else if (ContextScreen.actions.At(row, column).empty()) {
    OpenEditor();
  } else {
    AskDelete(CellOf(row, column));
  }
}

// --- The frames ---------------------------------------------------------------------------------

/// What would lie beyond the last action of the context is dropped.
void ConfirmEdit() {
  if (!ContextScreen.editGroup.visible) return;
  const auto actions = ContextScreen.picker.ComposeEach();
  if (actions.empty()) return;
  const int context = ContextScreen.chooser.Index();
  int cell = target;
  for (const ActionCells& cells : actions) {
    if (cell > LastAction) break;
    for (const Cell& each : cells) ContextCell(context, cell++) = each;
  }
  Finish(ValueForm::OneBasedInBlocks);
}

/// The actions behind it move up. One of them that is a Corvela code counts as the end of the list:
/// it moves up, and 42 takes its place. What stands behind that is emptied by `Finish`, though only
/// up to `LastCleanedCell`: actions farther back stay, moved up and out of sight. It is kept so, on
/// purpose.
void DeleteAction(int context) {
  for (int cell = target; cell <= LastAction; cell += ActionSize) {
    const bool moves = cell < LastAction && HoldsModuleOrContextAction(ContextCell(context, cell));
    for (int i = 0; i < ActionSize; ++i) {
      ContextCell(context, cell + i) =
          moves ? ContextCell(context, cell + ActionSize + i) : Cell(EmptyCell);
    }
  }
}

/// Corvela codes and values of audio zones are shown one lower from here to the next drawing. It is
/// kept so, on purpose.
void ConfirmDelete() {
  if (!ContextScreen.deleteGroup.visible) return;
  const int context = ContextScreen.chooser.Index();
  if (ContextScreen.deleteContext.Chosen()) {
    EmptyContext(context);
  } else {
    DeleteAction(context);
  }
  Finish(ValueForm::AsStored);
}

// --- Opening ------------------------------------------------------------------------------------

void ShowCaptions() {
  ShowAll({
      {ContextScreen.chooserLabel.caption, TextId::ContextsTitle},
      {ContextScreen.memoryLabel.caption, TextId::FreeMemory},
      {ContextScreen.hint.caption, TextId::EditHint},
      {ContextScreen.descriptionGroup.caption, TextId::DescriptionTitle},
      {ContextScreen.deleteGroup.caption, TextId::DeleteTitle},
      {ContextScreen.deleteAction.caption, TextId::DeleteAction},
      {ContextScreen.deleteContext.caption, TextId::DeleteContext},
      {ContextScreen.deleteConfirm.caption, TextId::Confirm},
      {ContextScreen.deleteCancel.caption, TextId::Annul},
      {ContextScreen.editGroup.caption, TextId::EditTitle},
      {ContextScreen.editConfirm.caption, TextId::Confirm},
      {ContextScreen.editLeave.caption, TextId::Leave},
      {ContextScreen.leave.caption, TextId::Leave},
  });
}

void LayOut() {
  constexpr int width = 1000;
  ContextScreen.actions.columns.assign(GridColumns, {"", width});
  ContextScreen.actions.Resize(GridRows);
  ContextScreen.chooser.items.clear();
  for (int number = 1; number <= ContextCount; ++number) {
    ContextScreen.chooser.items.push_back(std::string(Text(TextId::ContextSentence)) +
                                          std::to_string(number));
  }
}

void Open() {
  ShowFreeCells(UnpackContexts());
  ContextScreen.title = ModuleTitle();
  ContextScreen.chooser.Show(Text(TextId::ContextPrompt));
  ContextScreen.actions.Blank();
  ContextScreen.actions.ClearSelection();
  ContextScreen.description.caption.clear();
  ContextScreen.picker.Close();
  ShowFrame(nullptr);
  ContextScreen.shown = true;
}

}  // namespace

void LoadContextScreen() {
  ShowCaptions();
  LayOut();
  ResetContextWork();
  ContextScreen.picker.Load();
  ContextScreen.chooser.onPick = PickContext;
  ContextScreen.actions.onSelect = ShowDescription;
  ContextScreen.actions.onDoubleClick = DoubleClick;
  ContextScreen.deleteConfirm.onClick = ConfirmDelete;
  ContextScreen.deleteCancel.onClick = [] { ShowFrame(nullptr); };
  ContextScreen.editConfirm.onClick = ConfirmEdit;
  ContextScreen.editLeave.onClick = [] { ShowFrame(nullptr); };
  ContextScreen.leave.onClick = [] { ContextScreen.Close(); };
  Listen(LinkEvent::ContextsRead, OpenContextScreen);
}

void OpenContextScreen() {
  SelectMaster();
  if (MasterContextsLoaded.Number() == 1) {
    Open();
  } else {
    ResetContexts();
    StartRequest(Read1);
  }
}

}  // namespace bkconf
