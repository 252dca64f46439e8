// One session with a module of each kind: read it, change its letter, write it back.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

// Cells of the memory that go out in one run; their frames are numbered from 0.
struct Block {
  int first;
  int last;
};

struct KindCase {
  int kind;
  const char* name;
  const char* identity;
  int savedCells;   // in the module's .BK1 file
  int readLines;    // cell lines of the read that Connect starts
  int addressCell;  // in the file; -1 where there is no letter
  bool lineEnds;    // frames end in LF and CR
  std::vector<Block> blocks;
};

void PrintTo(const KindCase& each, std::ostream* out) {
  *out << each.name;
}

const std::vector<Block> buttonBlocks = {{0, 162}};

const std::vector<KindCase> kindCases = {
    {0, "Relay", "DISPL0", 164, 164, 121, false, buttonBlocks},
    {1, "Dimmer", "DISPL1", 164, 164, 121, false, buttonBlocks},
    {2, "Temperature", "DISPL2", 1158, 4, 0, true, {{0, 2}}},
    {3, "Display", "DISPL3", 2083, 2, 0, true, {{0, 0}}},
    {4, "RelayOnDirectCurrent", "DISPL4", 164, 164, 121, false, buttonBlocks},
    {5, "Alarm", "DISPL5", 293, 293, 121, true, {{0, 147}, {149, 293}}},
    {6, "Audio", "DISPL6", 213, 213, 121, true, {{0, 122}, {124, 180}, {181, 196}, {197, 212}}},
    {7, "Simulation", "DISPL7", 185, 185, 121, true, {{0, 123}, {125, 184}}},
    {8,
     "Infrared",
     "DISPL8",
     509,
     509,
     121,
     true,
     {{0, 124}, {125, 220}, {221, 316}, {317, 412}, {413, 508}}},
    {9, "Master", "DISPL9", 3164, 164, -1, true, {}},
    {11, "DimmerWithSwitchedOutputs", "DISPL11", 164, 164, 121, false, buttonBlocks},
};

constexpr int letterBefore = 'C';
constexpr int letterAfter = 'Q';
// Between two blocks the tool pauses for a second. The log may see it shorter, when the module was
// late to take the frame before it on a busy machine, but never nearly as short as a tick.
constexpr long pauseSeen = 500'000;  // us

// Neighbours differ, and so do cells of the same place in different blocks. Two digits, since some
// cells of the temperature module have no more; never 42, which marks an empty record.
std::vector<int> StartMemory(const KindCase& each) {
  std::vector<int> cells;
  for (int cell = 0; cell < each.savedCells; ++cell) {
    const int value = (cell * 7 + cell / 97 + each.kind) % 100;
    cells.push_back(value == 42 ? 0 : value);
  }
  if (each.addressCell >= 0) cells[static_cast<std::size_t>(each.addressCell)] = letterBefore;
  return cells;
}

std::string FileOf(int kind, const std::vector<int>& cells) {
  std::string text = " " + std::to_string(kind) + " \r\n";
  for (const int cell : cells) text += " " + std::to_string(cell) + " \r\n";
  return text;
}

// What a write of these cells puts on the line, as the log shows it. A cell that the module never
// sent is 0 for the tool.
std::vector<std::string> ExpectedFrames(const KindCase& each, const std::vector<int>& cells) {
  std::vector<std::string> frames;
  for (const Block& block : each.blocks) {
    for (int cell = block.first; cell <= block.last; ++cell) {
      const auto place = static_cast<std::size_t>(cell);
      const int value = place < cells.size() ? cells[place] : 0;
      char digits[16];
      std::snprintf(digits, sizeof digits, "T%03d%03d", cell - block.first, value);
      frames.push_back(digits + std::string(each.lineEnds ? "\\n\\r" : ""));
    }
  }
  return frames;
}

class EveryKind : public Stage, public ::testing::WithParamInterface<KindCase> {
 protected:
  void SetUp() override {
    LayOutDirectory();
    const std::filesystem::path image = scratch() / "start.BK1";
    std::ofstream(image, std::ios::binary) << FileOf(GetParam().kind, StartMemory(GetParam()));
    StartModule(GetParam().kind, {"--image", image.string(), "--save", savedImage().string()});
    StartTool();
  }

