#include "link/identity.h"

#include <algorithm>

#include "link/link_ticks.h"
#include "link/read_table.h"
#include "link/transfer.h"
#include "link/write_table.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr int CommandPeriod = 30;

void SetUpWrite(const WriteRow& row) {
  Window.bar->Start(row.barMaximum);
  Show(Window.status->caption, row.status);
}

void SetUpRead(const ModuleKind& kind, const ReadRow& row) {
  Window.bar->Start(row.barMaximum);
  // The scan of modules has no count of lines to show.
  Window.bar->visible = row.barMaximum > 0;
  // A read that a Send repeats is a Send for the eye, and nobody waits for it.
  Show(Window.status->caption, SentByUser() ? TextId::SendingData : row.status);
  if (row.command == ReadBase) Window.showFields(kind);
  if (row.started && !SentByUser()) Raise(*row.started);
}

void SetUpTest() {
  Window.bar->visible = false;
  Show(Window.status->caption, TextId::Diagnosing);
  Raise(LinkEvent::TestStarted);
}

/// Shows what module was found and prepares for the pending command.
void SetUp(const ModuleKind& kind) {
  Window.showModel(kind);
  CommandSend.SetPeriod(CommandPeriod);
  CommandSend.Enable();
  const std::string command = PendingCommand.Text();
  const WriteRow* write = FindWriteRow(kind.code, command);
  // A Send with nothing to write repeats the last command. If that was a read, it is a read again.
  if (SentByUser() && write != nullptr) {
    SetUpWrite(*write);
  } else if (const ReadRow* read = FindReadRow(kind.code, command)) {
    SetUpRead(kind, *read);
  } else {
    SetUpTest();
  }
}

/// A Send without an image has nothing to write, but it repeats a read as any other Send does.
bool ReadsOnly(const ModuleKind& kind) {
  return !SentByUser() || FindReadRow(kind.code, PendingCommand.Text()) != nullptr;
}

/// An image in memory takes a module of its own kind only; without one, a read takes any. What a
/// file put there as a text is no kind, and fits nothing.
bool Fits(const ModuleKind& kind) {
  if (!ActiveModuleType.IsNumber()) return false;
  if (ActiveModuleType.Number() == NoModule) return ReadsOnly(kind);
  return ActiveModuleType.Number() == kind.code;
}

}  // namespace

const ModuleKind* KindOfIdentity(std::string_view line) {
  const auto kind =
      std::find_if(ModuleKinds.begin(), ModuleKinds.end(),
                   [line](const ModuleKind& each) { return line.starts_with(each.identity); });
  return kind == ModuleKinds.end() ? nullptr : &*kind;
}

void TestIdentity() {
  const ModuleKind* kind = KindOfIdentity(RxLine);
  if (kind == nullptr || !Fits(*kind)) {
    Messages->Tell(std::string(Text(TextId::WrongModule)));
    LeaveTransfer();
    return;
  }
  // The acknowledge of the command starts on an empty line.
  RxLine.clear();
  ActiveModuleType = kind->code;
  SetUp(*kind);
}

}  // namespace bkconf
