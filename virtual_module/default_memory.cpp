#include <stdexcept>
#include <string>
#include <string_view>

#include "virtual_module/chance.h"
#include "virtual_module/memory.h"

namespace virtual_module {
namespace {

using enum TableName;
using Cells = std::vector<int>;

int& At(Cells& cells, int index) {
  return cells.at(static_cast<std::size_t>(index));
}

void FillRange(Cells& cells, int first, int last, int low, int high, Chance& chance) {
  for (int cell = first; cell <= last; ++cell) {
    At(cells, cell) = chance.In(low, high);
  }
}

void PutText(Cells& cells, int first, int width, std::string_view text) {
  for (int i = 0; i < width; ++i) {
    const auto position = static_cast<std::size_t>(i);
    At(cells, first + i) =
        position < text.size() ? static_cast<unsigned char>(text[position]) : ' ';
  }
}

// Letter of the target, number inside it, value.
void PutAction(Cells& cells, int first, Chance& chance) {
  At(cells, first) = chance.In('A', 'R');
  At(cells, first + 1) = chance.In(0, 11);
  At(cells, first + 2) = chance.In(0, 2);
}

void PutNoAction(Cells& cells, int first) {
  for (int i = 0; i < 3; ++i) {
    At(cells, first + i) = emptyCell;
  }
}

void PutActions(Cells& cells, int first, int records, int emptyOneIn, Chance& chance) {
  for (int record = 0; record < records; ++record) {
    if (chance.OneIn(emptyOneIn)) {
      PutNoAction(cells, first + 3 * record);
    } else {
      PutAction(cells, first + 3 * record, chance);
    }
  }
}

// The part that all modules with push-buttons share: twenty first and twenty second functions, and
// how long a press is long, in half seconds.
void FillButtons(Cells& cells, Chance& chance) {
  PutActions(cells, 0, 20, 4, chance);
  PutActions(cells, 60, 20, 2, chance);
  At(cells, 122) = chance.In(1, 8);
}

void FillOutputs(Cells& cells, Chance& chance) {
  FillRange(cells, 123, 134, 0, 5, chance);
  FillRange(cells, 135, 146, 1, 15, chance);
  FillRange(cells, 147, 158, 1, 12, chance);
}

// Letters in 123..140 and the kinds behind them in 141..158, packed to the front.
void FillDirectory(Cells& cells, Chance& chance) {
  constexpr int kindsOnBus[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 11};
  const int modules = chance.In(4, 12);
  for (int i = 0; i < 18; ++i) {
    At(cells, 123 + i) = i < modules ? 'A' + i : emptyCell;
    At(cells, 141 + i) = i < modules ? kindsOnBus[chance.In(0, 9)] : emptyCell;
  }
}

void FillMasterBase(Cells& cells, Chance& chance) {
  const int correction = chance.In(1, 15);
  const bool subtract = chance.OneIn(2);
  At(cells, 120) = subtract ? correction : 0;
  At(cells, 121) = subtract ? 0 : correction;
  FillDirectory(cells, chance);
}

// Two header cells a context that point to its actions; each list of actions ends in a 42.
void FillContexts(Cells& cells, Chance& chance) {
  FillRange(cells, 100, 999, emptyCell, emptyCell, chance);
  int place = 100;
  for (int context = 0; context < 50; ++context) {
    if (context > 8 || chance.OneIn(3)) {
      continue;
    }
    At(cells, 2 * context) = place / 100;
    At(cells, 2 * context + 1) = place % 100;
    const int actions = chance.In(1, 6);
    PutActions(cells, place, actions, 1000, chance);
    place += 3 * actions + 1;
  }
}

void FillTimeProgram(Cells& cells, Chance& chance) {
  FillRange(cells, 0, 999, emptyCell, emptyCell, chance);
  const int slots = chance.In(5, 20);
  for (int slot = 0; slot < slots; ++slot) {
    const int first = 9 * slot;
    At(cells, first) = chance.In(0, 23);
    At(cells, first + 1) = 5 * chance.In(0, 11);
    const int day = chance.In(1, 9);
    At(cells, first + 2) = day;
    At(cells, first + 3) = day == 8 ? chance.In(1, 28) : 0;
    At(cells, first + 4) = day == 8 ? chance.In(1, 12) : 0;
    At(cells, first + 5) = day == 8 ? chance.In(10, 30) : 0;
    PutAction(cells, first + 6, chance);
  }
}

void FillLightProgram(Cells& cells, Chance& chance) {
  FillRange(cells, 0, 999, emptyCell, emptyCell, chance);
  const int slots = chance.In(3, 12);
  for (int slot = 0; slot < slots; ++slot) {
    At(cells, 5 * slot) = chance.In(0, 1);
    At(cells, 5 * slot + 1) = chance.In(1, 41);
    PutAction(cells, 5 * slot + 2, chance);
  }
}

void FillTemperature(Memory& memory, Chance& chance) {
  Cells& header = memory.Cells(TempHeader);
  const int rooms = chance.In(1, 8);
  At(header, 1) = rooms;
  At(header, 2) = chance.In(2, 255);
  Cells& ids = memory.Cells(TempRoomIds);
  FillRange(ids, 0, 63, 0, 255, chance);
  FillRange(ids, 64, 71, 15, 25, chance);
  At(ids, 64 + chance.In(0, 7)) = chance.In(96, 99);  // one sensor reports trouble
  FillRange(memory.Cells(TempSetpoints), 0, 335, 0, 40, chance);

  Cells& tail = memory.Cells(TempTail);
  FillRange(tail, 0, 63, 0, 255, chance);
  for (int room = 0; room < 8; ++room) {
    At(tail, 64 + 2 * room) = chance.In('A', 'R');
    At(tail, 65 + 2 * room) = chance.In(0, 11);
  }
  At(tail, 80) = At(header, 0);
  At(tail, 81) = 8;

  // Six boundaries a day, each later than the one before.
  constexpr int hours[] = {6, 9, 12, 14, 18, 22};
  Cells& periods = memory.Cells(TempPeriods);
  for (int boundary = 0; boundary < 336; ++boundary) {
    At(periods, 2 * boundary) = hours[boundary % 6] + chance.In(0, 1);
    At(periods, 2 * boundary + 1) = 5 * chance.In(0, 11);
  }
}

void FillDisplayMenus(Cells& cells, Chance& chance) {
  constexpr std::string_view names[] = {"Living", "Keuken", "Badkamer", "Hal", "Zolder", "Tuin"};
  constexpr std::string_view lines[] = {"Plafond", "Wand", "Leeslamp", "Spots", "Tafel", "Luifel"};
  FillRange(cells, 0, 1029, ' ', ' ', chance);
  PutText(cells, 682, 12, " ~AAN  \x7fUIT ");
  for (int screen = 0; screen < 6; ++screen) {
    PutText(cells, 12 * screen, 12, names[chance.In(0, 5)]);
    At(cells, 695 + screen) = chance.In(2, 7);
    PutText(cells, 701 + 13 * screen, 13, " ~AAN   \x7fUIT ");
    for (int line = 0; line < 10; ++line) {
      const int output = 780 + 20 * screen + 2 * line;
      const bool used = !chance.OneIn(3);
      PutText(cells, 72 + 100 * screen + 10 * line, 10, used ? lines[chance.In(0, 5)] : "");
      At(cells, output) = used ? chance.In('A', 'R') : '#';
      At(cells, output + 1) = used ? chance.In(0, 11) : 0;
      At(cells, output + 120) = used ? chance.In('A', 'R') : '#';
      At(cells, output + 121) = used ? chance.In(0, 11) : 0;
    }
  }
}

// One condition: darker than a level, and up to two periods of the day.
void PutCondition(Cells& cells, int first, Chance& chance) {
  const bool byLight = chance.OneIn(2);
  At(cells, first) = byLight ? chance.In(1, 41) : 60;
  At(cells, first + 1) = byLight ? 0 : chance.In(0, 11);
  At(cells, first + 2) = byLight ? 25 : chance.In(12, 24);
  At(cells, first + 3) = 0;
  At(cells, first + 4) = 25;
}

void FillAlarm(Cells& cells, Chance& chance) {
  At(cells, 123) = chance.In(1, 12);
  FillRange(cells, 124, 135, 0, 120, chance);
  FillRange(cells, 136, 147, 0, 1, chance);
  PutActions(cells, 149, 24, 3, chance);
  for (int detector = 0; detector < 12; ++detector) {
    PutCondition(cells, 221 + 5 * detector, chance);
  }
  FillRange(cells, 281, 292, 0, 1, chance);
}

void FillAudio(Cells& cells, Chance& chance) {
  At(cells, 129) = chance.In(0, 1);
  At(cells, 130) = chance.In(0, 3);
  At(cells, 131) = chance.In(0, 15);
  FillRange(cells, 133, 148, 0, 3, chance);
  FillRange(cells, 149, 164, 0, 1, chance);
  FillRange(cells, 165, 212, 0, 15, chance);
}

void FillSimulation(Cells& cells, Chance& chance) {
  At(cells, 123) = chance.In(0, 1);
  PutCondition(cells, 125, chance);
  At(cells, 130) = chance.In(0, 1);
  At(cells, 132) = chance.In(0, 4);
  for (int entry = 0; entry < 25; ++entry) {
    const bool used = entry < 10;
    At(cells, 135 + 2 * entry) = used ? chance.In('A', 'R') : emptyCell;
    At(cells, 136 + 2 * entry) = used ? chance.In(0, 11) : emptyCell;
  }
}

void FillTables(Memory& memory, Chance& chance) {
  switch (memory.kind()) {
    case 2:
      FillTemperature(memory, chance);
      break;
    case 3:
      FillDisplayMenus(memory.Cells(LcdScreen1), chance);
      FillDisplayMenus(memory.Cells(LcdScreen2), chance);
      PutText(memory.Cells(LcdWeekdayNames), 0, 21, "ZonMaaDinWoeDonVriZat");
      break;
    case 5:
      FillButtons(memory.Cells(AlarmImage), chance);
      FillAlarm(memory.Cells(AlarmImage), chance);
      break;
    case 6:
      FillButtons(memory.Cells(AudioImage), chance);
      FillAudio(memory.Cells(AudioImage), chance);
      break;
    case 7:
      FillButtons(memory.Cells(SimulationImage), chance);
      FillSimulation(memory.Cells(SimulationImage), chance);
      break;
    case 8:
      FillButtons(memory.Cells(IrImage), chance);
      PutActions(memory.Cells(IrImage), 125, 128, 3, chance);
      break;
    case 9:
      FillButtons(memory.Cells(ButtonImage), chance);
      FillMasterBase(memory.Cells(ButtonImage), chance);
      FillContexts(memory.Cells(ContextTable), chance);
      FillTimeProgram(memory.Cells(TimeProgramTable), chance);
      FillLightProgram(memory.Cells(LightProgramTable), chance);
      break;
    case 0:
    case 1:
    case 4:
    case 11:
      FillButtons(memory.Cells(ButtonImage), chance);
      FillOutputs(memory.Cells(ButtonImage), chance);
      break;
    default:
      throw std::invalid_argument("no default memory for kind " + std::to_string(memory.kind()));
  }
}

}  // namespace

Memory DefaultMemory(int kind, std::uint32_t seed) {
  Memory memory(kind);
  Chance chance(seed * 31U + static_cast<std::uint32_t>(kind));
  // Whatever has no meaning of its own below still holds something that a transfer must carry.
  for (const Memory::Table& table : memory.tables()) {
    const int last = static_cast<int>(table.cells.size()) - 1;
    const bool contextHeader = table.name == ContextTable;
    FillRange(memory.Cells(table.name), 0, last, 0, contextHeader ? 0 : 255, chance);
  }
  if (const std::optional<FixedCell> letter = AddressCellOf(kind)) {
    At(memory.Cells(letter->table), letter->cell) = chance.In('A', 'R');
  }
  FillTables(memory, chance);
  const FixedCell version = VersionCellOf(kind);
  At(memory.Cells(version.table), version.cell) = chance.In(10, 99);
  return memory;
}

}  // namespace virtual_module
