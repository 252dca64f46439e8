// The write of a display module from the press of Send to its end: which tables go out for which
// flags, and every frame with its pause, as the module at the other end needs them.
#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Texts = std::vector<std::string>;

struct Block {
  std::string command;
  std::string dutch, french;
  int maximum;
  Table* table;
  Cell* loaded;  ///< null for the header, which needs none
  Cell* dirty;
  std::vector<int> lasts;  ///< the last cells of its runs
};

const std::vector<Block>& Blocks() {
  static const std::vector<Block> blocks = {
      {"T70000",
       "Versturen van de gegevens...",
       "Envoyer les données...",
       2,
       &LcdHeader,
       nullptr,
       &LcdHeaderDirty,
       {0}},
      {"T71000",
       "Versturen LCD Display 1...",
       "Envoyer LCD Display 1...",
       1020,
       &LcdScreen1,
       &LcdScreen1Loaded,
       &LcdScreen1Dirty,
       {71, 700, 779, 1019}},
      {"T73000",
       "Versturen LCD Display 2...",
       "Envoyer LCD Display 2...",
       1020,
       &LcdScreen2,
       &LcdScreen2Loaded,
       &LcdScreen2Dirty,
       {71, 700, 779, 1019}},
      {"T75000",
       "Versturen van de gegevens...",
       "Envoyer les données...",
       21,
       &LcdWeekdayNames,
       &LcdWeekdayLoaded,
       &LcdWeekdayDirty,
       {20}},
  };
  return blocks;
}

std::string ThreeDigits(int number) {
  return std::to_string(1000 + number).substr(1);
}

class DisplayChainTest : public SessionTest {
 protected:
  DisplayChainTest() { Connect(1); }

  void Connect(int language) {
    Start(language);
    module = &Plug(3, std::nullopt, 2);
    ReadModule();
    int value = 0;
    for (const Block& block : Blocks()) {
      for (int i = 0; i < block.table->Size(); ++i) (*block.table)[i] = ++value % 251;
    }
    line.written.clear();
  }

  /// Presses Send with these flags, one bit a block.
  void Send(unsigned loaded, unsigned dirty) {
    for (std::size_t i = 0; i < Blocks().size(); ++i) {
      if (Blocks()[i].loaded != nullptr) *Blocks()[i].loaded = int(loaded >> i & 1U);
      *Blocks()[i].dirty = int(dirty >> i & 1U);
    }
    SendToModule();
  }

  struct Sent {
    std::int64_t time;
    std::string text;
  };
  /// What the tool wrote, but for the answers to polls. The characters of a command go out one by
  /// one.
  std::vector<Sent> Written() const {
    std::vector<Sent> sent;
    for (const FakeLine::Written& each : line.written) {
      if (each.characters.starts_with("T")) {
        sent.push_back({each.time, each.characters});
      } else if (!sent.empty() && !sent.back().text.ends_with("\r")) {
        sent.back().text += each.characters;
      }
    }
    return sent;
  }

  virtual_module::Module* module = nullptr;
};

/// Compares a block's frames and their distances, written down from what the module expects.
/// `at` stands on the command and is left behind the last frame.
template <typename Sent>
void ExpectBlock(const Block& block, const std::vector<Sent>& sent, std::size_t& at) {
  ASSERT_LT(at, sent.size());
  EXPECT_EQ(sent[at++].text, block.command + "\r");
  int first = 0;
  for (const int last : block.lasts) {
    for (int cell = first; cell <= last; ++cell, ++at) {
      ASSERT_LT(at, sent.size());
      EXPECT_EQ(sent[at].text, "T" + ThreeDigits(cell - first) +
                                   ThreeDigits((*block.table)[cell].Whole()) + "\n\r");
      if (cell == 0) continue;
      EXPECT_EQ(sent[at].time - sent[at - 1].time, cell == first ? 1'000'000 : 30'000) << cell;
    }
    first = last + 1;
  }
}

TEST_F(DisplayChainTest, EveryCombinationOfChangesSendsItsTablesInOrder) {
  for (unsigned dirty = 1; dirty < 16; ++dirty) {
    line.written.clear();
    Send(15, dirty);
    const std::vector<Sent> sent = Written();
    std::size_t at = 0;
    for (std::size_t i = 0; i < Blocks().size(); ++i) {
      if (dirty >> i & 1U) ExpectBlock(Blocks()[i], sent, at);
    }
    EXPECT_EQ(at, sent.size()) << dirty;
    for (const Block& block : Blocks()) EXPECT_EQ(*block.dirty, Cell(0)) << block.command;
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_EQ(WriteInProgress, Cell(0));
    EXPECT_TRUE(AllVisibleActionsEnabled());
    EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.send.enabled);
    EXPECT_TRUE(MainWindow.bestand.enabled && MainWindow.moduleList.enabled);
    EXPECT_TRUE(MainWindow.displayTemperature.address.enabled);
  }
  EXPECT_EQ(module->errors(), 0);
}

