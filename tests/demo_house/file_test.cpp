// The files as bytes: what the program writes, line by line as a module tells its cells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "demo_house/house_files.h"
#include "virtual_module/memory.h"

namespace demo_house_test {
namespace {

namespace fs = std::filesystem;

// A directory that is gone after the test.
class Scratch {
 public:
  Scratch() {
    std::string name = (fs::temp_directory_path() / "demo_house_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
      throw std::runtime_error(name + ": cannot be made");
    }
    path = name;
  }
  ~Scratch() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  fs::path path;
};

int RunProgram(const std::string& arguments) {
  const std::string command = "'" DEMO_HOUSE_PROGRAM "' " + arguments + " 2>/dev/null";
  const int status = std::system(command.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::map<std::string, std::string> BytesByName(const fs::path& directory) {
  std::map<std::string, std::string> bytes;
  for (const auto& entry : fs::directory_iterator(directory)) {
    if (entry.path().extension() == ".BK1") {
      bytes[entry.path().filename().string()] = BytesOf(entry.path());
    }
  }
  return bytes;
}

TEST(DemoHouseFiles, AreWhatTheProgramWritesNow) {
  const Scratch scratch;
  ASSERT_EQ(RunProgram("'" + scratch.path.string() + "'"), 0);
  const auto committed = BytesByName(DEMO_HOUSE_FILES);
  const auto written = BytesByName(scratch.path);
  EXPECT_EQ(written.size(), 11U);
  ASSERT_EQ(written.size(), committed.size());
  for (const auto& [name, bytes] : written) {
    ASSERT_TRUE(committed.contains(name)) << name;
    EXPECT_TRUE(committed.at(name) == bytes) << name << " differs: run demo_house on its directory";
  }
}

TEST(DemoHouseFiles, AreNotWrittenToADirectoryThatIsMissing) {
  const Scratch scratch;
  EXPECT_EQ(RunProgram("'" + (scratch.path / "none").string() + "'"), 1);
  EXPECT_EQ(RunProgram(""), 2);
}

TEST(DemoHouseFiles, HaveOneOfEachKindWithAllItsLines) {
  const std::map<int, int> linesByKind = {{0, 164}, {1, 164},  {2, 1158}, {3, 2083},
                                          {4, 164}, {5, 293},  {6, 213},  {7, 185},
                                          {8, 509}, {9, 3164}, {11, 164}};
  std::map<int, int> found;
  for (const ImageFile& file : House()) {
    found[file.Kind()] = file.CellCount();
  }
  EXPECT_EQ(House().size(), linesByKind.size());
  EXPECT_EQ(found, linesByKind);
}

TEST(DemoHouseFiles, AreLinesOfANumberBetweenBlanksOrOfNothing) {
  const std::regex form(" (0|[1-9][0-9]{0,2}) |");
  for (const ImageFile& file : House()) {
    std::string again;
    for (const std::string& line : file.lines) {
      EXPECT_TRUE(std::regex_match(line, form)) << file.name << ": \"" << line << "\"";
      again += line + "\r\n";
    }
    // Nothing stands outside these lines, and no line ends otherwise.
    EXPECT_TRUE(again == BytesOf(fs::path(DEMO_HOUSE_FILES) / file.name)) << file.name;
  }
}

// The cells that an answer of the module carries, by the table and index of the model.
std::map<virtual_module::TableName, std::set<int>> CellsToldBy(int kind) {
  std::map<virtual_module::TableName, std::set<int>> told;
  for (const char* command : {"T80000", "T81000", "T82000", "T83000", "T85000"}) {
    for (const virtual_module::ReadRow& row : virtual_module::ReadRowsOf(kind, command)) {
      for (int cell = row.first; cell <= row.last; ++cell) {
        told[row.table].insert(cell);
      }
    }
  }
  return told;
}

// What a module does not tell is nothing in a tool that has just read it.
TEST(DemoHouseFiles, AreEmptyExactlyWhereAModuleTellsNothing) {
  int emptyLines = 0;
  for (const ImageFile& file : House()) {
    const auto told = CellsToldBy(file.Kind());
    std::size_t line = 1;
    for (const virtual_module::TableRow& row : virtual_module::TablesOf(file.Kind())) {
      for (int cell = 0; cell < row.saved; ++cell, ++line) {
        const bool empty = file.lines.at(line).empty();
        EXPECT_NE(empty, told.at(row.table).contains(cell)) << file.name << ", line " << line + 1;
        emptyLines += empty ? 1 : 0;
      }
    }
  }
  EXPECT_EQ(emptyLines, 20);
}

TEST(DemoHouseFiles, FillTheMemoryOfAModule) {
  for (const ImageFile& file : House()) {
    const virtual_module::Memory memory =
        virtual_module::LoadImage(fs::path(DEMO_HOUSE_FILES) / file.name);
    EXPECT_EQ(memory.kind(), file.Kind());
    int place = 0;
    for (const virtual_module::TableRow& row : virtual_module::TablesOf(file.Kind())) {
      const std::vector<int>& cells = memory.Cells(row.table);
      for (int cell = 0; cell < row.saved; ++cell, ++place) {
        const bool empty = file.lines.at(static_cast<std::size_t>(place) + 1).empty();
        EXPECT_EQ(cells.at(static_cast<std::size_t>(cell)), empty ? 0 : file.At(place))
            << file.name << ", cell " << place;
      }
    }
  }
}

}  // namespace
}  // namespace demo_house_test
