// Modules and lines that misbehave: whatever they do, the tool stays up and answers its user.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "end_to_end/deadline.h"
#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

const std::string wrongModule = "De gevonden module is niet van het juiste type !";
const std::string portFailed = "De verbinding met de seriële poort is verbroken.";

class ToolWithFault : public Stage {
 protected:
  void Connect(int kind, const std::string& fault) {
    LayOutDirectory();
    StartModule(kind, {"--fault", fault});
    StartTool();
    ClickOn("push button", "Verbinden");
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
    const std::string pixels = desktop().PixelsOf(before);
    desktop().MoveActiveWindow(120, 90);
    Widget after;
    EXPECT_TRUE(WaitFor([&] {
      after = Await("label", "Adres module:");
      return after.x != before.x && after.y != before.y && desktop().PixelsOf(after) == pixels;
    })) << "the window does not follow";
  }

  void ExpectMessage(const std::string& text) {
    AwaitText(text);
    ClickOn("push button", "OK");
    EXPECT_TRUE(WaitFor([&] { return !desktop().Find("label", text); })) << "the message stays";
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

TEST_F(ToolWithFault, UnknownIdentityIsToldAndTheToolIsReadyForTheNextTry) {
  Connect(0, "unknown-identity");
  AwaitOnLine(false, "DISPLX\\r");
  ExpectMessage(wrongModule);
  AwaitText("Edit mode");
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, PortThatVanishesInAReadIsToldAndTheTransferIsLeft) {
  Connect(5, "vanish-in-read");
  ExpectMessage(portFailed);
  ExpectIdle();
  CloseTool();
}

TEST_F(ToolWithFault, PortThatVanishesInAWriteIsToldAndTheTransferIsLeft) {
  Connect(0, "vanish-in-write");
  AwaitText("Edit mode");
  AwaitOnLine(false, "STOP\\r");
  ClickOn("push button", "Versturen");
  AwaitOnLine(true, "T70000\\r");
  ExpectMessage(portFailed);
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
