// The screen of a master's contexts: what the demo house has there is seen, changed and sent.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "end_to_end/master_stage.h"

namespace end_to_end {
namespace {

class ContextScreens : public MasterStage {
 protected:
  void Start(const Captions& language) {
    StartWithDemoMaster(language);
    contexts_ = DemoMaster().ReadContexts();
  }

  std::string NameOf(int number) const { return texts().context + std::to_string(number); }
  ListPlace Chooser() const { return {texts().contextChooser}; }
  void PickContext(int number) {
    PickItem(Chooser(), number - 1, NameOf(number));
    ExpectRows(number, Values::InBlocks);
  }
  void ExpectRows(int number, Values values) { AwaitRows(ContextRows(contexts_[number], values)); }
  MasterImage Wanted() const {
    MasterImage image = DemoMaster();
    image.Put(contexts_);
    return image;
  }

  // As a double click does with an action, or where there is none.
  void OpenByMouse(int place, const std::string& code) {
    const auto number = static_cast<std::size_t>(place);
    desktop().DoubleClick(AwaitPlace(number / 5, number % 5, code));
    Await("panel", code.empty() ? texts().edit : texts().erase);
  }
  void AwaitErased() { AwaitGone("panel", texts().erase); }
  void EraseContextByMouse(int number) {
    PickContext(number);
    OpenByMouse(0, CodeOf(contexts_[number].front(), Values::InBlocks));
    EXPECT_TRUE(Await("radio button", texts().eraseAction).checked);
    ClickOn("radio button", texts().eraseContext);
    ClickOn("push button", captions().confirm);
    AwaitErased();
    contexts_[number].clear();
    ExpectRows(number, Values::AsStored);
  }

  Contexts contexts_;  // what the tool is to hold
};

TEST_F(ContextScreens, EachContextOfTheHouseIsShownAsItIsPacked) {
  Start(dutch);
  ConnectAndRead();
  OpenScreen(texts().contexts);
  AwaitListText(Chooser(), "Sfeer ?");
  AwaitFree(DemoMaster().FreeActions());
  ASSERT_EQ(contexts_.size(), 13U);
  for (const auto& [number, actions] : contexts_) PickContext(number);
  PickContext(7);
  LeaveMasterScreen();
  EXPECT_EQ(Commands(), (std::vector<std::string>{"T80000", "T81000"}));
  CloseTool();
}

TEST_F(ContextScreens, ActionsAreAddedAndErasedByMouseAndOnlyTheContextsAreSent) {
  constexpr int added = 7;
  constexpr int shortened = 3;
  constexpr int erased = 20;
  Start(dutch);
  ConnectAndRead();
  OpenScreen(texts().contexts);

  PickContext(added);
  OpenByMouse(0, "");
  PickLetter('A', "Relaismodule");
  PickItem(Editor(texts().output), 4, "5");
  PickItem(Editor(texts().function), 1, "Aan");
  ConfirmEdit();
  contexts_[added] = {{'A', 4, 1}};
  ExpectRows(added, Values::InBlocks);
  desktop().Click(AwaitPlace(0, 0, "A0501"));
  AwaitText("Relaismodule 'A':  Uitgang 05 aan");

  OpenByMouse(1, "");
  PickLetter('D', "Lumenza module");
  ClickOn("check box", texts().allOutputs);
  PickItem(Editor(texts().function), 6, "40%");
  ConfirmEdit();
  for (int output = 0; output < 8; ++output) contexts_[added].push_back({'D', output, 40});
  ExpectRows(added, Values::InBlocks);
  AwaitFree(Wanted().FreeActions());

  PickContext(shortened);
  OpenByMouse(1, CodeOf(contexts_[shortened][1], Values::InBlocks));
  EXPECT_TRUE(Await("radio button", texts().eraseAction).checked);
  ClickOn("push button", captions().confirm);
  AwaitErased();
  contexts_[shortened].erase(contexts_[shortened].begin() + 1);
  ExpectRows(shortened, Values::AsStored);

  EraseContextByMouse(erased);
  AwaitFree(Wanted().FreeActions());
  LeaveMasterScreen();
  const std::vector<std::string> before = Commands();
  ClickOn("push button", captions().send);
  ExpectSentTables(before, {MasterTable::Contexts}, Wanted());
  CloseTool();
}

TEST_F(ContextScreens, ActionsAreAddedAndErasedByKeyboardAndOnlyTheContextsAreSent) {
  constexpr int context = 2;
  Start(french);
  PressButton(captions().connect);
  AwaitRead();
  PressButton(texts().contexts);
  AwaitScreen();
  StepInList(Chooser(), context - 1, NameOf(context));
  ExpectRows(context, Values::InBlocks);
  ASSERT_EQ(contexts_[context].size(), 5U) << "the first row is full";

  // The first key selects the cell that the cursor stands on.
  const auto isTable = [](const Widget& each) { return each.role == "table"; };
  TabTo(isTable);
  desktop().Press({"Down", "Down", "Insert"});
  Await("panel", texts().edit);
  StepToLetter('H', "Interface audio");
  PressOn("radio button", "Zone principale");
  StepInList(Editor("Zone"), 1, "2");
  StepInList(Editor(texts().function), 11, "VOL..");
  StepInList(Editor("Valeur"), 4, "5");
  desktop().Press({"Return"});
  AwaitGone("panel", texts().edit);
  contexts_[context].push_back({'H', 33, 4});
  ExpectRows(context, Values::InBlocks);
  AwaitText("Interface audio 'H':  Zone principale 2 volume sur 05");

  TabTo(isTable);
  desktop().Press({"Up", "Right", "Delete"});
  Await("panel", texts().erase);
  desktop().Press({"Return"});
  AwaitErased();
  contexts_[context].erase(contexts_[context].begin() + 1);
  ExpectRows(context, Values::AsStored);

  LeaveScreen(texts().title);
  AwaitWindow(programName);
  const std::vector<std::string> before = Commands();
  PressButton(captions().send);
  ExpectSentTables(before, {MasterTable::Contexts}, Wanted());
  CloseTool();
}

// --- A full memory ------------------------------------------------------------------------------

class FullContexts : public ContextScreens, public ::testing::WithParamInterface<const Captions*> {
 protected:
  // As many actions as there is room for, in contexts of a hundred at most.
  void OpenFullMaster() {
    LayOutDirectory(*GetParam());
    for (int action = 0; action < 283; ++action) {
      contexts_[action / 100 + 1].push_back({'A', action % 12, 1});
    }
    std::ofstream(directory() / "Vol.BK1", std::ios::binary) << Wanted().Content();
    StartTool();
    OpenFile("Vol.BK1");
  }
};

TEST_P(FullContexts, TakeNoMoreActionsUntilOneIsErased) {
  OpenFullMaster();
  OpenScreen(texts().contexts);
  AwaitFree(0);
  PickContext(1);
  PickContext(3);
  desktop().DoubleClick(AwaitPlace(16, 3, ""));
  DismissMessage(texts().memoryFull);
  AwaitScreen();
  EXPECT_FALSE(desktop().Find("panel", texts().edit));

  OpenByMouse(82, CodeOf(contexts_[3].back(), Values::InBlocks));
  ClickOn("push button", captions().confirm);
  AwaitErased();
  contexts_[3].pop_back();
  ExpectRows(3, Values::AsStored);
  AwaitFree(1);
  OpenByMouse(82, "");
  LeaveMasterScreen(TitleOf(directory() / "Vol.BK1"));
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(In, FullContexts, ::testing::Values(&dutch, &french),
                         [](const auto& each) { return each.param->languageName; });

}  // namespace
}  // namespace end_to_end
