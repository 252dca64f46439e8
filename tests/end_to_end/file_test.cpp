// Configuration files as a person keeps them: a module is read and saved, a file is opened and sent
// to a module, and files that cannot be used are told.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/file_stage.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

struct FileCase {
  const Captions* captions;
  int kind;
  const char* demoFile;
  const char* proposal;  // for the name of its file
  const char* letter;
  int versionCell;  // what a module never takes from a file
  const char* model;
  const char* caption;
  std::vector<const char*> actions;
  bool byDoubleClick;  // how the file is opened, or else by the button
};

void PrintTo(const FileCase& each, std::ostream* out) {
  *out << each.captions->languageName;
}

const std::vector<FileCase> fileCases = {
    {&dutch,
     0,
     "Relais A.BK1",
     "Relais A",
     "A",
     163,
     "KR7021/KR8021",
     "Relaismodule",
     {"Drukknoppen", "Tijd 2de functie", "Functie van de uitgangen"},
     true},
    {&french,
     5,
     "Alarm G.BK1",
     "Alarme G",
     "G",
     148,
     "KR7160",
     "Module alarme",
     {"Boutons poussoirs", "Temps 2ème fonction", "Détecteurs"},
     false},
};

void Write(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

class FilesOfModules : public FileStage, public ::testing::WithParamInterface<FileCase> {
 protected:
  void SetUp() override { LayOutDirectory(*GetParam().captions); }

  std::string DemoContent() const { return ContentOf(DemoFile(GetParam().demoFile)); }

  void StartWithDemoModule() {
    StartModule(GetParam().kind, {"--image", DemoFile(GetParam().demoFile).string()});
    StartTool();
  }

  bool IsSaveEnabled() { return IsEntryEnabled(captions().fileMenu, captions().saveEntry); }

  void ExpectNoModule() {
    AwaitWindow(programName);
    AwaitGone("label", "Edit mode");
    EXPECT_FALSE(IsEnabled("push button", captions().send));
    EXPECT_FALSE(desktop().Find("label", GetParam().caption));
    EXPECT_FALSE(IsSaveEnabled());
    EXPECT_FALSE(IsEntryEnabled(captions().fileMenu, captions().saveAsEntry));
  }

  void ExpectOpenedFile() {
    AwaitText("Edit mode");
    const auto address = desktop().FindDescribed("combo box", captions().address);
    ASSERT_TRUE(address);
    EXPECT_EQ(address->name, GetParam().letter);
    EXPECT_TRUE(address->enabled);
    const auto model = desktop().FindDescribed("combo box", "Module:");
    ASSERT_TRUE(model);
    EXPECT_EQ(model->name, GetParam().model);
    EXPECT_TRUE(desktop().Find("label", GetParam().caption));
    EXPECT_TRUE(desktop().Find("panel", captions().moduleData));
    for (const char* action : GetParam().actions) {
      EXPECT_TRUE(desktop().Find("push button", action)) << action;
    }
    EXPECT_FALSE(desktop().Find("push button", captions().diagnostics));
    EXPECT_TRUE(IsSaveEnabled());
    EXPECT_TRUE(IsEntryEnabled(captions().fileMenu, captions().saveAsEntry));
  }

  // A memory with nothing of the demo file in it, a letter and a version aside.
  std::string OtherMemory() const {
    std::vector<std::string> lines = LinesOf(DemoContent());
    for (std::size_t i = 1; i < lines.size(); ++i) lines[i] = " 77 \r\n";
    return Text(lines);
  }
  // What the module holds once the demo file is sent to it.
  std::string MemoryAfterSend() const {
    std::vector<std::string> lines = LinesOf(DemoContent());
    lines[static_cast<std::size_t>(GetParam().versionCell) + 1] = " 77 \r\n";
    return Text(lines);
  }
};

TEST_P(FilesOfModules, ReadModuleIsSavedUnderATypedNameAndSavedAgainWithAChange) {
  StartWithDemoModule();
  ConnectAndRead();
  EXPECT_TRUE(desktop().Find("push button", captions().diagnostics));
  EXPECT_FALSE(IsSaveEnabled()) << "there is no path to save to yet";
  OpenSaveScreen();
  TypeName("Kelder 2");
  PressSave();
  const fs::path file = directory() / "Kelder 2.BK1";
  AwaitWindow(TitleOf(file));
  EXPECT_EQ(ContentOf(file), DemoContent());

  PickInList(captions().address, {"R", "Return"}, "R");
  ClickOnEntry(captions().fileMenu, captions().saveEntry);
  std::vector<std::string> lines = LinesOf(DemoContent());
  lines[122] = " 82 \r\n";  // cell 121, the letter
  EXPECT_TRUE(WaitFor([&] { return LinesOf(ContentOf(file)) == lines; })) << ContentOf(file);
  AwaitWindow(TitleOf(file));
  CloseTool();
}

TEST_P(FilesOfModules, DoubleClickOnTheLabelProposesTheNameOfTheFile) {
  StartWithDemoModule();
  ConnectAndRead();
  OpenSaveScreen();
  AwaitName("");
  DoubleClickOn("label", captions().fileName);
  AwaitName(GetParam().proposal);
  PressSave();
  const fs::path file = directory() / (std::string(GetParam().proposal) + ".BK1");
  AwaitWindow(TitleOf(file));
  EXPECT_EQ(ContentOf(file), DemoContent());
  CloseTool();
}

TEST_P(FilesOfModules, NameTypedWithItsExtensionIsTheFilesButTheNextSaveHasItTwice) {
  StartWithDemoModule();
  ConnectAndRead();
  OpenSaveScreen();
  TypeName("Zolder.BK1");
  PressSave();
  const fs::path twice = directory() / "Zolder.BK1.BK1";
  AwaitWindow(TitleOf(twice));
  EXPECT_EQ(ContentOf(directory() / "Zolder.BK1"), DemoContent());
  EXPECT_FALSE(fs::exists(twice));
  ClickOnEntry(captions().fileMenu, captions().saveEntry);
  EXPECT_TRUE(WaitFor([&] { return ContentOf(twice) == DemoContent(); })) << ContentOf(twice);
  CloseTool();
}

TEST_P(FilesOfModules, MasterThatIsNotReadWholeIsNotSaved) {
  StartModule(9, {"--image", DemoFile("Master.BK1").string()});
  StartTool();
  ConnectAndRead();
  ClickOnEntry(captions().fileMenu, captions().saveAsEntry);
  AwaitText(captions().incomplete);
  EXPECT_FALSE(desktop().Find("frame", captions().saveTitle));
  DismissMessage(captions().incomplete);
  EXPECT_FALSE(desktop().Find("frame", captions().saveTitle));
  AwaitWindow(programName);
  AwaitText("Edit mode");
  CloseTool();
}

TEST_P(FilesOfModules, FileIsOpenedAfterNewAndSentToTheModule) {
  fs::copy_file(DemoFile(GetParam().demoFile), directory() / GetParam().demoFile);
  const fs::path memory = scratch() / "other.BK1";
  Write(memory, OtherMemory());
  StartModule(GetParam().kind, {"--image", memory.string(), "--save", savedImage().string()});
  StartTool();
  ConnectAndRead();
  ClickOnEntry(captions().fileMenu, captions().newEntry);
  ExpectNoModule();
  OpenFile(GetParam().demoFile, GetParam().byDoubleClick);
  ExpectOpenedFile();
  ClickOn("push button", captions().send);
  AwaitText("Ready");
  EXPECT_TRUE(WaitFor([&] { return ContentOf(savedImage()) == MemoryAfterSend(); }))
      << "the module holds\n"
      << ContentOf(savedImage());
  CloseTool();
}

TEST_P(FilesOfModules, FileThatIsTooShortIsToldWithItsPathAndChangesNothing) {
  fs::copy_file(DemoFile(GetParam().demoFile), directory() / GetParam().demoFile);
  const fs::path tooShort = directory() / "Kort.BK1";
  std::vector<std::string> lines = LinesOf(ContentOf(DemoFile("Audio H.BK1")));
  lines.resize(20);
  Write(tooShort, Text(lines));
  StartTool();
  OpenFile(GetParam().demoFile, GetParam().byDoubleClick);
  ExpectOpenedFile();
  const std::vector<std::string> before = Shown();

  OpenOpenScreen();
  ChooseFile(tooShort.filename().string(), GetParam().byDoubleClick);
  AwaitText(captions().fileTooShort);
  AwaitText(captions().place + tooShort.string() + ", " + captions().line + "21");
  DismissMessage(captions().fileTooShort);
  AwaitWindow(captions().openTitle);
  LeaveScreen(captions().openTitle);
  AwaitWindow(TitleOf(directory() / GetParam().demoFile));
  AwaitShown(before);

  ClickOnEntry(captions().fileMenu, captions().newEntry);
  ExpectNoModule();
  OpenFile(GetParam().demoFile, GetParam().byDoubleClick);
  AwaitShown(before);
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(In, FilesOfModules, ::testing::ValuesIn(fileCases),
                         [](const auto& each) { return each.param.captions->languageName; });

}  // namespace
}  // namespace end_to_end
