// The committed files of the demo house, read line by line with no help from what wrote them. Used
// by its tests.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

namespace demo_house_test {

/// Where the tables of kinds with several begin, in cells behind the line with the kind.
namespace temperature {
inline constexpr int header = 0;
inline constexpr int sensors = 4;
inline constexpr int periods = 68;
inline constexpr int setpoints = 740;
inline constexpr int tail = 1076;
}  // namespace temperature
namespace display {
inline constexpr int header = 0;
inline constexpr int screens[] = {2, 1032};
inline constexpr int weekdays = 2062;
}  // namespace display
namespace master {
inline constexpr int base = 0;
inline constexpr int contexts = 164;
inline constexpr int times = 1164;
inline constexpr int lights = 2164;
}  // namespace master

struct ImageFile {
  std::string name;
  std::vector<std::string> lines;  ///< without their CR LF

  int Kind() const;
  int CellCount() const { return static_cast<int>(lines.size()) - 1; }
  /// The number in a cell, counted from 0 behind the line with the kind. Throws std::runtime_error
  /// where there is none.
  int At(int cell) const;
  /// The characters of `width` cells, in Windows-1252, without the blanks at the end.
  std::string TextAt(int cell, int width) const;
};

void PrintTo(const ImageFile& file, std::ostream* out);

/// All bytes of a file. Throws std::runtime_error with its path when it cannot be read.
std::string BytesOf(const std::filesystem::path& path);

/// The ".BK1" files of a directory, by name.
std::vector<ImageFile> FilesIn(const std::filesystem::path& directory);

/// The committed ones, read once.
const std::vector<ImageFile>& House();

/// The one of that kind; throws std::runtime_error when there is none or more than one.
const ImageFile& FileOfKind(int kind);

/// The cell with the letter of a module, by kind; -1 for the master, which has none.
int AddressCell(int kind);
int VersionCell(int kind);

}  // namespace demo_house_test
