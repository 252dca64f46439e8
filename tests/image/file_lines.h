// Configuration files as the tests write them, by a transcription of their own: which cells stand
// in a file of each kind, in what order.
#pragma once

#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "image/tables.h"

namespace bkconf {

/// The cells 0 to `last` of a table.
struct FilePart {
  const char* table;
  int last;
};

struct FileRow {
  std::set<int> kinds;
  std::vector<FilePart> parts;
  int lines;  ///< behind the line of the type
};

inline const std::vector<FileRow>& FileRows() {
  static const std::vector<FileRow> rows = {
      {{0, 1, 4, 11}, {{"ButtonImage", 163}}, 164},
      {{2},
       {{"TempHeader", 3},
        {"TempRoomIds", 63},
        {"TempPeriods", 671},
        {"TempSetpoints", 335},
        {"TempTail", 81}},
       1158},
      {{3},
       {{"LcdHeader", 1}, {"LcdScreen1", 1029}, {"LcdScreen2", 1029}, {"LcdWeekdayNames", 20}},
       2083},
      {{5}, {{"AlarmImage", 292}}, 293},
      {{6}, {{"AudioImage", 212}}, 213},
      {{7}, {{"SimulationImage", 184}}, 185},
      {{8}, {{"IrImage", 508}}, 509},
      {{9},
       {{"ButtonImage", 163},
        {"ContextTable", 999},
        {"TimeProgramTable", 999},
        {"LightProgramTable", 999}},
       3164},
  };
  return rows;
}

inline const FileRow& FileRowOf(int kind) {
  for (const FileRow& row : FileRows()) {
    if (row.kinds.contains(kind)) return row;
  }
  throw std::out_of_range("kind " + std::to_string(kind));
}

inline Table& TableOf(std::string_view name) {
  for (Table* table : AllTables) {
    if (table->name == name) return *table;
  }
  throw std::out_of_range(std::string(name));
}

/// Every cell that stands in a file of the kind, in the order of its lines.
inline std::vector<Cell*> CellsInFile(int kind) {
  std::vector<Cell*> cells;
  for (const FilePart& part : FileRowOf(kind).parts) {
    for (int index = 0; index <= part.last; ++index) cells.push_back(&TableOf(part.table)[index]);
  }
  return cells;
}

/// The same as ranges for ExpectOnlyChanged.
inline std::vector<std::string> RangesInFile(int kind) {
  std::vector<std::string> ranges;
  for (const FilePart& part : FileRowOf(kind).parts) {
    ranges.push_back(std::string(part.table) + "[0.." + std::to_string(part.last) + "]");
  }
  return ranges;
}

/// The line of a cell behind that of the type, counted from 0.
inline int LineOf(int kind, std::string_view table, int index) {
  int line = 0;
  for (const FilePart& part : FileRowOf(kind).parts) {
    if (part.table == table && index <= part.last) return line + index;
    line += part.last + 1;
  }
  throw std::out_of_range(std::string(table) + " is in no file of the kind");
}

/// What the tests put into line `line` behind that of the type, counted from 0: a number from 1 to
/// 250, so that any shift shows.
inline int ValueInLine(int line) {
  return 1 + (line * 7 + line / 250) % 250;
}

/// A file of `lines` lines behind a type line that stands as given.
inline std::string FileOfLines(std::string_view type, int lines,
                               const std::function<int(int line)>& value = ValueInLine) {
  std::string file = std::string(type) + "\r\n";
  for (int line = 0; line < lines; ++line) file += " " + std::to_string(value(line)) + " \r\n";
  return file;
}

/// A whole file of the kind.
inline std::string FileOf(int kind, const std::function<int(int line)>& value = ValueInLine) {
  return FileOfLines(" " + std::to_string(kind) + " ", FileRowOf(kind).lines, value);
}

/// The lines of a file, parted by CR LF only: a lone CR or LF shows in its line.
inline std::vector<std::string> LinesOf(std::string_view file) {
  std::vector<std::string> lines;
  while (!file.empty()) {
    const auto end = file.find("\r\n");
    lines.emplace_back(file.substr(0, end));
    file.remove_prefix(end == std::string_view::npos ? file.size() : end + 2);
  }
  return lines;
}

}  // namespace bkconf
