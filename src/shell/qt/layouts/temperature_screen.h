// The look of the screen of the temperature module, in the same place for each of its three uses:
// identities and valves of a room, its periods day by day with the shown day as a band below them,
// and the temperatures line by line. The table of screens names it.
#pragma once

#include <string>

#include "shell/qt/layout.h"
#include "shell/qt/layouts/status_row.h"
#include "special/temperature_screen.h"

namespace bkconf {

inline Part IdPart(const std::string& name) {
  std::vector<Part> row = {Item(name + "Label")};
  for (int byte = 1; byte <= IdBytes; ++byte) {
    Part list = Labelled(name + "Label", name + std::to_string(byte));
    list.look = Look::Short;
    row.push_back(std::move(list));
  }
  return Row(std::move(row));
}

/// The choice of a room is named by the frame that it stands in.
inline Part RoomList(std::string_view group, std::string_view list) {
  return Row({Wide(18, Labelled(group, list)), Space()});
}

inline Part RoomIdsPart() {
  constexpr int optionCharacters = 14;
  const Part ids =
      Frame("idsGroup",
            Column({RoomList("idsGroup", "idRoom"), Columns({IdPart("sensor"), IdPart("led")})}));
  const Part own = Row({Wide(optionCharacters, Item("ownOutput", Look::Tall)),
                        Item("ownOutputText", Look::Tall), Space()});
  Part letter = Labelled("valveLetterLabel", "valveLetter");
  Part output = Labelled("valveOutputLabel", "valveOutput");
  const Part other =
      Row({Wide(optionCharacters, Item("otherOutput", Look::Tall)), Item("valveLetterLabel"),
           std::move(letter), Item("valveOutputLabel"), std::move(output), Space()});
  const Part valves =
      Frame("valvesGroup", Column({RoomList("valvesGroup", "valve"), Tight({own, Kept(other)})}));
  return Frame("idsLook", Column({ids, valves, Space()}));
}

/// A value that is moved by the scroll beside it.
inline Part MovedLabel(std::string_view field) {
  return Wide(7, Item(field, Look::Tall));
}

inline Part PeriodsPart() {
  std::vector<Part> rows;
  for (int period = 1; period <= PeriodsOfDay; ++period) {
    const std::string name = "period" + std::to_string(period);
    rows.push_back(
        Row({Item(name + "Label"), MovedLabel(name + "From"),
             Labelled(name + "Label " + name + "From", name + "FromScroll"),
             MovedLabel(name + "To"), Labelled(name + "Label " + name + "To", name + "ToScroll")}));
  }
  return Frame("periodsGroup", Columns(std::move(rows)));
}

inline Part SetpointsPart() {
  std::vector<Part> rows;
  for (int period = 1; period <= PeriodsOfDay; ++period) {
    const std::string name = "period" + std::to_string(period);
    const std::string labels = name + "Label " + name + "Setpoint " + name + "Unit";
    rows.push_back(Row({Wide(4, Item(name + "Setpoint", Look::Tall)), Item(name + "Unit"),
                        Labelled(labels, name + "SetpointScroll")}));
  }
  return Frame("setpointsGroup", Columns(std::move(rows)));
}

/// Each day with the box that copies the shown one to it.
inline Part DaysPart() {
  std::vector<Part> rows;
  for (int day = 1; day <= WeekDays; ++day) {
    const std::string name = "day" + std::to_string(day);
    rows.push_back(Row({Item(name), Labelled(name, name + "Copy")}));
  }
  return Frame("daysGroup", Columns(std::move(rows)));
}

/// Nothing moves when a room is picked.
inline Part RoomProgramPart() {
  return Frame("programLook",
               Column({RoomList("programLook", "programRoom"),
                       Kept(Row({DaysPart(), Share(3, PeriodsPart()), Share(2, SetpointsPart())})),
                       Kept(Labelled("periodsGroup", "band")), Space()}));
}

/// Each line has room for the longest that a module reports.
inline Part LiveTemperaturesPart() {
  constexpr int characters = 70;
  std::vector<Part> lines;
  for (int room = 1; room <= MostRooms; ++room) {
    lines.push_back(Wide(characters, Item("liveRoom" + std::to_string(room), Look::Tall)));
  }
  lines.push_back(Space());
  return Frame("liveLook", Tight(std::move(lines)));
}

inline Part TemperatureScreenLayout() {
  return Column(
      {Pile({RoomIdsPart(), RoomProgramPart(), LiveTemperaturesPart()}), Rule(), StatusRow()});
}

}  // namespace bkconf
