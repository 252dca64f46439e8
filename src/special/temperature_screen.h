// The screen of the temperature module in its three looks: identities and valve outputs, the
// periods and set points of a week, and the temperatures of this moment.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "image/tables.h"
#include "platform/field.h"
#include "special/day_bounds.h"

namespace bkconf {

inline constexpr int WeekDays = 7;
inline constexpr int IdBytes = 8;

/// An identity on the bus, byte by byte.
struct IdFields {
  IdFields(Screen& screen, const std::string& name);

  LabelField label;
  std::vector<std::unique_ptr<ListField>> bytes;
};

/// The identities of a room's sensor and LED, and where its valve is connected.
struct RoomIdFields {
  explicit RoomIdFields(Screen& screen);

  GroupField group;
  GroupField idsGroup;
  ListField room;
  IdFields sensor;
  IdFields led;

  GroupField valvesGroup;
  ListField valve;  ///< the rooms, and the pump behind them
  OptionField own;  ///< connected to this module
  LabelField ownText;
  OptionField other;  ///< connected to another one
  LabelField letterLabel;
  ListField letter;
  LabelField outputLabel;
  ListField output;
};

/// A period of a day: from one boundary to the next, and its temperature.
struct PeriodRow {
  PeriodRow(Screen& screen, const std::string& name);

  LabelField label;
  LabelField from;
  ScrollField fromScroll;  ///< in minutes
  LabelField to;
  ScrollField toScroll;
  LabelField setpoint;
  LabelField unit;
  ScrollField setpointScroll;  ///< in degrees
};

struct DayFields {
  DayFields(Screen& screen, const std::string& name, OptionField* first);

  OptionField day;
  CheckField copy;  ///< ticked, it takes over the day that is shown
};

struct RoomProgramFields {
  explicit RoomProgramFields(Screen& screen);

  GroupField group;
  ListField room;
  GroupField periodsGroup;
  GroupField setpointsGroup;
  std::vector<std::unique_ptr<PeriodRow>> periods;
  GroupField daysGroup;
  std::vector<std::unique_ptr<DayFields>> days;
  DayBandField band;  ///< the periods of the shown day as a picture
};

struct LiveTemperatureFields {
  explicit LiveTemperatureFields(Screen& screen);

  GroupField group;
  std::vector<std::unique_ptr<LabelField>> rooms;
};

struct TemperatureScreenFields : Screen {
  TemperatureScreenFields();

  RoomIdFields ids;
  RoomProgramFields program;
  LiveTemperatureFields live;
  LabelField status;
  ProgressField bar;
  ButtonField leave;
};

inline TemperatureScreenFields TemperatureScreen;

/// Of the text of a value that was not touched, and of one that was changed.
inline constexpr Colour QuietColour{0x40, 0x40, 0x40};
inline constexpr Colour ChangedColour{0xFF, 0x00, 0xFF};
/// Of temperatures below and above what a room usually has.
inline constexpr Colour ColdColour{0x00, 0x00, 0xFF};
inline constexpr Colour HotColour{0xFF, 0x00, 0x00};

/// Captions and handlers, once at start-up.
void LoadTemperatureScreen();

/// Each opens the screen in one of its looks. What is not in memory yet is read behind it, and
/// nothing can be edited until the last cell has come. The temperatures are asked for each time.
void OpenRoomIds();
void OpenRoomProgram();
void OpenLiveTemperatures();

}  // namespace bkconf
