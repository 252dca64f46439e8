// How the tool comes up: with a directory that is not complete, and with none.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "end_to_end/deadline.h"
#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

class ToolAtStart : public Stage {
 protected:
  static int CountOf(const std::string& part, const std::string& text) {
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
  }
};

TEST_F(ToolAtStart, SettingsFileThatIsMissingIsNamedOnceAndAwaited) {
  LayOutDirectory();
  const fs::path missing = directory() / "pc.vdm";
  const fs::path elsewhere = scratch() / "pc.vdm";
  fs::rename(missing, elsewhere);
  LaunchTool();
  const std::string told = "waiting for " + missing.string();
  EXPECT_TRUE(WaitFor([&] { return CountOf(told, tool().Output()) > 0; })) << tool().Output();
  EXPECT_TRUE(desktop().Widgets().empty()) << "there is a window already";
  fs::rename(elsewhere, missing);
  Await("push button", "Verbinden");
  EXPECT_EQ(CountOf(told, tool().Output()), 1) << tool().Output();
  CloseTool();
}

TEST_F(ToolAtStart, DirectoryThatDoesNotExistIsLaidOut) {
  ASSERT_FALSE(fs::exists(directory()));
  LaunchTool();
  Await("frame", "TREVAN BK-CONF");
  for (const char* file : {"country.vdm", "directory.vdm", "pc.vdm", "port.vdm"}) {
    EXPECT_TRUE(fs::exists(directory() / file)) << file;
  }
  CloseTool();
}

TEST_F(ToolAtStart, FileOfTheCommandLineIsOpen) {
  LayOutDirectory();
  const fs::path file = fs::path(DEMO_DIRECTORY) / "Relais A.BK1";
  LaunchTool({file.string()});
  AwaitWindow("TREVAN BK-CONF  -  " + file.string());
  Await("push button", "Verbinden");
  CloseTool();
}

TEST_F(ToolAtStart, FileThatIsNotThereIsToldAndTheToolGoesOn) {
  LayOutDirectory();
  LaunchTool({(directory() / "none.BK1").string()});
  Await("frame", "TREVAN BK-CONF");
  EXPECT_TRUE(WaitFor([&] {
    for (const Widget& each : desktop().Widgets()) {
      if (each.name.find("Het bestand kon niet gelezen worden.") != std::string::npos) return true;
    }
    return false;
  }));
  desktop().Press({"Return"});
  Await("push button", "Verbinden");
  CloseTool();
}

TEST_F(ToolAtStart, UnknownOptionIsRefused) {
  LayOutDirectory();
  LaunchTool({"--fast"});
  EXPECT_EQ(tool().AwaitEnd(), std::optional<int>(2));
  EXPECT_NE(tool().Output().find("--fast"), std::string::npos) << tool().Output();
}

}  // namespace
}  // namespace end_to_end
