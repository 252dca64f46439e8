#include "virtual_module/read_script.h"

#include <array>
#include <random>
#include <utility>

#include "virtual_module/digits.h"

namespace virtual_module {
namespace {

constexpr std::size_t overflowLines = 8;  // more than any table's bar has to spare

// The characters in front of the index have no meaning, so they vary. None of them may make a line
// look like an acknowledgement, an identity or the end.
std::string LineText(LineForm form, int index, int value, std::size_t lineNumber) {
  constexpr std::array<std::string_view, 4> pairs = {"M1", "C0", "K4", "R9"};
  constexpr std::array<std::string_view, 2> singles = {"M", "C"};
  switch (form) {
    case LineForm::Index:
      return std::string(pairs[lineNumber % pairs.size()]) + PaddedDigits(index, 3) +
             PaddedDigits(value, 3);
    case LineForm::Address:
      return std::string(singles[lineNumber % singles.size()]) + PaddedDigits(index, 4) +
             PaddedDigits(value, 3);
  }
  return {};
}

struct Line {
  const ReadRow* row;
  int index;  // as it stands on the line
  int value;
};

std::vector<Line> LinesOf(const Memory& memory, std::span<const ReadRow> rows) {
  std::vector<Line> lines;
  for (const ReadRow& row : rows) {
    const std::vector<int>& cells = memory.Cells(row.table);
    for (int cell = row.first; cell <= row.last; ++cell) {
      lines.push_back({&row, row.base + cell, cells.at(static_cast<std::size_t>(cell))});
    }
  }
  return lines;
}

// The last line stays where it is: it is the one that a reader takes for the end.
void Shuffle(std::vector<Line>& lines, std::uint32_t seed) {
  std::mt19937 source(seed);
  for (std::size_t left = lines.size() - 1; left > 1; --left) {
    std::swap(lines[left - 1], lines[source() % left]);
  }
}

// An index that still names the table of the line but lies behind its last cell.
void PutIndexBeyondTable(Line& line, const Memory& memory) {
  const int cells = static_cast<int>(memory.Cells(line.row->table).size());
  if (cells <= 999) {
    line.index = line.row->base + 999;
  } else if (line.row->form == LineForm::Address) {
    line.index = line.row->base + cells;
  }
}

std::vector<std::string> TextsOf(const std::vector<Line>& lines) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    texts.push_back(LineText(lines[i].row->form, lines[i].index, lines[i].value, i) + "\r");
  }
  return texts;
}

void CorruptDigits(std::vector<std::string>& texts) {
  constexpr std::size_t middleOfValue = 6;
  for (std::size_t i = 9; i < texts.size(); i += 10) {
    texts[i][middleOfValue] = 'x';
  }
}

void BendLines(std::vector<Line>& lines, const Memory& memory, std::optional<Fault> fault,
               std::uint32_t seed) {
  if (fault == Fault::OutOfOrder) {
    Shuffle(lines, seed);
  } else if (fault == Fault::IndexBeyondTable) {
    PutIndexBeyondTable(lines[lines.size() / 2], memory);
  } else if (fault == Fault::TooManyLines) {
    const Line first = lines.front();
    lines.insert(lines.end() - 1, overflowLines, first);
  }
}

}  // namespace

ReadScript ReadScriptOf(const Memory& memory, std::string_view command, std::optional<Fault> fault,
                        std::uint32_t seed) {
  const std::span<const ReadRow> rows = ReadRowsOf(memory.kind(), command);
  if (rows.empty()) {
    return {};
  }
  std::vector<Line> lines = LinesOf(memory, rows);
  BendLines(lines, memory, fault, seed);
  std::vector<std::string> texts = TextsOf(lines);
  const std::size_t half = texts.size() / 2;

  ReadScript script;
  bool sendStop = true;
  if (fault == Fault::CorruptDigits) {
    CorruptDigits(texts);
  } else if (fault == Fault::ShortStream) {
    texts.resize(half);
  } else if (fault == Fault::StopsWithinLine) {
    texts.resize(half + 1);
    texts.back().resize(4);
    script.end = ScriptEnd::FallSilent;
    sendStop = false;
  } else if (fault == Fault::NoStop) {
    // A poll behind the last cell would be taken for the start of a line, so there is none.
    script.end = ScriptEnd::FallSilent;
    sendStop = false;
  } else if (fault == Fault::VanishInRead) {
    texts.resize(half);
    script.end = ScriptEnd::Vanish;
    sendStop = false;
  }
  script.lines.push_back("M80000\r");
  script.lines.insert(script.lines.end(), texts.begin(), texts.end());
  if (sendStop) {
    script.lines.push_back("STOP\r");
  }
  return script;
}

}  // namespace virtual_module
