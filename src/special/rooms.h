// What the looks of the temperature screen share, and what each of them brings. The screen and its
// looks use it.
#pragma once

#include <string>
#include <vector>

#include "platform/field.h"

namespace bkconf {

/// "Ruimte 1" and so on, for the rooms that the module has.
std::vector<std::string> RoomNames();

/// Fills a list of rooms: none picked, and the question which one.
void AskRoom(ListField& list, std::vector<std::string> items);
/// What is typed and is no item brings the question back. No room is picked then, so `blank` takes
/// away what belongs to one.
void LoadRoomList(ListField& list, void (*blank)());

/// Captions and handlers of a look, once at start-up.
void LoadRoomIds();
void LoadRoomProgram();
void LoadLiveTemperatures();

/// Fills a look with what is in memory, with no room chosen.
void FillRoomIds();
void FillRoomProgram();
void BlankLiveTemperatures();

/// While a look is still being read nothing in it can be used.
void EnableRoomIds(bool enabled);
void EnableRoomProgram(bool enabled);

}  // namespace bkconf
