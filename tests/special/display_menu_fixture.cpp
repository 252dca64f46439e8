#include "shell/action_buttons.h"
#include "special/display_menu_test.h"

namespace bkconf {

void Put(Table& table, int first, int width, const std::string& text) {
  for (int i = 0; i < width; ++i) {
    table[first + i] =
        i < static_cast<int>(text.size()) ? int{text[static_cast<std::size_t>(i)]} : 32;
  }
}

std::string CodesAt(const Table& table, int first, int count) {
  std::string codes;
  for (int i = 0; i < count; ++i) codes += static_cast<char>(table[first + i].Whole());
  return codes;
}

std::string CellName(const Table& table, int first, int last) {
  const std::string end = last < 0 ? "" : ".." + std::to_string(last);
  return std::string(table.name) + "[" + std::to_string(first) + end + "]";
}

std::vector<std::string> LetterItems() {
  std::vector<std::string> items;
  for (char letter = 'A'; letter <= 'R'; ++letter) items.emplace_back(1, letter);
  return items;
}

std::vector<std::string> NumberItems(int last) {
  std::vector<std::string> items;
  for (int number = 1; number <= last; ++number) items.push_back(std::to_string(number));
  return items;
}

namespace {

void FillLine(Table& table, int screen, int line, const std::string& mark) {
  const std::string number = std::to_string(screen) + std::to_string(line);
  Put(table, 72 + 100 * screen + 10 * line, 10, mark + "line " + number);
  const int pair = 20 * screen + 2 * line;
  table[780 + pair] = screen == 5 ? int{'S'} : 'A' + line;
  table[780 + pair + 1] = line % 4;
  table[900 + pair] = 'B' + line;
  table[900 + pair + 1] = 11 - line;
}

void FillArrows(Table& table, int first, int widthOfA) {
  table[first] = table[first + 2 + widthOfA] = 32;
  table[first + 1] = 126;
  table[first + 3 + widthOfA] = 127;
}

}  // namespace

void FillDisplay(Table& table, const std::string& mark) {
  for (int cell = 0; cell < table.Size(); ++cell) table[cell] = 201;
  FillArrows(table, 682, 4);
  Put(table, 684, 4, mark + "up");
  Put(table, 690, 4, mark + "dn");
  for (int screen = 0; screen < 6; ++screen) {
    const std::string number = std::to_string(screen);
    Put(table, 12 * screen, 12, mark + "name " + number);
    table[695 + screen] = 2 + screen;
    FillArrows(table, 701 + 13 * screen, 5);
    Put(table, 703 + 13 * screen, 5, mark + "on" + number);
    Put(table, 710 + 13 * screen, 4, mark + "f" + number);
    for (int line = 0; line < 10; ++line) FillLine(table, screen, line, mark);
  }
}

void DisplayMenuTest::Open(int language, int display, char letter) {
  StartWithImage(3, language, letter);
  FillDisplay(LcdScreen1, "a");
  FillDisplay(LcdScreen2, "b");
  LcdScreen1Loaded = LcdScreen2Loaded = 1;
  Press(display);
  ASSERT_TRUE(DisplayMenuScreen.shown);
  MainWindow.send.enabled = false;
}

void DisplayMenuTest::Press(int display) {
  ShownAction(display == 1 ? Action::Display1 : Action::Display2).Click();
}

void DisplayMenuTest::OpenAgain(int display) {
  Leave();
  Press(display);
}

std::vector<TextField*> DisplayMenuTest::TextFields() {
  std::vector<TextField*> fields = {&DisplayMenuScreen.name, &DisplayMenuScreen.mainKeyA,
                                    &DisplayMenuScreen.mainKeyB, &DisplayMenuScreen.keyA,
                                    &DisplayMenuScreen.keyB};
  for (const auto& line : DisplayMenuScreen.lines) fields.push_back(&line->text);
  return fields;
}

std::vector<ListField*> DisplayMenuTest::LineLists() {
  std::vector<ListField*> fields;
  for (const auto& line : DisplayMenuScreen.lines) {
    fields.push_back(&line->module);
    fields.push_back(&line->output);
  }
  return fields;
}

std::vector<ListField*> DisplayMenuTest::DialogLists() {
  return {&DisplayMenuScreen.open.module, &DisplayMenuScreen.open.output,
          &DisplayMenuScreen.close.module, &DisplayMenuScreen.close.output};
}

}  // namespace bkconf
