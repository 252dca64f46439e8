// The modules with tables of their own: heating, displays, alarm, audio, simulation, infrared.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "demo_house/house_files.h"
#include "demo_house/references.h"

namespace demo_house_test {
namespace {

// --- Heating
// ---------------------------------------------------------------------------------------
TEST(DemoHouseHeating, HasRoomsAndATolerance) {
  const ImageFile& file = FileOfKind(2);
  EXPECT_GE(file.At(1), 1);
  EXPECT_LE(file.At(1), 8);
  EXPECT_GE(file.At(2), 2);
  EXPECT_LE(file.At(2), 255);
}

TEST(DemoHouseHeating, HasASensorALightAndAValveForEachRoom) {
  const ImageFile& file = FileOfKind(2);
  std::set<std::vector<int>> identities;
  std::set<std::pair<int, int>> valves;
  for (int room = 0; room < file.At(1); ++room) {
    for (const int table : {temperature::sensors, temperature::tail}) {
      std::vector<int> identity;
      for (int i = 0; i < 8; ++i) {
        identity.push_back(file.At(table + 8 * room + i));
        EXPECT_LE(identity.back(), 255);
      }
      EXPECT_TRUE(identities.insert(identity).second) << "room " << room + 1;
    }
    const int valve = temperature::tail + 64 + 2 * room;
    EXPECT_TRUE(KindOfLetter(file.At(valve))) << "room " << room + 1;
    EXPECT_TRUE(valves.emplace(file.At(valve), file.At(valve + 1)).second) << "room " << room + 1;
  }
  EXPECT_FALSE(identities.contains(std::vector<int>(8, 0)));
  const int pump = temperature::tail + 80;
  EXPECT_TRUE(KindOfLetter(file.At(pump)));
  EXPECT_TRUE(valves.emplace(file.At(pump), file.At(pump + 1)).second);
}

TEST(DemoHouseHeating, HasSixPeriodsOneAfterTheOtherOnEveryDay) {
  const ImageFile& file = FileOfKind(2);
  for (int day = 0; day < 8 * 7; ++day) {
    int before = -1;
    for (int period = 0; period < 6; ++period) {
      const int cell = temperature::periods + 12 * day + 2 * period;
      EXPECT_LE(file.At(cell), 23) << "cell " << cell;
      EXPECT_LE(file.At(cell + 1), 59) << "cell " << cell;
      const int begin = 60 * file.At(cell) + file.At(cell + 1);
      EXPECT_GT(begin, before) << "cell " << cell;
      before = begin;
      EXPECT_LE(file.At(temperature::setpoints + 6 * day + period), 40);
    }
  }
}

// --- Displays
// --------------------------------------------------------------------------------------
struct ScreenPlace {
  int first;   // cell of the display
  int screen;  // 0 to 5

