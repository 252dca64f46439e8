#include "link/send.h"

#include <algorithm>

#include "link/transfer.h"
#include "link/writers.h"

namespace bkconf {
namespace {

bool Holds(const SendRow& row) {
  return row.kinds.Contains(ActiveCode()) &&
         std::all_of(row.conditions.begin(), row.conditions.end(), [](const FlagTest& test) {
           return test.flag == nullptr || test.flag->Number() == test.value;
         });
}

}  // namespace

bool ChooseCommand() {
  const auto row = std::find_if(SendTable.begin(), SendTable.end(), Holds);
  if (row == SendTable.end()) return false;
  PendingCommand = row->command;
  for (Cell* flag : row->clears) {
    if (flag != nullptr) *flag = 0;
  }
  return true;
}

void SendImage() {
  RxLine.clear();
  WriteInProgress = 1;
  ChooseCommand();
  SelectFirstTable();
  StartTransfer();
}

}  // namespace bkconf
