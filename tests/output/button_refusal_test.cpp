#include <gtest/gtest.h>

#include <functional>

#include "output/button_screen_test.h"

namespace bkconf {
namespace {

/// Places in the type list.
enum Type { Relay, Dimmer, Temperature, RelayDc, Alarm, Audio, Simulation, Lumenza };

std::function<void(ActionPicker&)> Target(int type,
                                          const std::function<void(ActionPicker&)>& then) {
  return [=](ActionPicker& picker) {
    picker.letter.Pick(0);
    picker.type.Pick(type);
    ASSERT_EQ(picker.type.Index(), type);
    then(picker);
  };
}

std::function<void(ActionPicker&)> Letter(int place,
                                          const std::function<void(ActionPicker&)>& then) {
  return [=](ActionPicker& picker) {
    picker.letter.Pick(place);
    then(picker);
  };
}

struct Incomplete {
  std::string what;
  std::function<void(ActionPicker&)> choose;
};

const std::vector<Incomplete>& IncompleteChoices() {
  const auto nothing = [](ActionPicker&) {};
  const auto output = [](ActionPicker& picker) { picker.output.list.Pick(0); };
  const auto action = [](ActionPicker& picker) { picker.action.list.Pick(0); };
  const auto option = [](std::size_t number) {
    return [number](ActionPicker& picker) { picker.temperatures[number].option.Choose(); };
  };
  const auto zone = [](bool main, int number, int place) {
    return [=](ActionPicker& picker) {
      (main ? picker.mainZone : picker.secondaryZone).Choose();
      picker.output.list.Pick(number);
      picker.action.list.Pick(place);
    };
  };
  static const std::vector<Incomplete> choices = {
      {"no letter", nothing},
      {"no type", Letter(0, nothing)},
      {"relay without output and action", Target(Relay, nothing)},
      {"relay without action", Target(Relay, output)},
      {"relay without output", Target(Relay, action)},
      {"DC relay without action", Target(RelayDc, output)},
      {"DC relay without output", Target(RelayDc, action)},
      {"dimmer without action", Target(Dimmer, output)},
      {"dimmer without output", Target(Dimmer, action)},
      {"detector without action", Target(Alarm, output)},
      {"detector without number", Target(Alarm, action)},
      {"Lumenza without output", Target(Lumenza, nothing)},
      {"Lumenza without action", Target(Lumenza, output)},
      {"temperature without option", Target(Temperature, nothing)},
      {"room temperature without both", Target(Temperature, option(0))},
      {"room temperature without room", Target(Temperature,
                                               [](ActionPicker& picker) {
                                                 picker.temperatures[0].option.Choose();
                                                 picker.temperatures[0].temperature.Pick(20);
                                               })},
      {"room temperature without degrees", Target(Temperature,
                                                  [](ActionPicker& picker) {
                                                    picker.temperatures[0].option.Choose();
                                                    picker.temperatures[0].room.Pick(2);
                                                  })},
      {"base temperature without room", Target(Temperature, option(1))},
      {"all rooms without degrees", Target(Temperature, option(2))},
      {"audio without zone option", Target(Audio, output)},
      {"main zone without number", Target(Audio, zone(true, -1, 0))},
      {"main zone without action", Target(Audio, zone(true, 0, -1))},
      {"main zone without value", Target(Audio, zone(true, 0, 10))},
      {"main balance without value", Target(Audio, zone(true, 0, 14))},
      {"secondary zone without number", Target(Audio, zone(false, -1, 0))},
      {"secondary zone without action", Target(Audio, zone(false, 0, -1))},
      {"secondary volume without value", Target(Audio, zone(false, 0, 5))},
      {"secondary balance without value", Target(Audio, zone(false, 0, 6))},
      {"simulation without on or off", Target(Simulation, nothing)},
      {"context without number", Letter(18, nothing)},
      {"Corvela code without second number", Letter(19, output)},
      {"Corvela code without first number", Letter(19, action)},
  };
  return choices;
}

class ButtonRefusalTest : public ButtonScreenTest {
 protected:
  /// An image of that kind that no letter is known on, with both functions of the button set.
  void OpenWithFunctions(int kind) {
    StartWithImage(kind, 1, 'R');
    Put(5, 1, {66, 0, 1});
    Put(5, 2, {67, 0, 1});
    OpenAgain();
  }
  static void ExpectNothingStored(const std::function<void(ActionPicker&)>& choose,
                                  ActionPicker& picker) {
    PickButton(5);
    choose(picker);
    MasterBaseDirty = 0;
    const Snapshot before = TakeSnapshot();
    Store();
    ExpectOnlyChanged(before, {"MasterBaseDirty"});
    EXPECT_EQ(Shown(5, 1) + Shown(5, 2), "B0101C0101");
  }
};

TEST_F(ButtonRefusalTest, AnIncompleteFirstFunctionWritesNoCell) {
  OpenWithFunctions(0);
  for (const Incomplete& choice : IncompleteChoices()) {
    SCOPED_TRACE(choice.what);
    ExpectNothingStored(choice.choose, ButtonScreen.first);
  }
}

TEST_F(ButtonRefusalTest, AnIncompleteSecondFunctionWritesNoCell) {
  OpenWithFunctions(8);
  for (const Incomplete& choice : IncompleteChoices()) {
    SCOPED_TRACE(choice.what);
    ExpectNothingStored(choice.choose, ButtonScreen.second);
  }
}

/// From the module and back to it.
class ButtonRoundTripTest : public ButtonScreenTest, public testing::WithParamInterface<int> {};

TEST_P(ButtonRoundTripTest, WhatIsStoredReachesTheModule) {
  Start();
  virtual_module::Module& module = Plug(GetParam());
  ReadModule();
  const auto& memory = module.memory().Cells(TableName());
  OpenAgain();
  PickButton(5);
  ButtonScreen.first.letter.Pick(18);
  ButtonScreen.first.output.list.Pick(6);
  ButtonScreen.noSecond.Set(true);
  Store();
  PickButton(20);
  ButtonScreen.second.letter.Pick(19);
  ButtonScreen.second.output.list.Pick(4);
  ButtonScreen.second.action.list.Pick(11);
  Store();
  ButtonScreen.leave.Click();
  ShownAction(Action::SecondFunctionTime).Click();
  ButtonScreen.time.Pick(1);
  SendToModule();
  const auto cells = [&memory](int first, int count) {
    return std::vector<int>(memory.begin() + first, memory.begin() + first + count);
  };
  EXPECT_EQ(cells(12, 3), (std::vector<int>{83, 6, 2}));
  EXPECT_EQ(cells(72, 3), (std::vector<int>{42, 42, 42}));
  EXPECT_EQ(cells(117, 3), (std::vector<int>{90, 4, 11}));
  EXPECT_EQ(cells(122, 1), std::vector<int>{7});
  for (int cell = 0; cell < 120; ++cell) {
    EXPECT_EQ(Cells()[cell].Number(), memory[static_cast<std::size_t>(cell)]) << cell;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ButtonRoundTripTest, testing::ValuesIn(ButtonKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
