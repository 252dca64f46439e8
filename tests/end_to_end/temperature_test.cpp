// The screen of a temperature module in its three looks: what the demo house has there is seen,
// changed, sent and kept in a file; and the temperatures that a module measures are read.
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/temperature_stage.h"

namespace end_to_end {
namespace {

constexpr CellRun headerRun = {0, 2, 3};
constexpr CellRun sensorRun = {sensors, periods - 1, 0};
constexpr CellRun periodRun = {periods, setpoints - 1, 2};
constexpr CellRun setpointRun = {setpoints, lights - 1, 2};
constexpr CellRun tailRun = {lights, lights + 81, 0};

constexpr std::chrono::milliseconds tick(20);
constexpr std::chrono::milliseconds tablePause(30);

const Writing idsWriting = {"T71000", {sensorRun, tailRun}, tick, tablePause};
const Writing programWriting = {"T72000", {periodRun, setpointRun}, tick, tablePause};
const Writing wholeWriting = {
    "T75000", {headerRun, sensorRun, periodRun, setpointRun, tailRun}, tick, tablePause};

// --- Identities and valves ----------------------------------------------------------------------

class Identities : public TemperatureStage {
 protected:
  void ChangeRoomByMouse() {
    PickRoom(RoomOfIds(), 3);
    AwaitIds({"28", "6A", "30", "A7", "03", "00", "00", "D5"},
             {"29", "12", "5E", "01", "00", "00", "00", "4E"});
    PickInList(Sensor(2), {"End", "Return"}, "FF");
    PickInList(Light(8), {"Home", "Return"}, "00");
    PutCells(sensors + 17, {0xFF});
    PutCells(lights + 23, {0});
  }
  // A valve goes to another module, and the pump comes from one.
  void MoveOutputsByMouse() {
    PickRoom(Valve(), 3);
    AwaitText("Aansluiting 3 op de temperatuurmodule");
    AwaitChecked("radio button", "Module:");
    ClickOn("radio button", "Bus:");
    AwaitGone("label", "Aansluiting 3 op de temperatuurmodule");
    AwaitValve("E", "03");
    PickItem(ValveLetter(), 1, "B");
    PickItem(ValveOutput(), 4, "05");
    PutCells(valves + 4, {'B', 4});

    PickItem(Valve(), 6, "Pomp");
    AwaitChecked("radio button", "Bus:");
    AwaitValve("A", "12");
    ClickOn("radio button", "Module:");
    AwaitText("Aansluiting P op de temperatuurmodule");
    PutCells(pump, {'E', 8});
  }
  void ExpectChanges() {
    PickRoom(RoomOfIds(), 3);
    AwaitIds({"28", "FF", "30", "A7", "03", "00", "00", "D5"},
             {"29", "12", "5E", "01", "00", "00", "00", "00"});
    PickRoom(Valve(), 3);
    AwaitValve("B", "05");
  }
};

TEST_F(Identities, AndValvesAreSentAloneAndWithAllElseFromAFile) {
  StartWithDemo(temperatureKind, temperatureFile, dutch);
  const std::string title = TitleOfModule('E');
  ConnectAndRead();
  OpenAndRead(texts().ids, title, "T81000");
  ChangeRoomByMouse();
  MoveOutputsByMouse();
  LeaveByButton(title);
  SendAndExpectWritten({idsWriting});
  ExpectFrames("T71000", {{0, "T00040"},
                          {17, "T017255"},
                          {63, "T0630"},
                          {64, "T00041"},
                          {64 + 23, "T0230"},
                          {64 + 68, "T06866"},
                          {64 + 69, "T0694"},
                          {64 + 80, "T08069"},
                          {64 + 81, "T0818"}});

  OpenAndRead(texts().program, title, "T82000");
  LeaveByButton(title);
  const std::filesystem::path file = SaveAs("Kamers");
  ExpectFile(file);
  CloseTool();

  StartTool();
  OpenFile("Kamers.BK1");
  OpenTable(texts().ids, title);
  ExpectChanges();
  LeaveByButton(title, TitleOf(file));
  OpenTable(texts().program, title);
  PickRoom(RoomOfProgram(), 6);
  StepScrollByMouse("'s morgens: 23 °C", "'s morgens: 24 °C");
  PutCells(setpoints + 42 * 5, {24});
  LeaveByButton(title, TitleOf(file));
  SendAndExpectWritten({wholeWriting});
  ExpectFrames("T75000", {{0, "T000069"},
                          {1, "T001006"},
                          {2, "T002005"},
                          {3, "T00040"},
                          {3 + 64, "T00006"},
                          {3 + 64 + 672 + 210, "T21024"},
                          {3 + 64 + 672 + 336 + 81, "T0818"}});
  CloseTool();
}

// --- Periods and set points ---------------------------------------------------------------------

class Programs : public TemperatureStage {
 protected:
  // Tuesday of the first room, from the values of a workday of the house.
  void ChangeDayByKeyboard() {
    PressOnScroll("matin: 08:30", {"Right"}, "matin: 08:35");
    AwaitScroll("aube: 08:35");  // where the period before it ends
    // The ends of the scroll are far behind its neighbours, where it stops.
    PressOnScroll("matin: 08:35", {"Home"}, "matin: 06:30");
    PressOnScroll("matin: 06:30", {"Right", "Right"}, "matin: 06:40");
    PressOnScroll("aube: 06:30", {"Home"}, "aube: 22:00");
    PressOnScroll("aube: 22:00", {"Right"}, "aube: 22:05");
    PressOnScroll("aube: 20 °C", {"End"}, "aube: 40 °C");
    PressOnScroll("soir: 21 °C", {"Right", "Right", "Right"}, "soir: 24 °C");
    PressOnScroll("nuit: 16 °C", std::vector<std::string>(6, "Left"), "nuit: 10 °C");
  }
};

TEST_F(Programs, AreSentAloneAndSoAreIdentitiesBehindThem) {
  StartWithDemo(temperatureKind, temperatureFile, french);
  const std::string title = TitleOfModule('E');
  ConnectAndRead();
  OpenAndRead(texts().program, title, "T82000");
  PickRoom(RoomOfProgram(), 1);
  AwaitChecked("radio button", "Lundi");
  ClickOn("radio button", "Mardi");
  AwaitChecked("radio button", "Mardi");
  ChangeDayByKeyboard();
  ClickOn("check box", "Dimanche");
  AwaitChecked("check box", "Dimanche");
  EXPECT_TRUE(WaitFor([&] { return !IsEnabled("check box", "Dimanche"); }));
  for (const int day : {1, 6}) {
    PutCells(periods + 12 * day, {22, 5, 6, 40, 12, 0, 13, 30, 16, 30, 22, 0});
    PutCells(setpoints + 6 * day, {40, 18, 19, 18, 24, 10});
  }
  LeaveByButton(title);
  SendAndExpectWritten({programWriting});
  ExpectFrames("T72000", {{0, "T00006"},
                          {12, "T01222"},
                          {13, "T01305"},
                          {14, "T01406"},
                          {15, "T01540"},
                          {72, "T07222"},
                          {672 + 6, "T00640"},
                          {672 + 10, "T01024"},
                          {672 + 41, "T04110"},
                          {672 + 335, "T33508"}});
  ExpectNotSaved();

  OpenAndRead(texts().ids, title, "T81000");
  StepInList(RoomOfIds(), 1, "Pièce 2");
  AwaitListText(Sensor(8), "26");
  StepInList(Light(2), 3, "03");
  PutCells(lights + 9, {3});
  StepInList(Valve(), 6, "Circul.");
  PressOn("radio button", "Module:");
  AwaitText("Borne P du module température");
  PutCells(pump, {'E', 8});
  LeaveScreen(title);
  AwaitWindow(programName);
  SendAndExpectWritten({idsWriting});
  ExpectFrames("T71000", {{64 + 9, "T0093"}, {64 + 80, "T08069"}, {64 + 81, "T0818"}});
  ExpectFile(SaveAs("Pieces"));
  CloseTool();
}

// --- Live temperatures --------------------------------------------------------------------------

// What a module measures whose memory was chosen by a number.
struct Measured {
  const Captions* captions;
  const char* seed;
  char letter;
  std::vector<std::string> rooms;
};

void PrintTo(const Measured& each, std::ostream* out) {
  *out << each.captions->languageName;
}

const Measured dutchMeasured = {
    .captions = &dutch,
    .seed = "7",
    .letter = 'J',
    .rooms = {"Ruimte 1 = 24°C", "Ruimte 2 = 21°C", "Ruimte 3 = 18°C",
              "Ruimte 4 : ID nr. van Tempsensor EN Led niet juist of niet gevonden !",
              "Ruimte 5 = 21°C", "---", "---", "---"}};

const Measured frenchMeasured = {
    .captions = &french,
    .seed = "55",
    .letter = 'H',
    .rooms = {"Pièce 1 : Température négative !!", "Pièce 2 = 25°C", "Pièce 3 = 15°C",
              "Pièce 4 = 15°C", "Pièce 5 = 20°C", "Pièce 6 = 19°C", "Pièce 7 = 23°C", "---"}};

class Temperatures : public TemperatureStage, public ::testing::WithParamInterface<Measured> {};

TEST_P(Temperatures, AreMeasuredEachTimeTheyAreAskedFor) {
  LayOutDirectory(*GetParam().captions);
  StartModule(temperatureKind, {"--seed", GetParam().seed});
  StartTool();
  const std::string title = TitleOfModule(GetParam().letter);
  ConnectAndRead();
  for (int times = 0; times < 2; ++times) {
    OpenTable(texts().live, title);
    AwaitTemperatures(GetParam().rooms);
    AwaitText(texts().liveStatus);
    LeaveByButton(title);
  }
  std::vector<std::string> commands;
  for (const Conversation& each : Conversations()) commands.push_back(each.command);
  EXPECT_EQ(commands, (std::vector<std::string>{"T80000", "T83000", "T83000"}));
  AwaitText("Edit mode");
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(In, Temperatures, ::testing::Values(dutchMeasured, frenchMeasured),
                         [](const auto& each) { return each.param.captions->languageName; });

}  // namespace
}  // namespace end_to_end
