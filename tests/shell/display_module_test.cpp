// What the main window has of a display module alone: its address and its version.
#include <gtest/gtest.h>

#include "image/tables.h"
#include "shell/main_window.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

class DisplayModuleTest : public SessionTest {
 protected:
  void Connect(int language, int letter, int version) {
    ActiveModuleType = NoModule;
    Start(language);
    virtual_module::Options options{3, virtual_module::Memory(3)};
    options.memory.Cells("LcdHeader") = {letter, version};
    Plug(options);
    ReadModule();
  }
};

TEST_F(DisplayModuleTest, TheVersionIsItsFirstAndItsLastDigit) {
  struct {
    int version;
    const char* dutch;
    const char* french;
  } const cases[] = {{21, "Versie: 2.1", "Version: 2.1"},
                     {5, "Versie: 5.5", "Version: 5.5"},
                     {0, "Versie: 0.0", "Version: 0.0"},
                     {103, "Versie: 1.3", "Version: 1.3"}};
  for (const auto& each : cases) {
    Connect(1, 'C', each.version);
    EXPECT_EQ(MainWindow.displayTemperature.version.caption, each.dutch);
    Connect(2, 'C', each.version);
    EXPECT_EQ(MainWindow.displayTemperature.version.caption, each.french);
  }
}

TEST_F(DisplayModuleTest, TheHeaderGivesTheThreeScreensAndHidesTheBar) {
  Connect(1, 'C', 21);
  EXPECT_EQ(VisibleActions(),
            (std::vector<std::string>{"LCD Scherm N°1", "LCD Scherm N°2", "Algemene gegevens"}));
  EXPECT_TRUE(AllVisibleActionsEnabled());
  EXPECT_FALSE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 4);
  EXPECT_EQ(MainWindow.transferBar.Value(), 2);
  EXPECT_EQ(MainWindow.displayTemperature.address.Text(), "C");
}

TEST_F(DisplayModuleTest, OnlyAnotherLetterHasToBeSent) {
  Connect(1, 'C', 21);
  const Snapshot before = TakeSnapshot();
  MainWindow.displayTemperature.address.Pick('C' - 'A');
  ExpectOnlyChanged(before, {});
  MainWindow.displayTemperature.address.Pick('R' - 'A');
  EXPECT_EQ(LcdHeader[0], Cell('R'));
  ExpectOnlyChanged(before, {"LcdHeader[0]", "LcdHeaderDirty"});
}

}  // namespace
}  // namespace bkconf
