// The batteries of the kinds with several tables, each of which is read when its screen is opened
// for the first time: temperature, display and master.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/battery_stage.h"
#include "end_to_end/display_stage.h"
#include "end_to_end/image_lines.h"
#include "end_to_end/master_stage.h"
#include "end_to_end/temperature_stage.h"

namespace end_to_end {
namespace {

// The cells from the first on.
std::map<int, int> CellsFrom(int first, const std::vector<int>& numbers) {
  std::map<int, int> cells;
  for (const int number : numbers) cells[first++] = number;
  return cells;
}

std::map<int, int> CellsFrom(int first, std::string_view text) {
  return CellsFrom(first, std::vector<int>(text.begin(), text.end()));
}

// --- Temperature --------------------------------------------------------------------------------

constexpr BatteryModule temperature = {
    temperatureKind,
    "Temperature",
    temperatureFile,
    {"Temperatuurmodule KR7150 <adres = E>", "Module température KR7150 <adresse = E>"}};

class TemperatureBattery : public BatteryStage, public TemperatureStage {
 protected:
  using TemperatureStage::texts;

  std::vector<Way> Ways() override {
    return {{texts().ids,
             [this] {
               OpenAndRead(texts().ids, title(), "T81000");
               PickRoom(RoomOfIds(), 3);
               AwaitListText(Sensor(2), "6A");
               PickInList(Sensor(2), {"End", "Return"}, "FF");
               LeaveByButton(title());
             },
             {{sensors + 17, 0xFF}},
             [this] { ReadTable(texts().ids); }},
            {texts().program,
             [this] {
               OpenAndRead(texts().program, title(), "T82000");
               PickRoom(RoomOfProgram(), 6);
               const std::string morning = texts().morning;
               StepScrollByMouse(morning + "23 °C", morning + "24 °C");
               LeaveByButton(title());
             },
             {{setpoints + 42 * 5, 24}},
             [this] { ReadTable(texts().program); }},
            {texts().live, [this] {
               OpenTable(texts().live, title());
               AwaitTemperatures(Measured());
               AwaitText(texts().liveStatus);
               LeaveByButton(title());
             }}};
  }

 private:
  void ReadTable(const char* button) {
    OpenTable(button, title());
    LeaveByButton(title());
  }
  // A file holds no temperatures: of its six rooms the module tells nothing but zeros.
  std::vector<std::string> Measured() const {
    constexpr std::size_t rooms = 6;
    constexpr std::size_t places = 8;
    std::vector<std::string> shown;
    for (std::size_t room = 1; room <= rooms; ++room) {
      shown.push_back(texts().room + std::to_string(room) + " = 0°C");
    }
    shown.resize(places, "---");
    return shown;
  }
};

TEST_P(TemperatureBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, TemperatureBattery,
                         ::testing::ValuesIn(InBothLanguages({&temperature})), BatteryName);

// --- Display ------------------------------------------------------------------------------------

constexpr BatteryModule display = {
    displayKind,
    "Display",
    displayFile,
    {"Displaymodule KR7210 <adres = F>", "Module display KR7210 <adresse = F>"}};

class DisplayBattery : public BatteryStage, public DisplayStage {
 protected:
  using DisplayStage::texts;

  std::vector<Way> Ways() override {
    // A name on the first screen of each, and the dialog of a line of another.
    const auto edit1 = [this] {
      PickScreen(1, "Woonkamer   ");
      TypeInto(texts().name, "Gelijkvloers");
      ComposeOutputsByMouse();
    };
    const auto edit2 = [this] {
      PickScreen(1, "Slaapkamer  ");
      TypeInto(texts().name, "Zolder");
    };
    const auto editDays = [this] { TypeInto(texts().monday, "Lun"); };
    std::map<int, int> cells1 = CellsFrom(display1, "Gelijkvloers");
    cells1.merge(CellsFrom(display1 + 846, {'B', 8}));
    cells1.merge(CellsFrom(display1 + 966, {'B', 9}));
    return {WayTo(texts().button1, texts().display1, "T81000", edit1, cells1),
            WayTo(texts().button2, texts().display2, "T83000", edit2,
                  CellsFrom(display2, "Zolder      ")),
            WayTo(texts().general, texts().weekdays, "T85000", editDays,
                  CellsFrom(weekdays + 3, "Lun"))};
  }

 private:
  Way WayTo(const char* button, const char* screen, const char* command,
            const std::function<void()>& edit, const std::map<int, int>& cells) {
    const std::string title = Title(screen);
    return {button,
            [this, button, title, command, edit] {
              OpenAndRead(button, title, command);
              edit();
              LeaveByButton(title);
            },
            cells,
            [this, button, title] {
              OpenTable(button, title);
              LeaveByButton(title);
            }};
  }
};

TEST_P(DisplayBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, DisplayBattery, ::testing::ValuesIn(InBothLanguages({&display})),
                         BatteryName);

// --- Master -------------------------------------------------------------------------------------

constexpr BatteryModule master = {
    9, "Master", "Master.BK1", {dutchMaster.title, frenchMaster.title}};

class MasterBattery : public BatteryStage, public MasterStage {
 protected:
  using MasterStage::texts;

  std::vector<Way> Ways() override {
    return {ButtonsWay(),
            SecondTimeWay(),
            ListWay(texts().contexts, [this](MasterImage& image) { AddToContext(image, 1); }),
            ListWay(texts().timePrograms, [this](MasterImage& image) { AddTimeProgram(image); }),
            ListWay(texts().lightPrograms, [this](MasterImage& image) { AddLightProgram(image); }),
            DiagnosticsWay({LiveTest::Line, LiveTest::Buttons, LiveTest::Light, LiveTest::Clock}),
            ModulesWay()};
  }
  std::map<int, int> FurtherCells() const override {
    return ChangedCells(LinesOf(DemoMaster().Content()), LinesOf(image_.Content()));
  }

 private:
  Way ListWay(const char* button, const std::function<void(MasterImage&)>& add) {
    return {button,
            [this, add] { add(image_); },
            {},
            [this, button] {
              OpenScreen(button);
              LeaveMasterScreen();
            }};
  }
  // The page stays open until something is sent. A module comes behind the ten of the house, which
  // are all there.
  Way ModulesWay() {
    return {texts().configuration,
            [this] {
              OpenPage();
              ScanModules();
              AddModule('K', 9, texts().lumenza);
              AwaitCell("11", texts().address, "K");
            },
            {{133, 'K'}, {151, lumenzaKind}}};
  }

  static constexpr int lumenzaKind = 11;
  MasterImage image_ = DemoMaster();  // what the lists are to hold
};

TEST_P(MasterBattery, EveryScreenIsEditedSentReadAgainAndKept) {
  Run();
}

INSTANTIATE_TEST_SUITE_P(Of, MasterBattery, ::testing::ValuesIn(InBothLanguages({&master})),
                         BatteryName);

}  // namespace
}  // namespace end_to_end
