#include "virtual_module/conversation.h"

#include <algorithm>

namespace virtual_module {

Conversation::Conversation(int kind, std::optional<Fault> fault)
    : Conversation(Options{.kind = kind, .memory = DefaultMemory(kind, 1), .fault = fault}) {}

std::string Conversation::RunUntil(std::string_view ending, std::int64_t limit) {
  const std::int64_t end = now + limit;
  std::string text;
  while (!text.ends_with(ending) || ending.empty()) {
    const std::optional<std::int64_t> due = module.NextDue();
    if (!due || *due > end) {
      now = end;
      break;
    }
    now = std::max(now, *due);
    const std::string left = module.Run(now);
    if (!left.empty()) {
      lastCharacter = now;
    }
    text += left;
  }
  return text;
}

std::string Conversation::RunFor(std::int64_t duration) {
  return RunUntil({}, duration);
}

void Conversation::Send(std::string_view characters, std::int64_t gap) {
  for (const char character : characters) {
    now += gap;
    module.Receive(static_cast<unsigned char>(character), now);
  }
}

std::string Conversation::Wake() {
  RunUntil("M");
  Send(std::string(22, 'D'));
  return RunUntil("\r", second);
}

std::string Conversation::Read(std::string_view command) {
  Wake();
  Send(std::string(command) + "\r");
  return RunUntil("STOP\r");
}

std::string Conversation::StartWrite(std::string_view command) {
  Wake();
  Send(std::string(command) + "\r");
  return RunUntil("\r", second);
}

void Conversation::Stop() {
  for (int i = 0; i < 50; ++i) {
    Send(stopFrame);
  }
}

Memory MemoryOfVersion(int kind, int version) {
  Memory memory = DefaultMemory(kind, 1);
  const FixedCell cell = VersionCellOf(kind);
  memory.Cells(cell.table).at(static_cast<std::size_t>(cell.cell)) = version;
  return memory;
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\r');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string Digits(int number, int width) {
  std::string text = std::to_string(number);
  text.insert(0, static_cast<std::size_t>(std::max(0, width - static_cast<int>(text.size()))), '0');
  return text;
}

}  // namespace virtual_module
