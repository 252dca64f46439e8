// What a person, or a script, does to the module while it runs, by lines on standard input. Used by
// the program virtual_module only.
#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/module.h"

namespace virtual_module {

struct ConsoleRow {
  std::string_view form;
  std::string_view description;
};

std::span<const ConsoleRow> ConsoleCommands();

struct ConsoleError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Does what a line says, and gives a sentence about it; an empty line does nothing and gives
// nothing. Throws ConsoleError, whose text tells what is wrong with the line.
std::string Obey(Module& module, std::string_view line);

// The lines of a descriptor that is somebody else's: it is neither closed nor set to other modes.
class Console {
 public:
  explicit Console(int descriptor) : descriptor_(descriptor) {}

  // What to wait for; -1 while there is nothing to wait for: at its end, or while the terminal is
  // another program's.
  int descriptor() const;

  // The lines that have come in since the last call, without their ends. Does not wait.
  std::vector<std::string> Lines();

 private:
  int descriptor_;
  bool ended_ = false;
  std::string unfinished_;
};

}  // namespace virtual_module
