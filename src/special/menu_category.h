// What a screen of a display can control. The screen of the display's menus looks it up.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "image/cell.h"
#include "text/text.h"

namespace bkconf {

struct MenuCategory {
  int code;
  TextId name;
  char firstLetter;  ///< of the modules that it is offered
  char lastLetter;
  int highestOutput;
  TextId keyA;  ///< what a change of the category puts under the keys
  TextId keyB;
};

/// In the order in which they are offered.
inline constexpr auto MenuCategories = std::to_array<MenuCategory>({
    {2, TextId::DimmedLights, 'A', 'R', 4, TextId::KeyMoreLight, TextId::KeyLessLight},
    {3, TextId::SwitchedLights, 'A', 'R', 12, TextId::KeyOn, TextId::KeyOff},
    {4, TextId::Sockets, 'A', 'R', 12, TextId::KeyOn, TextId::KeyOff},
    {5, TextId::Automations, 'A', 'R', 12, TextId::KeyUp, TextId::KeyDown},
    {6, TextId::Heating, 'A', 'R', 8, TextId::KeyWarmer, TextId::KeyColder},
    {7, TextId::MenuContexts, 'S', 'S', 50, TextId::KeyAct, TextId::KeyNone},
});

/// Each of its lines has two outputs, which are chosen in a dialog of their own.
inline constexpr int AutomationCode = 5;

/// None for a code that is none.
const MenuCategory* CategoryOfCode(const Cell& code);
/// By its name in either language; null for another text.
const MenuCategory* CategoryNamed(std::string_view name);

}  // namespace bkconf
