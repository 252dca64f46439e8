#include "special/ir_screen.h"

#include <array>

#include "actions/action_code.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "platform/machine.h"
#include "session/language.h"
#include "session/module_title.h"
#include "text/windows1252.h"

namespace bkconf {

IrRowFields::IrRowFields(Screen& screen, const std::string& name)
    : number(screen, name), code(screen, name + "Code"), erase(screen, name + "Erase") {}

IrScreenFields::IrScreenFields()
    : Screen("IrScreen"),
      instruction(*this, "instruction"),
      remote(*this, "remote"),
      listGroup(*this, "listGroup"),
      editGroup(*this, "editGroup"),
      rowLabel(*this, "rowLabel"),
      row(*this, "row"),
      copy(*this, "copy"),
      picker(*this, "picker", ButtonPicker),
      store(*this, "store"),
      leave(*this, "leave") {
  for (int each = 1; each <= IrRows; ++each) {
    rows.push_back(std::make_unique<IrRowFields>(*this, "row" + std::to_string(each)));
  }
}

namespace {

/// Cells of IrImage: of row W of key K at 48 W + 3 K behind the first one. Each row has room for
/// sixteen keys, of which thirteen exist.
constexpr int FirstAction = 125;
constexpr int RowSize = 48;
constexpr int Digits = 10;
/// Rows that can be filled from here. The others come from a file or a module. The limit is meant.
constexpr int RowsToFill = 4;

/// The keys behind the digits.
constexpr auto OtherKeys =
    std::to_array<TextId>({TextId::KeyOnOff, TextId::KeyChannelUp, TextId::KeyChannelDown});
constexpr auto OtherTitles = std::to_array<TextId>(
    {TextId::ActionsOfOnOff, TextId::ActionsOfChannelUp, TextId::ActionsOfChannelDown});

/// The picture of the remote control, and where its keys lie in the three columns and six lines of
/// them, counted from the top left.
constexpr std::string_view RemotePicture = "remote.bmp";
struct KeyPlace {
  int column;
  int line;
};
constexpr auto KeyPlaces = std::to_array<KeyPlace>({{1, 4},
                                                    {0, 1},
                                                    {1, 1},
                                                    {2, 1},
                                                    {0, 2},
                                                    {1, 2},
                                                    {2, 2},
                                                    {0, 3},
                                                    {1, 3},
                                                    {2, 3},
                                                    {0, 0},
                                                    {2, 5},
                                                    {0, 5}});

/// The key that the list is about, 0 to 12.
int currentKey = 0;

int ActionCell(int row) {
  return FirstAction + RowSize * row + ActionSize * currentKey;
}

/// What was stored without a type is empty, and its cells stay what they are.
void ShowRow(int row) {
  const int cell = ActionCell(row);
  std::string code(ActionEmptyText);
  if (HoldsAction(IrImage[cell])) {
    code = ActionCode(IrImage[cell], IrImage[cell + 1], IrImage[cell + 2]);
  }
  IrScreen.rows[static_cast<std::size_t>(row)]->code.caption = code;
}

void ShowRows() {
  for (int row = 0; row < IrRows; ++row) ShowRow(row);
}

void ShowKeyTitle() {
  if (currentKey < Digits) {
    IrScreen.listGroup.caption =
        std::string(Text(TextId::ActionsOfKey)) + std::to_string(currentKey);
  } else {
    Show(IrScreen.listGroup.caption, OtherTitles[static_cast<std::size_t>(currentKey - Digits)]);
  }
}

void PickKey() {
  currentKey = IrScreen.remote.Picked();
  IrScreen.listGroup.visible = IrScreen.editGroup.visible = IrScreen.copy.visible = true;
  IrScreen.row.Clear();
  IrScreen.picker.Reset();
  IrScreen.store.enabled = true;
  ShowKeyTitle();
  ShowRows();
}

/// The module cannot send to itself.
bool RefuseOwnLetter() {
  const bool own = OwnLetter() == IrScreen.picker.letter.Text();
  if (own) Messages->Tell(std::string(Text(TextId::IrToItself)));
  return own;
}

/// One store fills one row: the next needs its row, or its key, picked first.
void Put(const ActionCells& cells) {
  PutAction(IrImage, ActionCell(IrScreen.row.Index()), cells);
  ShowRows();
  IrScreen.store.enabled = false;
  SignalChange();
}

/// A letter whose type is none is stored as an empty action of its own form. A type with a field
/// that is empty leaves the row as it was.
void Store() {
  IrScreen.copy.visible = false;
  const ActionPicker& picker = IrScreen.picker;
  if (IrScreen.row.Index() < 0 || picker.Letter() == '\0') return;
  if (const auto cells = picker.Compose()) {
    Put(*cells);
  } else if (!picker.TargetKnown() && !picker.type.Text().empty()) {
    Put({"*", "*", "*"});
  }
}

void Erase(int row) {
  if (IrScreen.remote.Picked() < 0) return;
  EraseAction(IrImage, ActionCell(row));
  ShowRow(row);
  SignalChange();
}

// --- Opening ------------------------------------------------------------------------------------

std::string KeyName(int key) {
  if (key < Digits) return std::to_string(key);
  return std::string(Text(OtherKeys[static_cast<std::size_t>(key - Digits)]));
}

void LayOutRemote() {
  constexpr int width = 240;
  constexpr int height = 110;
  constexpr int left = 110;
  constexpr int top = 130;
  constexpr int pitchX = 270;
  constexpr int pitchY = 140;
  IrScreen.remote.file = RemotePicture;
  IrScreen.remote.areas.clear();
  for (std::size_t key = 0; key < KeyPlaces.size(); ++key) {
    IrScreen.remote.areas.push_back({KeyName(static_cast<int>(key)),
                                     left + pitchX * KeyPlaces[key].column,
                                     top + pitchY * KeyPlaces[key].line, width, height});
  }
}

void ShowCaptions() {
  ShowAll({
      {IrScreen.instruction.caption, TextId::IrInstruction},
      {IrScreen.editGroup.caption, TextId::IrEdit},
      {IrScreen.rowLabel.caption, TextId::IrRow},
      {IrScreen.copy.caption, TextId::CopyToAllIr},
      {IrScreen.store.caption, TextId::IrStore},
      {IrScreen.leave.caption, TextId::Leave},
  });
}

}  // namespace

void LoadIrScreen() {
  ShowCaptions();
  LayOutRemote();
  IrScreen.picker.Load();
  IrScreen.picker.refusesLetter = RefuseOwnLetter;
  IrScreen.remote.onPick = PickKey;
  IrScreen.row.items = NumberItems(1, RowsToFill);
  for (int row = 0; row < IrRows; ++row) {
    IrRowFields& fields = *IrScreen.rows[static_cast<std::size_t>(row)];
    fields.number.caption = std::to_string(row + 1);
    Show(fields.erase.caption, TextId::EraseRow);
    fields.erase.onClick = [row] { Erase(row); };
  }
  IrScreen.row.onPick = [] { IrScreen.store.enabled = true; };
  IrScreen.store.onClick = Store;
  IrScreen.leave.onClick = [] { IrScreen.Close(); };
}

void OpenIrScreen() {
  ShowActiveModel();
  IrScreen.title = ModuleTitle();
  IrScreen.remote.ClearPick();
  IrScreen.listGroup.visible = IrScreen.editGroup.visible = false;
  IrScreen.picker.Close();
  IrScreen.shown = true;
}

}  // namespace bkconf
