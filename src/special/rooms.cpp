#include "special/rooms.h"

#include <algorithm>

#include "image/tables.h"
#include "session/language.h"

namespace bkconf {

std::vector<std::string> RoomNames() {
  std::vector<std::string> names;
  const int rooms = std::clamp(TempRoomCount.Whole(), 0, MostRooms);
  for (int room = 1; room <= rooms; ++room) {
    names.push_back(Say(TextId::Room) + std::to_string(room));
  }
  return names;
}

void AskRoom(ListField& list, std::vector<std::string> items) {
  list.items = std::move(items);
  list.Show(Text(TextId::RoomPrompt));
}

void LoadRoomList(ListField& list, void (*blank)()) {
  list.onTyped = [&list, blank] {
    if (list.Index() < 0) {
      list.Show(Text(TextId::RoomPrompt));
      blank();
    } else {
      list.onPick();
    }
  };
}

}  // namespace bkconf
