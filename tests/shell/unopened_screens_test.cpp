// A screen that was not opened yet knows nothing of what it would work on: none of its fields may
// store anything.
#include <gtest/gtest.h>

#include <vector>

#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/random_edits.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

struct Unopened {
  int kind;
  Screen* screen;
};

const std::vector<Unopened> Editors = {
    {0, &ButtonScreen},       {0, &OutputScreen}, {9, &ContextScreen},     {9, &TimeProgramScreen},
    {9, &LightProgramScreen}, {5, &AlarmScreen},  {2, &TemperatureScreen}, {3, &DisplayMenuScreen},
    {3, &WeekdayTextScreen},  {6, &AudioScreen},  {7, &SimulationScreen},  {8, &IrScreen},
};

class UnopenedScreenTest : public SessionTest, public testing::WithParamInterface<Unopened> {};

TEST_P(UnopenedScreenTest, StoresNothing) {
  constexpr int steps = 3000;
  constexpr std::uint32_t seed = 7;
  StartWithImage(GetParam().kind);
  const Snapshot before = TakeSnapshot();
  RandomEdits hands(*GetParam().screen, seed, {});
  for (int step = 0; step < steps; ++step) hands.Step();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(GetParam().screen->shown);
}

INSTANTIATE_TEST_SUITE_P(Of, UnopenedScreenTest, testing::ValuesIn(Editors),
                         [](const auto& each) { return each.param.screen->name; });

}  // namespace
}  // namespace bkconf
