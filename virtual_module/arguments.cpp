#include "virtual_module/arguments.h"

#include <algorithm>
#include <charconv>
#include <string_view>

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
    "  --seed N      chooses the memory without an image, and the order of out-of-order\n"
    "  --help        this text\n";

template <typename Number>
Number NumberOf(const std::string& option, const std::string& word) {
  Number number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) {
    throw ArgumentError(option + ": \"" + word + "\" is not a number");
  }
  return number;
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
