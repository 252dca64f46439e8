#include "virtual_module/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

namespace fs = std::filesystem;

class ImageFile : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    directory_ = fs::temp_directory_path() / (std::string("bkconf-memory-") + test->name());
    fs::create_directories(directory_);
  }
  void TearDown() override { fs::remove_all(directory_); }

  fs::path Write(const std::string& text) const {
    const fs::path path = directory_ / "image.BK1";
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  static std::string TextOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  static std::string ErrorOf(const fs::path& path) {
    try {
      LoadImage(path);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "no error";
  }

  fs::path directory_;
};

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    all += text;
  }
  return all;
}

struct Size {
  int kind;
  std::vector<std::pair<const char*, std::size_t>> tables;
  std::ptrdiff_t fileLines;  // behind the line of the kind
};

const Size sizes[] = {
    {0, {{"ButtonImage", 164}}, 164},
    {1, {{"ButtonImage", 164}}, 164},
    {2,
     {{"TempHeader", 4},
      {"TempRoomIds", 72},
      {"TempPeriods", 672},
      {"TempSetpoints", 336},
      {"TempTail", 82}},
     4 + 64 + 672 + 336 + 82},
    {3,
     {{"LcdHeader", 2}, {"LcdScreen1", 1030}, {"LcdScreen2", 1030}, {"LcdWeekdayNames", 21}},
     2 + 1030 + 1030 + 21},
    {4, {{"ButtonImage", 164}}, 164},
    {5, {{"AlarmImage", 294}}, 293},
    {6, {{"AudioImage", 213}}, 213},
    {7, {{"SimulationImage", 185}}, 185},
    {8, {{"IrImage", 509}}, 509},
    {9,
     {{"ButtonImage", 164},
      {"ContextTable", 1000},
      {"TimeProgramTable", 1000},
      {"LightProgramTable", 1000}},
     3164},
    {11, {{"ButtonImage", 164}}, 164},
};

TEST(Memory, EveryKindHasItsTables) {
  for (const Size& size : sizes) {
    const Memory memory(size.kind);
    ASSERT_EQ(memory.tables().size(), size.tables.size());
    for (const auto& [name, cells] : size.tables) {
      EXPECT_EQ(memory.Cells(name).size(), cells) << name;
    }
  }
}

TEST(Memory, ATableOfAnotherKindIsAnErrorWithItsName) {
  const Memory memory(0);
  EXPECT_THROW(memory.Cells("IrImage"), std::out_of_range);
  EXPECT_THROW(memory.Cells("NoImage"), std::out_of_range);
  try {
    memory.Cells("IrImage");
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "a module of kind 0 has no table IrImage");
  }
}

void ExpectAll(const std::vector<int>& cells, std::size_t first, std::size_t last, int low,
               int high) {
  for (std::size_t cell = first; cell <= last; ++cell) {
    ASSERT_GE(cells[cell], low) << cell;
    ASSERT_LE(cells[cell], high) << cell;
  }
}

TEST(DefaultMemory, IsTheSameForTheSameSeedOnly) {
  for (const int kind : everyKind) {
    EXPECT_TRUE(DefaultMemory(kind, 3) == DefaultMemory(kind, 3));
    EXPECT_FALSE(DefaultMemory(kind, 3) == DefaultMemory(kind, 4));
  }
}

TEST(DefaultMemory, HasALetterAndAVersionAndCellsThatFitOnTheLine) {
  for (const int kind : everyKind) {
    for (std::uint32_t seed = 0; seed < 50; ++seed) {
      const Memory memory = DefaultMemory(kind, seed);
      for (const Memory::Table& table : memory.tables()) {
        ExpectAll(table.cells, 0, table.cells.size() - 1, 0, 255);
      }
      if (const auto letter = AddressCellOf(kind)) {
        const auto cell = static_cast<std::size_t>(letter->cell);
        ExpectAll(memory.Cells(letter->table), cell, cell, 'A', 'R');
      }
      const FixedCell version = VersionCellOf(kind);
      const auto cell = static_cast<std::size_t>(version.cell);
      ExpectAll(memory.Cells(version.table), cell, cell, 10, 99);
    }
  }
}

TEST(DefaultMemory, OfATemperatureModuleHasTimesAndTemperatures) {
  for (std::uint32_t seed = 0; seed < 50; ++seed) {
    const Memory memory = DefaultMemory(2, seed);
    ExpectAll(memory.Cells("TempHeader"), 1, 1, 1, 8);
    ExpectAll(memory.Cells("TempHeader"), 2, 2, 2, 255);
    for (std::size_t cell = 0; cell < 672; cell += 2) {
      ExpectAll(memory.Cells("TempPeriods"), cell, cell, 0, 23);
      ExpectAll(memory.Cells("TempPeriods"), cell + 1, cell + 1, 0, 59);
    }
    ExpectAll(memory.Cells("TempSetpoints"), 0, 335, 0, 40);
  }
}

TEST(DefaultMemory, OfADisplayModuleHasTextsAndCategories) {
  for (std::uint32_t seed = 0; seed < 50; ++seed) {
    const Memory memory = DefaultMemory(3, seed);
    for (const char* table : {"LcdScreen1", "LcdScreen2"}) {
      ExpectAll(memory.Cells(table), 0, 681, 32, 126);
      ExpectAll(memory.Cells(table), 695, 700, 2, 7);
    }
    ExpectAll(memory.Cells("LcdWeekdayNames"), 0, 20, 32, 126);
  }
}

