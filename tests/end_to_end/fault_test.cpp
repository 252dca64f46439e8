// Modules and lines that misbehave: whatever they do, the tool stays up and answers its user.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/file_stage.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

const std::string wrongModule = "De gevonden module is niet van het juiste type !";
const std::string noSuchCell = "De module stuurde een cel die niet bestaat in de tabel.";
const std::string tooMuch = "De module stuurde meer gegevens dan verwacht.";
const std::string portFailed = "De verbinding met de seriële poort is verbroken.";

// Of the relay module, which some of the faults are done with.
constexpr const char* demoFile = "Relais A.BK1";

class ToolWithFault : public FileStage {
 protected:
  void StartWithFault(int kind, const std::string& fault) {
    LayOutDirectory();
    const std::string file = kind == 0 ? demoFile : "Alarm G.BK1";
    StartModule(kind, {"--fault", fault, "--image", DemoFile(file).string()});
    StartTool();
  }
  void Connect(int kind, const std::string& fault) {
    StartWithFault(kind, fault);
    ClickOn("push button", "Verbinden");
  }
  static std::vector<std::string> DemoLines() { return LinesOf(ContentOf(DemoFile(demoFile))); }
  // What the tool holds.
  void ExpectImage(const std::vector<std::string>& lines) {
    EXPECT_EQ(Differences(LinesOf(ContentOf(SaveAs("Image"))), lines), std::vector<std::string>());
  }

  void ExpectIdle() {
    Await("push button", "Verbinden");
    Await("push button", "Versturen");
    Await("menu item", "Bestand");
  }

  void ExpectTransferUnderWay() {
    Await("push button", "Verbinden", false);
    EXPECT_FALSE(IsEnabled("push button", "Verbinden"));
    EXPECT_FALSE(IsEnabled("push button", "Versturen"));
    EXPECT_FALSE(IsEnabled("menu item", "Bestand"));
  }

  // A window that is moved draws itself anew, fields and all, at its new place.
  void ExpectWindowRepaints() {
    const Widget before = Await("label", "Adres module:");
    std::string pixels;
    WaitFor([&] {
      const std::string last = std::exchange(pixels, desktop().PixelsOf(before));
      return pixels == last;
    });
    const auto follows = [&] {
      const Widget after = Await("label", "Adres module:");
      return after.x != before.x && after.y != before.y && desktop().PixelsOf(after) == pixels;
    };
    EXPECT_TRUE(WaitFor([&] {
      desktop().MoveActiveWindow(120, 90);
      return WaitFor(follows, nextTry);
    })) << "the window does not follow";
  }
};

TEST_F(ToolWithFault, SilentModuleIsWaitedForBehindAWindowThatRepaints) {
  Connect(0, "silent");
  AwaitText("Module zoeken...");
  ExpectTransferUnderWay();
  const Widget bar = Await("progress bar", "Module zoeken...", false);
  const std::string before = desktop().PixelsOf(bar);
  EXPECT_TRUE(WaitFor([&] { return desktop().PixelsOf(bar) != before; }))
      << "the progress bar stands still";
  ExpectWindowRepaints();
  CloseTool();
}

TEST_F(ToolWithFault, ModuleSilentAfterTheCommandLeavesAWindowThatRepaints) {
  Connect(0, "silent-after-command");
  AwaitOnLine(true, "T80000\\r");
  AwaitText("Inladen van de gegevens...");
  ExpectTransferUnderWay();
  ExpectWindowRepaints();
  CloseTool();
}

TEST_F(ToolWithFault, ModuleSilentAfterItsIdentityLeavesAWindowThatRepaints) {
  Connect(0, "silent-after-identity");
  AwaitOnLine(false, "DISPL0\\r");
  AwaitOnLine(true, "T80000\\r");
  AwaitText("Inladen van de gegevens...");
  ExpectTransferUnderWay();
  ExpectWindowRepaints();
  CloseTool();
}

