// The two displays: one in the living room, one upstairs. Each has six screens of up to ten lines.
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

enum class Category { Dimmed = 2, Lights = 3, Sockets = 4, Motors = 5, Heating = 6, Contexts = 7 };

// What the two keys of a screen do, by its category: five characters and four.
struct Keys {
  Category category;
  std::string_view first;
  std::string_view second;
};

constexpr Keys keysByCategory[] = {
    {Category::Dimmed, "+10", "-10"},  {Category::Lights, "AAN", "UIT"},
    {Category::Sockets, "AAN", "UIT"}, {Category::Motors, "OP", "NEER"},
    {Category::Heating, "+1", "-1"},   {Category::Contexts, "Act", "  "},
};

struct Line {
  std::string_view text;  // up to 10 characters
  Target target;
  std::optional<Target> down = std::nullopt;  // the other way of a motor
};

Line Motorised(std::string_view text, const Motor& motor) {
  return {text, motor.up, motor.down};
}

struct Screen {
  std::string_view name;  // up to 12 characters
  Category category;
  std::vector<Line> lines;
};

using Screens = std::array<Screen, 6>;

Screens Downstairs() {
  return {{
      {"Woonkamer",
       Category::Dimmed,
       {{"Spots", livingSpots},
        {"Eettafel", diningTable},
        {"Leeslamp", readingLamp},
        {"Tv-wand", tvWall}}},
      {"Keuken", Category::Dimmed, {{"Spots", kitchenSpots}, {"Werkblad", worktop}}},
      {"Verlichting",
       Category::Lights,
       {{"Hal", hallLight},
        {"Berging", storeLight},
        {"Bureau", officeLight},
        {"Garage", garageLight},
        {"Terras", terraceLight},
        {"Oprit", driveLight},
        {"Tuin", gardenLight}}},
      {"Rolluiken",
       Category::Motors,
       {Motorised("Woonkamer", livingShutter), Motorised("Keuken", kitchenShutter),
        Motorised("Zonnetent", awning)}},
      {"Verwarming",
       Category::Heating,
       {{"Woonkamer", livingRoom}, {"Keuken", kitchen}, {"Bureau", office}}},
      {"Sferen",
       Category::Contexts,
       {{"Alles uit", everythingOff},
        {"Avond", evening},
        {"Cinéma", cinema},
        {"Eten", dinner},
        {"Weg", away},
        {"Thuis", home},
        {"Vakantie", holiday},
        {"Fête", party}}},
  }};
}

Screens Upstairs() {
  return {{
      {"Slaapkamer", Category::Dimmed, {{"Plafond", bedroomLight}, {"Spiegel", bathMirror}}},
      {"Boven",
       Category::Lights,
       {{"Nachthal", landingLight},
        {"Kamer één", childLight1},
        {"Kamer twee", childLight2},
        {"Badkamer", bathLight}}},
      {"Verbruikers",
       Category::Sockets,
       {{"Televisie", tvSocket}, {"Ventilator", bathFan}, {"Sproeier", sprinkler}}},
      {"Rolluiken",
       Category::Motors,
       {Motorised("Slaapkamer", bedroomShutter), Motorised("Woonkamer", livingShutter),
        Motorised("Keuken", kitchenShutter)}},
      {"Verwarming",
       Category::Heating,
       {{"Slaapkamer", bedroom}, {"Kinderen", childRooms}, {"Badkamer", bathroom}}},
      {"Sferen",
       Category::Contexts,
       {{"Ochtend", morning},
        {"Slapen", sleep},
        {"Alles op", shuttersUp},
        {"Alles neer", shuttersDown},
        {"Paniek", panic}}},
  }};
}

constexpr int linesPerScreen = 10;
constexpr int firstArrow = 126;
constexpr int secondArrow = 127;
constexpr int unusedLine = '#';

// A blank, an arrow, the text of the first key; a blank, the other arrow, the text of the second.
void PutKeys(Cells& cells, int first, int firstWidth, std::string_view one, std::string_view two) {
  Put(cells, first, ' ');
  Put(cells, first + 1, firstArrow);
  PutText(cells, first + 2, firstWidth, one);
  Put(cells, first + 2 + firstWidth, ' ');
  Put(cells, first + 3 + firstWidth, secondArrow);
  PutText(cells, first + 4 + firstWidth, 4, two);
}

void PutTarget(Cells& cells, int first, const std::optional<Target>& target) {
  Put(cells, first, target ? target->letter : unusedLine);
  Put(cells, first + 1, target ? target->number - 1 : 0);
}

void PutLine(Cells& cells, int screen, int line, const Line* content) {
  const int place = 20 * screen + 2 * line;
  PutText(cells, 72 + 100 * screen + 10 * line, 10, content != nullptr ? content->text : "");
  PutTarget(cells, 780 + place, content != nullptr ? std::optional(content->target) : std::nullopt);
  PutTarget(cells, 900 + place, content != nullptr ? content->down : std::nullopt);
}

void PutScreen(Cells& cells, int number, const Screen& screen) {
  PutText(cells, 12 * number, 12, screen.name);
  Put(cells, 695 + number, static_cast<int>(screen.category));
  for (const Keys& keys : keysByCategory) {
    if (keys.category == screen.category) {
      PutKeys(cells, 701 + 13 * number, 5, keys.first, keys.second);
    }
  }
  for (int line = 0; line < linesPerScreen; ++line) {
    const auto place = static_cast<std::size_t>(line);
    PutLine(cells, number, line, place < screen.lines.size() ? &screen.lines[place] : nullptr);
  }
}

// What has no meaning of its own is blank, but for the cells that a module never tells.
void PutScreens(Cells& cells, const Screens& screens) {
  PutRange(cells, 0, 1019, ' ');
  PutKeys(cells, 682, 4, "Kies", "Volg");
  int number = 0;
  for (const Screen& screen : screens) {
    PutScreen(cells, number++, screen);
  }
}

}  // namespace

Memory DisplayModule() {
  Memory memory(3);
  PutAddressAndVersion(memory, display, 31);
  PutScreens(memory.Cells(TableName::LcdScreen1), Downstairs());
  PutScreens(memory.Cells(TableName::LcdScreen2), Upstairs());
  PutText(memory.Cells(TableName::LcdWeekdayNames), 0, 21, "Zo Ma Di Wo Do Vr Za ");
  return memory;
}

}  // namespace demo_house
