#include "special/conditions.h"

#include <vector>

#include "link/transfer.h"
#include "platform/list_items.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr int NoLightCondition = 60;
constexpr int NoFrom = 0;
constexpr int NoTo = 25;
constexpr int LastHour = 24;
constexpr int HighestLevel = 50;
constexpr int JoinedByBoth = 1;

bool IsNoPeriod(const ConditionCells& cells, int period) {
  return cells.From(period).Number() == NoFrom && cells.To(period).Number() == NoTo;
}

/// What a module or an edit put there, as the lists have it.
void ShowNumber(ListField& list, const Cell& cell) {
  list.Show(PlainText(cell.Number()));
}

void Set(CheckField& box, bool checked) {
  box.checked = checked;
}

/// Hours are whole: an hour of the list, or one that a module holds.
int HourOf(const ListField& list) {
  return Cell(list.Text()).Whole();
}

void EnablePeriod(PeriodFields& period, bool open) {
  const bool hours = open && !period.none.checked;
  period.label.enabled = period.none.enabled = open;
  for (Field* field : std::initializer_list<Field*>{&period.fromLabel, &period.from,
                                                    &period.toLabel, &period.to}) {
    field->enabled = hours;
  }
}

bool IsReversed(const PeriodFields& period) {
  if (period.from.Text().empty() || period.to.Text().empty()) return false;
  return HourOf(period.from) >= HourOf(period.to);
}

}  // namespace

PeriodFields::PeriodFields(Screen& screen, const std::string& name)
    : label(screen, name + "Label"),
      none(screen, name + "None"),
      fromLabel(screen, name + "FromLabel"),
      from(screen, name + "From"),
      toLabel(screen, name + "ToLabel"),
      to(screen, name + "To") {}

ConditionFields::ConditionFields(Screen& screen)
    : noCondition(screen, "noCondition"),
      lightGroup(screen, "lightGroup"),
      noLight(screen, "noLight"),
      levelLabel(screen, "levelLabel"),
      level(screen, "level"),
      timeGroup(screen, "timeGroup"),
      periods{PeriodFields(screen, "period1"), PeriodFields(screen, "period2")},
      both(screen, "both", nullptr),
      either(screen, "either", &both) {}

void ConditionFields::Load(TextId levelCaption) {
  ShowAll({
      {noCondition.caption, TextId::NoCondition},
      {lightGroup.caption, TextId::LightFrame},
      {noLight.caption, TextId::NoneChosen},
      {levelLabel.caption, levelCaption},
      {timeGroup.caption, TextId::TimeCaption},
      {periods[0].label.caption, TextId::Period1},
      {periods[1].label.caption, TextId::Period2},
      {both.caption, TextId::JoinedByAnd},
      {either.caption, TextId::JoinedByOr},
  });
  level.items = NumberItems(1, HighestLevel);
  for (int place = 0; place < static_cast<int>(periods.size()); ++place) {
    PeriodFields& period = periods[static_cast<std::size_t>(place)];
    Show(period.none.caption, TextId::NoneChosen);
    Show(period.fromLabel.caption, TextId::FromHour);
    Show(period.toLabel.caption, TextId::ToHour);
    period.from.items = NumberItems(0, LastHour - 1);
    period.to.items = NumberItems(1, LastHour);
    period.none.onChange = [this, place] { ChangeNoPeriod(place); };
    period.from.onPick = [this, place] { PickFrom(place); };
    period.to.onPick = [this, place] { PickTo(place); };
  }
  noCondition.onChange = [this] { ChangeNoCondition(); };
  noLight.onChange = [this] { ChangeNoLight(); };
  level.onPick = [this] { PickLevel(); };
  both.onChoose = [this] { Join(JoinedByBoth); };
  either.onChoose = [this] { Join(0); };
}

// --- What is shown ------------------------------------------------------------------------------

void ConditionFields::Fill(const ConditionCells& cells) {
  cells_ = cells;
  open_ = true;
  Set(noCondition, HoldsNone());
  ShowLight();
  ShowPeriod(0);
  ShowPeriod(1);
  ShowJoining();
  EnableFields();
}

void ConditionFields::Close() {
  open_ = false;
  Set(noCondition, false);
  Set(noLight, false);
  level.Clear();
  for (PeriodFields& period : periods) {
    Set(period.none, false);
    period.from.Clear();
    period.to.Clear();
  }
  both.ClearGroup();
  EnableFields();
}

