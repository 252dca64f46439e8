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
  void OpenContext(int number, const std::vector<Action>& actions) {
    OpenScreen(texts().contexts);
    PickItem({texts().contextChooser}, number - 1, texts().context + std::to_string(number));
    AwaitRows(ContextRows(actions));
  }
  // The first rows, which are in sight of any window.
  void ExpectList(std::vector<std::string> rows) {
    constexpr std::size_t inSight = 10;
    if (rows.size() > inSight) rows.resize(inSight);
    AwaitRows(rows);
  }
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
    ExpectList(TimeRows(image.ReadTimePrograms(), true));
    AwaitFree(timeSlots - static_cast<int>(image.ReadTimePrograms().size()));
    LeaveMasterScreen(mainTitle);
    OpenScreen(texts().lightPrograms);
    ExpectList(LightRows(image.ReadLightPrograms(), texts().directions));
    AwaitFree(lightSlots - static_cast<int>(image.ReadLightPrograms().size()));
    LeaveMasterScreen(mainTitle);
    EXPECT_EQ(Log().size(), before) << "all of it was in memory";
  }

  // Each changes one list by mouse, and the image like it.
  void AddToContext(MasterImage& image, int number) {
    Contexts contexts = image.ReadContexts();
    std::vector<Action>& actions = contexts[number];
    OpenContext(number, actions);
    desktop().DoubleClick(AwaitPlace(actions.size() / 5, actions.size() % 5, ""));
    Await("panel", texts().edit);
    PickItem(Editor("Module:"), 18, "Z");
    PickItem(Editor("Code"), 6, "07");
    PickItem({"Code", texts().edit, 2}, 98, "99");
    ConfirmEdit();
    actions.push_back({'Z', 6, 98});
    AwaitRows(ContextRows(actions));
    LeaveMasterScreen();
    image.Put(contexts);
  }
  void EraseFirstTimeProgram(MasterImage& image) {
    std::vector<TimeProgram> programs = image.ReadTimePrograms();
    OpenScreen(texts().timePrograms);
    Erase("1", CodeOf(programs.front().action, Values::InBlocks));
    programs.erase(programs.begin());
    ExpectList(TimeRows(programs, false));
    LeaveMasterScreen();
    image.Put(programs);
  }
  void AddLightProgram(MasterImage& image) {
    std::vector<LightProgram> programs = image.ReadLightPrograms();
    OpenScreen(texts().lightPrograms);
    desktop().DoubleClick(AwaitCell(std::to_string(programs.size() + 1), texts().actionColumn, ""));
    Await("panel", texts().edit);
    PickItem(Editor("Module:"), 19, "Z");
    PickItem(Editor("Code"), 0, "01");
    PickItem({"Code", texts().edit, 2}, 1, "02");
    ClickOn("radio button", texts().directions[0]);
    PickItem(ListPlace{texts().level}, 24, "25");
    ConfirmEdit();
    programs.push_back({0, 25, {'Z', 0, 1}});
    ExpectList(LightRows(programs, texts().directions));
    AwaitFree(lightSlots - static_cast<int>(programs.size()));
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
