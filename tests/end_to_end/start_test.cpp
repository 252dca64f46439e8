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

}  // namespace
}  // namespace end_to_end
