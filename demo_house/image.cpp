#include "demo_house/image.h"

#include <optional>
#include <stdexcept>

namespace demo_house {
namespace {

constexpr int buttonCount = 20;
constexpr int secondFunctions = 60;
constexpr int longPressCell = 122;

// The end of each display's memory: in the file, but in no answer of the module.
bool IsUntold(TableName table, int cell) {
  const bool menus = table == TableName::LcdScreen1 || table == TableName::LcdScreen2;
  return menus && cell >= 1020;
}

std::string InWindows1252(std::string_view text) {
  std::string characters;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80) {
      characters += text[i];
    } else if ((byte == 0xC2 || byte == 0xC3) && i + 1 < text.size()) {
      // U+00A0 to U+00FF have their own number there.
      const auto low = static_cast<unsigned char>(text[++i]);
      characters += static_cast<char>((byte & 0x03) << 6 | (low & 0x3F));
    } else {
      throw std::invalid_argument("no character of the display: " + std::string(text));
    }
  }
  return characters;
}

}  // namespace

void Put(Cells& cells, int cell, int value) {
  cells.at(static_cast<std::size_t>(cell)) = value;
}

void PutRange(Cells& cells, int first, int last, int value) {
  for (int cell = first; cell <= last; ++cell) {
    Put(cells, cell, value);
  }
}

void PutAction(Cells& cells, int first, Action action) {
  Put(cells, first, action.target);
  Put(cells, first + 1, action.index);
  Put(cells, first + 2, action.value);
}

void PutText(Cells& cells, int first, int width, std::string_view text) {
  const std::string characters = InWindows1252(text);
  if (characters.size() > static_cast<std::size_t>(width)) {
    throw std::invalid_argument("too long for the display: " + std::string(text));
  }
  PutRange(cells, first, first + width - 1, ' ');
  int cell = first;
  for (const char character : characters) {
    Put(cells, cell++, static_cast<unsigned char>(character));
  }
}

void PutButtons(Cells& cells, int halfSeconds, std::initializer_list<Button> buttons) {
  for (int button = 0; button < buttonCount; ++button) {
    PutAction(cells, 3 * button, nothing);
    PutAction(cells, secondFunctions + 3 * button, nothing);
  }
  for (const Button& button : buttons) {
    PutAction(cells, 3 * (button.number - 1), button.first);
    PutAction(cells, secondFunctions + 3 * (button.number - 1), button.second);
  }
  Put(cells, longPressCell, halfSeconds);
}

void PutAddressAndVersion(Memory& memory, int letter, int version) {
  const std::optional<virtual_module::FixedCell> own = virtual_module::AddressCellOf(memory.kind());
  Put(memory.Cells(own.value().table), own.value().cell, letter);
  const virtual_module::FixedCell told = virtual_module::VersionCellOf(memory.kind());
  Put(memory.Cells(told.table), told.cell, version);
}

void PutCondition(Cells& cells, int first, const Condition& condition) {
  Put(cells, first, condition.darkerThan);
  Put(cells, first + 1, condition.first.from);
  Put(cells, first + 2, condition.first.to);
  Put(cells, first + 3, condition.second.from);
  Put(cells, first + 4, condition.second.to);
}

std::string FileText(const Memory& memory) {
  std::string text = " " + std::to_string(memory.kind()) + " \r\n";
  for (const virtual_module::TableRow& row : virtual_module::TablesOf(memory.kind())) {
    const Cells& cells = memory.Cells(row.table);
    for (int cell = 0; cell < row.saved; ++cell) {
      if (!IsUntold(row.table, cell)) {
        text += " " + std::to_string(cells.at(static_cast<std::size_t>(cell))) + " ";
      }
      text += "\r\n";
    }
  }
  return text;
}

}  // namespace demo_house
