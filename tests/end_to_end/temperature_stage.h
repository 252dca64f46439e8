// A temperature module with a file of the demo house, and its screens in both languages. The base
// of their tests.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/table_stage.h"

namespace end_to_end {

inline constexpr int temperatureKind = 2;
inline constexpr const char* temperatureFile = "Temp E.BK1";

// The first cell of each table in the file; the header begins with cell 0.
inline constexpr int sensors = 4;
inline constexpr int periods = 68;
inline constexpr int setpoints = 740;
inline constexpr int lights = 1076;
inline constexpr int valves = lights + 64;
inline constexpr int pump = lights + 80;

struct TemperatureCaptions {
  const char* ids;  // the buttons of the main window
  const char* program;
  const char* live;
  const char* room;  // in front of its number
  const char* roomAsked;
  const char* idGroup;
  const char* sensor;
  const char* valveGroup;
  const char* output;
  const char* programGroup;
  const char* morning;
  const char* liveGroup;
  const char* liveStatus;
};

inline constexpr TemperatureCaptions dutchTemperature = {
    .ids = "ID nummers en uitgangen kleppen",
    .program = "Instellingen periodes en temperaturen",
    .live = "Actuele temperaturen (diagnose)",
    .room = "Ruimte ",
    .roomAsked = "Ruimte ?",
    .idGroup = "ID nummers:",
    .sensor = "Temp. sensor:",
    .valveGroup = "Uitgangen kleppen:",
    .output = "Uitgang:",
    .programGroup = "Instellingen periodes en temperaturen:",
    .morning = "'s morgens: ",
    .liveGroup = "Actuele temperaturen:",
    .liveStatus = "Actuele temperaturen"};

inline constexpr TemperatureCaptions frenchTemperature = {
    .ids = "Numéros ID et sorties des vannes",
    .program = "Paramétrage périodes et températures",
    .live = "Températures actuelles (diagnostics)",
    .room = "Pièce ",
    .roomAsked = "Pièce ?",
    .idGroup = "Numéros ID:",
    .sensor = "Capt. de temp:",
    .valveGroup = "Sorties des vannes:",
    .output = "Sortie:",
    .programGroup = "Paramétrage périodes et températures:",
    .morning = "aube: ",
    .liveGroup = "Températures actuelles:",
    .liveStatus = "Températures actuelles"};

class TemperatureStage : public virtual TableStage {
 protected:
  const TemperatureCaptions& texts() const {
    return captions().language == dutch.language ? dutchTemperature : frenchTemperature;
  }
  std::string TitleOfModule(char letter) const {
    const std::string title = captions().language == dutch.language
                                  ? "Temperatuurmodule KR7150 <adres = "
                                  : "Module température KR7150 <adresse = ";
    return title + letter + ">";
  }

  ListPlace RoomOfIds() const { return {texts().idGroup}; }
  ListPlace Sensor(int byte) const { return {texts().sensor, texts().idGroup, byte}; }
  ListPlace Light(int byte) const { return {"LED:", texts().idGroup, byte}; }
  ListPlace Valve() const { return {texts().valveGroup}; }
  ListPlace ValveLetter() const { return {captions().address, texts().valveGroup}; }
  ListPlace ValveOutput() const { return {texts().output, texts().valveGroup}; }
  ListPlace RoomOfProgram() const { return {texts().programGroup}; }

  void PickRoom(const ListPlace& list, int number) {
    AwaitListText(list, texts().roomAsked);
    PickItem(list, number - 1, texts().room + std::to_string(number));
  }
  void AwaitIds(const std::vector<std::string>& sensor, const std::vector<std::string>& light) {
    for (int byte = 1; byte <= 8; ++byte) {
      AwaitListText(Sensor(byte), sensor.at(static_cast<std::size_t>(byte) - 1));
      AwaitListText(Light(byte), light.at(static_cast<std::size_t>(byte) - 1));
    }
  }
  void AwaitValve(const char* letter, const char* output) {
    AwaitListText(ValveLetter(), letter);
    AwaitListText(ValveOutput(), output);
  }

  // The lines of the live temperatures, from the top.
  void AwaitTemperatures(const std::vector<std::string>& rooms) {
    std::vector<std::string> lines;
    WaitFor([&] {
      lines.clear();
      std::vector<Widget> labels;
      for (const Widget& each : desktop().Widgets()) {
        if (each.role == "label" && each.group == texts().liveGroup) labels.push_back(each);
      }
      std::sort(labels.begin(), labels.end(),
                [](const Widget& one, const Widget& other) { return one.y < other.y; });
      for (const Widget& each : labels) lines.push_back(each.name);
      return lines == rooms;
    });
    EXPECT_EQ(lines, rooms);
  }

  // The scroll behind labels that show this.
  void AwaitScroll(const std::string& labels) { AwaitField("scroll bar", labels); }
  // Moves it there with the keyboard.
  void PressOnScroll(const std::string& before, const std::vector<std::string>& keys,
                     const std::string& after) {
    TabTo("scroll bar", before);
    desktop().Press(keys);
    AwaitScroll(after);
  }
  // One step up by a click on the arrow at its right end.
  void StepScrollByMouse(const std::string& before, const std::string& after) {
    Widget arrow = AwaitField("scroll bar", before);
    constexpr int width = 12;
    arrow.x += arrow.width - width;
    arrow.width = width;
    desktop().Click(arrow);
    AwaitScroll(after);
  }
};

}  // namespace end_to_end
