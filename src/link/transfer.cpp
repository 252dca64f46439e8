#include "link/transfer.h"

#include <algorithm>

#include "link/link_ticks.h"
#include "link/read_table.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {
namespace {

/// Fields and buttons come back. True when a screen waits for what was read, false behind a Send.
bool GiveFieldsBack() {
  const bool awaited = !SentByUser();
  WriteInProgress = 0;
  Window.enableModuleFields(true);
  UnlockButtons();
  return awaited;
}

}  // namespace

void ShowActiveModel() {
  if (const ModuleKind* kind = ActiveKind()) Window.showModel(*kind);
}

bool StartTransfer() {
  StopLink();
  // A read that ended short of its last cell told no screen to give the bar back.
  ReturnBar();
  TransferUnderWay = true;
  RxLine.clear();
  Window.enableMenus(false);
  Window.connect->enabled = false;
  Window.send->enabled = false;
  Window.enableActions(false);
  Window.enableModuleFields(false);
  Window.bar->Start(SearchMaximum);
  Show(Window.status->caption, TextId::SearchingModule);
  if (Port->IsOpen()) Port->Close();
  if (!Port->Open()) return false;
  WakeUpWait.Enable();
  return true;
}

bool StartRequest(std::string_view command) {
  PendingCommand = command;
  WriteInProgress = 0;
  const ReadRow* row = FindReadRow(ActiveCode(), command);
  if (row != nullptr && row->loaded != nullptr) *row->loaded = 1;
  return StartTransfer();
}

bool SentByUser() {
  return WriteInProgress.Number() == 1;
}

void SignalChange() {
  Window.send->enabled = true;
}

void UnlockButtons() {
  Window.connect->enabled = true;
  Window.send->enabled = true;
  Window.enableActions(true);
}

void UnlockMenus() {
  Window.enableMenus(true);
  TransferUnderWay = false;
}

void UnlockWindow(std::optional<LinkEvent> told) {
  const bool awaited = GiveFieldsBack();
  UnlockMenus();
  if (told && awaited) Raise(*told);
}

void CloseRead(std::optional<LinkEvent> told) {
  Window.bar->visible = false;
  Show(Window.status->caption, TextId::EditMode);
  const bool awaited = GiveFieldsBack();
  if (told && awaited) Raise(*told);
}

void LendBar(ProgressField& bar) {
  const int maximum = Window.bar->Maximum();
  Window.bar->visible = false;
  bar.Start(maximum);
  Window.bar = &bar;
}

void ReturnBar() {
  if (Window.bar != Window.ownBar) Window.bar->visible = false;
  Window.bar = Window.ownBar;
}

void StopLink() {
  for (Tick* tick : LinkTicks) tick->Disable();
}

void EndTest() {
  StopLink();
  Show(Window.status->caption, TextId::Ready);
  UnlockWindow();
}

void LeaveTransfer() {
  StopLink();
  CloseRead();
  UnlockMenus();
  Raise(LinkEvent::TransferLeft);
}

void LeaveFailedTransfer() {
  const bool running = std::any_of(LinkTicks.begin(), LinkTicks.end(),
                                   [](const Tick* tick) { return tick->Enabled(); });
  if (TransferUnderWay || running) LeaveTransfer();
}

}  // namespace bkconf
