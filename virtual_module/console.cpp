#include "virtual_module/console.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <sstream>

#include "virtual_module/digits.h"

namespace virtual_module {
namespace {

constexpr std::size_t longestLine = 200;

constexpr ConsoleRow rows[] = {
    {"button N", "presses push-button 1..100 once, while the buttons are tested"},
    {"detector N open", "opens the contact of detector 1..12 of an alarm module"},
    {"detector N closed", "closes it, as it is at the start"},
};

std::vector<std::string> WordsOf(std::string_view line) {
  std::istringstream stream{std::string(line)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;) {
    words.push_back(word);
  }
  return words;
}

// The index of what a person counts from 1.
int IndexOf(const std::string& word, int count) {
  const std::optional<int> number = NumberOfDigits(word);
  if (!number || *number < 1 || *number > count) {
    throw ConsoleError("\"" + word + "\" is not in 1.." + std::to_string(count));
  }
  return *number - 1;
}

std::string ObeyButton(Module& module, const std::string& word) {
  const int index = IndexOf(word, buttonCount);
  if (!module.PressButton(index)) {
    throw ConsoleError("the buttons are not being tested");
  }
  return "button " + std::to_string(index + 1) + " pressed";
}

std::string ObeyDetector(Module& module, const std::string& word, const std::string& state) {
  const int index = IndexOf(word, detectorCount);
  try {
    module.SetContact(index, state == "open");
  } catch (const std::out_of_range& error) {
    throw ConsoleError(error.what());
  }
  return "detector " + std::to_string(index + 1) + " " + state;
}

}  // namespace

std::span<const ConsoleRow> ConsoleCommands() {
  return rows;
}

std::string Obey(Module& module, std::string_view line) {
  const std::vector<std::string> words = WordsOf(line);
  if (words.empty()) {
    return {};
  }
  if (words.size() == 2 && words[0] == "button") {
    return ObeyButton(module, words[1]);
  }
  if (words.size() == 3 && words[0] == "detector" && (words[2] == "open" || words[2] == "closed")) {
    return ObeyDetector(module, words[1], words[2]);
  }
  std::string known;
  for (const ConsoleRow& row : rows) {
    known += (known.empty() ? "" : ", ") + std::string(row.form);
  }
  throw ConsoleError("\"" + std::string(line) + "\" is none of: " + known);
}

// A program in the background would be halted if it read from its terminal.
int Console::descriptor() const {
  if (ended_) {
    return -1;
  }
  const pid_t foreground = tcgetpgrp(descriptor_);
  const bool inBackground = foreground >= 0 && foreground != getpgrp();
  return inBackground ? -1 : descriptor_;
}

std::vector<std::string> Console::Lines() {
  std::vector<std::string> lines;
  pollfd waiting{.fd = descriptor(), .events = POLLIN, .revents = 0};
  if (waiting.fd < 0 || poll(&waiting, 1, 0) <= 0) {
    return lines;
  }
  std::array<char, 512> buffer{};
  const ssize_t count = read(waiting.fd, buffer.data(), buffer.size());
  ended_ = count == 0 || (count < 0 && errno != EINTR && errno != EAGAIN);
  const auto length = static_cast<std::size_t>(count > 0 ? count : 0);
  for (const char character : std::string_view(buffer.data(), length)) {
    if (character == '\n') {
      lines.push_back(std::move(unfinished_));
      unfinished_.clear();
    } else if (unfinished_.size() < longestLine) {
      unfinished_ += character;
    }
  }
  if (ended_ && !unfinished_.empty()) {
    lines.push_back(std::move(unfinished_));
  }
  return lines;
}

}  // namespace virtual_module
