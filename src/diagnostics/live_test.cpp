#include "diagnostics/live_test.h"

#include <algorithm>
#include <array>
#include <string>

#include "diagnostics/diagnostics_screen.h"
#include "image/commands.h"
#include "link/frames.h"
#include "link/link_events.h"
#include "link/transfer.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr int StopFrames = 50;
/// The longest line of a test. What is longer is two lines that ran into each other.
constexpr std::size_t LongestLine = 14;

/// What was asked before the test. A Send that has nothing to write repeats the last command, and a
/// test that nobody follows could not be ended.
Cell commandBefore;

/// The module was found and the command is on its way.
void ShowRunning() {
  if (RunningTest == nullptr) return;
  Show(DiagnosticsScreen.status.caption, RunningTest->running);
  DiagnosticsScreen.bar.visible = RunningTest->steps > 0;
  if (RunningTest->steps > 0) DiagnosticsScreen.bar.Start(RunningTest->steps);
}

void Accept() {
  if (RunningTest == nullptr) return;
  if (RunningTest->stop != nullptr) RunningTest->stop->enabled = true;
  if (RunningTest->accepted != nullptr) RunningTest->accepted();
}

void TakeLine() {
  if (RunningTest != nullptr && RxLine.size() <= LongestLine) RunningTest->takeLine();
}

/// By whomever it was ended: everything can be used again.
void Finish() {
  if (RunningTest == nullptr) return;
  if (RunningTest->ended != nullptr) RunningTest->ended();
  RunningTest = nullptr;
  PendingCommand = commandBefore;
  DiagnosticsScreen.bar.visible = false;
  Show(DiagnosticsScreen.status.caption, TextId::Ready);
  EnableDiagnostics();
}

}  // namespace

void StartTest(const LiveTest& test) {
  RunningTest = &test;
  commandBefore = PendingCommand;
  DisableDiagnostics();
  Show(DiagnosticsScreen.status.caption, TextId::SearchingModule);
  StartRequest(test.command);
}

void StopRunningTest() {
  if (RunningTest == nullptr || RunningTest->sendStop == nullptr) return;
  // A port that fails here must not keep the screen locked.
  const auto sendStop = RunningTest->sendStop;
  EndTest();
  Finish();
  sendStop();
}

void LeaveRunningTest() {
  if (RunningTest == nullptr) return;
  if (RunningTest->stop != nullptr && RunningTest->stop->enabled) {
    StopRunningTest();
  } else {
    LeaveTransfer();
  }
}

void AdvanceTestBar() {
  ProgressField& bar = DiagnosticsScreen.bar;
  bar.SetValue(bar.Value() < bar.Maximum() ? bar.Value() + 1 : 0);
}

void SendStop() {
  SendStop(0);
}

void SendStop(int pauseTurns) {
  const std::string frame = std::string(StopTest) + std::string(FrameEnd);
  for (int i = 0; i < StopFrames; ++i) {
    Port->Write(frame);
    if (pauseTurns > 0) BusyLoop(pauseTurns - 1);
  }
}

void LoadLiveTests() {
  RunningTest = nullptr;
  struct Handler {
    LinkEvent event;
    void (*handle)();
  };
  for (const Handler& row : std::to_array<Handler>({
           {LinkEvent::TestStarted, ShowRunning},
           {LinkEvent::OutputsTestReady, Accept},
           {LinkEvent::ButtonTestReady, Accept},
           {LinkEvent::DetectorTestReady, Accept},
           {LinkEvent::LineTestReady, Accept},
           {LinkEvent::TestLineReceived, TakeLine},
           {LinkEvent::TestEnded, Finish},
           {LinkEvent::TransferLeft, Finish},
       })) {
    Listen(row.event, row.handle);
  }
}

}  // namespace bkconf
