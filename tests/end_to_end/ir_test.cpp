// The screen of the infrared module: what the keys of a remote control do. Changed, sent, and kept
// in a file.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/special_stage.h"

namespace end_to_end {
namespace {

constexpr int infraredKind = 8;
constexpr const char* demoFile = "I.R. J.BK1";

const Writing allBlocks = {
    .command = "T70000",
    .runs = {{0, 124, 3}, {125, 220, 3}, {221, 316, 3}, {317, 412, 3}, {413, 508, 3}},
    .tick = std::chrono::milliseconds(20),
    .pause = std::chrono::seconds(1)};

// Texts of the eight rows; those behind are empty.
using Codes = std::vector<std::string>;

class Infrared : public SpecialStage {
 protected:
  // A key of the picture.
  void ClickOnKey(const char* key) { ClickOn("check box", key); }
  // The keyboard comes to the key where it was last, at first to 0.
  void PressKey(const char* current, const std::vector<std::string>& keys, const char* key) {
    TabTo("check box", current);
    desktop().Press(keys);
    AwaitChecked("check box", key);
  }
  void AwaitList(const char* title, Codes codes) {
    constexpr std::size_t most = 8;
    codes.resize(most, "***");
    Codes shown;
    WaitFor([&] {
      shown = CodesOf(title);
      return shown == codes;
    });
    EXPECT_EQ(shown, codes) << title;
  }
  void Erase(const char* caption, int row) {
    desktop().Click(AwaitField("push button", caption, row));
  }
  void ExpectRefused(const char* message, const ListPlace& type) {
    DismissMessage(message);
    AwaitListText(type, "");
    EXPECT_FALSE(desktop().FindList(type)->enabled);
  }

 private:
  Codes CodesOf(std::string_view title) const {
    std::vector<Widget> labels;
    for (const Widget& each : desktop().Widgets()) {
      if (each.role == "label" && each.group == title) labels.push_back(each);
    }
    std::sort(labels.begin(), labels.end(), [](const Widget& one, const Widget& other) {
      return std::tuple(one.y, one.x) < std::tuple(other.y, other.x);
    });
    Codes codes;
    for (const Widget& each : labels) {
      if (each.name.size() > 1) codes.push_back(each.name);  // no number of a row
    }
    return codes;
  }
};

class InfraredInDutch : public Infrared {
 protected:
  static constexpr const char* title = "I.R. module  KR7180 <adres = J>";

  void OpenInfrared() { OpenScreen("IR instellingen", title); }
  static ListPlace Editor(std::string_view label) {
    return {label, "IR code wijzigen, max 4 ruimtes."};
  }
  void FillRowOfKey5() {
    ClickOnKey("5");
    AwaitList("Acties voor toets 5", {"S0302"});
    PickItem(Editor("Actie Nr:"), 2, "3");
    PickItem(Editor("Module:"), 9, "J");
    ExpectRefused("IR module kan niet naar zichzelf sturen!", Editor("Type:"));
    EXPECT_FALSE(desktop().FindList(Editor("Uitgang:")));
    PickItem(Editor("Module:"), 0, "A");
    AwaitListText(Editor("Type:"), "Module type?");
    PickItem(Editor("Type:"), 0, "Relaismodule");
    PickItem(Editor("Uitgang:"), 6, "7");
    PickItem(Editor(captions().action), 2, "Toggle");
    Await("check box", "Kopiëren voor alle IR's");
    ClickOn("push button", "Invoegen");
    AwaitList("Acties voor toets 5", {"S0302", "***", "A0702"});
    AwaitGone("check box", "Kopiëren voor alle IR's");
  }
  void ChangeKey9ByKeyboard() {
    PressKey("5", {"9"}, "9");
    AwaitList("Acties voor toets 9", {"B0201", "B0401", "Z0721"});
    AwaitListText(Editor("Module:"), "");
    Erase("Wissen", 2);
    AwaitList("Acties voor toets 9", {"B0201", "***", "Z0721"});
    StepInList(Editor("Actie Nr:"), 3, "4");
    // Not by steps: they would come past the letter of the module itself.
    TabToList(Editor("Module:"));
    desktop().Press({"S"});
    AwaitListText(Editor("Type:"), "Sfeer");
    StepInList(Editor("Sfeer:"), 11, "12");
    PressButton("Invoegen");
    AwaitList("Acties voor toets 9", {"B0201", "***", "Z0721", "S1202"});
  }
  void PutSetCells() {
    PutCells(6, {'A', 4, 1});     // button 3
    PutCells(236, {'A', 6, 2});   // row 3 of key 5
    PutCells(200, {42, 42, 42});  // row 2 of key 9
    PutCells(296, {'S', 11, 2});  // row 4 of key 9
  }
};

TEST_F(InfraredInDutch, KeysOfThePictureAreSetInTheModuleAndInTheFile) {
  ConnectTo(infraredKind, demoFile, dutch);
  OpenInfrared();
  AwaitText("Druk de gewenste toets in op de afbeelding.(0,1,2..9,AAN/UIT, CH+ of CH-)");
  EXPECT_FALSE(desktop().Find("push button", "Invoegen")) << "no key is chosen yet";
  FillRowOfKey5();
  ChangeKey9ByKeyboard();
  LeaveByButton(title);
  SetButtonByMouse(title, 3);
  PutSetCells();
  SendAndExpectWritten({allBlocks});
  // All cells go out, so the place among the frames is that of the cell.
  ExpectFrames("T70000", {{6, "T006065"},
                          {124, "T124024"},
                          {200, "T075042"},
                          {202, "T077042"},
                          {236, "T015065"},
                          {237, "T016006"},
                          {238, "T017002"},
                          {296, "T075083"},
                          {297, "T076011"},
                          {298, "T077002"},
                          {508, "T095042"}});
  const std::filesystem::path file = SaveAs("Zapper");
  ExpectLines(file, {{298, "02"}});
  CloseTool();

  StartTool();
  OpenFile("Zapper.BK1");
  OpenInfrared();
  ClickOnKey("5");
  AwaitList("Acties voor toets 5", {"S0302", "***", "A0702"});
  ClickOnKey("9");
  AwaitList("Acties voor toets 9", {"B0201", "***", "Z0721", "S1202"});
  LeaveByButton(title, TitleOf(file));
  ExpectButton(title, 3, "A0501", TitleOf(file));
  CloseTool();
}

class InfraredInFrench : public Infrared {
 protected:
  static constexpr const char* title = "Module I.R. KR7180 <adresse = J>";

