// The list of the time programmes. What it has like that of the light programmes is tested there.
#include "master/time_program_screen.h"

#include "master/program_screen_test.h"

namespace bkconf {
namespace {

using Items = std::vector<std::string>;

const Items DaysInDutch = {"Zondag",  "Maandag",  "Dinsdag",  "Woensdag", "Donderdag",
                           "Vrijdag", "Zaterdag", "Op datum", "Elke dag"};
const Items DaysInFrench = {"Dimanche", "Lundi",  "Mardi",        "Mercredi", "Jeudi",
                            "Vendredi", "Samedi", "A la date du", "Quotidien"};

TEST_F(TimeProgramTest, CaptionsOfItsOwnAreDutchOrFrench) {
  Open({}, 1);
  EXPECT_EQ(screen.listLabel.caption, "Tijdprogrammaties:");
  EXPECT_EQ(screen.programs.columns[2].caption, "Uur");
  EXPECT_EQ(screen.programs.columns[3].caption, "Dag");
  EXPECT_EQ(TimeProgramScreen.timeLabel.caption, "Tijd");
  EXPECT_EQ(TimeProgramScreen.dayLabel.caption, "Weekdag");
  EXPECT_EQ(screen.picker.heading.caption, "Module             Type");
  EXPECT_EQ(TimeProgramScreen.day.items, DaysInDutch);
  Open({}, 2);
  EXPECT_EQ(screen.listLabel.caption, "Programmations temps:");
  EXPECT_EQ(screen.programs.columns[2].caption, "Heure");
  EXPECT_EQ(screen.programs.columns[3].caption, "Jour");
  EXPECT_EQ(TimeProgramScreen.timeLabel.caption, "Temps");
  EXPECT_EQ(TimeProgramScreen.dayLabel.caption, "Jour");
  EXPECT_EQ(TimeProgramScreen.day.items, DaysInFrench);
}

TEST_F(TimeProgramTest, EveryFifthMinuteIsOfferedUpToTenToMidnight) {
  Open();
  const Items& times = TimeProgramScreen.time.items;
  ASSERT_EQ(times.size(), 24U * 12 - 1);
  for (std::size_t place = 0; place < times.size(); ++place) {
    const auto two = [](std::size_t number) {
      return (number < 10 ? "0" : "") + std::to_string(number);
    };
    EXPECT_EQ(times[place], two(place / 12) + ":" + two(place % 12 * 5));
  }
  EXPECT_EQ(times.back(), "23:50");
}

// --- Drawing ------------------------------------------------------------------------------------

TEST_F(TimeProgramTest, EveryDayOfTheWeekAndEveryDayHaveANameInBothLanguages) {
  for (const int language : {1, 2}) {
    std::vector<Slot> list;
    for (int day = 1; day <= 9; ++day) list.push_back({6, 0, day, 24, 12, 5, 65, 0, 1});
    Open(list, language);
    const Items& days = language == 1 ? DaysInDutch : DaysInFrench;
    for (int day = 1; day <= 9; ++day) {
      const std::string name = day == 8 ? "24-12-05" : days[static_cast<std::size_t>(day - 1)];
      EXPECT_EQ(Row(day), "A0101, 06:00, " + name);
    }
  }
}

TEST_F(TimeProgramTest, HoursAndMinutesHaveTwoDigitsWhetherNumbersOrTexts) {
  Open({{0, 0, 9, 0, 0, 0, 65, 0, 1},
        {"07", "05", 9, 0, 0, 0, 65, 0, 1},
        {23, 55, 9, 0, 0, 0, 65, 0, 1},
        {"9", 59, 9, 0, 0, 0, 65, 0, 1}});
  ExpectRows({"A0101, 00:00, Elke dag", "A0101, 07:05, Elke dag", "A0101, 23:55, Elke dag",
              "A0101, 09:59, Elke dag"});
}

TEST_F(TimeProgramTest, AudioBlocksCountTheirValueFromOne) {
  Open({At({72, 15, 1}), At({72, 16, 1}), At({72, "34", "04"}), At({67, 3, 90})});
  ExpectRows({"H1601" + Moment(), "H1702" + Moment(), "H3505" + Moment(), "C0490" + Moment()});
}

TEST_F(TimeProgramTest, HasWordsForAllModulesButASimulation) {
  const std::map<char, std::string> sentences = {{'A', "Relaismodule 'A':  Uitgang 01 aan"},
                                                 {'B', "Relaismodule DC 'B':  Uitgang 01 aan"},
                                                 {'C', "Dimmodule 'C':  Uitgang 01 aan"},
                                                 {'D', "Lumenza module 'D':  Uitgang 01 aan"},
                                                 {'E', "Temp. module 'E':  01°C in ruimte 01"},
                                                 {'G', "Alarmmodule 'G':  Detector 01 aan"},
                                                 {'H', "Audio interface 'H':  Hoofdzone 01 aan"},
                                                 {'I', ""}};
  for (const auto& [letter, sentence] : sentences) {
    Open({On(letter)});
    screen.programs.Select(1, 1);
    EXPECT_EQ(screen.programs.At(1, 1), std::string(1, letter) + "0101");
    EXPECT_EQ(screen.description.caption, sentence) << letter;
  }
}

TEST_F(TimeProgramTest, ADateHasTwoDigitsOnOpeningAndStandsAsItIsStoredAfterAChange) {
  const Slot date = {7, 5, 8, 5, 3, 9, 65, 0, 1};
  const Slot texts = {7, 5, 8, "05", "03", "09", 65, 1, 1};
  Open({date, texts, On('C')});
  EXPECT_EQ(Row(1), "A0101, 07:05, 05-03-09");
  EXPECT_EQ(Row(2), "A0201, 07:05, 05-03-09");
  Delete(3);
  EXPECT_EQ(Row(1), "A0101, 07:05, 5-3-9");
  EXPECT_EQ(Row(2), "A0201, 07:05, 05-03-09");
  OpenAgain();
  EXPECT_EQ(Row(1), "A0101, 07:05, 05-03-09");
  DoubleClick(3);
  Choose('A', "3", "Aan");
  FillMoment();
  Confirm();
  EXPECT_EQ(Row(1), "A0101, 07:05, 5-3-9");
  EXPECT_EQ(Row(2), "A0201, 07:05, 05-03-09");
}

TEST_F(TimeProgramTest, ADateWithEmptyCellsKeepsItsDashesAfterAChange) {
  Open({{7, 5, 8, Cell(), 3, Cell(), 65, 0, 1}, On('C')});
  EXPECT_EQ(Row(1), "A0101, 07:05, 00-03-00");
  Delete(2);
  EXPECT_EQ(Row(1), "A0101, 07:05, -3-");
}

TEST_F(TimeProgramTest, ADayThatIsNoneHasNoTextAndKeepsItsRow) {
  for (const Cell& day : std::vector<Cell>{0, 10, 42, 255, -1, 1.5, "word", "*", Cell()}) {
    Open({{7, 5, day, 0, 0, 0, 65, 0, 1}});
    EXPECT_EQ(Row(1), "A0101, 07:05, ") << day.Text();
    ExpectMemory(109);
  }
}

TEST_F(TimeProgramTest, ADayThatIsNoneLeavesTheTextOfTheRowBefore) {
  Open({On('A'), {8, 0, 0, 0, 0, 0, 66, 0, 1}});
  Delete(1);
  ExpectRows({"B0101, 08:00, Maandag"});
  OpenAgain();
  ExpectRows({"B0101, 08:00, "});
}

TEST_F(TimeProgramTest, ADayMayStandAsAText) {
  Open({{7, 5, "9", 0, 0, 0, 65, 0, 1}});
  EXPECT_EQ(Row(1), "A0101, 07:05, Elke dag");
}

}  // namespace
}  // namespace bkconf
