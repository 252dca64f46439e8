#include "master/module_page.h"

#include <algorithm>
#include <array>
#include <string>

#include "image/commands.h"
#include "image/module_directory.h"
#include "link/link_events.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "text/windows1252.h"

namespace bkconf {

ModulePageFields::ModulePageFields(Screen& ofScreen)
    : screen(ofScreen),
      page(ofScreen, "modulePage"),
      listLabel(ofScreen, "modulesLabel"),
      modules(ofScreen, "modules"),
      scan(ofScreen, "scan"),
      clockGroup(ofScreen, "clockGroup"),
      clockText(ofScreen, "clockText"),
      downLabel(ofScreen, "downLabel"),
      down(ofScreen, "down"),
      upLabel(ofScreen, "upLabel"),
      up(ofScreen, "up"),
      addGroup(ofScreen, "addGroup"),
      addHeading(ofScreen, "addHeading"),
      addLetterLabel(ofScreen, "addLetterLabel"),
      addLetter(ofScreen, "addLetter"),
      addTypeLabel(ofScreen, "addTypeLabel"),
      addType(ofScreen, "addType"),
      addConfirm(ofScreen, "addConfirm"),
      addLeave(ofScreen, "addLeave"),
      deleteGroup(ofScreen, "deleteGroup"),
      deleteQuestion(ofScreen, "deleteQuestion"),
      deleteYes(ofScreen, "deleteYes"),
      deleteNo(ofScreen, "deleteNo") {
  page.visible = addGroup.visible = deleteGroup.visible = false;
  // The heading stands over both lists; these are what a screen reader calls them.
  addLetterLabel.visible = addTypeLabel.visible = false;
}

namespace {

constexpr int LongestCorrection = 15;
/// Cells of ButtonImage.
constexpr int DownCell = 120;
constexpr int UpCell = 121;

struct ListedType {
  int code;
  TextId name;
  TextId nameInAddList;
};

/// In the order of the list of types to add. Code 9 is the master itself and 10 is free, so the
/// last place means 11.
constexpr auto ListedTypes = std::to_array<ListedType>({
    {0, TextId::RelayModule, TextId::RelayModule},
    {1, TextId::DimType, TextId::DimType},
    {2, TextId::TemperatureModule, TextId::TemperatureType},
    {3, TextId::DisplayListed, TextId::DisplayListed},
    {4, TextId::RelayDcModule, TextId::RelayDcModule},
    {5, TextId::AlarmModule, TextId::AlarmModule},
    {6, TextId::AudioInterface, TextId::AudioInterface},
    {7, TextId::SimulationModule, TextId::SimulationModule},
    {8, TextId::IrModule, TextId::IrModule},
    {11, TextId::LumenzaModule, TextId::LumenzaModule},
});

ModulePageFields* fields = nullptr;
/// The row that the question is about.
int rowToDelete = 0;

void SignalListChange() {
  MasterBaseDirty = 1;
  SignalChange();
}

/// Question and panel to add exclude each other; null closes both. Enter and Escape mean the
/// buttons of the one that is open.
void ShowPanel(const GroupField* panel) {
  const bool adds = panel == &fields->addGroup;
  const bool asks = panel == &fields->deleteGroup;
  fields->addGroup.visible = adds;
  fields->deleteGroup.visible = asks;
  fields->screen.enter = adds ? &fields->addConfirm : asks ? &fields->deleteYes : nullptr;
  fields->screen.escape = adds ? &fields->addLeave : asks ? &fields->deleteNo : nullptr;
}

// --- The list -----------------------------------------------------------------------------------

bool IsFree(const Cell& letter) {
  return letter.Number() == EmptyCell;
}

std::string TypeName(const Cell& type) {
  const auto code = type.WholeNumber();
  const auto row = std::find_if(ListedTypes.begin(), ListedTypes.end(),
                                [code](const ListedType& each) { return code == each.code; });
  return row == ListedTypes.end() ? "" : std::string(Text(row->name));
}

/// The first free place ends the list.
void DrawList() {
  fields->modules.Blank();
  for (int row = 0; row < DirectoryRows && !IsFree(DirectoryLetter(row)); ++row) {
    const int letter = DirectoryLetter(row).Whole();
    fields->modules.Put(row + 1, 0, std::to_string(row + 1));
    fields->modules.Put(row + 1, 1, letter < ' ' ? "" : CharacterOf(letter));
    fields->modules.Put(row + 1, 2, TypeName(DirectoryType(row)));
  }
}

void Scan() {
  for (int row = 0; row < DirectoryRows; ++row) {
    DirectoryLetter(row) = DirectoryType(row) = EmptyCell;
  }
  fields->modules.Blank();
  ShowPanel(nullptr);
  StartRequest(Test4);
}

// --- Add and delete -----------------------------------------------------------------------------

/// Whatever stands beside it: a letter cannot stand in the list twice.
bool IsListed(char letter) {
  int row = 0;
  while (row < DirectoryRows && DirectoryLetter(row).Number() != letter) ++row;
  return row < DirectoryRows;
}

void OpenAdd() {
  fields->addLetter.items.clear();
  for (char letter = 'A'; letter <= 'R'; ++letter) {
    if (!IsListed(letter)) fields->addLetter.items.emplace_back(1, letter);
  }
  fields->addType.items.clear();
  for (const ListedType& row : ListedTypes) {
    fields->addType.items.emplace_back(Text(row.nameInAddList));
  }
  fields->addLetter.Clear();
  fields->addType.Clear();
  ShowPanel(&fields->addGroup);
}

/// Any cell of a row that shows something stands for its module.
void DoubleClick(int row, int) {
  if (row == 0 || fields->addGroup.visible) return;
  if (!fields->modules.At(row, 0).empty()) {
    rowToDelete = row;
    ShowPanel(&fields->deleteGroup);
  } else if (!fields->deleteGroup.visible) {
    OpenAdd();
  }
}

/// The first row without a letter, counted from 0; none when all are taken.
int FirstEmptyRow() {
  int row = 0;
  while (row < DirectoryRows && !fields->modules.At(row + 1, 1).empty()) ++row;
  return row;
}

void ConfirmAdd() {
  if (!fields->addGroup.visible) return;
  if (fields->addLetter.Index() < 0 || fields->addType.Index() < 0) return;
  const int row = FirstEmptyRow();
  if (row == DirectoryRows) return;
  DirectoryLetter(row) = static_cast<int>(fields->addLetter.Text().front());
  DirectoryType(row) = ListedTypes[static_cast<std::size_t>(fields->addType.Index())].code;
  ShowPanel(nullptr);
  DrawList();
  SignalListChange();
}

/// What is kept moves up into the free places.
void PackList() {
  int kept = 0;
  for (int row = 0; row < DirectoryRows; ++row) {
    if (IsFree(DirectoryLetter(row))) continue;
    DirectoryLetter(kept) = DirectoryLetter(row);
    DirectoryType(kept) = DirectoryType(row);
    ++kept;
  }
  for (; kept < DirectoryRows; ++kept) {
    DirectoryLetter(kept) = DirectoryType(kept) = EmptyCell;
  }
}

void ConfirmDelete() {
  if (!fields->deleteGroup.visible) return;
  DirectoryLetter(rowToDelete - 1) = DirectoryType(rowToDelete - 1) = EmptyCell;
  PackList();
  ShowPanel(nullptr);
  DrawList();
  SignalListChange();
}

// --- The clock ----------------------------------------------------------------------------------

void ShowCorrection(ListField& list, const Cell& cell) {
  const int minutes = cell.Whole();
  list.Show(std::to_string(minutes < 0 || minutes > LongestCorrection ? 0 : minutes));
}

/// The clock is set forward or back: one list sets the other to 0.
void PickCorrection(ListField& list, int cell, ListField& other, int otherCell) {
  ButtonImage[cell] = list.Index();
  if (list.Index() > 0) {
    other.Show("0");
    ButtonImage[otherCell] = 0;
  }
  SignalListChange();
}

// --- The page -----------------------------------------------------------------------------------

void ShowCaptions() {
  ShowAll({
      {fields->page.caption, TextId::ConfigurationTitle},
      {fields->listLabel.caption, TextId::PresentModules},
      {fields->modules.toolTip, TextId::EditHint},
      {fields->scan.caption, TextId::Scan},
      {fields->clockGroup.caption, TextId::ClockGroup},
      {fields->clockText.caption, TextId::ClockText},
      {fields->downLabel.caption, TextId::MinutesDown},
      {fields->upLabel.caption, TextId::MinutesUp},
      {fields->addGroup.caption, TextId::AddTitle},
      {fields->addHeading.caption, TextId::ModuleTypeHeading},
      {fields->addLetterLabel.caption, TextId::ModuleCaption},
      {fields->addTypeLabel.caption, TextId::TypeCaption},
      {fields->addConfirm.caption, TextId::Confirm},
      {fields->addLeave.caption, TextId::Leave},
      {fields->deleteGroup.caption, TextId::DeleteTitle},
      {fields->deleteQuestion.caption, TextId::DeleteModule},
      {fields->deleteYes.caption, TextId::Yes},
      {fields->deleteNo.caption, TextId::No},
  });
}

void LayOut() {
  fields->modules.columns = {{std::string(Text(TextId::ModuleColumn)), 1000},
                             {std::string(Text(TextId::AddressColumn)), 1000},
                             {std::string(Text(TextId::TypeColumn)), 2000}};
  fields->modules.rowIsEntry = true;
  fields->modules.Resize(DirectoryRows);
  for (ListField* list : {&fields->down, &fields->up}) {
    list->items = NumberItems(0, LongestCorrection);
  }
}

}  // namespace

void LoadModulePage(ModulePageFields& ofWindow) {
  fields = &ofWindow;
  ShowCaptions();
  LayOut();
  fields->modules.onDoubleClick = DoubleClick;
  fields->scan.onClick = Scan;
  fields->down.onPick = [] { PickCorrection(fields->down, DownCell, fields->up, UpCell); };
  fields->up.onPick = [] { PickCorrection(fields->up, UpCell, fields->down, DownCell); };
  fields->addConfirm.onClick = ConfirmAdd;
  fields->addLeave.onClick = [] { ShowPanel(nullptr); };
  fields->deleteYes.onClick = ConfirmDelete;
  fields->deleteNo.onClick = [] { ShowPanel(nullptr); };
  Listen(LinkEvent::ModuleListRead, DrawList);
}

void SelectMaster() {
  if (ActiveCode() == MasterKind) ShowActiveModel();
}

void OpenModulePage() {
  SelectMaster();
  ShowCorrection(fields->down, ButtonImage[DownCell]);
  ShowCorrection(fields->up, ButtonImage[UpCell]);
  DrawList();
  fields->page.visible = true;
}

void HideModulePage() {
  fields->page.visible = false;
  ShowPanel(nullptr);
}

void EnableModulePage(bool enabled) {
  // A scan that was left before its end has brought what it has brought.
  if (enabled && fields->page.visible) DrawList();
  fields->modules.enabled = fields->scan.enabled = enabled;
  fields->down.enabled = fields->up.enabled = enabled;
  fields->addLetter.enabled = fields->addType.enabled = enabled;
  for (ButtonField* button :
       {&fields->addConfirm, &fields->addLeave, &fields->deleteYes, &fields->deleteNo}) {
    button->enabled = enabled;
  }
}

}  // namespace bkconf
