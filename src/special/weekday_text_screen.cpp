#include "special/weekday_text_screen.h"

#include <array>

#include "image/commands.h"
#include "image/tables.h"
#include "link/link_events.h"
#include "link/transfer.h"
#include "session/language.h"
#include "session/module_title.h"
#include "special/cell_text.h"

namespace bkconf {
namespace {

constexpr int NameSize = 3;
/// In the order of the cells.
constexpr auto Days =
    std::to_array<TextId>({TextId::Sunday, TextId::Monday, TextId::Tuesday, TextId::Wednesday,
                           TextId::Thursday, TextId::Friday, TextId::Saturday});

}  // namespace

WeekdayFields::WeekdayFields(Screen& screen, const std::string& name)
    : label(screen, name + "Label"), text(screen, name) {}

WeekdayTextScreenFields::WeekdayTextScreenFields()
    : Screen("WeekdayTextScreen"),
      status(*this, "status"),
      bar(*this, "bar"),
      leave(*this, "leave") {
  for (std::size_t day = 1; day <= Days.size(); ++day) {
    days.push_back(std::make_unique<WeekdayFields>(*this, "day" + std::to_string(day)));
  }
}

namespace {

std::string titleBefore;
bool awaited = false;

void ShowNames() {
  for (std::size_t day = 0; day < Days.size(); ++day) {
    const int first = NameSize * static_cast<int>(day);
    WeekdayTextScreen.days[day]->text.Show(TextOfCells(LcdWeekdayNames, first, NameSize));
  }
}

void PackNames() {
  for (std::size_t day = 0; day < Days.size(); ++day) {
    const int first = NameSize * static_cast<int>(day);
    PutTextIntoCells(LcdWeekdayNames, first, NameSize, WeekdayTextScreen.days[day]->text.Text());
  }
}

/// Left too early, the names would be packed as blanks.
void Enable(bool enabled) {
  for (const auto& day : WeekdayTextScreen.days) day->text.enabled = enabled;
  WeekdayTextScreen.leave.enabled = enabled;
}

void Reveal() {
  WeekdayTextScreen.title = ModuleTitle() + std::string(Text(TextId::WeekdaysScreenTitle));
  titleBefore = *Window.title;
  *Window.title = WeekdayTextScreen.title;
  WeekdayTextScreen.shown = true;
}

void FinishOpening() {
  ShowNames();
  Show(WeekdayTextScreen.status.caption, TextId::EditMode);
  Enable(true);
}

void BeginRead() {
  if (!awaited) return;
  awaited = false;
  for (const auto& day : WeekdayTextScreen.days) day->text.Show("");
  Enable(false);
  Show(WeekdayTextScreen.status.caption, TextId::ReadingData);
  LendBar(WeekdayTextScreen.bar);
  Reveal();
}

/// A transfer can be left when the names have come already: what was typed since stays.
void EndRead() {
  ReturnBar();
  if (WeekdayTextScreen.shown && !WeekdayTextScreen.leave.enabled) FinishOpening();
}

void LeaveRead() {
  awaited = false;
  EndRead();
}

void Hide() {
  *Window.title = titleBefore;
  WeekdayTextScreen.shown = false;
}

void Leave() {
  PackNames();
  Hide();
}

/// By the frame of the window. The button to leave waits for the last cell; a module that says no
/// more must not keep the user here, so this leaves the transfer, and what has come stays: the
/// fields do not show all of it, and are not stored.
void Close() {
  if (WeekdayTextScreen.leave.enabled) return Leave();
  LeaveTransfer();
  Hide();
}

void MarkChange() {
  LcdWeekdayDirty = 1;
  SignalChange();
}

}  // namespace

void LoadWeekdayTextScreen() {
  awaited = false;
  for (std::size_t day = 0; day < Days.size(); ++day) {
    Show(WeekdayTextScreen.days[day]->label.caption, Days[day]);
    WeekdayTextScreen.days[day]->text.onChange = MarkChange;
  }
  Show(WeekdayTextScreen.leave.caption, TextId::Leave);
  WeekdayTextScreen.leave.onClick = Leave;
  WeekdayTextScreen.onClose = Close;
  WeekdayTextScreen.escape = &WeekdayTextScreen.leave;
  Listen(LinkEvent::WeekdayReadStarted, BeginRead);
  Listen(LinkEvent::WeekdayRead, EndRead);
  Listen(LinkEvent::TransferLeft, LeaveRead);
}

void OpenWeekdayTexts() {
  if (LcdWeekdayLoaded.Number() == 1) {
    FinishOpening();
    Reveal();
    return;
  }
  awaited = true;
  StartRequest(Read5);
}

}  // namespace bkconf
