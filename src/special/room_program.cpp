// The periods of each day of the week, room by room, and the temperature in each of them.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "actions/action_code.h"
#include "image/tables.h"
#include "link/transfer.h"
#include "session/language.h"
#include "special/day_bounds.h"
#include "special/rooms.h"
#include "special/temperature_screen.h"

namespace bkconf {
namespace {

/// Cells of a day in TempPeriods (hour and minute of each boundary) and in TempSetpoints.
constexpr int TimeCells = 2 * PeriodsOfDay;
constexpr int SetpointCells = PeriodsOfDay;
constexpr int Hour = 60;
constexpr int FurthestScroll = 3000;
constexpr int ScrollStep = 5;
/// A file may hold any number. Beyond this one no scroll reaches, and counting in steps takes long.
constexpr int FurthestCell = 9999;
constexpr int HighestSetpoint = 40;
/// Below the one a temperature is cold, from the other on it is hot.
constexpr int FirstMild = 11;
constexpr int FirstHot = 30;

/// Of the day on the screen, in the tables of a room.
int TempDayTimeBase = 0;
int TempDaySetBase = 0;

constexpr auto PeriodNames =
    std::to_array<TextId>({TextId::MorningPeriod, TextId::ForenoonPeriod, TextId::MiddayPeriod,
                           TextId::AfternoonPeriod, TextId::EveningPeriod, TextId::NightPeriod});
constexpr auto DayNames =
    std::to_array<TextId>({TextId::Monday, TextId::Tuesday, TextId::Wednesday, TextId::Thursday,
                           TextId::Friday, TextId::Saturday, TextId::Sunday});

RoomProgramFields& Program() {
  return TemperatureScreen.program;
}

/// Also of the boundary behind the last, which is the first again.
PeriodRow& Row(int period) {
  return *Program().periods[static_cast<std::size_t>((period + PeriodsOfDay) % PeriodsOfDay)];
}

/// The cell of its hour; that of the minute stands behind it.
int TimeCell(int boundary) {
  return WeekDays * TimeCells * Program().room.Index() + TempDayTimeBase + 2 * boundary;
}
Cell& HourCell(int boundary) {
  return TempPeriods[TimeCell(boundary)];
}
Cell& MinuteCell(int boundary) {
  return TempPeriods[TimeCell(boundary) + 1];
}
Cell& SetpointCell(int period) {
  return TempSetpoints[WeekDays * SetpointCells * Program().room.Index() + TempDaySetBase + period];
}

int Counted(const Cell& cell) {
  return std::clamp(cell.Whole(), -FurthestCell, FurthestCell);
}

DayBoundaries Boundaries() {
  DayBoundaries day{};
  for (int boundary = 0; boundary < PeriodsOfDay; ++boundary) {
    day[static_cast<std::size_t>(boundary)] =
        Hour * Counted(HourCell(boundary)) + Counted(MinuteCell(boundary));
  }
  return day;
}

void SignalProgramChange() {
  TempProgramDirty = 1;
  SignalChange();
}

// --- What is shown ------------------------------------------------------------------------------

Colour ColourOf(int degrees, Colour usual) {
  if (degrees < FirstMild) return ColdColour;
  return degrees >= FirstHot ? HotColour : usual;
}

/// Both ends of neighbouring periods show the boundary between them.
void ShowBoundary(int boundary, Colour colour) {
  const std::string text =
      Padded(Counted(HourCell(boundary))) + ":" + Padded(Counted(MinuteCell(boundary)));
  for (LabelField* label : {&Row(boundary).from, &Row(boundary - 1).to}) {
    label->caption = text;
    label->textColour = colour;
  }
}

void ShowScrolls(int boundary, int minutes) {
  Row(boundary).fromScroll.Show(minutes);
  Row(boundary - 1).toScroll.Show(minutes);
}

void ShowSetpoint(int period, Colour usual) {
  const int degrees = SetpointCell(period).Whole();
  Row(period).setpoint.caption = PlainText(SetpointCell(period).Number());
  Row(period).setpoint.textColour = ColourOf(degrees, usual);
}

/// Where the band shows it: evenings may go on past midnight, with hours from 24 on.
int OnBand(int minutes) {
  const int rest = minutes % MinutesOfDay;
  return rest < 0 ? rest + MinutesOfDay : rest;
}

/// The tables as a picture, whatever was touched.
void DrawBand() {
  const DayBoundaries day = Boundaries();
  DayBandField& band = Program().band;
  band.parts.clear();
  for (int period = 0; period < PeriodsOfDay; ++period) {
    const int degrees = SetpointCell(period).Whole();
    const int end = day[static_cast<std::size_t>((period + 1) % PeriodsOfDay)];
    band.parts.push_back({OnBand(day[static_cast<std::size_t>(period)]),
                          end == MinutesOfDay ? end : OnBand(end), std::to_string(degrees) + "°C",
                          ColourOf(degrees, QuietColour)});
  }
}

void ShowDay() {
  const DayBoundaries day = Boundaries();
  for (int period = 0; period < PeriodsOfDay; ++period) {
    ShowBoundary(period, QuietColour);
    ShowScrolls(period, day[static_cast<std::size_t>(period)]);
    ShowSetpoint(period, QuietColour);
    Row(period).setpointScroll.Show(SetpointCell(period).Whole());
  }
  DrawBand();
}

// --- Rooms and days -----------------------------------------------------------------------------

void ResetTicks() {
  for (const auto& day : Program().days) {
    day->copy.checked = false;
    day->copy.enabled = true;
  }
}

void PickDay(int day) {
  TempDayTimeBase = TimeCells * day;
  TempDaySetBase = SetpointCells * day;
  ResetTicks();
  ShowDay();
}

/// Without a room there is nothing to move: no cell of a room that was not picked may be touched.
void ShowGroups(bool shown) {
  Program().periodsGroup.visible = Program().setpointsGroup.visible = shown;
  Program().daysGroup.visible = Program().band.visible = shown;
  for (const auto& row : Program().periods) {
    for (ScrollField* scroll : {&row->fromScroll, &row->toScroll, &row->setpointScroll}) {
      scroll->enabled = shown;
    }
  }
  for (const auto& day : Program().days) day->day.enabled = day->copy.enabled = shown;
}

void PickRoom() {
  ShowGroups(true);
  Program().days.front()->day.Show();
  PickDay(0);
}

/// Ticked once, it is used up until another day or room is picked. The shown day takes over itself.
void CopyTo(int day) {
  const int room = Program().room.Index();
  const int times = WeekDays * TimeCells * room;
  const int setpoints = WeekDays * SetpointCells * room;
  for (int i = 0; i < TimeCells; ++i) {
    TempPeriods[times + TimeCells * day + i] = TempPeriods[times + TempDayTimeBase + i];
  }
  for (int i = 0; i < SetpointCells; ++i) {
    TempSetpoints[setpoints + SetpointCells * day + i] =
        TempSetpoints[setpoints + TempDaySetBase + i];
  }
  Program().days[static_cast<std::size_t>(day)]->copy.enabled = false;
  SignalProgramChange();
}

// --- Moving -------------------------------------------------------------------------------------

/// A day that was never set up cannot be edited: it gets its values from a file or a module first.
/// Meant to be so. Only hours are looked at.
bool IsUntouched(int moved) {
  const double hour = HourCell((moved + 1) % PeriodsOfDay).Number();
  for (int boundary = 0; boundary < PeriodsOfDay; ++boundary) {
    if (boundary != moved && HourCell(boundary).Number() != hour) return false;
  }
  return true;
}

/// The place in the range that is reached from there in steps. None where the range holds none, or
/// the scroll ends before it.
std::optional<int> Spring(int minutes, const BoundaryRange& range) {
  while (minutes < range.lowest) minutes += ScrollStep;
  while (minutes > range.highest) minutes -= ScrollStep;
  if (minutes < range.lowest || std::abs(minutes) > FurthestScroll) return std::nullopt;
  return minutes;
}

void MoveBoundary(int boundary, int minutes) {
  SignalProgramChange();
  if (IsUntouched(boundary)) return;
  const auto place = Spring(minutes, RangeOfBoundary(Boundaries(), boundary));
  if (!place) {
    ShowScrolls(boundary, Boundaries()[static_cast<std::size_t>(boundary)]);
    ShowBoundary(boundary, ChangedColour);
    return;
  }
  ShowScrolls(boundary, *place);
  const int stored = *place < 0 ? *place + MinutesOfDay : *place;
  HourCell(boundary) = stored / Hour;
  MinuteCell(boundary) = stored % Hour;
  ShowBoundary(boundary, ChangedColour);
  DrawBand();
}

void MoveSetpoint(int period) {
  SetpointCell(period) = Row(period).setpointScroll.Value();
  ShowSetpoint(period, ChangedColour);
  DrawBand();
  SignalProgramChange();
}

void LoadPeriod(int period) {
  PeriodRow& row = Row(period);
  Show(row.label.caption, PeriodNames[static_cast<std::size_t>(period)]);
  row.unit.caption = "°C";
  for (ScrollField* scroll : {&row.fromScroll, &row.toScroll}) {
    scroll->lowest = -FurthestScroll;
    scroll->highest = FurthestScroll;
    scroll->step = ScrollStep;
  }
  row.setpointScroll.lowest = 0;
  row.setpointScroll.highest = HighestSetpoint;
  row.fromScroll.onMove = [period] { MoveBoundary(period, Row(period).fromScroll.Value()); };
  row.toScroll.onMove = [period] {
    MoveBoundary((period + 1) % PeriodsOfDay, Row(period).toScroll.Value());
  };
  row.setpointScroll.onMove = [period] { MoveSetpoint(period); };
}

}  // namespace

void LoadRoomProgram() {
  Show(Program().group.caption, TextId::RoomProgramTitle);
  Show(Program().periodsGroup.caption, TextId::PeriodsTitle);
  Show(Program().setpointsGroup.caption, TextId::SetpointsTitle);
  Show(Program().daysGroup.caption, TextId::WeekdayCaption);
  LoadRoomList(Program().room, [] { ShowGroups(false); });
  Program().room.onPick = PickRoom;
  for (int period = 0; period < PeriodsOfDay; ++period) LoadPeriod(period);
  for (int day = 0; day < WeekDays; ++day) {
    DayFields& fields = *Program().days[static_cast<std::size_t>(day)];
    Show(fields.day.caption, DayNames[static_cast<std::size_t>(day)]);
    Show(fields.copy.toolTip, TextId::CopyDayHint);
    fields.day.onChoose = [day] { PickDay(day); };
    fields.copy.onChange = [day] { CopyTo(day); };
  }
  ShowGroups(false);
}

void FillRoomProgram() {
  AskRoom(Program().room, RoomNames());
  ShowGroups(false);
}

void EnableRoomProgram(bool enabled) {
  Program().room.enabled = enabled;
}

}  // namespace bkconf