  int At(int cell) const { return FileOfKind(3).At(first + cell); }
  std::string TextAt(int cell, int width) const {
    return FileOfKind(3).TextAt(first + cell, width);
  }
  std::string Name() const { return TextAt(12 * screen, 12); }
  std::string LineText(int line) const { return TextAt(72 + 100 * screen + 10 * line, 10); }
  int Category() const { return At(695 + screen); }
  int Letter(int line) const { return At(780 + 20 * screen + 2 * line); }
  int Number(int line) const { return At(781 + 20 * screen + 2 * line); }
  int SecondLetter(int line) const { return At(900 + 20 * screen + 2 * line); }
  int SecondNumber(int line) const { return At(901 + 20 * screen + 2 * line); }
};

std::vector<ScreenPlace> AllScreens() {
  std::vector<ScreenPlace> places;
  for (const int first : display::screens) {
    for (int screen = 0; screen < 6; ++screen) {
      places.push_back({first, screen});
    }
  }
  return places;
}

TEST(DemoHouseDisplays, HaveTextsInWindows1252) {
  std::set<std::string> texts;
  for (const ScreenPlace& place : AllScreens()) {
    EXPECT_NE(place.Name(), "");
    texts.insert(place.Name());
    for (int line = 0; line < 10; ++line) {
      texts.insert(place.LineText(line));
    }
  }
  for (const std::string& text : texts) {
    for (const char character : text) {
      const auto code = static_cast<unsigned char>(character);
      EXPECT_TRUE((code >= 32 && code < 126) || code >= 160) << text;
    }
  }
  EXPECT_THAT(texts, testing::IsSupersetOf({"Woonkamer", "Keuken", "Cin\xE9ma"}));
}

TEST(DemoHouseDisplays, HaveATargetOnTheLinesWithATextAndOnNoOthers) {
  for (const ScreenPlace& place : AllScreens()) {
    for (int line = 0; line < 10; ++line) {
      EXPECT_EQ(place.LineText(line).empty(), place.Letter(line) == '#') << place.Name();
      EXPECT_TRUE(place.Letter(line) != '#' || place.Number(line) == 0) << place.Name();
      const bool motor = place.Category() == 5 && place.Letter(line) != '#';
      EXPECT_EQ(motor, place.SecondLetter(line) != '#') << place.Name();
      EXPECT_TRUE(motor || place.SecondNumber(line) == 0) << place.Name();
    }
  }
}

struct CategoryRow {
  int code;
  std::set<int> kinds;  // of the modules that fit; none for contexts
  int highest;
  std::string firstKey;
  std::string secondKey;
};

TEST(DemoHouseDisplays, HaveScreensWhoseLinesAndKeysFitTheirCategory) {
  const std::vector<CategoryRow> rows = {
      {2, {1, 11}, 4, "+10", "-10"},     {3, {0, 1, 4, 11}, 12, "AAN", "UIT"},
      {4, {0, 4, 11}, 12, "AAN", "UIT"}, {5, {0, 4}, 12, "OP", "NEER"},
      {6, {2}, 8, "+1", "-1"},           {7, {}, 50, "Act", ""}};
  std::set<int> seen;
  for (const ScreenPlace& place : AllScreens()) {
    ASSERT_GE(place.Category(), 2) << place.Name();
    ASSERT_LE(place.Category(), 7) << place.Name();
    const CategoryRow& row = rows.at(static_cast<std::size_t>(place.Category()) - 2);
    seen.insert(row.code);
    EXPECT_EQ(place.TextAt(703 + 13 * place.screen, 5), row.firstKey) << place.Name();
    EXPECT_EQ(place.TextAt(710 + 13 * place.screen, 4), row.secondKey) << place.Name();
    for (int line = 0; line < 10 && place.Letter(line) != '#'; ++line) {
      EXPECT_LT(place.Number(line), row.highest) << place.Name();
      const bool fits = row.kinds.empty()
                            ? place.Letter(line) == 'S'
                            : row.kinds.contains(KindOfLetter(place.Letter(line)).value_or(-1));
      EXPECT_TRUE(fits) << place.Name() << ", line " << line + 1;
    }
  }
  EXPECT_EQ(seen.size(), rows.size());
}

TEST(DemoHouseDisplays, HaveArrowsBeforeTheKeys) {
  for (const ScreenPlace& place : AllScreens()) {
    EXPECT_EQ(place.At(682), 32);
    EXPECT_EQ(place.At(683), 126);
    EXPECT_EQ(place.At(688), 32);
    EXPECT_EQ(place.At(689), 127);
    EXPECT_NE(place.TextAt(684, 4), "");
    EXPECT_NE(place.TextAt(690, 4), "");
    EXPECT_EQ(place.At(701 + 13 * place.screen), 32);
    EXPECT_EQ(place.At(702 + 13 * place.screen), 126);
    EXPECT_EQ(place.At(708 + 13 * place.screen), 32);
    EXPECT_EQ(place.At(709 + 13 * place.screen), 127);
  }
}

TEST(DemoHouseDisplays, NameTheDaysFromSundayOn) {
  std::vector<std::string> days;
  for (int day = 0; day < 7; ++day) {
    days.push_back(FileOfKind(3).TextAt(display::weekdays + 3 * day, 3));
  }
  EXPECT_THAT(days, testing::ElementsAre("Zo", "Ma", "Di", "Wo", "Do", "Vr", "Za"));
}

// --- Alarm and simulation
// ----------------------------------------------------------------------------
void ExpectCondition(const ImageFile& file, int light, int joining) {
  EXPECT_TRUE((file.At(light) >= 1 && file.At(light) <= 50) || file.At(light) == 60)
      << file.name << ", cell " << light;
  bool timed = false;
  for (const int from : {light + 1, light + 3}) {
    const bool none = file.At(from) == 0 && file.At(from + 1) == 25;
    EXPECT_TRUE(none || (file.At(from) < file.At(from + 1) && file.At(from + 1) <= 24))
        << file.name << ", cell " << from;
    // There is no second period without a first.
    EXPECT_TRUE(none || from == light + 1 || timed) << file.name << ", cell " << from;
    timed = timed || !none;
  }
  EXPECT_LE(file.At(joining), 1) << file.name;
  EXPECT_TRUE(file.At(joining) == 1 || (timed && file.At(light) != 60)) << file.name;
}

TEST(DemoHouseAlarm, HasDetectorsWithDelaysStatesAndConditions) {
  const ImageFile& file = FileOfKind(5);
  EXPECT_GE(file.At(123), 1);
  EXPECT_LE(file.At(123), 12);
  for (int detector = 0; detector < 12; ++detector) {
    EXPECT_LE(file.At(124 + detector), 120);
    EXPECT_LE(file.At(136 + detector), 1);
    ExpectCondition(file, 221 + 5 * detector, 281 + detector);
    const bool used = detector < file.At(123);
    EXPECT_EQ(file.At(149 + 6 * detector) != 42, used) << "detector " << detector + 1;
    EXPECT_TRUE(used || file.At(136 + detector) == 0) << "detector " << detector + 1;
  }
}

TEST(DemoHouseAlarm, HasActionsThatAreThereOrWhollyEmpty) {
  const ImageFile& file = FileOfKind(5);
  for (int cell = 149; cell < 221; cell += 3) {
    const int empty = (file.At(cell) == 42) + (file.At(cell + 1) == 42) + (file.At(cell + 2) == 42);
    EXPECT_TRUE(empty == 0 || empty == 3) << "cell " << cell;
  }
}

TEST(DemoHouseSimulation, HasAStateAConditionAndParticipantsInARow) {
  const ImageFile& file = FileOfKind(7);
  EXPECT_LE(file.At(123), 1);
  ExpectCondition(file, 125, 130);
  EXPECT_LE(file.At(132), 4);
  EXPECT_NE(file.At(135), 42);
  for (int cell = 137; cell < 185; cell += 2) {
    EXPECT_TRUE(file.At(cell) == 42 || file.At(cell - 2) != 42) << "cell " << cell;
    EXPECT_TRUE(file.At(cell) != 42 || file.At(cell + 1) == 42) << "cell " << cell;
  }
}

// --- Audio
// -----------------------------------------------------------------------------------------
TEST(DemoHouseAudio, HasSettingsForTheZonesInUseAndNoneForTheOthers) {
  const ImageFile& file = FileOfKind(6);
  EXPECT_LE(file.At(129), 1);
  ASSERT_LE(file.At(130), 3);
  ASSERT_LE(file.At(131), 15);
  for (int zone = 0; zone < 16; ++zone) {
    const bool used = zone <= file.At(131);
    const auto fits = [&file, used](int cell, int highest) {
      return used ? file.At(cell) <= highest : file.At(cell) == 42;
    };
    EXPECT_TRUE(fits(133 + zone, file.At(130))) << "zone " << zone + 1;
    EXPECT_TRUE(fits(149 + zone, 1)) << "zone " << zone + 1;
    for (const int first : {165, 181, 197}) {
      EXPECT_TRUE(fits(first + zone, 15)) << "zone " << zone + 1 << ", cell " << first + zone;
    }
  }
}

// --- Infrared
// --------------------------------------------------------------------------------------
TEST(DemoHouseInfrared, HasUpToFourActionsForEachOfThirteenKeys) {
  const ImageFile& file = FileOfKind(8);
  for (int row = 0; row < 8; ++row) {
    for (int key = 0; key < 16; ++key) {
      const int cell = 125 + 48 * row + 3 * key;
      if (row > 3 || key > 12) {
        EXPECT_EQ(file.At(cell), 42) << "row " << row << ", key " << key;
      } else if (row == 0) {
        EXPECT_NE(file.At(cell), 42) << "key " << key;
      }
      EXPECT_TRUE(file.At(cell) != 42 || (file.At(cell + 1) == 42 && file.At(cell + 2) == 42));
    }
  }
}

}  // namespace
}  // namespace demo_house_test
