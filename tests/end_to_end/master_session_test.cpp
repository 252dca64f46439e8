// Sessions with all three lists of a master: each is read once, what was changed is sent, and a
// file takes all of it to another session.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/master_stage.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

class MasterSessions : public MasterStage {
 protected:
  void ReadAll() {
    for (const char* button : {texts().contexts, texts().timePrograms, texts().lightPrograms}) {
      OpenScreen(button);
      LeaveMasterScreen();
    }
    EXPECT_EQ(Commands(), (std::vector<std::string>{"T80000", "T81000", "T82000", "T83000"}));
  }
  // Opens each screen and expects that nothing goes over the line for it.
  void ExpectScreens(const MasterImage& image, std::string_view mainTitle = programName) {
    const std::size_t before = Log().size();
    const Contexts contexts = image.ReadContexts();
    OpenContext(contexts.begin()->first, contexts.begin()->second);
    AwaitFree(image.FreeActions());
    LeaveMasterScreen(mainTitle);
    OpenScreen(texts().timePrograms);
    ExpectFirstRows(TimeRows(image.ReadTimePrograms(), true));
    AwaitFree(timeSlots - static_cast<int>(image.ReadTimePrograms().size()));
    LeaveMasterScreen(mainTitle);
    OpenScreen(texts().lightPrograms);
    ExpectFirstRows(LightRows(image.ReadLightPrograms(), texts().directions));
    AwaitFree(lightSlots - static_cast<int>(image.ReadLightPrograms().size()));
    LeaveMasterScreen(mainTitle);
    EXPECT_EQ(Log().size(), before) << "all of it was in memory";
  }

  // As those of the stage.
  void EraseFirstTimeProgram(MasterImage& image) {
    std::vector<TimeProgram> programs = image.ReadTimePrograms();
    OpenScreen(texts().timePrograms);
    Erase("1", CodeOf(programs.front().action, Values::InBlocks));
    programs.erase(programs.begin());
    ExpectFirstRows(TimeRows(programs, false));
    LeaveMasterScreen();
    image.Put(programs);
  }
  void Erase(const std::string& row, const std::string& code) {
    desktop().DoubleClick(AwaitCell(row, texts().actionColumn, code));
    AwaitText(texts().question);
    ClickOn("push button", captions().yes);
    AwaitGone("label", texts().question);
  }
};

TEST_F(MasterSessions, WhatWasChangedIsSentAndNothingElse) {
  StartWithDemoMaster(dutch);
  ConnectAndRead();
  ReadAll();
  MasterImage image = DemoMaster();
  AddToContext(image, 1);
  AddLightProgram(image);
  ExpectScreens(image);
  const std::vector<std::string> before = Commands();
  ClickOn("push button", captions().send);
  ExpectSentTables(before, {MasterTable::Contexts, MasterTable::LightPrograms}, image);
  CloseTool();
}

TEST_F(MasterSessions, FileTakesAllListsToAnotherSession) {
  StartWithDemoMaster(french);
  ConnectAndRead();
  ReadAll();
  MasterImage image = DemoMaster();
  AddToContext(image, 1);
  EraseFirstTimeProgram(image);
  AddLightProgram(image);
  const fs::path file = SaveAs("Maison");
  EXPECT_EQ(MasterImage(ContentOf(file)), image);
  CloseTool();

  StartTool();
  OpenFile(file.filename().string());
  ExpectScreens(image, TitleOf(file));
  const fs::path again = SaveAs("Encore");
  EXPECT_EQ(MasterImage(ContentOf(again)), image);
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
