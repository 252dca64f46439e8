#include "special/display_menu_screen.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "actions/action_code.h"
#include "image/commands.h"
#include "image/tables.h"
#include "link/link_events.h"
#include "link/transfer.h"
#include "platform/list_items.h"
#include "platform/machine.h"
#include "session/language.h"
#include "session/module_title.h"
#include "special/cell_text.h"
#include "special/menu_category.h"
#include "text/windows1252.h"

namespace bkconf {

MenuLineFields::MenuLineFields(Screen& screen, const std::string& name)
    : number(screen, name),
      text(screen, name + "Text"),
      module(screen, name + "Module"),
      output(screen, name + "Output"),
      outputs(screen, name + "Outputs") {}

AutomationFields::AutomationFields(Screen& screen, const std::string& name)
    : label(screen, name + "Label"),
      module(screen, name + "Module"),
      output(screen, name + "Output") {}

DisplayMenuScreenFields::DisplayMenuScreenFields()
    : Screen("DisplayMenuScreen"),
      screens(*this, "screens"),
      frame(*this, "frame"),
      nameLabel(*this, "nameLabel"),
      name(*this, "name"),
      categoryLabel(*this, "categoryLabel"),
      category(*this, "category"),
      scrollUp(*this, "scrollUp"),
      scrollDown(*this, "scrollDown"),
      mainArrowA(*this, "mainArrowA"),
      mainKeyA(*this, "mainKeyA"),
      mainArrowB(*this, "mainArrowB"),
      mainKeyB(*this, "mainKeyB"),
      moduleHead(*this, "moduleHead"),
      outputHead(*this, "outputHead"),
      arrowA(*this, "arrowA"),
      keyA(*this, "keyA"),
      arrowB(*this, "arrowB"),
      keyB(*this, "keyB"),
      outputsGroup(*this, "outputsGroup"),
      open(*this, "open"),
      close(*this, "close"),
      ok(*this, "ok"),
      outputsLeave(*this, "outputsLeave"),
      status(*this, "status"),
      bar(*this, "bar"),
      leave(*this, "leave") {
  for (int line = 1; line <= MenuLines; ++line) {
    lines.push_back(std::make_unique<MenuLineFields>(*this, "line" + std::to_string(line)));
  }
}

namespace {

// --- The cells of a display ---------------------------------------------------------------------

constexpr int NameSize = 12;
constexpr int FirstLineText = 72;
constexpr int LineTextSize = 10;
/// A blank, an arrow and the text under the key, twice.
constexpr int MainKeys = 682;
constexpr int MainKeyASize = 4;
constexpr int FirstCategory = 695;
constexpr int FirstScreenKeys = 701;
constexpr int ScreenKeysSize = 13;
constexpr int ScreenKeyASize = 5;
constexpr int KeyBSize = 4;
/// Pairs of a module's letter and an output, counted from 0: of every line, and the second one of
/// an automation.
constexpr int FirstOutput = 780;
constexpr int FirstSecondOutput = 900;

constexpr int Blank = ' ';
constexpr int ArrowA = 126;
constexpr int ArrowB = 127;
constexpr std::string_view Unused = "#";
constexpr std::string_view FirstNumber = "1";

struct Display {
  Table& table;
  std::string_view command;
  Cell& loaded;
  TextId title;
  TextId reading;
};

const std::array<Display, 2> Displays = {
    {{LcdScreen1, Read1, LcdScreen1Loaded, TextId::Display1Title, TextId::ReadingDisplay1},
     {LcdScreen2, Read3, LcdScreen2Loaded, TextId::Display2Title, TextId::ReadingDisplay2}}};

/// The display that is edited, counted from 0.
int LcdEditedDisplay = 0;
/// The last valid text of the category.
std::string LcdLastCategory;
/// The screen whose fields are shown, and whether there is one.
int ScreenIndex = 0;
bool ScreenShown = false;
/// The line that the dialog of outputs is about, counted from 0.
int outputLine = 0;
std::string titleBefore;
bool awaited = false;

const Display& Edited() {
  return Displays[static_cast<std::size_t>(LcdEditedDisplay)];
}

Table& Image() {
  return Edited().table;
}

MenuLineFields& Line(int line) {
  return *DisplayMenuScreen.lines[static_cast<std::size_t>(line)];
}

int OutputCell(int first, int line) {
  return first + 2 * MenuLines * ScreenIndex + 2 * line;
}

/// Both displays, where both are in memory, whichever is edited. It is kept so, on purpose.
void MarkChange() {
  if (LcdScreen1Loaded.Number() == 1) LcdScreen1Dirty = 1;
  if (LcdScreen2Loaded.Number() == 1) LcdScreen2Dirty = 1;
  SignalChange();
}

bool IsAutomation() {
  const MenuCategory* category = CategoryNamed(DisplayMenuScreen.category.Text());
  return category != nullptr && category->code == AutomationCode;
}

// --- Filling ------------------------------------------------------------------------------------

void EnableOutputButtons(bool enabled) {
  for (const auto& line : DisplayMenuScreen.lines) line->outputs.enabled = enabled;
}

/// What the lines offer, as their category has it; without a category nothing.
void OfferItems() {
  const MenuCategory* category = CategoryNamed(DisplayMenuScreen.category.Text());
  for (const auto& line : DisplayMenuScreen.lines) {
    line->module.items.clear();
    line->output.items.clear();
    if (category == nullptr) continue;
    line->module.items = LetterItems(category->firstLetter, category->lastLetter);
    line->output.items = NumberItems(1, category->highestOutput);
  }
}

/// While they are shown, Enter and Escape are theirs.
void ShowOutputs(bool shown) {
  DisplayMenuScreen.outputsGroup.visible = shown;
  DisplayMenuScreen.enter = shown ? &DisplayMenuScreen.ok : nullptr;
  DisplayMenuScreen.escape = shown ? &DisplayMenuScreen.outputsLeave : &DisplayMenuScreen.leave;
}

/// The texts stay: what a line is called does not depend on what it controls.
void ClearOutputs() {
  for (const auto& line : DisplayMenuScreen.lines) {
    line->module.Clear();
    line->output.Clear();
  }
  for (AutomationFields* row : {&DisplayMenuScreen.open, &DisplayMenuScreen.close}) {
    row->module.Clear();
    row->output.Clear();
  }
  ShowOutputs(false);
}

/// An output's number as the fields have it, counted from 1. A file can hold any number.
std::string NumberOf(const Cell& index) {
  return std::to_string(std::int64_t{index.Whole()} + 1);
}

/// A cell that nothing has filled is an unused line.
void ShowModule(int line) {
  Line(line).module.Show(CharacterOf(Image()[OutputCell(FirstOutput, line)].Whole()));
}

void ShowOutput(int line) {
  Line(line).output.Show(NumberOf(Image()[OutputCell(FirstOutput, line) + 1]));
}

void LoadKeys() {
  const int keys = FirstScreenKeys + ScreenKeysSize * ScreenIndex;
  DisplayMenuScreen.mainKeyA.Show(TextOfCells(Image(), MainKeys + 2, MainKeyASize));
  DisplayMenuScreen.mainKeyB.Show(TextOfCells(Image(), MainKeys + 4 + MainKeyASize, KeyBSize));
  DisplayMenuScreen.keyA.Show(TextOfCells(Image(), keys + 2, ScreenKeyASize));
  DisplayMenuScreen.keyB.Show(TextOfCells(Image(), keys + 4 + ScreenKeyASize, KeyBSize));
}

/// A category that is none leaves what is shown.
void LoadCategory() {
  const MenuCategory* category = CategoryOfCode(Image()[FirstCategory + ScreenIndex]);
  if (category != nullptr) DisplayMenuScreen.category.Show(Text(category->name));
  LcdLastCategory = DisplayMenuScreen.category.Text();
}

void LoadScreen() {
  DisplayMenuScreen.name.Show(TextOfCells(Image(), NameSize * ScreenIndex, NameSize));
  LoadKeys();
  LoadCategory();
  EnableOutputButtons(IsAutomation());
  OfferItems();
  for (int line = 0; line < MenuLines; ++line) {
    const int text = FirstLineText + LineTextSize * (MenuLines * ScreenIndex + line);
    Line(line).text.Show(TextOfCells(Image(), text, LineTextSize));
    ShowModule(line);
    ShowOutput(line);
  }
}

// --- Packing ------------------------------------------------------------------------------------

void PackKeys(int first, const TextField& a, int sizeOfA, const TextField& b) {
  Image()[first] = Blank;
  Image()[first + 1] = ArrowA;
  PutTextIntoCells(Image(), first + 2, sizeOfA, a.Text());
  Image()[first + 2 + sizeOfA] = Blank;
  Image()[first + 3 + sizeOfA] = ArrowB;
  PutTextIntoCells(Image(), first + 4 + sizeOfA, KeyBSize, b.Text());
}

/// The code of the first character; the field is not empty.
int CodeOf(const ListField& letter) {
  return static_cast<unsigned char>(ToWindows1252(letter.Text()).front());
}

/// With its sign: what `NumberOf` shows of any number goes back as it came.
Cell IndexOf(const ListField& number) {
  return Cell(number.Text()).Number() - 1;
}

/// An automation's outputs are stored by their dialog.
void PackLine(int line, bool automation) {
  MenuLineFields& fields = Line(line);
  const int text = FirstLineText + LineTextSize * (MenuLines * ScreenIndex + line);
  PutTextIntoCells(Image(), text, LineTextSize, fields.text.Text());
  if (fields.module.Text().empty()) fields.module.Show(Unused);
  if (fields.output.Text().empty()) fields.output.Show(FirstNumber);
  if (automation) return;
  const int cell = OutputCell(FirstOutput, line);
  Image()[cell] = CodeOf(fields.module);
  Image()[cell + 1] = IndexOf(fields.output);
}

/// Also what was only looked at: cells that a module does not keep as they should be are mended so.
void PackScreen() {
  if (!ScreenShown) return;
  PutTextIntoCells(Image(), NameSize * ScreenIndex, NameSize, DisplayMenuScreen.name.Text());
  PackKeys(MainKeys, DisplayMenuScreen.mainKeyA, MainKeyASize, DisplayMenuScreen.mainKeyB);
  PackKeys(FirstScreenKeys + ScreenKeysSize * ScreenIndex, DisplayMenuScreen.keyA, ScreenKeyASize,
           DisplayMenuScreen.keyB);
  const bool automation = IsAutomation();
  for (int line = 0; line < MenuLines; ++line) PackLine(line, automation);
  const MenuCategory* category = CategoryNamed(DisplayMenuScreen.category.Text());
  if (category != nullptr) Image()[FirstCategory + ScreenIndex] = category->code;
}

void SelectScreen() {
  PackScreen();
  ClearOutputs();
  ScreenShown = true;
  ScreenIndex = DisplayMenuScreen.screens.Index();
  LoadScreen();
}

// --- Category -----------------------------------------------------------------------------------

void PickCategory() {
  MarkChange();
  ClearOutputs();
  OfferItems();
  const auto index = static_cast<std::size_t>(DisplayMenuScreen.category.Index());
  DisplayMenuScreen.keyA.Show(Text(MenuCategories[index].keyA));
  DisplayMenuScreen.keyB.Show(Text(MenuCategories[index].keyB));
  EnableOutputButtons(IsAutomation());
  LcdLastCategory = DisplayMenuScreen.category.Text();
}

void TypeCategory() {
  if (DisplayMenuScreen.category.Index() >= 0) {
    PickCategory();
  } else {
    DisplayMenuScreen.category.Show(LcdLastCategory);
  }
}

// --- The outputs of an automation ---------------------------------------------------------------

/// A cell of 0 is the character 0, which counts as filled.
void ShowPair(AutomationFields& row, int cell) {
  row.module.Show(TextOfCells(Image(), cell, 1));
  row.output.Show(NumberOf(Image()[cell + 1]));
}

void OpenOutputs(int line) {
  outputLine = line;
  ShowPair(DisplayMenuScreen.open, OutputCell(FirstOutput, line));
  ShowPair(DisplayMenuScreen.close, OutputCell(FirstSecondOutput, line));
  ShowOutputs(true);
}

bool IsComplete(const AutomationFields& row) {
  return !row.module.Text().empty() && !row.output.Text().empty();
}

void StorePair(const AutomationFields& row, int cell) {
  Image()[cell] = CodeOf(row.module);
  Image()[cell + 1] = IndexOf(row.output);
}

void ConfirmOutputs() {
  if (!DisplayMenuScreen.outputsGroup.visible) return;
  if (!IsComplete(DisplayMenuScreen.open) || !IsComplete(DisplayMenuScreen.close)) {
    Messages->Ask(std::string(Text(TextId::Attention)), std::string(Text(TextId::NotComplete)),
                  [](bool goesOn) {
                    if (!goesOn) ShowOutputs(false);
                  });
    return;
  }
  StorePair(DisplayMenuScreen.open, OutputCell(FirstOutput, outputLine));
  StorePair(DisplayMenuScreen.close, OutputCell(FirstSecondOutput, outputLine));
  ShowModule(outputLine);
  ShowOutput(outputLine);
  ShowOutputs(false);
}

const MenuCategory& Automation() {
  return *CategoryOfCode(AutomationCode);
}

/// Nothing passes, and so do several of the letters. It is kept so, on purpose.
void TypeLetter(ListField& letter) {
  const std::string& typed = letter.Text();
  const bool known = std::all_of(typed.begin(), typed.end(), [](char each) {
    return each >= Automation().firstLetter && each <= Automation().lastLetter;
  });
  if (!known) letter.Show(Unused);
  MarkChange();
}

void TypeNumber(ListField& number) {
  const int typed = LenientNumber(number.Text());
  if (typed < 1 || typed > Automation().highestOutput) number.Show(FirstNumber);
  MarkChange();
}

// --- Opening and leaving ------------------------------------------------------------------------

void EmptyFields() {
  for (TextField* text :
       {&DisplayMenuScreen.name, &DisplayMenuScreen.mainKeyA, &DisplayMenuScreen.mainKeyB,
        &DisplayMenuScreen.keyA, &DisplayMenuScreen.keyB}) {
    text->Show("");
  }
  DisplayMenuScreen.category.Clear();
  LcdLastCategory.clear();
  for (const auto& line : DisplayMenuScreen.lines) line->text.Show("");
  ClearOutputs();
  OfferItems();
  EnableOutputButtons(false);
}

void FillScreenList() {
  std::vector<std::string> names;
  for (int screen = 1; screen <= MenuScreens; ++screen) {
    names.push_back(std::string(Text(TextId::MenuScreen)) + std::to_string(screen));
  }
  DisplayMenuScreen.screens.SetItems(std::move(names));
}

/// Nothing of a table that is half read can be touched.
void Enable(bool enabled) {
  DisplayMenuScreen.screens.enabled = DisplayMenuScreen.frame.enabled = enabled;
  DisplayMenuScreen.leave.enabled = enabled;
  for (Field* field : DisplayMenuScreen.fields) {
    if (field->kind == FieldKind::Text || field->kind == FieldKind::List) field->enabled = enabled;
  }
}

void Reveal() {
  DisplayMenuScreen.title = ModuleTitle() + std::string(Text(Edited().title));
  titleBefore = *Window.title;
  *Window.title = DisplayMenuScreen.title;
  DisplayMenuScreen.shown = true;
}

void Open(int display) {
  LcdEditedDisplay = display;
  ScreenShown = false;
  ScreenIndex = 0;
  EmptyFields();
  if (Edited().loaded.Number() != 1) {
    awaited = true;
    StartRequest(Edited().command);
    return;
  }
  FillScreenList();
  Enable(true);
  Show(DisplayMenuScreen.status.caption, TextId::EditMode);
  Reveal();
  DisplayMenuScreen.screens.Pick(0);
}

void BeginRead() {
  if (!awaited) return;
  awaited = false;
  DisplayMenuScreen.screens.SetItems({});
  Enable(false);
  Show(DisplayMenuScreen.status.caption, Edited().reading);
  LendBar(DisplayMenuScreen.bar);
  Reveal();
}

/// No screen is chosen, so that leaving at once changes nothing of what was read. A transfer can be
/// left when the table has come already and is edited: then there is nothing to do.
void EndRead() {
  ReturnBar();
  if (!DisplayMenuScreen.shown || DisplayMenuScreen.leave.enabled) return;
  FillScreenList();
  Show(DisplayMenuScreen.status.caption, TextId::EditMode);
  Enable(true);
}

void LeaveRead() {
  awaited = false;
  EndRead();
}

void Leave() {
  PackScreen();
  ScreenShown = false;
  *Window.title = titleBefore;
  DisplayMenuScreen.shown = false;
}

/// By the frame of the window. The button to leave waits for the last cell; a module that says no
/// more must not keep the user here, so this leaves the transfer, and what has come stays.
void Close() {
  if (!DisplayMenuScreen.leave.enabled) LeaveTransfer();
  Leave();
}

void ShowCaptions() {
  ShowAll({
      {DisplayMenuScreen.frame.caption, TextId::MainScreen},
      {DisplayMenuScreen.nameLabel.caption, TextId::DescriptionColumn},
      {DisplayMenuScreen.categoryLabel.caption, TextId::ScreenType},
      {DisplayMenuScreen.scrollUp.caption, TextId::Scroll},
      {DisplayMenuScreen.scrollDown.caption, TextId::Scroll},
      {DisplayMenuScreen.mainArrowA.caption, TextId::KeyArrowA},
      {DisplayMenuScreen.mainArrowB.caption, TextId::KeyArrowB},
      {DisplayMenuScreen.moduleHead.caption, TextId::ModuleAddress},
      {DisplayMenuScreen.outputHead.caption, TextId::OutputCaption},
      {DisplayMenuScreen.arrowA.caption, TextId::KeyArrowA},
      {DisplayMenuScreen.arrowB.caption, TextId::KeyArrowB},
      {DisplayMenuScreen.outputsGroup.caption, TextId::AutomationOutputs},
      {DisplayMenuScreen.open.label.caption, TextId::OpenOutput},
      {DisplayMenuScreen.close.label.caption, TextId::CloseOutput},
      {DisplayMenuScreen.ok.caption, TextId::Ok},
      {DisplayMenuScreen.outputsLeave.caption, TextId::Leave},
      {DisplayMenuScreen.leave.caption, TextId::Leave},
  });
}

void LoadLine(int line) {
  MenuLineFields& fields = Line(line);
  fields.number.caption = std::to_string(line + 1);
  Show(fields.outputs.caption, TextId::OutputsChoice);
  fields.text.onChange = MarkChange;
  fields.module.onPick = fields.output.onPick = MarkChange;
  fields.module.onTyped = [line] { ShowModule(line); };
  fields.output.onTyped = [line] { ShowOutput(line); };
  fields.outputs.onClick = [line] { OpenOutputs(line); };
}

void LoadPair(AutomationFields& row) {
  row.module.items = LetterItems(Automation().firstLetter, Automation().lastLetter);
  row.output.items = NumberItems(1, Automation().highestOutput);
  row.module.onPick = row.output.onPick = MarkChange;
  row.module.onTyped = [&row] { TypeLetter(row.module); };
  row.output.onTyped = [&row] { TypeNumber(row.output); };
}

}  // namespace

void LoadDisplayMenuScreen() {
  awaited = false;
  ScreenShown = false;
  ShowCaptions();
  DisplayMenuScreen.category.items.clear();
  for (const MenuCategory& category : MenuCategories) {
    DisplayMenuScreen.category.items.emplace_back(Text(category.name));
  }
  for (int line = 0; line < MenuLines; ++line) LoadLine(line);
  LoadPair(DisplayMenuScreen.open);
  LoadPair(DisplayMenuScreen.close);
  for (TextField* text :
       {&DisplayMenuScreen.name, &DisplayMenuScreen.mainKeyA, &DisplayMenuScreen.mainKeyB,
        &DisplayMenuScreen.keyA, &DisplayMenuScreen.keyB}) {
    text->onChange = MarkChange;
  }
  ShowOutputs(false);
  DisplayMenuScreen.screens.onPick = SelectScreen;
  DisplayMenuScreen.category.onPick = PickCategory;
  DisplayMenuScreen.category.onTyped = TypeCategory;
  DisplayMenuScreen.ok.onClick = ConfirmOutputs;
  DisplayMenuScreen.outputsLeave.onClick = [] { ShowOutputs(false); };
  DisplayMenuScreen.leave.onClick = Leave;
  DisplayMenuScreen.onClose = Close;
  Listen(LinkEvent::DisplayReadStarted, BeginRead);
  Listen(LinkEvent::DisplayRead, EndRead);
  Listen(LinkEvent::TransferLeft, LeaveRead);
}

void OpenDisplay1() {
  Open(0);
}

void OpenDisplay2() {
  Open(1);
}

}  // namespace bkconf
