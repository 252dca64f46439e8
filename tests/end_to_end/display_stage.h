// A display module with a file of the demo house, and its screens in both languages. The base of
// their tests.
#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/table_stage.h"

namespace end_to_end {

inline constexpr int displayKind = 3;
inline constexpr const char* displayFile = "LCD F.BK1";

// The first cell of each table in the file; the header begins with cell 0.
inline constexpr int display1 = 2;
inline constexpr int display2 = 1032;
inline constexpr int weekdays = 2062;

struct DisplayCaptions {
  const char* module;  // the title of all three screens, up to what is different in each
  const char* display1;
  const char* display2;
  const char* weekdays;
  const char* button1;  // of the main window
  const char* button2;
  const char* general;
  const char* monday;
  const char* screen;  // in front of its number
  const char* frame;
  const char* name;
  const char* category;
  const char* output;   // in front of the list of a line
  const char* outputs;  // the button of a line, and the dialog that it opens
  const char* dialog;
  const char* open;
  const char* close;
};

inline constexpr DisplayCaptions dutchDisplay = {.module = "Displaymodule KR7210 <adres = F>  -  ",
                                                 .display1 = "Configuratie Display Nr1",
                                                 .display2 = "Configuratie Display Nr2",
                                                 .weekdays = "Omschrijving weekdag",
                                                 .button1 = "LCD Scherm N°1",
                                                 .button2 = "LCD Scherm N°2",
                                                 .general = "Algemene gegevens",
                                                 .monday = "Maandag",
                                                 .screen = "Scherm ",
                                                 .frame = "Hoofdscherm:",
                                                 .name = "Omschrijving",
                                                 .category = "Type scherm",
                                                 .output = "Uitgang:",
                                                 .outputs = "Uitgangen",
                                                 .dialog = "Uitgangen automatisatie:",
                                                 .open = "OP/OPEN",
                                                 .close = "NEER/DICHT"};

inline constexpr DisplayCaptions frenchDisplay = {
    .module = "Module display KR7210 <adresse = F>  -  ",
    .display1 = "Configuration Display Nr1",
    .display2 = "Configuration Display Nr2",
    .weekdays = "Description jour de semaine",
    .button1 = "Ecran LCD N°1",
    // Behind a read it is the same in both languages.
    .button2 = "LCD Scherm N°2",
    .general = "Données génerales",
    .monday = "Lundi",
    .screen = "Ecran ",
    .frame = "Ecran principale:",
    .name = "Description",
    .category = "Type écran",
    .output = "Sortie:",
    .outputs = "Sorties",
    .dialog = "Sortie automatisation:",
    .open = "LEVE/OUVERT",
    .close = "BAISSE/FERMER"};

class DisplayStage : public virtual TableStage {
 protected:
  const DisplayCaptions& texts() const {
    return captions().language == dutch.language ? dutchDisplay : frenchDisplay;
  }
  std::string Title(const char* screen) const { return std::string(texts().module) + screen; }
  ListPlace Category() const { return {texts().category, texts().frame}; }
  // Of a line, by its number.
  ListPlace Module(const std::string& line) {
    return {Label(captions().address + (" " + line)), texts().frame};
  }
  ListPlace Output(const std::string& line) {
    return {Label(texts().output + (" " + line)), texts().frame};
  }
  ListPlace Dialog(const char* row, int number) const { return {row, texts().dialog, number}; }

  // A screen is there once its name stands in its field.
  void PickScreen(int number, std::string_view name) {
    ClickOn("list item", texts().screen + std::to_string(number));
    AwaitContent(texts().name, name);
  }
  // The button of that line, from 1 on, once all of them stand still.
  Widget OutputsButton(int line) {
    std::vector<Widget> buttons;
    const auto lowest = [&] {
      int y = -1;
      for (const Widget& each : buttons) y = std::max(y, each.y);
      return y;
    };
    const bool enabled = WaitFor([&] {
      const int before = lowest();
      buttons.clear();
      for (const Widget& each : desktop().Widgets()) {
        const bool is = each.role == "push button" && each.name == texts().outputs;
        if (is && each.enabled) buttons.push_back(each);
      }
      return buttons.size() == 10 && lowest() == before;
    });
    EXPECT_TRUE(enabled) << buttons.size() << " buttons of lines can be used";
    std::sort(buttons.begin(), buttons.end(),
              [](const Widget& one, const Widget& other) { return one.y < other.y; });
    return buttons.at(static_cast<std::size_t>(line) - 1);
  }
  void AwaitOutputs(const std::string& line, const char* module, const char* output) {
    AwaitListText(Module(line), module);
    AwaitListText(Output(line), output);
  }
  // Line 4 of the shutters of the first display goes to two outputs of the relay module.
  void ComposeOutputsByMouse() {
    PickScreen(4, "Rolluiken   ");
    desktop().Click(OutputsButton(4));
    Await("panel", texts().dialog);
    PickItem(Dialog(texts().open, 1), 1, "B");
    PickItem(Dialog(texts().open, 2), 8, "9");
    PickItem(Dialog(texts().close, 1), 1, "B");
    PickItem(Dialog(texts().close, 2), 9, "10");
    ClickOn("push button", "OK");
    AwaitGone("panel", texts().dialog);
    AwaitOutputs("4", "B", "9");
    PutCells(display1 + 846, {'B', 8});
    PutCells(display1 + 966, {'B', 9});
  }

 private:
  std::string_view Label(const std::string& text) { return *labels_.insert(text).first; }

  std::set<std::string> labels_;  // which places of lists refer to
};

}  // namespace end_to_end
