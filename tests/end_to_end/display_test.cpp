// The screens of a display module: the menus of both displays and the short names of the weekdays
// are seen, changed, sent and kept in a file.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "end_to_end/display_stage.h"

namespace end_to_end {
namespace {

constexpr std::chrono::milliseconds tick(30);
constexpr std::chrono::milliseconds blockPause(1000);

const Writing headerWriting = {"T70000", {{0, 0, 3}}, tick, blockPause};
// Each display in four blocks: what names its screens, its lines, its keys and its outputs.
const Writing display1Writing = {
    "T71000", {{2, 73, 3}, {74, 702, 3}, {703, 781, 3}, {782, 1021, 3}}, tick, blockPause};
const Writing display2Writing = {
    "T73000",
    {{1032, 1103, 3}, {1104, 1732, 3}, {1733, 1811, 3}, {1812, 2051, 3}},
    tick,
    blockPause};
const Writing weekdayWriting = {"T75000", {{2062, 2082, 3}}, tick, blockPause};

// --- One display --------------------------------------------------------------------------------

class OneDisplay : public DisplayStage {
 protected:
  void ChangeLineByMouse() {
    PickScreen(1, "Woonkamer   ");
    AwaitListText(Category(), "Verlichting DIM");
    AwaitContent("2", "Eettafel  ");
    AwaitOutputs("3", "C", "4");
    AwaitOutputs("5", "#", "1");
    TypeInto(texts().name, "Gelijkvloers!");  // one more than there is room for
    TypeInto("5", "Nis");
    PickItem(Module("5"), 2, "C");
    PickItem(Output("5"), 2, "3");
    PutText(display1, "Gelijkvloers");
    PutText(display1 + 112, "Nis       ");
    PutCells(display1 + 788, {'C', 2});
  }
  // What was heated are contexts: all outputs go back to unused.
  void ChangeCategoryByMouse() {
    PickScreen(5, "Verwarming  ");
    AwaitOutputs("3", "E", "3");
    PickItem(Category(), 5, "Sferen");
    AwaitContent("->", "Act", 2);
    AwaitContent("<-", "  ", 2);
    AwaitOutputs("3", "", "");
    PickItem(Module("1"), 0, "S");
    PickInList(Output("1"), {"End", "Return"}, "50");
    PutCells(display1 + 699, {7});
    PutCells(display1 + 753, {' ', 126, 'A', 'c', 't', ' ', ' ', ' ', 127, ' ', ' ', ' ', ' '});
    PutCells(display1 + 860, {'S', 49, '#', 0, '#', 0});
  }
  // One name too long and one too short.
  void ChangeWeekdays() {
    AwaitContent("Zondag", "Zo ");
    TypeInto("Maandag", "Maan");
    TypeInto("Zaterdag", "Z");
    PutText(weekdays + 3, "Maa");
    PutText(weekdays + 18, "Z  ");
  }
};

TEST_F(OneDisplay, IsSentAndTheWeekdaysBehindIt) {
  StartWithDemo(displayKind, displayFile, dutch);
  ConnectAndRead();
  OpenAndRead("LCD Scherm N°1", Title(texts().display1), "T81000");
  ChangeLineByMouse();
  ChangeCategoryByMouse();
  ComposeOutputsByMouse();
  PickScreen(1, "Gelijkvloers");
  LeaveByButton(Title(texts().display1));
  OpenAndRead("Algemene gegevens", Title(texts().weekdays), "T85000");
  ChangeWeekdays();
  LeaveByButton(Title(texts().weekdays));

  SendAndExpectWritten({display1Writing, weekdayWriting});
  ExpectFrames("T71000", {{0, "T000071"},
                          {71, "T071032"},
                          {72, "T000083"},
                          {112, "T040078"},
                          {699, "T627007"},
                          {700, "T628007"},
                          {701, "T000032"},
                          {755, "T054065"},
                          {779, "T078032"},
                          {780, "T000067"},
                          {788, "T008067"},
                          {789, "T009002"},
                          {861, "T081049"},
                          {1019, "T239000"}});
  ExpectFrames("T75000", {{0, "T000090"}, {3, "T003077"}, {5, "T005097"}, {20, "T020032"}});
  CloseTool();
}

// --- Both displays ------------------------------------------------------------------------------

class BothDisplays : public DisplayStage {
 protected:
  // On the second screen lights become sockets.
  void ChangeCategoryByKeyboard() {
    TabTo([](const Widget& each) { return each.role == "list"; });
    desktop().Press({"Down", "Down"});
    AwaitContent("Description", "Boven       ");
    AwaitListText(Category(), "Eclairage ON/OFF");
    StepInList(Category(), 2, "Prises");
    AwaitContent("->", "ON", 2);
    AwaitContent("<-", "OFF", 2);
    StepInList(Module("3"), 0, "A");
    StepInList(Output("3"), 7, "8");
    PutCells(display2 + 696, {4});
    PutCells(display2 + 714, {' ', 126, 'O', 'N', ' ', ' ', ' ', ' ', 127, 'O', 'F', 'F', ' '});
    PutCells(display2 + 800, {'#', 0, '#', 0, 'A', 7, '#', 0});
  }
  void ComposeOutputsByKeyboard() {
    PickScreen(4, "Rolluiken   ");
    const Widget button = OutputsButton(5);
    TabTo([&](const Widget& each) {
      return each.role == "push button" && each.x == button.x && each.y == button.y;
    });
    desktop().Press({"space"});
    Await("panel", texts().dialog);
    StepInList(Dialog(texts().open, 1), 1, "B");
    StepInList(Dialog(texts().open, 2), 10, "11");
    StepInList(Dialog(texts().close, 1), 1, "B");
    StepInList(Dialog(texts().close, 2), 11, "12");
    desktop().Press({"Return"});
    AwaitGone("panel", texts().dialog);
    PutCells(display2 + 848, {'B', 10});
    PutCells(display2 + 968, {'B', 11});
  }
};

TEST_F(BothDisplays, AreKeptInAFileAndSentFromItAsAWhole) {
  StartWithDemo(displayKind, displayFile, french);
  ConnectAndRead();
  // Behind a read the caption of the second display is the same in both languages.
  OpenAndRead("LCD Scherm N°2", Title(texts().display2), "T83000");
  ChangeCategoryByKeyboard();
  ComposeOutputsByKeyboard();
  LeaveScreen(Title(texts().display2));
  AwaitWindow(programName);
  ExpectNotSaved();

  OpenAndRead("Ecran LCD N°1", Title(texts().display1), "T81000");
  LeaveByButton(Title(texts().display1));
  OpenAndRead("Données génerales", Title(texts().weekdays), "T85000");
  TypeInto("Lundi", "Lun");
  PutText(weekdays + 3, "Lun");
  LeaveByButton(Title(texts().weekdays));
  const std::filesystem::path file = SaveAs("Ecrans");
  ExpectFile(file);
  CloseTool();

  StartTool();
  OpenFile("Ecrans.BK1");
  OpenTable("Ecran LCD N°2", Title(texts().display2));
  AwaitContent(texts().name, "Slaapkamer  ");
  PickScreen(2, "Boven       ");
  AwaitListText(Category(), "Prises");
  AwaitContent("2", "Kamer één ");
  AwaitOutputs("3", "A", "8");
  LeaveByButton(Title(texts().display2), TitleOf(file));
  SendAndExpectWritten({headerWriting, display1Writing, display2Writing, weekdayWriting});
  ExpectFrames("T70000", {{0, "T000070"}});
  ExpectFrames("T73000", {{71, "T071032"},
                          {72, "T000080"},
                          {696, "T624004"},
                          {716, "T015079"},
                          {804, "T024065"},
                          {805, "T025007"},
                          {848, "T068066"},
                          {968, "T188066"},
                          {969, "T189011"}});
  ExpectFrames("T75000", {{3, "T003076"}});
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
