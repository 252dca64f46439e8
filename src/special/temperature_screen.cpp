#include "special/temperature_screen.h"

#include "image/commands.h"
#include "link/link_events.h"
#include "link/transfer.h"
#include "session/language.h"
#include "session/module_title.h"
#include "special/rooms.h"

namespace bkconf {

IdFields::IdFields(Screen& screen, const std::string& name) : label(screen, name + "Label") {
  for (int byte = 1; byte <= IdBytes; ++byte) {
    bytes.push_back(std::make_unique<ListField>(screen, name + std::to_string(byte)));
  }
}

RoomIdFields::RoomIdFields(Screen& screen)
    : group(screen, "idsLook"),
      idsGroup(screen, "idsGroup"),
      room(screen, "idRoom"),
      sensor(screen, "sensor"),
      led(screen, "led"),
      valvesGroup(screen, "valvesGroup"),
      valve(screen, "valve"),
      own(screen, "ownOutput", nullptr),
      ownText(screen, "ownOutputText"),
      other(screen, "otherOutput", &own),
      letterLabel(screen, "valveLetterLabel"),
      letter(screen, "valveLetter"),
      outputLabel(screen, "valveOutputLabel"),
      output(screen, "valveOutput") {}

PeriodRow::PeriodRow(Screen& screen, const std::string& name)
    : label(screen, name + "Label"),
      from(screen, name + "From"),
      fromScroll(screen, name + "FromScroll"),
      to(screen, name + "To"),
      toScroll(screen, name + "ToScroll"),
      setpoint(screen, name + "Setpoint"),
      unit(screen, name + "Unit"),
      setpointScroll(screen, name + "SetpointScroll") {}

DayFields::DayFields(Screen& screen, const std::string& name, OptionField* first)
    : day(screen, name, first), copy(screen, name + "Copy") {}

RoomProgramFields::RoomProgramFields(Screen& screen)
    : group(screen, "programLook"),
      room(screen, "programRoom"),
      periodsGroup(screen, "periodsGroup"),
      setpointsGroup(screen, "setpointsGroup"),
      daysGroup(screen, "daysGroup"),
      band(screen, "band") {
  for (int period = 1; period <= PeriodsOfDay; ++period) {
    periods.push_back(std::make_unique<PeriodRow>(screen, "period" + std::to_string(period)));
  }
  for (int day = 1; day <= WeekDays; ++day) {
    OptionField* first = days.empty() ? nullptr : &days.front()->day;
    days.push_back(std::make_unique<DayFields>(screen, "day" + std::to_string(day), first));
  }
}

LiveTemperatureFields::LiveTemperatureFields(Screen& screen) : group(screen, "liveLook") {
  for (int room = 1; room <= MostRooms; ++room) {
    rooms.push_back(std::make_unique<LabelField>(screen, "liveRoom" + std::to_string(room)));
  }
}

TemperatureScreenFields::TemperatureScreenFields()
    : Screen("TemperatureScreen"),
      ids(*this),
      program(*this),
      live(*this),
      status(*this, "status"),
      bar(*this, "bar"),
      leave(*this, "leave") {}

// --- The three looks ----------------------------------------------------------------------------

namespace {

struct LookOf {
  GroupField* group;
  std::string_view command;
  Cell* loaded;  ///< null where the module is asked each time
  void (*fill)();
  void (*enable)(bool);
};

const LookOf Ids{&TemperatureScreen.ids.group, Read1, &TempImage1Loaded, FillRoomIds,
                 EnableRoomIds};
const LookOf Program{&TemperatureScreen.program.group, Read2, &TempImage2Loaded, FillRoomProgram,
                     EnableRoomProgram};
const LookOf Live{&TemperatureScreen.live.group, Read3, nullptr, BlankLiveTemperatures,
                  [](bool) {}};

const LookOf* look = nullptr;
/// Of the main window, while the screen has its place.
std::string titleBefore;
/// The screen was asked for, and appears once the module is found.
bool awaited = false;

bool IsLive() {
  return look == &Live;
}

/// The way out stays open beside the temperatures: nothing can be lost, and a module that falls
/// silent would lock the user in.
void Enable(bool enabled) {
  look->enable(enabled);
  TemperatureScreen.leave.enabled = enabled || IsLive();
}

void Reveal() {
  for (const LookOf* each : {&Ids, &Program, &Live}) each->group->visible = each == look;
  TemperatureScreen.title = ModuleTitle();
  titleBefore = *Window.title;
  *Window.title = TemperatureScreen.title;
  TemperatureScreen.shown = true;
}

void Open(const LookOf& opened) {
  look = &opened;
  if (look->loaded != nullptr && look->loaded->Number() == 1) {
    look->fill();
    Enable(true);
    Show(TemperatureScreen.status.caption, TextId::EditMode);
    Reveal();
    return;
  }
  awaited = true;
  if (IsLive()) Show(TemperatureScreen.status.caption, TextId::OneMoment);
  StartRequest(look->command);
}

/// The module was found: the screen shows itself, and is of no use yet.
void BeginRead() {
  if (!awaited) return;
  awaited = false;
  look->fill();
  Enable(false);
  if (!IsLive()) Show(TemperatureScreen.status.caption, TextId::ReadingData);
  LendBar(TemperatureScreen.bar);
  Reveal();
}

void FreeScreen(TextId status) {
  ReturnBar();
  if (!TemperatureScreen.shown) return;
  Show(TemperatureScreen.status.caption, status);
  Enable(true);
}

void EndRead() {
  FreeScreen(IsLive() ? TextId::LiveTemperaturesEnd : TextId::EditMode);
}

/// What has come can be looked at.
void LeaveRead() {
  awaited = false;
  FreeScreen(TextId::EditMode);
}

/// The bar stays with a read that goes on unseen. One that the module ended short told of no end.
void Leave() {
  if (!TransferUnderWay) ReturnBar();
  *Window.title = titleBefore;
  TemperatureScreen.shown = false;
}

/// By the frame of the window. The button to leave waits for the last cell, or lets the
/// temperatures come unseen; a module that says no more must not keep the user waiting, so this
/// leaves the transfer, and what has come stays. Until the last cell the bar is here.
void Close() {
  if (Window.bar == &TemperatureScreen.bar) LeaveTransfer();
  Leave();
}

}  // namespace

void LoadTemperatureScreen() {
  awaited = false;
  Show(TemperatureScreen.leave.caption, TextId::Leave);
  LoadRoomIds();
  LoadRoomProgram();
  LoadLiveTemperatures();
  TemperatureScreen.leave.onClick = Leave;
  TemperatureScreen.onClose = Close;
  TemperatureScreen.escape = &TemperatureScreen.leave;
  Listen(LinkEvent::TemperatureReadStarted, BeginRead);
  Listen(LinkEvent::TemperatureRead, EndRead);
  Listen(LinkEvent::TransferLeft, LeaveRead);
}

void OpenRoomIds() {
  Open(Ids);
}

void OpenRoomProgram() {
  Open(Program);
}

void OpenLiveTemperatures() {
  Open(Live);
}

}  // namespace bkconf
