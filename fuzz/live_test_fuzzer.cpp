// Feeds every live test with lines that no module would send, and looks that a line that is too
// short, too long, or of a detector that has no fields changes nothing. Built with libFuzzer by
// dev/fuzz. The first byte of an input chooses the test, the rest are lines that end in '\n'.
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "diagnostics/detector_panel.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "image/tables.h"
#include "link/link_events.h"
#include "link/receive_dispatcher.h"
#include "link/transfer.h"
#include "session/state.h"
#include "silent_machine.h"

namespace bkconf {
namespace {

constexpr int Detectors = 7;

/// A test, and the lines that mean something to it.
struct Subject {
  int kind;
  int version;
  std::string_view choice;
  const ButtonField& start;
  std::size_t shortest;
  int indexes = 0;  ///< how many a line can be of; 0 where it has no index
};

constexpr std::size_t Longest = 14;

const std::array<Subject, 7> Subjects{{
    {0, 65, "lineChoice", DiagnosticsScreen.line.start, 6},
    {0, 65, "buttonsChoice", DiagnosticsScreen.buttons.start, 3, 100},
    {0, 65, "outputsChoice", DiagnosticsScreen.outputs.start, 0},
    {9, 65, "lightChoice", DiagnosticsScreen.light.start, 3},
    {9, 65, "clockChoice", DiagnosticsScreen.clock.ask, 5},
    {5, 64, "detectorsChoice", DiagnosticsScreen.detectors.start, 4, Detectors},
    {5, 65, "detectorsChoice", DiagnosticsScreen.detectors.start, 14, Detectors},
}};

void Require(bool holds, const char* what, std::string_view line) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s, after \"%.*s\"\n", what, static_cast<int>(line.size()),
               line.data());
  std::abort();
}

/// All that a line could change of the screen, and of the cells behind it.
std::string Seen() {
  std::string seen;
  const auto add = [&seen](const std::string& text) { seen += text + '\n'; };
  for (const Field* field : DiagnosticsScreen.fields) {
    add(field->caption);
    add(std::to_string(field->enabled) + std::to_string(field->visible));
    if (field->colour) add(std::to_string(field->colour->red * 256 + field->colour->blue));
    if (const auto* list = dynamic_cast<const ListField*>(field)) add(list->Text());
    if (const auto* box = dynamic_cast<const ListBoxField*>(field)) {
      add(std::to_string(box->Items().size()));
    }
  }
  add(std::to_string(DiagnosticsScreen.bar.Value()));
  for (int cell = 0; cell < DiagBuffer.Size(); ++cell) add(DiagBuffer[cell].Text());
  return seen;
}

/// What the link itself looks for in a line, whichever test runs.
bool IsForTheLink(std::string_view line) {
  return line.starts_with("M80000") || line.starts_with("M70000") || line.starts_with("STOP");
}

bool Means(const Subject& subject, std::string_view line) {
  if (IsForTheLink(line)) return true;
  if (line.size() < subject.shortest || line.size() > Longest) return false;
  if (subject.indexes == 0) return true;
  const auto digit = [](char each) { return each >= '0' && each <= '9'; };
  if (!digit(line[1]) || !digit(line[2])) return false;
  return (line[1] - '0') * 10 + line[2] - '0' < subject.indexes;
}

void StartSubject(const Subject& subject) {
  ActiveModuleType = subject.kind;
  ModuleVersion = subject.version;
  AlarmImage[148] = subject.version;
  AlarmImage[123] = Detectors;
  OpenDiagnosticsScreen();
  for (const auto& choice : DiagnosticsScreen.choices) {
    if (choice->name == subject.choice) choice->Click();
  }
  subject.start.Click();
  Require(RunningTest != nullptr, "the test starts", "");
  StopLink();
  Raise(LinkEvent::TestStarted);
}

/// `seen` is what there was before the line, and what there is after it.
void TakeLine(const Subject& subject, std::string_view line, std::string& seen) {
  const std::string before = std::move(seen);
  RxLine = line;
  ReceiveDispatcher();
  seen = Seen();
  if (!Means(subject, line)) {
    Require(seen == before, "a line that means nothing changes nothing", line);
  }
  const ProgressField& bar = DiagnosticsScreen.bar;
  Require(bar.Value() <= bar.Maximum(), "the bar stays in its range", line);
}

void TryLines(std::string_view input) {
  if (input.empty()) return;
  const Subject& subject = Subjects[static_cast<unsigned char>(input[0]) % Subjects.size()];
  input.remove_prefix(1);
  StartSubject(subject);
  std::string seen = Seen();
  while (!input.empty() && RunningTest != nullptr) {
    const std::size_t end = input.find('\n');
    TakeLine(subject, input.substr(0, end), seen);
    input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
  }
  LeaveTransfer();
  DiagnosticsScreen.Close();
  Require(!DiagnosticsScreen.shown, "the screen can be left", "");
}

}  // namespace
}  // namespace bkconf

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  bkconf::LoadOnSilentMachine();
  bkconf::TryLines({reinterpret_cast<const char*>(data), size});
  return 0;
}
