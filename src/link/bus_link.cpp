// The line discipline: how a conversation is opened, how a command goes out and a line comes in.
// There is no time-out and no retry: the tool waits, and the loops below turn until a module
// speaks.
#include "link/bus_link.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "link/identity.h"
#include "link/link_ticks.h"
#include "link/receive_dispatcher.h"
#include "link/transfer.h"
#include "platform/machine.h"
#include "platform/runtime_error.h"

namespace bkconf {
namespace {

constexpr char CarriageReturn = '\r';
/// Sent after the first "D".
constexpr int FurtherWakeUpAnswers = 21;
constexpr int IdentityPeriod = 10;
constexpr int LinkPeriod = 1;

/// The character pause, divided.
void Pause(double divisor) {
  // Far beyond any pause that makes sense, and far within what the counter can hold.
  constexpr double longest = 1e15;
  const double last = std::floor(CharDelayCount.Number() / divisor);
  BusyLoop(static_cast<std::int64_t>(std::clamp(last, -1.0, longest)));
}

/// Throws away what comes until the module polls. The bar is raised before the line is looked at:
/// it overflows when no module speaks.
void AwaitPoll() {
  char last = 0;
  do {
    Window.bar->Advance();
    if (Window.bar->draw) Window.bar->draw();
    if (Port->BytesWaiting() > 0) last = Port->Read().value_or('\0');
  } while (last != 'M');
}

void AnswerPoll() {
  Port->Write("D");
  for (int answer = 0; answer < FurtherWakeUpAnswers; ++answer) {
    Pause(100);
    Port->Write("D");
  }
}

void RunWakeUpWait() {
  try {
    Port->FlushInput();
    AwaitPoll();
    AnswerPoll();
    IdentityWait.SetPeriod(IdentityPeriod);
    Port->FlushInput();
    IdentityWait.Enable();
    WakeUpWait.Disable();
  } catch (const RuntimeError&) {
    // No module spoke until the bar overflowed, or the port has gone. This is the only moment at
    // which the window gets a turn; the wait starts again at the next tick.
    Window.bar->SetValue(0);
  }
}

void RunIdentityWait() {
  RxLine.clear();
  if (Port->BytesWaiting() == 0) return;
  IdentityWait.Disable();
  // Turns without limit until the line is complete.
  while (true) {
    const auto character = Port->Read();
    if (!character) continue;
    if (*character == CarriageReturn) break;
    RxLine += *character;
    if (RxLine.front() == 'M') {
      // The module is still polling.
      WakeUpWait.Enable();
      return;
    }
  }
  TestIdentity();
}

void RunCommandSend() {
  SendPaced(PendingCommand.Text() + CarriageReturn);
  CommandSend.Disable();
  LinkTick.SetPeriod(LinkPeriod);
  LinkTick.Enable();
}

void RunLinkTick() {
  if (Port->BytesWaiting() == 0) return;
  LinkTick.Disable();
  // Turns without limit until the line is complete; the window does not react meanwhile.
  while (true) {
    const auto character = Port->Read();
    if (!character) continue;
    if (*character == CarriageReturn) break;
    RxLine += *character;
  }
  ReceiveDispatcher();
}

}  // namespace

void SendPaced(std::string_view characters) {
  for (std::size_t i = 0; i < characters.size(); ++i) {
    Port->Write(characters.substr(i, 1));
    if (i < PacedCharacters) Pause(1);
  }
}

Tick WakeUpWait{"WakeUpWait", 5, RunWakeUpWait};
Tick IdentityWait{"IdentityWait", IdentityPeriod, RunIdentityWait};
Tick CommandSend{"CommandSend", 30, RunCommandSend};
Tick LinkTick{"LinkTick", LinkPeriod, RunLinkTick};

}  // namespace bkconf
