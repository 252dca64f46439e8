// The directory in which the file screens start, as a person chooses it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <string>

#include "end_to_end/deadline.h"
#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

const std::string pickerTitle = "Browse directory";
const std::string preferencesTitle = "Preferences";

class DirectoryOfFiles : public Stage, public ::testing::WithParamInterface<const Captions*> {
 protected:
  void SetUp() override {
    LayOutDirectory(*GetParam());
    fs::create_directories(room());
    fs::copy_file(DemoFile("Relais A.BK1"), floor() / "Relais A.BK1");
  }

  fs::path floor() const { return directory() / "Verdieping"; }
  fs::path room() const { return floor() / "Kamer"; }

  std::string Stored() const { return ContentOf(directory() / "directory.vdm"); }
  static std::string LineOf(const fs::path& path) { return path.string() + "\r\n"; }

  void OpenPicker() {
    ClickOnEntry("Settings", "Preferences ...");
    AwaitWindow(preferencesTitle);
    ClickOn("push button", "Browse...");
    AwaitWindow(pickerTitle);
  }
  void GoInto(const std::string& folder, const fs::path& path) {
    DoubleClickOn("list item", folder);
    AwaitText(path.string());
  }
  // That of the picker, which lies over the screen that has one of the same name.
  void PressCancel() {
    std::optional<Widget> cancel;
    for (const Widget& widget : desktop().Widgets()) {
      if (widget.role == "push button" && widget.name == "Cancel") cancel = widget;
    }
    ASSERT_TRUE(cancel);
    desktop().Click(*cancel);
    AwaitGone("frame", pickerTitle);
  }
  void LeavePreferences() {
    AwaitWindow(preferencesTitle);
    ClickOn("push button", "OK");
    AwaitGone("frame", preferencesTitle);
  }
};

TEST_P(DirectoryOfFiles, ChosenDirectoryIsStoredAndTheFileScreensStartThere) {
  StartTool();
  OpenPicker();
  GoInto("Verdieping", floor());
  GoInto("Kamer", room());
  GoInto("..", floor());
  EXPECT_EQ(Stored(), LineOf(directory())) << "nothing is selected yet";
  ClickOn("push button", "Select directory");
  AwaitGone("frame", pickerTitle);
  AwaitText(floor().string());
  EXPECT_EQ(Stored(), LineOf(floor()));
  LeavePreferences();

  ClickOnEntry(captions().fileMenu, captions().openEntry);
  AwaitWindow(captions().openTitle);
  AwaitText(floor().string());
  DoubleClickOn("list item", "Relais A.BK1");
  AwaitGone("frame", captions().openTitle);
  AwaitWindow("TREVAN BK-CONF  -  " + (floor() / "Relais A.BK1").string());

  ClickOnEntry(captions().fileMenu, captions().saveAsEntry);
  AwaitWindow(captions().saveTitle);
  AwaitText(floor().string());
  LeaveScreen(captions().saveTitle);
  CloseTool();
}

TEST_P(DirectoryOfFiles, CancelLeavesTheDirectoryAsItWas) {
  StartTool();
  OpenPicker();
  GoInto("Verdieping", floor());
  PressCancel();
  AwaitText(directory().string());
  EXPECT_EQ(Stored(), LineOf(directory()));
  LeavePreferences();
  CloseTool();
}

TEST_P(DirectoryOfFiles, DirectoryThatIsGoneIsRepairedByThePickerAtOnce) {
  const fs::path gone = scratch() / "gone";
  std::ofstream(directory() / "directory.vdm", std::ios::binary) << LineOf(gone);
  StartTool();
  ClickOnEntry(captions().fileMenu, captions().openEntry);
  AwaitWindow(captions().openTitle);
  AwaitText(directory().string());
  EXPECT_EQ(Stored(), LineOf(gone)) << "opening a file repairs nothing";
  LeaveScreen(captions().openTitle);

  OpenPicker();
  AwaitText(directory().string());
  EXPECT_EQ(Stored(), LineOf(directory().string() + "/"));
  PressCancel();
  EXPECT_EQ(Stored(), LineOf(directory().string() + "/"));
  LeavePreferences();
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(In, DirectoryOfFiles, ::testing::Values(&dutch, &french),
                         [](const auto& each) { return each.param->languageName; });

}  // namespace
}  // namespace end_to_end
