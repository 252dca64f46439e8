// The fixture of the tests of the live tests: their screen, opened as a person opens it, and a
// script of lines in place of a module.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/diagnostics_screen.h"
#include "platform/date.h"
#include "support/session_test.h"

namespace bkconf {

class DiagnosticsTest : public SessionTest {
 protected:
  DiagnosticsTest();
  ~DiagnosticsTest() override;

  /// Starts with an image as a read leaves it, its letter 'C', and opens the screen.
  void Open(int kind, int language = 1, int version = 65);
  static void OpenAgain() { ShownAction(Action::Diagnostics).Click(); }

  static ButtonField& Choice(std::string_view name);
  /// Shows the panel of that choice.
  static void Choose(std::string_view name) { Choice(name).Click(); }

  /// Clicks, and lets the module answer the search with its own identity or another one, until the
  /// command has gone out or the identity was refused.
  void Begin(const ButtonField& start, std::string_view identity = "");
  /// The same, and the module takes the command.
  void Run(const ButtonField& start);
  /// One line of the module.
  void Tell(std::string_view text);

  /// What was written since the last call, as one text.
  std::string WrittenSince();
  /// The same, as single writes.
  std::vector<FakeLine::Written> WritesSince();

  static const std::string& Status() { return DiagnosticsScreen.status.caption; }
  /// Everything that waits for the end of a test can be used, on both windows, or nothing.
  static void ExpectFree(bool free);

  /// What `Now` gives: Saturday 7 March 2026, 09:05:03.
  Moment now{.date = {.year = 2026, .month = 3, .day = 7},
             .hour = 9,
             .minute = 5,
             .second = 3,
             .weekday = 7};

 private:
  std::size_t seen_ = 0;
};

/// A test as the screen offers it, with all that tells it from the others.
struct TestRow {
  std::string name;
  int kind;
  int version;
  std::string choice;
  ButtonField* start;
  ButtonField* stop;  ///< null where the user cannot stop it
  std::string command;
  std::string dutch;  ///< the status while it runs
  std::string french;
  int steps;  ///< the end of the bar; 0 for a test without one
  bool endsByItself;
};

/// Every test of every kind that has it.
const std::vector<TestRow>& TestRows();
void PrintTo(const TestRow& row, std::ostream* out);
/// The row with that name.
const TestRow& RowOf(std::string_view name);

/// So many times the same text, one after the other.
std::string Repeated(int times, std::string_view text);

}  // namespace bkconf
