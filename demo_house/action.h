// What a button, context, programme, detector or key does: three cells, composed by verbs. Used by
// the description of every module.
#pragma once

#include "demo_house/house.h"

namespace demo_house {

inline constexpr int emptyCell = 42;

// The cells of a record: letter of the target, number inside it from 0, value. Empty as it starts.
struct Action {
  int target = emptyCell;
  int index = emptyCell;
  int value = emptyCell;
};

inline constexpr Action nothing{};

// Outputs.
Action Off(Output output);
Action On(Output output);
Action Toggle(Output output);
Action Dim(Dimmed output, int percent);  // 10, 20, ... 90

// Heating: a room, or all of them, at whole degrees from 0 to 40, or as its own programme says.
Action Heat(Room room, int degrees);
Action HeatAsProgrammed(Room room);
Action HeatAllRooms(int degrees);
Action HeatAllRoomsAsProgrammed();

// Detectors.
Action Watch(Detector detector);
Action Ignore(Detector detector);

// Music in the main zone of a room; sources, volumes and the like count from 1 to 16.
Action SilenceMusic(Zone zone);
Action PlayMusic(Zone zone);
Action ToggleMusic(Zone zone);
Action Louder(Zone zone);
Action Softer(Zone zone);
Action NextSource(Zone zone);
Action SetSource(Zone zone, int source);
Action SetVolume(Zone zone, int volume);
Action SetTreble(Zone zone, int treble);
Action SetBass(Zone zone, int bass);
Action SetBalance(Zone zone, int balance);

// Music in the secondary zone of a room.
Action PlaySecondary(Zone zone);
Action ToggleSecondary(Zone zone);
Action SetSecondaryVolume(Zone zone, int volume);

// The rest.
Action Run(Context context);
Action SimulatePresence(bool on);
Action Corvela(int code, int subcode);  // both 1 to 99

}  // namespace demo_house
