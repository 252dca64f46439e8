#include "virtual_module/arguments.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "virtual_module/console.h"
#include "virtual_module/digits.h"
#include "virtual_module/kinds.h"

namespace virtual_module {
namespace {

constexpr std::string_view helpHead =
    "usage: virtual_module --kind K --link PATH [options]\n"
    "\n"
    "A module of kind K at the far end of the serial port PATH.\n"
    "\n"
    "  --kind K      kind of the module, see below\n"
    "  --link PATH   symbolic link to make to the port; replaces a link, never a file\n"
    "  --image FILE  memory to start with, a .BK1 file of the same kind\n"
    "  --save FILE   .BK1 file to write after each completed write and at the end\n"
    "  --log FILE    text file with one line for each unit on the line\n"
    "  --fault NAME  misbehaves in one way, see below\n"
    "  --seed N      chooses the memory without an image, the order of out-of-order, and\n"
    "                what live tests show that stands in no cell\n"
    "  --clock TIME  where the clock of a master starts, by default 2026-03-02T08:30\n"
    "  --press MS    while the buttons are tested, presses one every MS milliseconds,\n"
    "                at least 10\n"
    "  --help        this text\n"
    "\n"
    "Lines of standard input, numbers as the tool shows them; its end changes nothing:\n"
    "\n";

template <typename Number>
Number NumberOf(const std::string& option, const std::string& word) {
  Number number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) {
    throw ArgumentError(option + ": \"" + word + "\" is not a number");
  }
  return number;
}

std::int64_t PressArgument(const std::string& word) {
  constexpr std::int64_t shortest = 10;  // ms; a line of a button takes 4
  constexpr std::int64_t longest = 86400000;
  const auto milliseconds = NumberOf<std::int64_t>("--press", word);
  if (milliseconds < shortest || milliseconds > longest) {
    throw ArgumentError("--press: " + word + " is not in " + std::to_string(shortest) + ".." +
                        std::to_string(longest));
  }
  return milliseconds * 1000;
}

ClockTime ClockArgument(const std::string& word) {
  constexpr std::string_view form = "0000-00-00T00:00";
  bool matches = word.size() == form.size();
  for (std::size_t i = 0; matches && i < form.size(); ++i) {
    matches = form[i] == '0' ? word[i] >= '0' && word[i] <= '9' : word[i] == form[i];
  }
  if (!matches) {
    throw ArgumentError("--clock: \"" + word + "\" is not of the form 2026-03-02T08:30");
  }
  const auto number = [&word](std::size_t first, std::size_t count) {
    return NumberOfDigits(std::string_view(word).substr(first, count)).value_or(0);
  };
  return {.year = number(0, 4),
          .month = number(5, 2),
          .day = number(8, 2),
          .hour = number(11, 2),
          .minute = number(14, 2)};
}

int KindArgument(const std::string& word) {
  const int kind = NumberOf<int>("--kind", word);
  const std::span<const KindRow> kinds = Kinds();
  if (std::none_of(kinds.begin(), kinds.end(),
                   [kind](const KindRow& row) { return row.kind == kind; })) {
    throw ArgumentError("--kind: no module is of kind " + word);
  }
  return kind;
}

Fault FaultArgument(const std::string& word) {
  const std::optional<Fault> fault = FaultByName(word);
  if (!fault) {
    throw ArgumentError("--fault: there is no fault \"" + word + "\"");
  }
  return *fault;
}

void TakeOption(Arguments& arguments, const std::string& option, const std::string& word) {
  if (option == "--kind") {
    arguments.kind = KindArgument(word);
  } else if (option == "--link") {
    arguments.link = word;
  } else if (option == "--image") {
    arguments.image = word;
  } else if (option == "--save") {
    arguments.save = word;
  } else if (option == "--log") {
    arguments.log = word;
  } else if (option == "--fault") {
    arguments.fault = FaultArgument(word);
  } else if (option == "--seed") {
    arguments.seed = NumberOf<std::uint32_t>("--seed", word);
  } else if (option == "--clock") {
    arguments.clock = ClockArgument(word);
  } else if (option == "--press") {
    arguments.pressEvery = PressArgument(word);
  } else {
    throw ArgumentError(option + ": there is no such option");
  }
}

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded = "  " + std::string(text);
  padded.resize(std::max(padded.size() + 1, width), ' ');
  return padded;
}

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  if (std::find(words.begin(), words.end(), "--help") != words.end()) {
    arguments.help = true;
    return arguments;
  }
  for (std::size_t i = 0; i < words.size(); i += 2) {
    const std::string word = i + 1 < words.size() ? words[i + 1] : std::string();
    TakeOption(arguments, words[i], word);
    if (word.empty()) {
      throw ArgumentError(words[i] + ": nothing follows it");
    }
  }
  if (arguments.kind < 0) {
    throw ArgumentError("--kind is missing");
  }
  if (arguments.link.empty()) {
    throw ArgumentError("--link is missing");
  }
  return arguments;
}

std::string HelpText() {
  std::string text(helpHead);
  for (const ConsoleRow& row : ConsoleCommands()) {
    text += Padded(row.form, 27) + std::string(row.description) + "\n";
  }
  text += "\nkinds:\n";
  for (const KindRow& row : Kinds()) {
    text += Padded(std::to_string(row.kind), 6) + std::string(row.caption) + "\n";
  }
  text += "\nfaults:\n";
  for (const FaultRow& row : Faults()) {
    text += Padded(row.name, 25) + std::string(row.description) + "\n";
  }
  return text;
}

}  // namespace virtual_module