  // Rows that cannot be filled in the screen.
  static std::map<int, int> LowRows() {
    return {{353, 'A'}, {354, 2}, {355, 1}, {497, 'C'}, {498, 0}, {499, 2}};
  }
  static ListPlace Editor(std::string_view label) { return {label, "Modification code IR"}; }

  void ChangeChannelDownByKeyboard() {
    PressKey("0", {"Down", "Left", "space"}, "CH-");
    AwaitList("Actions pour channel -",
              {"H0104", "***", "***", "***", "A0301", "***", "***", "C0102"});
    Erase("Effacer", 8);
    AwaitList("Actions pour channel -", {"H0104", "***", "***", "***", "A0301"});
    StepInList(Editor("Action Nr:"), 1, "2");
    StepInList(Editor("Module:"), 8, "I");
    AwaitListText(Editor("Type:"), "Type module?");
    StepInList(Editor("Type:"), 6, "Module simulation");
    PressOn("radio button", "Simulation ON");
    PressButton("Ajouter");
    AwaitList("Actions pour channel -", {"H0104", "I0101", "***", "***", "A0301"});
  }
  // A letter alone makes an empty action of its own form.
  void EmptyARowOfOnOff() {
    ClickOnKey("ON/OFF");
    AwaitList("Actions pour touche ON/OFF", {"A1102", "H0102", "E0199", "I0100"});
    PickItem(Editor("Action Nr:"), 3, "4");
    PickItem(Editor("Module:"), 9, "J");
    ExpectRefused(" Module IR est la source et la distination!", Editor("Type:"));
    PickItem(Editor("Module:"), 1, "B");
    AwaitListText(Editor("Type:"), "Type module?");
    ClickOn("push button", "Ajouter");
    AwaitList("Actions pour touche ON/OFF", {"A1102", "H0102", "E0199"});
  }
  void PutSetCells() {
    PutCells(21, {'S', 6, 2});    // button 8
    PutCells(209, {'I', 0, 1});   // row 2 of channel -
    PutCells(299, {0, 0, 0});     // row 4 of ON/OFF
    PutCells(497, {42, 42, 42});  // row 8 of channel -
  }
};

TEST_F(InfraredInFrench, KeysArePressedByKeyboardAndTheFileIsSent) {
  ConnectTo(infraredKind, demoFile, french, LowRows());
  PressButton("Configuration IR");
  AwaitWindow(title);
  ChangeChannelDownByKeyboard();
  EmptyARowOfOnOff();
  LeaveScreen(title);
  AwaitWindow(programName);
  SetButtonByKeyboard(title, 8);
  PutSetCells();
  const std::map<int, std::string> stars = {{299, "*"}, {300, "*"}, {301, "*"}};
  std::map<int, std::string> texts = stars;
  texts.insert({{23, "02"}, {210, "00"}, {211, "01"}});
  const std::filesystem::path file = SaveAs("Salon");
  ExpectLines(file, texts);

  ClickOnEntry(captions().fileMenu, captions().newEntry);
  AwaitWindow(programName);
  OpenFile("Salon.BK1");
  OpenScreen("Configuration IR", title);
  ClickOnKey("CH-");
  AwaitList("Actions pour channel -", {"H0104", "I0101", "***", "***", "A0301"});
  ClickOnKey("ON/OFF");
  AwaitList("Actions pour touche ON/OFF", {"A1102", "H0102", "E0199"});
  LeaveByButton(title, TitleOf(file));
  ExpectButton(title, 8, "S0702", TitleOf(file));
  SendAndExpectWritten({allBlocks});
  ExpectFrames("T70000", {{21, "T021083"},
                          {23, "T023002"},
                          {209, "T084073"},
                          {210, "T085000"},
                          {211, "T086001"},
                          {299, "T078000"},
                          {301, "T080000"},
                          {353, "T036065"},
                          {497, "T084042"},
                          {499, "T086042"}});
  // Numbers in the file are numbers in memory, a star stays one.
  ExpectLines(SaveAs("Encore"), stars);
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
