#include "master/time_program_screen.h"

#include <array>
#include <string>

#include "image/commands.h"
#include "image/tables.h"
#include "session/language.h"
#include "session/state.h"

namespace bkconf {
namespace {

/// The slot behind the last one is read by the delete walk, though it belongs to no programme.
constexpr ProgramList List{
    .programs = {.table = TimeProgramTable,
                 .slots = 110,
                 .slotSize = 9,
                 .action = 6,
                 .lastMoved = 110,
                 .moves = HoldsAction,
                 .form = ValueForm::OneBasedInBlocks},
    .command = Read2,
    .read = LinkEvent::TimeProgramsRead,
    .loaded = MasterTimeLoaded,
    .dirty = MasterTimeDirty,
    .sentences = TimeProgramSentences,
    .title = TextId::TimeProgramsTitle,
};

/// Cells of a slot.
enum : int { Hour, Minute, DayCode, DateDay, DateMonth, DateYear };

/// By day code, which counts from 1.
constexpr auto Days = std::to_array<TextId>({TextId::Sunday, TextId::Monday, TextId::Tuesday,
                                             TextId::Wednesday, TextId::Thursday, TextId::Friday,
                                             TextId::Saturday, TextId::OnDate, TextId::EveryDay});
constexpr int OnDateCode = 8;

/// After a change the cells are joined as they stand: a module's 5 is "05" until then and "5" from
/// then on, until the list is opened again. It is kept so, on purpose.
std::string DateOf(int cell, Drawing drawing) {
  std::string date;
  for (const int part : {DateDay, DateMonth, DateYear}) {
    const Cell& value = TimeProgramTable[cell + part];
    if (part != DateDay) date += "-";
    date += drawing == Drawing::AfterChange ? value.Text() : Padded(value.Number());
  }
  return date;
}

/// "00:00" to "23:50": 23:55 is never offered, on purpose.
std::vector<std::string> Times() {
  constexpr int hour = 60;
  constexpr int last = 23 * hour + 50;
  std::vector<std::string> times;
  for (int minutes = 0; minutes <= last; minutes += 5) {
    times.push_back(Padded(minutes / hour) + ":" + Padded(minutes % hour));
  }
  return times;
}

}  // namespace

TimeProgramScreenFields::TimeProgramScreenFields()
    : ProgramScreen("TimeProgramScreen", List, TimePicker),
      timeLabel(*this, "timeLabel"),
      time(*this, "time"),
      dayLabel(*this, "dayLabel"),
      day(*this, "day"),
      calendar(*this, "calendar") {}

void TimeProgramScreenFields::Load() {
  ::bkconf::Show(timeLabel.caption, TextId::TimeHeading);
  ::bkconf::Show(dayLabel.caption, TextId::DayHeading);
  time.items = Times();
  day.items.clear();
  for (const TextId each : Days) day.items.emplace_back(Text(each));
  day.onPick = [this] { PickDay(); };
  calendar.onPick = [this] { PickDate(); };
  LoadList({{std::string(Text(TextId::HourColumn)), 1500},
            {std::string(Text(TextId::DayColumn)), 1600}});
}

// --- The moment ---------------------------------------------------------------------------------

void TimeProgramScreenFields::ClearMoment() {
  time.Clear();
  day.Clear();
  AskDate(false);
  ShowMoment(false);
}

void TimeProgramScreenFields::ShowMoment(bool visible) {
  // Another day is one of the two ways out of the question for a date: it stays in sight until one
  // of them is taken.
  if (!visible && calendar.visible) return;
  for (Field* field : std::initializer_list<Field*>{&timeLabel, &time, &dayLabel, &day}) {
    field->visible = field->enabled = visible;
  }
}

/// While a date is asked for there is no way on but a date, or another day.
void TimeProgramScreenFields::AskDate(bool asks) {
  calendar.visible = asks;
  if (asks) calendar.Show(Today());
  editConfirm.enabled = editLeave.enabled = !asks;
}

void TimeProgramScreenFields::PickDay() {
  AskDate(day.Index() + 1 == OnDateCode);
  ShowMoment(picker.TargetKnown());
}

void TimeProgramScreenFields::PickDate() {
  const Date date = calendar.Day();
  day.Show(Padded(date.day) + "-" + Padded(date.month) + "-" + Padded(date.year));
  AskDate(false);
  ShowMoment(picker.TargetKnown());
}

bool TimeProgramScreenFields::IsMomentComplete() const {
  return !time.Text().empty() && !day.Text().empty();
}

/// A day that is none of the names is a date.
void TimeProgramScreenFields::StoreMoment(int cell) {
  const auto put = [cell](int part, Cell value) { TimeProgramTable[cell + part] = value; };
  const auto lastTwo = [](const std::string& text) { return text.substr(text.size() - 2); };
  put(Hour, time.Text().substr(0, 2));
  put(Minute, lastTwo(time.Text()));
  for (const int part : {DateDay, DateMonth, DateYear}) put(part, 0);
  if (day.Index() >= 0) {
    put(DayCode, day.Index() + 1);
    return;
  }
  put(DayCode, OnDateCode);
  put(DateDay, day.Text().substr(0, 2));
  put(DateMonth, day.Text().substr(3, 2));
  put(DateYear, lastTwo(day.Text()));
}

void TimeProgramScreenFields::DrawMoment(int row, int cell, Drawing drawing) {
  PutColumn(row, 2,
            Padded(TimeProgramTable[cell + Hour].Number()) + ":" +
                Padded(TimeProgramTable[cell + Minute].Number()));
  const int code = TimeProgramTable[cell + DayCode].WholeNumber().value_or(0);
  // A code that is none leaves what stands there.
  if (code < 1 || code > static_cast<int>(Days.size())) return;
  PutColumn(row, 3,
            code == OnDateCode ? DateOf(cell, drawing)
                               : std::string(Text(Days[static_cast<std::size_t>(code - 1)])));
}

void LoadTimeProgramScreen() {
  TimeProgramScreen.Load();
}

void OpenTimeProgramScreen() {
  TimeProgramScreen.Enter();
}

}  // namespace bkconf
