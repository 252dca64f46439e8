// Feeds the receive dispatcher with lines that no module would send, under every command of every
// kind and with no module in memory, the screen that a read belongs to being open. Whatever comes,
// the transfer can be left, no table of another kind changes, and nothing but an index outside a
// table or a line too many for the bar is an error. Built with libFuzzer by dev/fuzz. The first two
// bytes of an input choose kind and command, the rest are lines that end in '\n'.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "image/commands.h"
#include "image/configuration_file.h"
#include "image/module_kinds.h"
#include "link/identity.h"
#include "link/receive_dispatcher.h"
#include "link/transfer.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "platform/runtime_error.h"
#include "silent_machine.h"
#include "special/display_menu_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"

namespace bkconf {
namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// A read that a screen asks for.
struct Opener {
  int kind;
  std::string_view command;
  void (*open)();
  Cell* loaded;
};

const std::array<Opener, 9> Openers{{
    {2, Read1, OpenRoomIds, &TempImage1Loaded},
    {2, Read2, OpenRoomProgram, &TempImage2Loaded},
    {2, Read3, OpenLiveTemperatures, nullptr},
    {3, Read1, OpenDisplay1, &LcdScreen1Loaded},
    {3, Read3, OpenDisplay2, &LcdScreen2Loaded},
    {3, Read5, OpenWeekdayTexts, &LcdWeekdayLoaded},
    {9, Read1, OpenContextScreen, &MasterContextsLoaded},
    {9, Read2, OpenTimeProgramScreen, &MasterTimeLoaded},
    {9, Read3, OpenLightProgramScreen, &MasterLightLoaded},
}};

/// The tables that reads of a kind may change.
bool IsTouched(int kind, const Table* table) {
  // Live values of other kinds than the table's own lie here too.
  if (table == &DiagBuffer || table == &ContextWork) return true;
  const auto blocks = BlocksOf(Cell(kind));
  return std::any_of(blocks.begin(), blocks.end(),
                     [table](const FileBlock& block) { return block.table == table; });
}

void Empty(int kind) {
  for (Table* table : AllTables) {
    // Nothing of a line gets into the working form of the contexts, and it is large.
    if (!IsTouched(kind, table) || table == &ContextWork) continue;
    table->Fill(0, table->Size() - 1, Cell());
  }
}

void RequireOthersEmpty(int kind) {
  for (Table* table : AllTables) {
    if (IsTouched(kind, table)) continue;
    for (int cell = 0; cell < table->Size(); ++cell) {
      Require((*table)[cell].IsEmpty(), "a table of another kind stays as it is");
    }
  }
}

void CloseScreens() {
  for (Screen* screen :
       {static_cast<Screen*>(&TemperatureScreen), static_cast<Screen*>(&DisplayMenuScreen),
        static_cast<Screen*>(&WeekdayTextScreen), static_cast<Screen*>(&ContextScreen),
        static_cast<Screen*>(&TimeProgramScreen), static_cast<Screen*>(&LightProgramScreen)}) {
    if (screen->shown) screen->Close();
    Require(!screen->shown, "every screen can be left");
  }
}

/// As far as the line on which the module says who it is.
void Ask(int kind, std::string_view command) {
  ActiveModuleType = kind;
  const auto opener = std::find_if(Openers.begin(), Openers.end(), [=](const Opener& each) {
    return each.kind == kind && each.command == command;
  });
  if (opener != Openers.end()) {
    if (opener->loaded != nullptr) *opener->loaded = 0;
    opener->open();
  } else {
    StartRequest(command);
    WriteInProgress = command.starts_with("T7") ? 1 : 0;
  }
  if (const ModuleKind* row = FindKind(kind)) {
    RxLine = row->identity;
    TestIdentity();
  }
  StopLink();
}

void TakeLines(std::string_view lines) {
  try {
    while (!lines.empty()) {
      const std::size_t end = lines.find('\n');
      RxLine = lines.substr(0, end);
      ReceiveDispatcher();
      StopLink();
      Require(Window.bar->Value() <= Window.bar->Maximum(), "the bar stays in its range");
      lines.remove_prefix(end == std::string_view::npos ? lines.size() : end + 1);
    }
  } catch (const RuntimeError& error) {
    Require(error.kind == ErrorKind::IndexOutsideTable || error.kind == ErrorKind::BarPastMaximum,
            "a line is no other error");
  }
}

void TryLines(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return;
  const std::size_t place = data[0] % (ModuleKinds.size() + 1);
  const int kind = place == ModuleKinds.size() ? NoModule : ModuleKinds[place].code;
  const std::string_view command = CommandVocabulary[data[1] % CommandVocabulary.size()].command;
  Ask(kind, command);
  TakeLines({reinterpret_cast<const char*>(data) + 2, size - 2});
  LeaveTransfer();
  CloseScreens();
  Require(!TransferUnderWay && Window.connect->enabled && Window.send->enabled,
          "the transfer can be left");
  // Thousands of cells: not each time, but with the same input always.
  constexpr std::size_t looks = 16;
  if (size % looks == 0) RequireOthersEmpty(kind);
  Empty(kind);
}

}  // namespace
}  // namespace bkconf

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  bkconf::LoadOnSilentMachine();
  bkconf::TryLines(data, size);
  return 0;
}