TEST_F(DisplayChainTest, ATableThatIsNotInMemoryIsNeverSentAndStaysMarked) {
  for (unsigned loaded = 0; loaded < 16; loaded += 2) {
    line.written.clear();
    Send(loaded, 15);
    Texts commands;
    for (const Sent& each : Written()) {
      if (each.text.size() == 7) commands.push_back(each.text.substr(0, 6));
    }
    Texts expected;
    for (std::size_t i = 0; i < Blocks().size(); ++i) {
      const bool goesOut = i == 0 || (loaded >> i & 1U) != 0;
      if (goesOut) expected.push_back(Blocks()[i].command);
      EXPECT_EQ(*Blocks()[i].dirty, Cell(goesOut ? 0 : 1)) << Blocks()[i].command;
    }
    EXPECT_EQ(commands, expected) << loaded;
  }
}

TEST_F(DisplayChainTest, WithNothingChangedTheLastCommandIsRepeated) {
  Send(15, 8);
  line.written.clear();
  Send(15, 0);
  std::size_t at = 0;
  ExpectBlock(Blocks()[3], Written(), at);
  EXPECT_EQ(at, 22U);
}

TEST_F(DisplayChainTest, TheModuleHoldsWhatWasSentAndKeepsTheRest) {
  const virtual_module::Memory before = module->memory();
  Send(15, 15);
  for (const Block& block : Blocks()) {
    const auto& cells = module->memory().Cells(block.table->name);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const int index = static_cast<int>(i);
      const bool sent = index <= block.lasts.back();
      EXPECT_EQ(cells[i], sent ? (*block.table)[index].Whole() : before.Cells(block.table->name)[i])
          << block.table->name << i;
    }
  }
  // The version is the one cell of the header that is never written.
  EXPECT_EQ(module->memory().Cells("LcdHeader")[1], before.Cells("LcdHeader")[1]);
}

TEST_F(DisplayChainTest, FramesAsTheyAreOnTheLine) {
  LcdHeader[0] = 67;
  LcdScreen1[72] = 75;
  LcdScreen1[683] = 126;
  LcdScreen1[695] = 3;
  LcdScreen1[701] = 32;
  LcdScreen1[780] = 35;
  LcdScreen1[1019] = 0;
  LcdWeekdayNames[0] = 90;
  LcdWeekdayNames[20] = 32;
  Send(15, 11);
  const std::vector<Sent> sent = Written();
  ASSERT_EQ(sent.size(), 2U + 1021U + 22U);
  EXPECT_EQ(sent[1].text, "T000067\n\r");
  const std::size_t display = 3;
  EXPECT_EQ(sent[display + 72].text, "T000075\n\r");
  EXPECT_EQ(sent[display + 72].time - sent[display + 71].time, 1'000'000);
  EXPECT_EQ(sent[display + 683].text, "T611126\n\r");
  EXPECT_EQ(sent[display + 695].text, "T623003\n\r");
  EXPECT_EQ(sent[display + 701].text, "T000032\n\r");
  EXPECT_EQ(sent[display + 780].text, "T000035\n\r");
  EXPECT_EQ(sent[display + 1019].text, "T239000\n\r");
  EXPECT_EQ(sent[display + 1021].text, "\x54\x30\x30\x30\x30\x39\x30\x0A\x0D");
  EXPECT_EQ(sent.back().text, "T020032\n\r");
}

TEST_F(DisplayChainTest, EachTableGoesThroughTheWholeConversationAgain) {
  for (const int language : {1, 2}) {
    ActiveModuleType = NoModule;
    Connect(language);
    for (const Block& block : Blocks()) {
      if (block.loaded != nullptr) *block.loaded = 1;
      *block.dirty = 1;
    }
    MainWindow.send.Click();
    for (const Block& block : Blocks()) {
      ASSERT_TRUE(clock.RunUntil([] { return WakeUpWait.Enabled(); }, 60'000));
      EXPECT_EQ(PendingCommand, Cell(block.command));
      EXPECT_EQ(*block.dirty, Cell(0));
      EXPECT_EQ(MainWindow.status.caption,
                language == 1 ? "Module zoeken..." : "Recherche module...");
      EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
      EXPECT_TRUE(MainWindow.transferBar.visible);
      EXPECT_EQ(line.calls.back(), "open");
      EXPECT_FALSE(AllVisibleActionsEnabled());
      ASSERT_TRUE(clock.RunUntil([] { return DisplayWriter.Enabled(); }, 60'000));
      EXPECT_EQ(MainWindow.status.caption, language == 1 ? block.dutch : block.french);
      EXPECT_EQ(MainWindow.transferBar.Maximum(), block.maximum);
      EXPECT_EQ(MainWindow.transferBar.Value(), 0);
      ASSERT_TRUE(clock.RunUntil([] { return !DisplayWriter.Enabled(); }, 60'000));
      EXPECT_EQ(MainWindow.bestand.enabled, block.command == "T75000");
    }
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_FALSE(MainWindow.transferBar.visible);
  }
}

}  // namespace
}  // namespace bkconf
