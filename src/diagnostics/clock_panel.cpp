#include "diagnostics/clock_panel.h"

#include <string>

#include "actions/action_code.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/commands.h"
#include "link/frames.h"
#include "link/rx_line.h"
#include "link/transfer.h"
#include "platform/date.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {
namespace {

/// Of the lines with the time and with the date.
constexpr std::size_t TimeLength = 5;
constexpr std::size_t DateLength = 9;
constexpr int Century = 2000;
constexpr int StopPauseTurns = 1000;

/// Lines that have come since the question: the time comes first, and nothing marks it.
int linesTaken = 0;
/// The module was asked, so that it has to be told when the panel is left.
bool asked = false;
/// What is sent, and which of its two lines is next.
Moment sent;
int sendStep = 0;

std::string Characters(std::size_t first, std::size_t last) {
  return std::string(CharactersOfLine(first, last));
}

void Blank(ClockFields& clock) {
  for (LabelField* field : {&clock.hour, &clock.date, &clock.weekday}) {
    field->caption.clear();
    field->colour = PanelColour;
  }
}

void ShowMoment(ClockFields& clock, const Moment& moment) {
  clock.hour.caption = Padded(moment.hour) + ":" + Padded(moment.minute);
  clock.date.caption = Padded(moment.date.day) + "-" + Padded(moment.date.month) + "-" +
                       std::to_string(moment.date.year);
  clock.weekday.caption = std::to_string(moment.weekday);
}

/// The machine's time as it stands, with its seconds.
void ShowPcClock() {
  const Moment now = Now();
  ShowMoment(DiagnosticsScreen.clock.pc, now);
  DiagnosticsScreen.clock.pc.hour.caption += ":" + Padded(now.second);
}

// --- The master's clock -------------------------------------------------------------------------

void TakeTime() {
  if (RxLine.size() < TimeLength) return;
  ++linesTaken;
  AdvanceTestBar();
  DiagnosticsScreen.clock.master.hour.caption = Characters(2, 3) + ":" + Characters(4, TimeLength);
}

void TakeDate() {
  if (RxLine.size() < DateLength) return;
  ++linesTaken;
  AdvanceTestBar();
  ClockFields& master = DiagnosticsScreen.clock.master;
  master.date.caption = Characters(2, 3) + "-" + Characters(4, 5) + "-" +
                        std::to_string(Century + NumberInLine(6, 7));
  master.weekday.caption = Characters(DateLength, DateLength);
  DiagnosticsScreen.clock.synchronise.enabled = true;
}

void TakeLine() {
  if (linesTaken == 0) {
    TakeTime();
  } else if (linesTaken == 1) {
    TakeDate();
  }
}

const LiveTest Test{.command = Test3,
                    .running = TextId::Diagnosing,
                    .steps = 2,
                    .stop = nullptr,
                    .takeLine = TakeLine};

/// Whether everything has gone out or not.
void EndSending() {
  if (!ClockSend.Enabled()) return;
  ClockSend.Disable();
  DiagnosticsScreen.bar.visible = false;
  Show(DiagnosticsScreen.status.caption, TextId::Ready);
}

void Ask() {
  EndSending();
  asked = true;
  linesTaken = 0;
  Blank(DiagnosticsScreen.clock.master);
  DiagnosticsScreen.clock.synchronise.enabled = false;
  Show(DiagnosticsScreen.clock.synchronise.caption, TextId::SetClock);
  StartTest(Test);
}

// --- Setting it ---------------------------------------------------------------------------------

void AwaitNextLine() {
  Show(DiagnosticsScreen.status.caption, TextId::SendingClock);
  DiagnosticsScreen.bar.visible = true;
  ClockSend.Enable();
}

void Synchronise() {
  DiagnosticsScreen.clock.synchronise.enabled = false;
  DiagnosticsScreen.bar.Start(2);
  sendStep = 0;
  AwaitNextLine();
}

/// The first line has the time, the second the date of the same moment.
void SendNextLine() {
  // A port that fails here ends the sending.
  EndSending();
  ++sendStep;
  AdvanceTestBar();
  if (sendStep == 1) {
    sent = Now();
    Port->Write("T" + Padded(sent.hour) + Padded(sent.minute) + std::to_string(sent.weekday) +
                std::string(FrameEnd));
    AwaitNextLine();
    return;
  }
  Port->Write("T" + Padded(sent.date.day) + Padded(sent.date.month) + Padded(sent.date.year) +
              std::string(FrameEnd));
  ShowMoment(DiagnosticsScreen.clock.master, sent);
  Show(DiagnosticsScreen.clock.synchronise.caption, TextId::Ok);
}

}  // namespace

Tick PcClock{"PcClock", 1000, ShowPcClock};
Tick ClockSend{"ClockSend", 20, SendNextLine};

void LoadClockTest() {
  ClockPanel& panel = DiagnosticsScreen.clock;
  ShowAll({
      {panel.group.caption, TextId::ClockPanel},
      {panel.master.group.caption, TextId::MasterClock},
      {panel.pc.group.caption, TextId::ComputerClock},
      {panel.ask.caption, TextId::AskClock},
      {panel.synchronise.caption, TextId::SetClock},
  });
  for (ClockFields* clock : {&panel.master, &panel.pc}) {
    Show(clock->hourLabel.caption, TextId::ClockHour);
    Show(clock->dateLabel.caption, TextId::ClockDate);
    Show(clock->weekdayLabel.caption, TextId::WeekdayCaption);
  }
  asked = false;
  panel.ask.onClick = Ask;
  panel.synchronise.onClick = Synchronise;
}

void OpenClockTest() {
  linesTaken = 0;
  asked = false;
  Blank(DiagnosticsScreen.clock.master);
  Blank(DiagnosticsScreen.clock.pc);
  Show(DiagnosticsScreen.clock.synchronise.caption, TextId::SetClock);
  DiagnosticsScreen.clock.synchronise.enabled = false;
  ShowPcClock();
  PcClock.Enable();
}

/// The module may still be in its test: it is told on a port that was opened anew. A panel that
/// never asked has no open port, and nothing to end.
void LeaveClockTest() {
  PcClock.Disable();
  EndSending();
  if (!asked) return;
  asked = false;
  if (Port->IsOpen()) Port->Close();
  if (!Port->Open()) return;
  SendStop(StopPauseTurns);
}

}  // namespace bkconf
