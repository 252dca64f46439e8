// The log of a line: one text line for each completed unit of either direction. Used by the
// program; the form is
//   <first byte us> <last byte us> tool|module <text>[ x <count>][ = <meaning>]
// with CR as \r, LF as \n, backslash as \\ and other bytes outside 32..126 as \xHH. A run of polls
// is one line with its count, written when it is over. What the tool says in a live test is
// followed by what the module did on it, such as "output 3 on".
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "virtual_module/module.h"

namespace virtual_module {

std::string EscapedText(std::string_view text);
std::string LogLine(const FrameRecord& record);

class LineLog {
 public:
  // Starts the file anew. Throws std::runtime_error when it cannot be written.
  explicit LineLog(const std::filesystem::path& path);

  // Writes what has been completed since the last call, in the order of the last bytes.
  void Write(const Module& module);

  // Writes the run of polls that is going on, if there is one: for the end of the program.
  void WriteOpenPolls(const Module& module);

 private:
  void WriteRecord(const FrameRecord& record);

  std::ofstream file_;
  std::size_t received_ = 0;  // records already written
  std::size_t sent_ = 0;
};

}  // namespace virtual_module