/// A choice is open as far as the ones above it are: the second period needs the first, and light
/// and time can be joined only when both are set.
void ConditionFields::EnableFields() {
  const bool some = open_ && !noCondition.checked;
  const bool first = some && !periods[0].none.checked;
  noCondition.enabled = open_;
  lightGroup.visible = timeGroup.visible = !noCondition.checked;
  lightGroup.enabled = timeGroup.enabled = some;
  both.visible = either.visible = !noCondition.checked;
  noLight.enabled = some;
  level.enabled = levelLabel.enabled = some && !noLight.checked;
  EnablePeriod(periods[0], some);
  EnablePeriod(periods[1], first);
  both.enabled = either.enabled = first && !noLight.checked;
}

bool ConditionFields::HoldsNone() const {
  return cells_.Light().Number() == NoLightCondition && IsNoPeriod(cells_, 0) &&
         IsNoPeriod(cells_, 1) && cells_.Joining().Number() == JoinedByBoth;
}

void ConditionFields::ShowLight() {
  Set(noLight, cells_.Light().Number() == NoLightCondition);
  level.Clear();
  if (!noLight.checked) ShowNumber(level, cells_.Light());
}

/// 25 is the mark of no period, and is never seen as an hour.
void ConditionFields::ShowPeriod(int place) {
  PeriodFields& period = periods[static_cast<std::size_t>(place)];
  Set(period.none, IsNoPeriod(cells_, place));
  period.from.Clear();
  period.to.Clear();
  if (period.none.checked) return;
  ShowNumber(period.from, cells_.From(place));
  if (cells_.To(place).Number() != NoTo) ShowNumber(period.to, cells_.To(place));
}

/// A module may hold what is neither.
void ConditionFields::ShowJoining() {
  both.ClearGroup();
  if (cells_.Joining().Number() == JoinedByBoth) {
    both.Show();
  } else if (cells_.Joining().Number() == 0) {
    either.Show();
  }
}

// --- What the user does -------------------------------------------------------------------------

void ConditionFields::ClearPeriod(int period) {
  cells_.From(period) = NoFrom;
  cells_.To(period) = NoTo;
}

/// Only turning it on changes cells: without it there is nothing to store yet.
void ConditionFields::ChangeNoCondition() {
  if (noCondition.checked) {
    cells_.Light() = NoLightCondition;
    ClearPeriod(0);
    ClearPeriod(1);
    cells_.Joining() = JoinedByBoth;
    ShowLight();
    ShowPeriod(0);
    ShowPeriod(1);
    ShowJoining();
    SignalChange();
  }
  EnableFields();
}

void ConditionFields::ChangeNoLight() {
  level.Clear();
  if (noLight.checked) {
    cells_.Light() = NoLightCondition;
    SignalChange();
  }
  EnableFields();
}

/// There is no second period without a first one.
void ConditionFields::ChangeNoPeriod(int place) {
  if (periods[static_cast<std::size_t>(place)].none.checked) {
    for (int period = place; period < static_cast<int>(periods.size()); ++period) {
      ClearPeriod(period);
      ShowPeriod(period);
    }
    SignalChange();
  }
  EnableFields();
}

void ConditionFields::PickLevel() {
  cells_.Light() = level.Text();
  SignalChange();
}

/// A period that would be empty or reversed is taken back as a whole.
void ConditionFields::PickFrom(int place) {
  PeriodFields& period = periods[static_cast<std::size_t>(place)];
  if (IsReversed(period)) {
    Set(period.none, true);
    ChangeNoPeriod(place);
    Join(JoinedByBoth);
    ShowJoining();
    return;
  }
  cells_.From(place) = period.from.Text();
  if (period.to.Text().empty()) cells_.To(place) = LastHour;
  SignalChange();
}

void ConditionFields::PickTo(int place) {
  PeriodFields& period = periods[static_cast<std::size_t>(place)];
  if (IsReversed(period)) {
    period.to.Clear();
    cells_.To(place) = LastHour;
  } else {
    cells_.To(place) = period.to.Text();
  }
  SignalChange();
}

void ConditionFields::Join(int joining) {
  cells_.Joining() = joining;
  SignalChange();
}

}  // namespace bkconf
