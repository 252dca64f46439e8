// How a live test runs: the command that starts it, what the user sees meanwhile, and its end. The
// panels of the screen have one each.
#pragma once

#include <string_view>

#include "platform/field.h"
#include "text/text.h"

namespace bkconf {

/// One kind of test.
struct LiveTest {
  std::string_view command;
  TextId running;      ///< the status while it runs
  int steps;           ///< the end of the bar; 0 for a test without one
  ButtonField* stop;   ///< null where the user cannot stop it
  void (*takeLine)();  ///< a line of the module stands in RxLine
  /// The module took the command; null where only the stop button waits for that.
  void (*accepted)() = nullptr;
  void (*sendStop)() = nullptr;  ///< tells the module to end; null where the user cannot stop it
  void (*ended)() = nullptr;     ///< puts back what only a running test lets be used, if anything
};

/// The test that runs, or null. Exactly while there is one, nothing else can be chosen.
inline const LiveTest* RunningTest = nullptr;

/// Asks the module for the test; its lines come from then on.
void StartTest(const LiveTest& test);
/// What a stop button does: tells the module, and ends the test without waiting for an answer.
void StopRunningTest();
/// What closing the window does to a test that runs: it is stopped where its stop button works, and
/// left like a transfer that cannot go on where the module has not answered yet or the test has no
/// such button. Nothing where none runs.
void LeaveRunningTest();

/// Moves the bar of the screen. At its end it begins anew, since some tests have none.
void AdvanceTestBar();

/// "T99999" fifty times without a pause: a module that is busy with its test misses some.
void SendStop();
/// The same with that many turns of the busy loop behind each, for a module that has time to read.
void SendStop(int pauseTurns);

/// Handlers for what the link tells of tests, once at start-up.
void LoadLiveTests();

}  // namespace bkconf