TEST(DefaultMemory, OfAMasterHasPackedListsThatEndIn42) {
  for (std::uint32_t seed = 0; seed < 50; ++seed) {
    const Memory memory = DefaultMemory(9, seed);
    const std::vector<int>& base = memory.Cells("ButtonImage");
    ExpectAll(base, 120, 121, 0, 15);
    const auto letters = base.begin() + 123;
    const auto free = std::find(letters, letters + 18, 42);
    EXPECT_GT(free, letters);
    EXPECT_EQ(std::count(free, letters + 18, 42), letters + 18 - free);
    for (auto letter = letters; letter != letters + 18; ++letter) {
      EXPECT_EQ(*letter == 42, *(letter + 18) == 42);
    }
    for (const char* table : {"ContextTable", "TimeProgramTable", "LightProgramTable"}) {
      const std::vector<int>& cells = memory.Cells(table);
      EXPECT_NE(cells[table == std::string("ContextTable") ? 100 : 0], 42) << table;
      ExpectAll(cells, 800, 999, 42, 42);
    }
  }
}

TEST_F(ImageFile, EveryKindComesBackAsItWasSaved) {
  for (const Size& size : sizes) {
    Memory memory = DefaultMemory(size.kind, 7);
    const fs::path path = directory_ / "image.BK1";
    SaveImage(memory, path);
    const std::string text = TextOf(path);
    EXPECT_TRUE(text.starts_with(" " + std::to_string(size.kind) + " \r\n"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), size.fileLines + 1);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), size.fileLines + 1);
    // These two are never part of a file.
    if (size.kind == 5) {
      memory.Cells("AlarmImage")[293] = 0;
    }
    if (size.kind == 2) {
      std::fill_n(memory.Cells("TempRoomIds").begin() + 64, 8, 0);
    }
    EXPECT_TRUE(LoadImage(path) == memory) << size.kind;
    EXPECT_FALSE(fs::exists(directory_ / "image.BK1.new"));
  }
}

TEST_F(ImageFile, TheDisplayTablesFollowOneAnotherWithoutSeparators) {
  Memory memory(3);
  memory.Cells("LcdHeader") = {65, 21};
  memory.Cells("LcdScreen1")[0] = 76;
  memory.Cells("LcdScreen2")[1029] = 9;
  memory.Cells("LcdWeekdayNames")[20] = 32;
  const fs::path path = directory_ / "image.BK1";
  SaveImage(memory, path);
  EXPECT_EQ(TextOf(path), " 3 \r\n 65 \r\n 21 \r\n 76 \r\n" + Repeated(" 0 \r\n", 1029 + 1029) +
                              " 9 \r\n" + Repeated(" 0 \r\n", 20) + " 32 \r\n");
}

TEST_F(ImageFile, ReadsOtherLineEndsEmptyLinesDigitTextsAndStars) {
  const Memory memory =
      LoadImage(Write("0\n07\n\n   \n*\n 255 \n999" + Repeated("\n5", 158) + "\n\n"));
  const std::vector<int>& cells = memory.Cells("ButtonImage");
  EXPECT_EQ(memory.kind(), 0);
  EXPECT_EQ(std::vector<int>(cells.begin(), cells.begin() + 7),
            (std::vector<int>{7, 0, 0, 42, 255, 999, 5}));
  EXPECT_EQ(cells[163], 5);
}

TEST_F(ImageFile, SaysWhatIsWrongAndWhere) {
  const std::string tail = Repeated(" 0 \r\n", 164);
  const std::string path = (directory_ / "image.BK1").string();
  EXPECT_EQ(ErrorOf(Write("")), path + ", line 0: the file ends too early");
  EXPECT_EQ(ErrorOf(Write(" 10 \r\n" + tail)), path + ", line 1: no module is of kind 10");
  EXPECT_EQ(ErrorOf(Write("house\r\n" + tail)), path + ", line 1: \"house\" is not a number");
  EXPECT_EQ(ErrorOf(Write(" 0 \r\n 1,2 \r\n" + tail)),
            path + ", line 2: \" 1,2 \" is not a number");
  EXPECT_EQ(ErrorOf(Write(" 0 \r\n 1000 \r\n" + tail)), path + ", line 2: 1000 is not in 0..999");
  EXPECT_EQ(ErrorOf(Write(" 0 \r\n-1 \r\n" + tail)), path + ", line 2: -1 is not in 0..999");
  EXPECT_EQ(ErrorOf(Write(" 0 \r\n" + tail.substr(0, 163 * 5))),
            path + ", line 164: the file ends too early");
  EXPECT_EQ(ErrorOf(Write(" 0 \r\n" + tail + " 1 \r\n")),
            path + ", line 166: the file goes on after its last cell");
  EXPECT_EQ(ErrorOf(directory_ / "none.BK1"),
            (directory_ / "none.BK1").string() + ": cannot be read");
  EXPECT_EQ(ErrorOf(directory_), directory_.string() + ": cannot be read");
}

TEST_F(ImageFile, ASaveThatFailsSaysSoAndKeepsTheOldFile) {
  EXPECT_THROW(SaveImage(Memory(0), directory_ / "nowhere" / "image.BK1"), std::runtime_error);
  const fs::path path = Write("old");
  fs::create_directories(path.string() + ".new");
  EXPECT_THROW(SaveImage(Memory(0), path), std::runtime_error);
  EXPECT_EQ(TextOf(path), "old");
}

}  // namespace
}  // namespace virtual_module
