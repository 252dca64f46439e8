// Send: which tables of the image must go to the module, and in which order.
// The Send button starts it, and the end of a table's write asks for the next.
#pragma once

#include <array>
#include <initializer_list>
#include <string_view>

#include "image/commands.h"
#include "session/state.h"

namespace bkconf {

/// A condition of a row: that flag must have that value.
struct FlagTest {
  Cell* flag = nullptr;
  int value = 0;
};

/// The first row of the kind whose conditions all hold decides. Its flags are cleared when it is
/// chosen, so a transfer that is then refused or hangs has lost them; the command stays pending.
struct SendRow {
  KindSet kinds;
  std::array<FlagTest, 3> conditions;  ///< those without a flag hold
  std::string_view command;
  std::array<Cell*, 3> clears;
};

namespace flags {

inline constexpr std::array<Cell*, 3> Temperature = {&TempHeaderDirty, &TempRoomsDirty,
                                                     &TempProgramDirty};

/// The three dirty flags of the temperature module: header, rooms, programme.
constexpr std::array<FlagTest, 3> TemperatureIs(int header, int rooms, int program) {
  return {{{&TempHeaderDirty, header}, {&TempRoomsDirty, rooms}, {&TempProgramDirty, program}}};
}

}  // namespace flags

inline constexpr auto SendTable = std::to_array<SendRow>({
    {{0, 1, 4, 11, 5, 6, 7, 8}, {}, WriteBase, {}},
    {{2}, flags::TemperatureIs(1, 0, 0), WriteBase, flags::Temperature},
    {{2}, flags::TemperatureIs(0, 1, 0), Write1, flags::Temperature},
    {{2}, flags::TemperatureIs(0, 0, 1), Write2, flags::Temperature},
    {{2}, flags::TemperatureIs(1, 1, 0), Write3, flags::Temperature},
    {{2}, flags::TemperatureIs(1, 0, 1), Write4, flags::Temperature},
    // Rooms and programme without the header send the header too: frames name no table, so one
    // command must always mean one order of tables.
    {{2}, flags::TemperatureIs(0, 1, 1), Write5, flags::Temperature},
    {{2}, flags::TemperatureIs(1, 1, 1), Write5, flags::Temperature},
    {{3}, {{{&LcdHeaderDirty, 1}}}, WriteBase, {&LcdHeaderDirty}},
    {{3}, {{{&LcdScreen1Loaded, 1}, {&LcdScreen1Dirty, 1}}}, Write1, {&LcdScreen1Dirty}},
    {{3}, {{{&LcdScreen2Loaded, 1}, {&LcdScreen2Dirty, 1}}}, Write3, {&LcdScreen2Dirty}},
    {{3}, {{{&LcdWeekdayLoaded, 1}, {&LcdWeekdayDirty, 1}}}, Write5, {&LcdWeekdayDirty}},
    {{9}, {{{&MasterBaseDirty, 1}}}, WriteBase, {&MasterBaseDirty}},
    {{9}, {{{&MasterContextsDirty, 1}}}, Write1, {&MasterContextsDirty}},
    {{9}, {{{&MasterTimeDirty, 1}}}, Write2, {&MasterTimeDirty}},
    {{9}, {{{&MasterLightDirty, 1}}}, Write3, {&MasterLightDirty}},
});

/// Kinds that look for a further table when one has gone out.
inline constexpr KindSet SendsTableByTable{3, 9};

/// Sets `PendingCommand` by the first row that holds, and clears its flags. False, with everything
/// as it was, when none holds.
bool ChooseCommand();

/// What the button Send does. With nothing to send the last command is sent again: Send is always
/// available once an image stands.
void SendImage();

}  // namespace bkconf
