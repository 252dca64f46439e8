#include "output/button_screen.h"

#include <array>

#include "actions/action_sentence.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"
#include "session/module_title.h"

namespace bkconf {

ButtonScreenFields::ButtonScreenFields()
    : Screen("ButtonScreen"),
      functionsGroup(*this, "functionsGroup"),
      listLabel(*this, "listLabel"),
      buttons(*this, "buttons"),
      listHint(*this, "listHint"),
      description(*this, "description"),
      chooserLabel(*this, "chooserLabel"),
      chooser(*this, "chooser"),
      firstGroup(*this, "firstGroup"),
      first(*this, "first", ButtonPicker),
      secondGroup(*this, "secondGroup"),
      noSecond(*this, "noSecond"),
      second(*this, "second", ButtonPicker),
      store(*this, "store"),
      clearFirst(*this, "clearFirst"),
      clearSecond(*this, "clearSecond"),
      base(*this, "base"),
      baseGroup(*this, "baseGroup"),
      baseQuestion(*this, "baseQuestion"),
      baseYes(*this, "baseYes"),
      baseNo(*this, "baseNo"),
      timeGroup(*this, "timeGroup"),
      timeLabel(*this, "timeLabel"),
      time(*this, "time"),
      seconds(*this, "seconds"),
      timeHelp(*this, "timeHelp"),
      leave(*this, "leave") {
  enter = &store;
}

Table& ButtonTable() {
  const ModuleKind* kind = ActiveKind();
  const bool own = kind != nullptr && kind->buttons != nullptr;
  return own ? *kind->buttons : ButtonImage;
}

namespace {

constexpr int Buttons = 20;
constexpr int TimeCell = 122;
constexpr int HalfSeconds = 8;

/// Whether the user can work in that look of the screen, or part of it. What is hidden writes
/// nothing, whoever presses it; that the screen is shown, each field sees to by itself.
bool InUse(const GroupField& group) {
  return group.visible;
}

/// The first of the three cells of a button's function. `button` counts from 0; column 1 holds the
/// first functions, column 2 the second.
int CellOf(int button, int column) {
  return (column - 1) * Buttons * ActionSize + button * ActionSize;
}

void SignalButtonChange() {
  // Only a master's Send looks at the flag.
  MasterBaseDirty = 1;
  SignalChange();
}

void FillColumn(int column) {
  for (int button = 0; button < Buttons; ++button) {
    ButtonScreen.buttons.Put(button + 1, column,
                             NormalisedActionCode(ButtonTable(), CellOf(button, column)));
  }
}

void FillList() {
  FillColumn(1);
  FillColumn(2);
}

// --- One function -------------------------------------------------------------------------------

void ShowDescription(int row, int column) {
  const std::string& code = ButtonScreen.buttons.At(row, column);
  ButtonScreen.description.caption = ActiveCode() == MasterKind
                                         ? MasterActionSentence(code, MasterSentences)
                                         : OwnActionSentence(code);
}

/// What the selected function is after all of them were changed.
void ShowCurrentDescription() {
  ShowDescription(ButtonScreen.buttons.CurrentRow(), ButtonScreen.buttons.CurrentColumn());
}

void PickButton() {
  ButtonScreen.noSecond.checked = false;
  ButtonScreen.noSecond.enabled = true;
  ButtonScreen.first.Reset();
  ButtonScreen.second.Reset();
  ButtonScreen.store.enabled = true;
}

void ChangeNoSecond() {
  if (ButtonScreen.noSecond.checked) {
    ButtonScreen.second.Close();
  } else {
    ButtonScreen.second.Reset();
  }
}

void ResetClearBoxes() {
  for (CheckField* box : {&ButtonScreen.clearFirst, &ButtonScreen.clearSecond}) {
    box->checked = false;
    box->enabled = true;
  }
}

void Put(int cell, const ActionCells& cells) {
  PutAction(ButtonTable(), cell, cells);
}

/// Fields that are not complete leave the function as it was.
void StoreFunctions(int button) {
  if (const auto cells = ButtonScreen.first.Compose()) Put(CellOf(button, 1), *cells);
  if (ButtonScreen.noSecond.checked) {
    Put(CellOf(button, 2), {"*", "*", "*"});
  } else if (const auto second = ButtonScreen.second.Compose()) {
    Put(CellOf(button, 2), *second);
  }
}

void Store() {
  if (!InUse(ButtonScreen.functionsGroup)) return;
  const int button = ButtonScreen.chooser.Index();
  if (button < 0) return;
  ButtonScreen.description.caption.clear();
  SignalButtonChange();
  ButtonScreen.store.enabled = false;
  ResetClearBoxes();
  StoreFunctions(button);
  FillList();
}

void DoubleClick(int row, int column) {
  if (row == 0 || !InUse(ButtonScreen.functionsGroup)) return;
  if (column == 0) {
    ButtonScreen.chooser.Pick(row - 1);
    return;
  }
  ButtonScreen.description.caption.clear();
  EraseAction(ButtonTable(), CellOf(row - 1, column));
  ButtonScreen.buttons.Put(row, column, ActionEmptyText);
  SignalButtonChange();
}

// --- All functions ------------------------------------------------------------------------------

/// The box stays ticked until the next store.
void ClearAll(CheckField& box, int column) {
  if (!box.checked || !InUse(ButtonScreen.functionsGroup)) return;
  box.enabled = false;
  for (int button = 0; button < Buttons; ++button) {
    EraseAction(ButtonTable(), CellOf(button, column));
    ButtonScreen.buttons.Put(button + 1, column, ActionEmptyText);
  }
  ShowCurrentDescription();
  SignalButtonChange();
}

/// How many buttons get the toggling of the output of their own number; the others become empty.
struct BaseFunctions {
  KindSet kinds;
  int first;
  int second;
};

constexpr auto BaseRows = std::to_array<BaseFunctions>({
    {{DimKind}, 4, 4},
    {{LumenzaKind}, 8, 4},
    {{RelayKind, RelayDcKind, AlarmKind, AudioKind, SimulationKind, IrKind}, 12, 0},
});

void AssignBase(int column, int count) {
  constexpr int toggle = 2;
  const Cell letter = OwnAddress();
  for (int button = 0; button < Buttons; ++button) {
    const int cell = CellOf(button, column);
    if (button < count) {
      Put(cell, {letter, button, toggle});
    } else {
      EraseAction(ButtonTable(), cell);
    }
  }
}

/// Simpler than the usual fill, and meant to be so: 'Z' counts as empty, and the value is shown as
/// it is stored.
void FillPlainly(int column) {
  Table& table = ButtonTable();
  for (int button = 0; button < Buttons; ++button) {
    const int cell = CellOf(button, column);
    std::string code(ActionEmptyText);
    if (HoldsModuleOrContextAction(table[cell])) {
      code = ActionCode(table[cell], table[cell + 1], table[cell + 2], ValueForm::AsStored);
    } else {
      EraseAction(table, cell);
    }
    ButtonScreen.buttons.Put(button + 1, column, code);
  }
}

void ShowBaseQuestion(bool shown) {
  ButtonScreen.baseGroup.visible = shown;
  ButtonScreen.enter = shown ? &ButtonScreen.baseYes : &ButtonScreen.store;
  ButtonScreen.escape = shown ? &ButtonScreen.baseNo : nullptr;
}

void AskForBaseFunctions() {
  if (InUse(ButtonScreen.functionsGroup)) ShowBaseQuestion(true);
}

/// A master is dirty from the question on, whatever the answer is; so it is meant.
void CloseBaseQuestion() {
  if (!InUse(ButtonScreen.baseGroup)) return;
  MasterBaseDirty = 1;
  ShowBaseQuestion(false);
}

void AssignBaseFunctions() {
  if (!InUse(ButtonScreen.baseGroup)) return;
  for (const BaseFunctions& row : BaseRows) {
    if (!row.kinds.Contains(ActiveCode())) continue;
    AssignBase(1, row.first);
    AssignBase(2, row.second);
  }
  FillPlainly(1);
  FillPlainly(2);
  ShowCurrentDescription();
  SignalChange();
  CloseBaseQuestion();
}

// --- The press time -----------------------------------------------------------------------------

/// The longest first; the list's place and the half seconds of the cell run against each other.
void ShowTime() {
  const int halfSeconds = ButtonTable()[TimeCell].WholeNumber().value_or(0);
  const bool known = halfSeconds >= 1 && halfSeconds <= HalfSeconds;
  const auto place = static_cast<std::size_t>(known ? HalfSeconds - halfSeconds : 0);
  ButtonScreen.time.Show(known ? ButtonScreen.time.items[place] : "");
}

void PickTime() {
  if (!InUse(ButtonScreen.timeGroup)) return;
  ButtonTable()[TimeCell] = HalfSeconds - ButtonScreen.time.Index();
  SignalButtonChange();
}

/// One of the texts of the list is as good as a pick; any other is cleared at once.
void TypeTime() {
  if (ButtonScreen.time.Index() < 0) {
    ButtonScreen.time.Clear();
  } else {
    PickTime();
  }
}

// --- Opening ------------------------------------------------------------------------------------

/// The caption is made of three texts.
std::string ClearCaption(TextId which) {
  return std::string(Text(TextId::ClearFunctions)) + " " + std::string(Text(which)) + " " +
         std::string(Text(TextId::ClearFunctionsEnd));
}

void ShowCaptions() {
  ShowAll({
      {ButtonScreen.listLabel.caption, TextId::ButtonList},
      {ButtonScreen.listHint.caption, TextId::ButtonListHint},
      {ButtonScreen.chooserLabel.caption, TextId::ButtonChooser},
      {ButtonScreen.firstGroup.caption, TextId::FirstFunction},
      {ButtonScreen.secondGroup.caption, TextId::SecondFunction},
      {ButtonScreen.noSecond.caption, TextId::NoneChosen},
      {ButtonScreen.store.caption, TextId::StoreFunction},
      {ButtonScreen.base.caption, TextId::BaseFunctions},
      {ButtonScreen.baseGroup.caption, TextId::BaseFunctionsTitle},
      {ButtonScreen.baseQuestion.caption, TextId::BaseFunctionsQuestion},
      {ButtonScreen.baseYes.caption, TextId::Yes},
      {ButtonScreen.baseNo.caption, TextId::No},
      {ButtonScreen.timeLabel.caption, TextId::SecondFunctionTimeLabel},
      {ButtonScreen.seconds.caption, TextId::Seconds},
      {ButtonScreen.timeHelp.caption, TextId::SecondFunctionTimeHelp},
      {ButtonScreen.leave.caption, TextId::Leave},
  });
  ButtonScreen.clearFirst.caption = ClearCaption(TextId::ClearFirstFunctions);
  ButtonScreen.clearSecond.caption = ClearCaption(TextId::ClearSecondFunctions);
}

void LayOutList() {
  GridField& list = ButtonScreen.buttons;
  list.rowHeader = true;
  list.columns = {{"", 3},
                  {std::string(Text(TextId::FirstColumn)), 2},
                  {std::string(Text(TextId::SecondColumn)), 2}};
  list.Resize(Buttons);
  for (int button = 1; button <= Buttons; ++button) {
    list.Put(button, 0, std::string(Text(TextId::ButtonNumber)) + std::to_string(button));
  }
  ButtonScreen.chooser.items = NumberItems(1, Buttons);
}

void Open(bool functions) {
  ButtonScreen.title = ModuleTitle();
  ButtonScreen.functionsGroup.visible = functions;
  ButtonScreen.timeGroup.visible = !functions;
  ShowBaseQuestion(false);
  ButtonScreen.description.caption.clear();
  ButtonScreen.buttons.ClearSelection();
  ButtonScreen.chooser.Clear();
  ButtonScreen.first.Close();
  ButtonScreen.second.Close();
  ButtonScreen.noSecond.checked = ButtonScreen.noSecond.enabled = false;
  ButtonScreen.store.enabled = false;
  ResetClearBoxes();
  ButtonScreen.shown = true;
}

}  // namespace

void LoadButtonScreen() {
  ShowCaptions();
  LayOutList();
  ButtonScreen.time.items = {"4", "3,5", "3", "2,5", "2", "1,5", "1", "0,5"};
  ButtonScreen.first.Load();
  ButtonScreen.second.Load();
  ButtonScreen.buttons.onSelect = ShowDescription;
  ButtonScreen.buttons.onDoubleClick = DoubleClick;
  ButtonScreen.chooser.onPick = PickButton;
  ButtonScreen.noSecond.onChange = ChangeNoSecond;
  ButtonScreen.store.onClick = Store;
  ButtonScreen.clearFirst.onChange = [] { ClearAll(ButtonScreen.clearFirst, 1); };
  ButtonScreen.clearSecond.onChange = [] { ClearAll(ButtonScreen.clearSecond, 2); };
  ButtonScreen.base.onClick = AskForBaseFunctions;
  ButtonScreen.baseYes.onClick = AssignBaseFunctions;
  ButtonScreen.baseNo.onClick = CloseBaseQuestion;
  ButtonScreen.time.onPick = PickTime;
  ButtonScreen.time.onTyped = TypeTime;
  ButtonScreen.leave.onClick = [] { ButtonScreen.Close(); };
}

void OpenButtonScreen() {
  FillList();
  Open(true);
}

void OpenSecondFunctionTime() {
  ShowTime();
  Open(false);
}

}  // namespace bkconf
