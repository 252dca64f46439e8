// The editor of a time programme: its fields, the date, and what it stores.
#include "master/program_screen_test.h"

namespace bkconf {
namespace {

class TimeEditorTest : public TimeProgramTest {
 protected:
  TimeProgramScreenFields& fields = TimeProgramScreen;

  void PickTime(const std::string& time) { Pick(fields.time, time); }
  void PickDay(const std::string& day) { Pick(fields.day, day); }
  void ExpectMomentShown(bool shown) const {
    for (const Field* field : std::initializer_list<const Field*>{&fields.timeLabel, &fields.time,
                                                                  &fields.dayLabel, &fields.day}) {
      EXPECT_EQ(field->visible, shown) << field->name;
      EXPECT_EQ(field->enabled, shown) << field->name;
    }
  }
  void ExpectAsksForDate(bool asks) const {
    EXPECT_EQ(fields.calendar.visible, asks);
    EXPECT_EQ(fields.editConfirm.enabled, !asks);
    EXPECT_EQ(fields.editLeave.enabled, !asks);
  }
  /// Stores what is in the editor; the only programme then.
  void ExpectStored(const Slot& cells) {
    Confirm();
    ExpectPanels(false, false);
    ExpectSlots({cells});
  }
  void Prepare(const std::string& day, int language = 1) {
    OpenEditor({}, language);
    PickLetter('A');
    PickOutput("1");
    fields.picker.action.list.Pick(1);
    PickTime("00:00");
    PickDay(day);
  }
};

TEST_F(TimeEditorTest, TimeAndDayAppearWhenTheTargetIsKnown) {
  OpenEditor();
  ExpectMomentShown(false);
  for (const char letter : {'A', 'B', 'C', 'D', 'E', 'G', 'H', 'S', 'Z'}) {
    PickLetter('K');
    ExpectMomentShown(false);
    PickLetter(letter);
    ExpectMomentShown(true);
  }
  for (const char letter : {'F', 'I', 'J', 'K'}) {
    PickLetter(letter);
    ExpectMomentShown(false);
  }
  fields.picker.type.Pick(2);
  ExpectMomentShown(true);
}

TEST_F(TimeEditorTest, OpeningTheEditorAgainHidesAndEmptiesTimeAndDay) {
  OpenEditor();
  PickLetter('A');
  FillMoment();
  screen.editLeave.Click();
  DoubleClick(1);
  ExpectMomentShown(false);
  EXPECT_EQ(fields.time.Text() + fields.day.Text(), "");
  PickLetter('A');
  EXPECT_EQ(fields.time.Text() + fields.day.Text(), "");
}

TEST_F(TimeEditorTest, TimeAndDayTakeNoTyping) {
  OpenEditor();
  PickLetter('A');
  fields.time.Type("12:34");
  fields.day.Type("vandaag");
  EXPECT_EQ(fields.time.Text() + fields.day.Text(), "");
  FillMoment();
  ExpectAsksForDate(false);
  fields.day.Type("Op datum");
  ExpectAsksForDate(false);
}

// --- The date -----------------------------------------------------------------------------------

TEST_F(TimeEditorTest, ADateIsAskedForFromTodayOnAndThereIsNoOtherWayOut) {
  for (const int language : {1, 2}) {
    Prepare(language == 1 ? "Op datum" : "A la date du", language);
    ExpectAsksForDate(true);
    EXPECT_EQ(fields.calendar.Day(), (Date{2026, 3, 7}));
    EXPECT_TRUE(fields.calendar.enabled);
    ExpectRefused();
    ExpectNoChange(screen.editLeave);
  }
}

TEST_F(TimeEditorTest, APickedDateStandsInTheDayAndIsStoredInItsParts) {
  Prepare("Op datum");
  fields.calendar.Pick({2027, 1, 9});
  ExpectAsksForDate(false);
  EXPECT_EQ(fields.day.Text(), "09-01-27");
  EXPECT_EQ(fields.day.Index(), -1);
  ExpectStored({"00", "00", 8, "09", "01", "27", 65, 0, 1});
  EXPECT_EQ(Row(1), "A0101, 00:00, 09-01-27");
}

TEST_F(TimeEditorTest, YearsAreStoredByTheirLastTwoDigits) {
  Prepare("Op datum");
  fields.calendar.Pick({2105, 12, 31});
  ExpectStored({"00", "00", 8, "31", "12", "05", 65, 0, 1});
}

TEST_F(TimeEditorTest, AnotherDayEndsTheQuestionForADate) {
  Prepare("Op datum");
  PickDay("Zaterdag");
  ExpectAsksForDate(false);
  ExpectStored({"00", "00", 7, 0, 0, 0, 65, 0, 1});
}

TEST_F(TimeEditorTest, AnotherLetterLeavesTheDayInSightWhileADateIsAskedFor) {
  Prepare("Op datum");
  fields.picker.letter.Pick(1);
  ExpectAsksForDate(true);
  EXPECT_TRUE(fields.day.visible && fields.day.enabled);
  PickDay("Zaterdag");
  ExpectAsksForDate(false);
}

TEST_F(TimeEditorTest, TimeAndDayGoWithTheQuestionForADateWhereTheTargetIsNotKnown) {
  for (const bool picksDate : {false, true}) {
    Prepare("Op datum");
    PickLetter('K');
    ExpectMomentShown(true);
    if (picksDate) fields.calendar.Pick({2027, 1, 9});
    if (!picksDate) PickDay("Zaterdag");
    ExpectAsksForDate(false);
    ExpectMomentShown(false);
    fields.picker.type.Pick(0);
    ExpectMomentShown(true);
    EXPECT_EQ(fields.day.Text(), picksDate ? "09-01-27" : "Zaterdag");
  }
}

TEST_F(TimeEditorTest, ADateCanBeAskedForAgainAndBeginsWithTodayAnew) {
  Prepare("Op datum");
  fields.calendar.Pick({2027, 1, 9});
  today = {2026, 3, 8};
  PickDay("Op datum");
  ExpectAsksForDate(true);
  EXPECT_EQ(fields.calendar.Day(), (Date{2026, 3, 8}));
  fields.calendar.Pick({2026, 3, 8});
  ExpectStored({"00", "00", 8, "08", "03", "26", 65, 0, 1});
}

TEST_F(TimeEditorTest, TheEditorBeginsAnewWithoutTheQuestionForADate) {
  Prepare("Op datum");
  DoubleClick(1);
  ExpectAsksForDate(false);
  Prepare("Op datum");
  OpenAgain();
  ExpectAsksForDate(false);
}

/// The buttons do not let it come so far.
TEST_F(TimeEditorTest, TheNameInPlaceOfADateIsADateOfZeros) {
  Prepare("Op datum");
  fields.editConfirm.enabled = true;
  ExpectStored({"00", "00", 8, 0, 0, 0, 65, 0, 1});
}

// --- The moment ---------------------------------------------------------------------------------

TEST_F(TimeEditorTest, EveryDayIsStoredByItsCodeInBothLanguages) {
  for (const int language : {1, 2}) {
    for (int code = 1; code <= 9; ++code) {
      if (code == 8) continue;
      Open({}, language);
      const std::string day = fields.day.items[static_cast<std::size_t>(code - 1)];
      Prepare(day, language);
      ExpectStored({"00", "00", code, 0, 0, 0, 65, 0, 1});
      EXPECT_EQ(Row(1), "A0101, 00:00, " + day);
    }
  }
}

TEST_F(TimeEditorTest, HourAndMinuteAreStoredAsTexts) {
  for (const std::string time : {"00:05", "09:30", "23:50"}) {
    Prepare("Elke dag");
    PickTime(time);
    ExpectStored({time.substr(0, 2), time.substr(3), 9, 0, 0, 0, 65, 0, 1});
  }
}

TEST_F(TimeEditorTest, AnOldDateDoesNotStayInTheSlot) {
  Open({On('A'), {7, 5, 8, 5, 3, 9, 42, 0, 1}});
  DoubleClick(2);
  Choose('A', "1", "Aan");
  FillMoment();
  Confirm();
  ExpectSlots({On('A'), StoredAt({65, 0, 1})});
}

TEST_F(TimeEditorTest, WithoutATimeOrADayNothingIsStored) {
  for (const char letter : {'A', 'S', 'Z'}) {
    for (const bool hasTime : {false, true}) {
      OpenEditor();
      PickLetter(letter);
      fields.picker.output.list.Pick(0);
      fields.picker.action.list.Pick(0);
      ASSERT_TRUE(fields.picker.Compose());
      ExpectRefused();
      if (hasTime) PickTime("07:05");
      if (!hasTime) PickDay("Maandag");
      ExpectRefused();
    }
  }
}

TEST_F(TimeEditorTest, ATemperatureIsNotStoredWithoutATimeOrADay) {
  OpenEditor();
  PickLetter('E');
  fields.picker.temperatures[3].option.Choose();
  ExpectRefused();
  PickTime("07:05");
  ExpectRefused();
}

// --- Targets that only this list has ------------------------------------------------------------

TEST_F(TimeEditorTest, ADetectorIsStoredLikeAnOutput) {
  OpenEditor();
  PickLetter('G');
  FillMoment();
  ExpectRefused();
  PickOutput("12");
  ExpectRefused();
  PickAction("Aan");
  ExpectStored(StoredAt({71, 11, 1}));
}

TEST_F(TimeEditorTest, EachTemperatureNeedsWhatBelongsToItAndNothingElse) {
  auto& [roomDegrees, roomBase, allDegrees, allBase] = fields.picker.temperatures;
  OpenEditor();
  PickLetter('E');
  FillMoment();
  ExpectRefused();
  roomDegrees.option.Choose();
  ExpectRefused();
  Pick(roomDegrees.temperature, "21");
  ExpectRefused();
  Pick(roomDegrees.room, "3");
  ExpectStored(StoredAt({69, 2, 21}));

  OpenEditor();
  PickLetter('E');
  FillMoment();
  roomDegrees.option.Choose();
  Pick(roomDegrees.room, "3");
  ExpectRefused();
  roomBase.option.Choose();
  ExpectRefused();
  Pick(roomBase.room, "8");
  ExpectStored(StoredAt({69, 7, "99"}));

  OpenEditor();
  PickLetter('E');
  FillMoment();
  allDegrees.option.Choose();
  ExpectRefused();
  Pick(allDegrees.temperature, "0");
  ExpectStored(StoredAt({69, "8", 0}));

  OpenEditor();
  PickLetter('E');
  FillMoment();
  allBase.option.Choose();
  ExpectStored(StoredAt({69, "8", "99"}));
  EXPECT_EQ(Row(1), "E0999" + Moment());
}

TEST_F(TimeEditorTest, AnAudioZoneNeedsItsKindItsActionAndAValueWhereItHasOne) {
  struct Zone {
    OptionField* option;
    int actions;
    int firstValue;
  };
  for (const Zone& zone :
       {Zone{&fields.picker.mainZone, 15, 10}, Zone{&fields.picker.secondaryZone, 7, 5}}) {
    for (int action = 0; action < zone.actions; ++action) {
      OpenEditor();
      PickLetter('H');
      FillMoment();
      PickOutput("3");
      if (action == 0) ExpectRefused();
      zone.option->Choose();
      ASSERT_EQ(static_cast<int>(fields.picker.action.list.items.size()), zone.actions);
      if (action == 0) ExpectRefused();
      fields.picker.action.list.Pick(action);
      if (action >= zone.firstValue) {
        ExpectRefused();
        Pick(fields.picker.value.list, "5");
      }
      const auto cells = fields.picker.Compose();
      ASSERT_TRUE(cells);
      ExpectStored(StoredAt({(*cells)[0], (*cells)[1], (*cells)[2]}));
    }
  }
}

TEST_F(TimeEditorTest, AnAudioZoneNeedsItsNumber) {
  OpenEditor();
  PickLetter('H');
  FillMoment();
  fields.picker.mainZone.Choose();
  PickAction("Aan");
  ExpectRefused();
  PickOutput("3");
  ExpectStored(StoredAt({72, 2, 1}));
}

TEST_F(TimeEditorTest, AValueOfAnAudioZoneIsStoredInItsBlock) {
  OpenEditor();
  PickLetter('H');
  FillMoment();
  fields.picker.mainZone.Choose();
  PickOutput("3");
  PickAction("VOL..");
  Pick(fields.picker.value.list, "5");
  ExpectStored(StoredAt({72, 34, 4}));
  EXPECT_EQ(Row(1), "H3505" + Moment());
}

}  // namespace
}  // namespace bkconf
