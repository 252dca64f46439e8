#include "link/transfer.h"

#include "link/link_ticks.h"
#include "link/read_table.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {

void Raise(LinkEvent event) {
  const auto& handler = LinkHandlers[static_cast<std::size_t>(event)];
  if (handler) handler();
}

bool StartTransfer() {
  for (Tick* tick : LinkTicks) tick->Disable();
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

bool StartTableRead(std::string_view command) {
  PendingCommand = command;
  // An earlier Send that was refused or hangs must not turn this read into a write.
  WriteInProgress = 0;
  const ReadRow* row = FindReadRow(ActiveCode(), command);
  if (row != nullptr && row->loaded != nullptr) *row->loaded = 1;
  return StartTransfer();
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

void CloseRead() {
  WriteInProgress = 0;
  Window.bar->visible = false;
  Show(Window.status->caption, TextId::EditMode);
  Window.enableModuleFields(true);
  UnlockButtons();
}

void LeaveTransfer() {
  for (Tick* tick : LinkTicks) tick->Disable();
  CloseRead();
  UnlockMenus();
}

}  // namespace bkconf
