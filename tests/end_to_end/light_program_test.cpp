// The screen of a master's light programmes: those of the demo house are seen, changed and sent.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "end_to_end/master_stage.h"

namespace end_to_end {
namespace {

class LightPrograms : public MasterStage {
 protected:
  void Start(const Captions& language) {
    StartWithDemoMaster(language);
    programs_ = DemoMaster().ReadLightPrograms();
  }

  void ExpectList(const std::array<const char*, 2>& directions) {
    AwaitRows(LightRows(programs_, directions));
    AwaitFree(lightSlots - static_cast<int>(programs_.size()));
  }
  std::string Row(std::size_t place) const { return std::to_string(place + 1); }
  MasterImage Wanted() const {
    MasterImage image = DemoMaster();
    image.Put(programs_);
    return image;
  }

  std::vector<LightProgram> programs_;  // what the tool is to hold
};

TEST_F(LightPrograms, AreAddedAndErasedByMouseAndSentAlone) {
  Start(dutch);
  ConnectAndRead();
  OpenScreen(texts().lightPrograms);
  ASSERT_EQ(programs_.size(), 12U);
  ExpectList(texts().directionsAfterRead);

  desktop().DoubleClick(AwaitCell(Row(programs_.size()), texts().actionColumn, ""));
  Await("panel", texts().edit);
  PickLetter('C', "Dimmodule");
  PickItem(Editor("Uitgang:"), 1, "2");
  PickItem(Editor("Actie:"), 11, "90%");
  ClickOn("radio button", texts().directions[1]);
  PickInList(ListPlace{texts().level}, {"End", "Return"}, "50");
  ConfirmEdit();
  programs_.push_back({1, 50, {'C', 1, 90}});
  ExpectList(texts().directions);
  desktop().Click(AwaitCell("13", texts().actionColumn, "C0290"));
  AwaitText("Dimmodule 'C':  Uitgang 02 op 90%");

  // Behind the Corvela code of row 6: an erased row above it would take it along.
  desktop().DoubleClick(AwaitCell("9", texts().actionColumn, "D0500"));
  AwaitText(texts().question);
  ClickOn("push button", captions().yes);
  AwaitGone("label", texts().question);
  programs_.erase(programs_.begin() + 8);
  ExpectList(texts().directions);
  LeaveMasterScreen();
  const std::vector<std::string> before = Commands();
  EXPECT_EQ(before, (std::vector<std::string>{"T80000", "T83000"}));
  ClickOn("push button", captions().send);
  ExpectSentTables(before, {MasterTable::LightPrograms}, Wanted());
  CloseTool();
}

TEST_F(LightPrograms, AreAddedAndErasedByKeyboardAndSentAlone) {
  Start(french);
  PressButton(captions().connect);
  AwaitRead();
  PressButton(texts().lightPrograms);
  AwaitScreen();
  ExpectList(texts().directionsAfterRead);

  // The first key selects the cell that the cursor stands on.
  const auto isTable = [](const Widget& each) { return each.role == "table"; };
  std::vector<std::string> keys(programs_.size() + 1, "Down");
  keys.insert(keys.end(), {"Right", "Insert"});
  TabTo(isTable);
  desktop().Press(keys);
  Await("panel", texts().edit);
  StepInList(Editor("Module:"), 18, "S");
  AwaitListText(Editor("Type:"), "Contexte");
  StepInList(Editor("Contexte:"), 29, "30");
  PressOn("radio button", texts().directions[0]);
  StepInList(ListPlace{texts().level}, 0, "01");
  desktop().Press({"Return"});
  AwaitGone("panel", texts().edit);
  programs_.push_back({0, 1, {'S', 29, 2}});
  ExpectList(texts().directions);
  AwaitText("Contexte 30");

  TabTo(isTable);
  desktop().Press({"Up", "Delete"});
  AwaitText(texts().question);
  desktop().Press({"Return"});
  AwaitGone("label", texts().question);
  programs_.erase(programs_.end() - 2);
  ExpectList(texts().directions);
  LeaveScreen(texts().title);
  AwaitWindow(programName);
  const std::vector<std::string> before = Commands();
  PressButton(captions().send);
  ExpectSentTables(before, {MasterTable::LightPrograms}, Wanted());
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
