#include <gtest/gtest.h>

#include "actions/picker_test.h"
#include "image/tables.h"

namespace bkconf {
namespace {

/// The chooser of the detectors, on an alarm module with the letter 'G'.
class AlarmPickerTest : public PickerTest {
 protected:
  AlarmPickerTest() { BeginAlarm(1); }
  void BeginAlarm(int language) {
    Begin(language, 5, 'G');
    alarm.Load();
    alarm.Reset();
  }
  OpenScreen other;
  ActionPicker alarm{other, "alarm", AlarmPicker};
};

TEST_F(AlarmPickerTest, OneHeadingStandsOverLetterAndType) {
  EXPECT_TRUE(alarm.heading.visible);
  EXPECT_EQ(alarm.heading.caption, "Module             Type");
  EXPECT_FALSE(alarm.letterLabel.visible || alarm.typeLabel.visible);
  EXPECT_TRUE(alarm.letter.visible && alarm.type.visible);
}

TEST_F(AlarmPickerTest, EveryTypeMeansItsOwnKindWhateverItsPlace) {
  struct Row {
    std::string type;
    std::string output;
    std::size_t outputs;
  };
  for (const Row& row : std::vector<Row>{{"Relaismodule", "Uitgang:", 12},
                                         {"Dimmodule", "Uitgang:", 4},
                                         {"Relaismodule DC", "Uitgang:", 12},
                                         {"Audio interface", "Zone:", 16},
                                         {"Lumenza module", "Uitgang:", 8}}) {
    alarm.letter.Pick(0);
    Pick(alarm.type, row.type);
    EXPECT_EQ(alarm.output.list.items.size(), row.outputs) << row.type;
    EXPECT_EQ(alarm.output.label.caption, row.output);
    EXPECT_EQ(alarm.mainZone.visible, row.type == "Audio interface");
  }
  alarm.letter.Pick(0);
  Pick(alarm.type, "Temp. module");
  EXPECT_TRUE(alarm.temperatures[0].option.visible);
  EXPECT_FALSE(alarm.simulationOn.visible);
}

TEST_F(AlarmPickerTest, NumbersAreStoredAsNumbers) {
  alarm.letter.Pick(0);
  alarm.type.Pick(0);
  alarm.output.list.Pick(4);
  alarm.action.list.Pick(1);
  EXPECT_EQ(*alarm.Compose(), (ActionCells{int{'A'}, 4, 1}));
}

TEST_F(AlarmPickerTest, ThereIsNoBoxForAllOutputs) {
  alarm.letter.Pick(0);
  alarm.type.Pick(0);
  EXPECT_FALSE(alarm.allOutputs.visible);
}

TEST_F(AlarmPickerTest, ItsOwnLetterOffersNoActions) {
  for (const int language : {1, 2}) {
    BeginAlarm(language);
    alarm.letter.Pick('G' - 'A');
    EXPECT_EQ(alarm.type.Text(), "---");
    EXPECT_FALSE(alarm.type.enabled || alarm.TargetKnown());
    EXPECT_FALSE(alarm.Compose());
  }
}

TEST_F(AlarmPickerTest, DisabledItHasNothingToPickAndItsTypeStaysInSight) {
  alarm.letter.Pick(0);
  alarm.type.Pick(0);
  alarm.output.list.Pick(4);
  alarm.Disable();
  EXPECT_FALSE(alarm.letter.enabled || alarm.type.enabled);
  EXPECT_TRUE(alarm.letter.visible && alarm.type.visible);
  EXPECT_EQ(alarm.letter.Text() + alarm.type.Text(), "");
  EXPECT_FALSE(alarm.output.list.visible || alarm.action.list.visible);
  EXPECT_FALSE(alarm.Compose());
  alarm.Reset();
  EXPECT_TRUE(alarm.letter.enabled);
}

/// The code of a record in the lists where a context always ends in the same digits.
std::string CodeOf(const ActionCells& cells, ValueForm form) {
  for (int i = 0; i < ActionSize; ++i) TimeProgramTable[7 + i] = cells[static_cast<std::size_t>(i)];
  return ProgramActionCode(TimeProgramTable, 7, form);
}

TEST(ProgramActionCodeTest, AContextEndsInTwoWhateverItHolds) {
  for (const ValueForm form : {ValueForm::OneBasedInBlocks, ValueForm::AsStored}) {
    for (const Cell& value : {Cell(0), Cell(2), Cell("02"), Cell(42), Cell()}) {
      EXPECT_EQ(CodeOf({int{'S'}, 11, value}, form), "S1202");
    }
  }
}

TEST(ProgramActionCodeTest, TwoCodesCountFromOneInEitherForm) {
  for (const ValueForm form : {ValueForm::OneBasedInBlocks, ValueForm::AsStored}) {
    EXPECT_EQ(CodeOf({int{'Z'}, 4, 11}, form), "Z0512");
  }
}

TEST(ProgramActionCodeTest, ABlockOfAnAudioInterfaceFollowsTheForm) {
  EXPECT_EQ(CodeOf({int{'H'}, 15, 5}, ValueForm::OneBasedInBlocks), "H1605");
  EXPECT_EQ(CodeOf({int{'H'}, 16, 5}, ValueForm::OneBasedInBlocks), "H1706");
  EXPECT_EQ(CodeOf({int{'H'}, 16, 5}, ValueForm::AsStored), "H1705");
}

}  // namespace
}  // namespace bkconf