  void PickLetter(char letter) {
    std::optional<Widget> list;
    const bool usable = WaitFor([&] {
      list = desktop().FindDescribed("combo box", "Adres module:");
      return list && list->enabled && list->name == std::string(1, letterBefore);
    });
    ASSERT_TRUE(usable) << "the list of letters does not show the module's";
    PickInList("Adres module:", {std::string(1, letter), "Return"}, std::string(1, letter));
  }

  // Units of the log that are neither bursts nor polls, from the `count`th command on.
  std::vector<LogUnit> Conversation(std::size_t count) const {
    std::vector<LogUnit> conversation;
    std::size_t commands = 0;
    for (const LogUnit& unit : Log()) {
      if (unit.fromTool && unit.text.ends_with("000\\r") && unit.text.size() == 8) ++commands;
      if (commands == count) conversation.push_back(unit);
    }
    return conversation;
  }

  static std::vector<LogUnit> From(bool tool, const std::vector<LogUnit>& units) {
    std::vector<LogUnit> chosen;
    std::copy_if(units.begin(), units.end(), std::back_inserter(chosen),
                 [tool](const LogUnit& unit) { return unit.fromTool == tool; });
    return chosen;
  }

  // The command, its acknowledgement, the cells, "STOP".
  void ExpectRead(const std::vector<LogUnit>& conversation) {
    const std::vector<LogUnit> asked = From(true, conversation);
    ASSERT_FALSE(asked.empty());
    EXPECT_EQ(asked[0].text, "T80000\\r");
    const std::vector<LogUnit> answered = From(false, conversation);
    const auto stop = std::find_if(answered.begin(), answered.end(),
                                   [](const LogUnit& unit) { return unit.text == "STOP\\r"; });
    ASSERT_NE(stop, answered.end());
    EXPECT_EQ(answered[0].text, "M80000\\r");
    EXPECT_EQ(stop - answered.begin(), 1 + GetParam().readLines);
  }

  void ExpectFrames(const std::vector<std::string>& expected) {
    std::vector<LogUnit> sent;
    WaitFor([&] {
      sent = From(true, Conversation(2));
      return sent.size() > expected.size();
    });
    ASSERT_EQ(sent.size(), expected.size() + 1);
    EXPECT_EQ(sent[0].text, "T70000\\r");
    for (std::size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(sent[i + 1].text, expected[i]) << "frame " << i;
    }
    // The module stores for a second at the end of each block but the last.
    std::size_t last = 0;
    for (const Block& block : GetParam().blocks) {
      if (last > 0) {
        EXPECT_GE(sent[last + 1].firstByte - sent[last].lastByte, pauseSeen);
      }
      last += static_cast<std::size_t>(block.last - block.first + 1);
    }
  }

  void ExpectSaved(const std::vector<int>& cells) {
    const std::string expected = FileOf(GetParam().kind, cells);
    EXPECT_TRUE(
        WaitFor([&] { return ContentOf(savedImage()) == expected; }, std::chrono::seconds(10)))
        << "the module holds\n"
        << ContentOf(savedImage());
  }
};

TEST_P(EveryKind, IsReadChangedAndWrittenBack) {
  const KindCase& each = GetParam();
  ConnectAndRead();
  ExpectRead(Conversation(1));
  AwaitOnLine(false, std::string(each.identity) + "\\r");
  if (each.addressCell < 0) {
    // Nothing of a master can be changed here, and what is not changed is not written: the last
    // conversation, the read, is held once more.
    ClickOn("push button", "Versturen");
    EXPECT_TRUE(WaitFor([&] {
      const auto units = Conversation(2);
      return !units.empty() && units.back().text == "STOP\\r";
    }));
    ExpectRead(Conversation(2));
    AwaitText("Edit mode");
  } else {
    std::vector<int> memory = StartMemory(each);
    memory[static_cast<std::size_t>(each.addressCell)] = letterAfter;
    PickLetter(letterAfter);
    ClickOn("push button", "Versturen");
    AwaitText("Ready");
    ExpectFrames(ExpectedFrames(each, memory));
    ExpectSaved(memory);
  }
  EXPECT_TRUE(IsEnabled("push button", "Verbinden"));
  EXPECT_TRUE(IsEnabled("push button", "Versturen"));
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, EveryKind, ::testing::ValuesIn(kindCases),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace end_to_end
