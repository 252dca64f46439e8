#include "end_to_end/master_image.h"

#include <algorithm>
#include <cstdio>

#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

constexpr int baseCells = 164;
constexpr int tableCells = 1000;
constexpr int contextCount = 50;
constexpr int firstContextCell = 100;  // the places of the contexts come before
constexpr int actionCells = 3;
constexpr int timeCells = 9;  // of a slot
constexpr int lightCells = 5;

int FirstCell(MasterTable table) {
  return table == MasterTable::Base ? 0 : baseCells + (static_cast<int>(table) - 1) * tableCells;
}

std::string Frame(int index, int value) {
  char digits[16];
  std::snprintf(digits, sizeof digits, "T%03d%03d", index, value);
  return digits + std::string("\\n\\r");
}

}  // namespace

MasterImage::MasterImage(const std::string& content) {
  const std::vector<std::string> lines = LinesOf(content);
  for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
    cells_.push_back(std::stoi(*line));
  }
}

int& MasterImage::At(MasterTable table, int cell) {
  return cells_.at(static_cast<std::size_t>(FirstCell(table) + cell));
}

int MasterImage::At(MasterTable table, int cell) const {
  return cells_.at(static_cast<std::size_t>(FirstCell(table) + cell));
}

Action MasterImage::ActionAt(MasterTable table, int cell) const {
  return {At(table, cell), At(table, cell + 1), At(table, cell + 2)};
}

void MasterImage::PutAction(MasterTable table, int cell, const Action& action) {
  At(table, cell) = action.letter;
  At(table, cell + 1) = action.index;
  At(table, cell + 2) = action.value;
}

// --- Contexts -----------------------------------------------------------------------------------

Contexts MasterImage::ReadContexts() const {
  constexpr auto table = MasterTable::Contexts;
  Contexts contexts;
  for (int context = 0; context < contextCount; ++context) {
    int cell = 100 * At(table, 2 * context) + At(table, 2 * context + 1);
    if (cell == 0) continue;
    for (; At(table, cell) != emptyCell; cell += actionCells) {
      contexts[context + 1].push_back(ActionAt(table, cell));
    }
  }
  return contexts;
}

int MasterImage::FreeActions() const {
  // Each context takes up a cell, with actions or without.
  int free = tableCells - firstContextCell - contextCount;
  for (const auto& [number, actions] : ReadContexts()) {
    free -= actionCells * static_cast<int>(actions.size());
  }
  return free / actionCells;
}

void MasterImage::Put(const Contexts& contexts) {
  constexpr auto table = MasterTable::Contexts;
  for (int cell = 0; cell < tableCells; ++cell) {
    At(table, cell) = cell < firstContextCell ? 0 : emptyCell;
  }
  int cell = firstContextCell;
  for (const auto& [number, actions] : contexts) {
    if (actions.empty()) continue;
    At(table, 2 * number - 2) = cell / 100;
    At(table, 2 * number - 1) = cell % 100;
    for (const Action& action : actions) {
      PutAction(table, cell, action);
      cell += actionCells;
    }
    ++cell;
  }
}

// --- Programmes ---------------------------------------------------------------------------------

std::vector<TimeProgram> MasterImage::ReadTimePrograms() const {
  constexpr auto table = MasterTable::TimePrograms;
  std::vector<TimeProgram> programs;
  for (int slot = 0; slot < timeSlots; ++slot) {
    const int cell = slot * timeCells;
    const Action action = ActionAt(table, cell + 6);
    if (action.letter == emptyCell) break;
    programs.push_back({At(table, cell),
                        At(table, cell + 1),
                        At(table, cell + 2),
                        {At(table, cell + 3), At(table, cell + 4), At(table, cell + 5)},
                        action});
  }
  return programs;
}

std::vector<LightProgram> MasterImage::ReadLightPrograms() const {
  constexpr auto table = MasterTable::LightPrograms;
  std::vector<LightProgram> programs;
  for (int slot = 0; slot < lightSlots; ++slot) {
    const int cell = slot * lightCells;
    const Action action = ActionAt(table, cell + 2);
    if (action.letter == emptyCell) break;
    programs.push_back({At(table, cell), At(table, cell + 1), action});
  }
  return programs;
}

void MasterImage::Put(const std::vector<TimeProgram>& programs) {
  constexpr auto table = MasterTable::TimePrograms;
  for (int cell = 0; cell < tableCells; ++cell) At(table, cell) = emptyCell;
  int cell = 0;
  for (const TimeProgram& each : programs) {
    At(table, cell) = each.hour;
    At(table, cell + 1) = each.minute;
    At(table, cell + 2) = each.day;
    for (int part = 0; part < 3; ++part) {
      At(table, cell + 3 + part) = each.date.at(static_cast<std::size_t>(part));
    }
    PutAction(table, cell + 6, each.action);
    cell += timeCells;
  }
}

void MasterImage::Put(const std::vector<LightProgram>& programs) {
  constexpr auto table = MasterTable::LightPrograms;
  for (int cell = 0; cell < tableCells; ++cell) At(table, cell) = emptyCell;
  int cell = 0;
  for (const LightProgram& each : programs) {
    At(table, cell) = each.direction;
    At(table, cell + 1) = each.level;
    PutAction(table, cell + 2, each.action);
    cell += lightCells;
  }
}

// --- On the line --------------------------------------------------------------------------------

std::string MasterImage::Content() const {
  std::string content = " 9 \r\n";
  for (const int cell : cells_) content += " " + std::to_string(cell) + " \r\n";
  return content;
}

// Two cells behind each other that are both empty are the end; the version of the base table never
// goes out.
std::vector<std::string> MasterImage::FramesOf(MasterTable table) const {
  const bool base = table == MasterTable::Base;
  std::vector<std::string> frames;
  for (int cell = 0; cell < (base ? baseCells - 1 : tableCells); ++cell) {
    frames.push_back(Frame(cell, At(table, cell)));
    const bool ends = cell > 0 && At(table, cell) == emptyCell && At(table, cell - 1) == emptyCell;
    if (ends && !base) break;
  }
  return frames;
}

std::vector<std::string> ContextRows(const std::vector<Action>& actions, Values values) {
  constexpr std::size_t columns = 5;
  std::vector<std::string> rows(20);
  for (std::size_t place = 0; place < rows.size() * columns; ++place) {
    std::string& row = rows[place / columns];
    if (place % columns > 0) row += "|";
    if (place < actions.size()) row += CodeOf(actions[place], values);
  }
  return rows;
}

}  // namespace end_to_end
