#include "link/receive_dispatcher.h"

#include <array>
#include <optional>
#include <string_view>

#include "image/commands.h"
#include "link/cell_handlers.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "session/language.h"

namespace bkconf {
namespace {

/// What a line makes the dispatcher do.
enum class Outcome {
  Continue,        ///< wait for the next line
  StartWriting,    ///< the frames may go out; no line is read during a write
  EndMasterTable,  ///< free the window, then let the table's screen open
  Nothing,         ///< the read was closed by its last cell
  EndTest,         ///< a live test or the master's scan of modules is over
  FreeWindow,      ///< the end of any other conversation
};

/// The commands of a row; none means any.
using Commands = std::array<std::string_view, 2>;

struct DispatchRow {
  std::string_view begins;
  KindSet kinds;
  bool anyKind;
  Commands commands;
  Outcome outcome;
  std::optional<LinkEvent> event;
};

constexpr Commands AnyCommand{};

/// In the order in which they are tried. Only the first characters of a line are looked at.
constexpr auto DispatchRows = std::to_array<DispatchRow>({
    {"M80000", OutputKinds, false, {Test3}, Outcome::Continue, LinkEvent::OutputsTestReady},
    {"M80000", {}, true, {TestButtons}, Outcome::Continue, LinkEvent::ButtonTestReady},
    {"M80000", {5}, false, {Test3, Test4}, Outcome::Continue, LinkEvent::DetectorTestReady},
    {"M80000", TestedKinds, false, {TestLine}, Outcome::Continue, LinkEvent::LineTestReady},
    {"M80000", {}, true, AnyCommand, Outcome::Continue, std::nullopt},
    {"M70000", {}, true, AnyCommand, Outcome::StartWriting, std::nullopt},
    {"STOP", {9}, false, {Read1}, Outcome::EndMasterTable, LinkEvent::ContextsRead},
    {"STOP", {9}, false, {Read2}, Outcome::EndMasterTable, LinkEvent::TimeProgramsRead},
    {"STOP", {9}, false, {Read3}, Outcome::EndMasterTable, LinkEvent::LightProgramsRead},
    {"STOP", {3}, false, {Read1, Read3}, Outcome::Nothing, std::nullopt},
    {"STOP", TestedKinds, false, {TestLine}, Outcome::EndTest, LinkEvent::TestEnded},
    {"STOP", {9}, false, {TestLightSensor}, Outcome::EndTest, LinkEvent::TestEnded},
    {"STOP", {9}, false, {Test4}, Outcome::EndTest, std::nullopt},
    {"STOP", {9}, false, {Test3}, Outcome::EndTest, LinkEvent::TestEnded},
    // Tests that the tool stops, ended by the module all the same.
    {"STOP", TestedKinds, false, {TestButtons, Test3}, Outcome::EndTest, LinkEvent::TestEnded},
    {"STOP", {5}, false, {Test4}, Outcome::EndTest, LinkEvent::TestEnded},
    {"STOP", {}, true, AnyCommand, Outcome::FreeWindow, std::nullopt},
});

bool Holds(const DispatchRow& row) {
  if (!std::string_view(RxLine).starts_with(row.begins)) return false;
  if (!row.anyKind && !row.kinds.Contains(ActiveCode())) return false;
  if (row.commands == AnyCommand) return true;
  const std::string command = PendingCommand.Text();
  return !command.empty() && (command == row.commands[0] || command == row.commands[1]);
}

void AwaitNextLine() {
  // A screen that was told of this line may have started the next transfer.
  if (WakeUpWait.Enabled()) return;
  RxLine.clear();
  LinkTick.Enable();
}

void Carry(const DispatchRow& row) {
  switch (row.outcome) {
    case Outcome::Continue:
      if (row.event) Raise(*row.event);
      AwaitNextLine();
      break;
    case Outcome::StartWriting:
      RxLine.clear();
      WriterSelect.Enable();
      break;
    case Outcome::EndMasterTable:
      RxLine.clear();
      UnlockWindow(row.event);
      break;
    case Outcome::Nothing:
      break;
    case Outcome::EndTest:
      Show(Window.status->caption, TextId::Ready);
      UnlockWindow(row.event);
      break;
    case Outcome::FreeWindow:
      UnlockWindow();
      break;
  }
}

}  // namespace

void ReceiveDispatcher() {
  for (const DispatchRow& row : DispatchRows) {
    if (Holds(row)) {
      Carry(row);
      return;
    }
  }
  // A cell line. With no image in memory it is dropped, and the reception ends.
  if (HandleCellLine()) AwaitNextLine();
}

}  // namespace bkconf