// The rest of a line is waited for without end, and the window with it. The plug is the way out.
TEST_F(ToolWithFault, ModuleThatStopsWithinALineHoldsTheWindowUntilItIsUnplugged) {
  Connect(0, "stops-within-line");
  AwaitOnLine(true, "T80000\\r");
  const bool torn = WaitFor([&] {
    const auto units = Log();
    return !units.empty() && !units.back().fromTool && !units.back().text.ends_with("\\r");
  });
  ASSERT_TRUE(torn) << "no line was left in its middle";
  EXPECT_TRUE(tool().Running());
  module().End();
  DismissMessage(portFailed);
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, ReadWithoutStopShowsTheModuleAndKeepsTheMenusDisabled) {
  Connect(0, "no-stop");
  AwaitText("Edit mode");
  Await("panel", "Module gegevens:");
  Await("push button", "Versturen");
  Await("push button", "Verbinden");
  EXPECT_FALSE(IsEnabled("menu item", "Bestand"));
  ExpectWindowRepaints();
  CloseTool();
}

TEST_F(ToolWithFault, ReadThatIsShortKeepsItsStatusAndFreesTheWindow) {
  Connect(0, "short-stream");
  AwaitOnLine(false, "STOP\\r");
  ExpectIdle();
  AwaitText("Inladen van de gegevens...");
  CloseTool();
}

TEST_F(ToolWithFault, CellsOutOfOrderAreAllInTheirPlaces) {
  Connect(0, "out-of-order");
  AwaitRead();
  ExpectImage(DemoLines());
  CloseTool();
}

TEST_F(ToolWithFault, CorruptDigitsCutTheirNumbersAndNothingElse) {
  Connect(0, "corrupt-digits");
  AwaitRead();
  std::vector<std::string> lines = DemoLines();
  constexpr std::size_t every = 10;
  for (std::size_t line = every; line < lines.size(); line += every) {
    lines[line] = " " + std::to_string(std::stoi(lines[line]) / 100) + " \r\n";
  }
  ExpectImage(lines);
  CloseTool();
}

TEST_F(ToolWithFault, IdentityOfAnotherKindThanTheFilesIsToldAndTheFileIsKept) {
  StartWithFault(0, "wrong-identity");
  std::filesystem::copy_file(DemoFile(demoFile), directory() / demoFile);
  OpenFile(demoFile);
  ClickOn("push button", "Versturen");
  DismissMessage(wrongModule);
  ExpectIdle();
  ExpectImage(DemoLines());
  CloseTool();
}

TEST_F(ToolWithFault, CellBeyondTheTableIsToldAndTheTransferIsLeft) {
  Connect(0, "index-beyond-table");
  DismissMessage(noSuchCell);
  AwaitText("Edit mode");
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, MoreLinesThanThereAreCellsAreToldAndTheTransferIsLeft) {
  Connect(0, "too-many-lines");
  DismissMessage(tooMuch);
  AwaitText("Edit mode");
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, PollInPlaceOfTheIdentityIsNoReasonNotToReadTheModule) {
  Connect(0, "poll-during-identity");
  AwaitRead();
  ExpectImage(DemoLines());
  CloseTool();
}

TEST_F(ToolWithFault, UnknownIdentityIsToldAndTheToolIsReadyForTheNextTry) {
  Connect(0, "unknown-identity");
  AwaitOnLine(false, "DISPLX\\r");
  DismissMessage(wrongModule);
  AwaitText("Edit mode");
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, PortThatVanishesInAReadIsToldAndTheTransferIsLeft) {
  Connect(5, "vanish-in-read");
  DismissMessage(portFailed);
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, PortThatVanishesInAWriteIsToldAndTheTransferIsLeft) {
  Connect(0, "vanish-in-write");
  AwaitText("Edit mode");
  AwaitOnLine(false, "STOP\\r");
  ClickOn("push button", "Versturen");
  AwaitOnLine(true, "T70000\\r");
  DismissMessage(portFailed);
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, PortThatIsNotThereLeavesMenusAndButtonsDisabled) {
  LayOutDirectory();
  // Whatever ports this machine has, number 1 is none of them.
  std::filesystem::create_symlink(scratch() / "nothing", directory() / "com1");
  StartTool();
  ClickOn("push button", "Verbinden");
  AwaitText("Module zoeken...");
  ExpectTransferUnderWay();
  ExpectWindowRepaints();
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
