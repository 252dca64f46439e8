#include "diagnostics/detector_test_test.h"

#include <gtest/gtest.h>

#include "diagnostics/detector_level.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

TEST_F(DetectorTestTest, OnlyDetectorsInUseHaveFields) {
  struct Row {
    int count;
    int shown;
  };
  for (const Row& row : std::vector<Row>{{0, 0}, {1, 1}, {4, 4}, {12, 12}, {13, 12}, {255, 12}}) {
    OpenDetectors(65, row.count);
    for (int detector = 1; detector <= 12; ++detector) {
      const DetectorFields& fields = DetectorTestTest::Row(detector);
      for (const Field* field : std::initializer_list<const Field*>{
               &fields.number, &fields.contact, &fields.measured, &fields.logic, &fields.level}) {
        EXPECT_EQ(field->visible, detector <= row.shown) << field->name;
      }
      EXPECT_EQ(fields.number.caption, std::to_string(detector));
    }
  }
}

TEST_F(DetectorTestTest, TheListsOfferTheLogicAndAllLevels) {
  OpenDetectors();
  Names levels;
  for (const int level : DetectorLevels()) levels.push_back(std::to_string(level));
  for (int detector = 1; detector <= 12; ++detector) {
    EXPECT_EQ(Row(detector).logic.items, (Names{"<", ">"}));
    EXPECT_EQ(Row(detector).level.items, levels);
  }
}

TEST_F(DetectorTestTest, AnOpenedPanelHasEmptyBlueFieldsThatCannotBeUsed) {
  RunDetectors();
  TellAll();
  PickLevel(1, 200);
  panel.stop.Click();
  Choose("lineChoice");
  Choose("detectorsChoice");
  for (int detector = 1; detector <= 4; ++detector) {
    const DetectorFields& row = Row(detector);
    EXPECT_EQ(Shown(detector), "|||");
    EXPECT_FALSE(row.logic.enabled || row.level.enabled);
    for (const Field* field :
         std::initializer_list<const Field*>{&row.contact, &row.measured, &row.logic, &row.level}) {
      EXPECT_EQ(field->colour, Blue);
    }
  }
  EXPECT_FALSE(panel.update.enabled);
}

TEST_F(DetectorTestTest, TheVersionChoosesTheCommand) {
  struct Row {
    Cell version;
    std::string command;
  };
  for (const Row& row : std::vector<Row>{{0, "T80300"},
                                         {64, "T80300"},
                                         {"64", "T80300"},
                                         {Cell(), "T80300"},
                                         {65, "T80400"},
                                         {"65", "T80400"},
                                         {255, "T80400"}}) {
    OpenDetectors();
    AlarmImage[148] = row.version;
    panel.start.Click();
    EXPECT_EQ(PendingCommand, Cell(row.command));
  }
}

TEST_F(DetectorTestTest, TheBarEndsAtTheDetectorsInUseAndBeginsAnew) {
  RunDetectors(64, 3);
  EXPECT_EQ(DiagnosticsScreen.bar.Maximum(), 3);
  for (const int value : {1, 2, 3, 0, 1}) {
    Tell("M001");
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), value);
  }
}

TEST_F(DetectorTestTest, WithoutDetectorsInUseNothingHappens) {
  for (const int version : {64, 65}) {
    RunDetectors(version, 0);
    EXPECT_EQ(DiagnosticsScreen.bar.Maximum(), 1);
    Tell("M0010012304201");
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 0);
    EXPECT_FALSE(panel.update.enabled);
    panel.stop.Click();
    ExpectFree(true);
  }
}

// --- Short lines --------------------------------------------------------------------------------

TEST_F(DetectorTestTest, AContactIsAtRestOrTriggered) {
  for (const int version : {64, 65}) {
    const std::string rest = version == 65 ? "0012304201" : "";
    for (const int language : {1, 2}) {
      RunDetectors(version, 12, language);
      for (int d = 0; d < 12; ++d) {
        const std::string index = (d < 10 ? "0" : "") + std::to_string(d);
        Tell("M" + index + "1" + rest);
        EXPECT_EQ(Row(d + 1).contact.caption, language == 1 ? "TRIGGER!" : "Ouvert");
        EXPECT_EQ(Row(d + 1).contact.colour, Red);
        Tell("M" + index + "0" + rest);
        EXPECT_EQ(Row(d + 1).contact.caption, language == 1 ? "Rust" : "Fermé");
        EXPECT_EQ(Row(d + 1).contact.colour, Green);
      }
    }
  }
}

TEST_F(DetectorTestTest, AnotherContactStateIsNotShown) {
  RunDetectors(64);
  Tell("M001");
  for (const char* text : {"M002", "M00x", "M00 "}) Tell(text);
  EXPECT_EQ(Row(1).contact.caption, "TRIGGER!");
  EXPECT_EQ(Row(1).contact.colour, Red);
}

TEST_F(DetectorTestTest, AShortTestShowsContactsOnly) {
  RunDetectors(64);
  const Snapshot before = TakeSnapshot();
  Tell("M0010012304201");
  EXPECT_EQ(Shown(1), "TRIGGER!|||");
  EXPECT_FALSE(Row(1).logic.enabled || Row(1).level.enabled || panel.update.enabled);
  ExpectOnlyChanged(before, {});
}

TEST_F(DetectorTestTest, ALineOfADetectorWithoutFieldsChangesNothing) {
  for (const int version : {64, 65}) {
    RunDetectors(version, 4);
    Tell(version == 65 ? "M0010012304201" : "M001");
    const Snapshot before = TakeSnapshot();
    for (const char* index : {"04", "05", "11", "12", "42", "99"}) {
      Tell("M" + std::string(index) + "0" + (version == 65 ? "0099901021" : ""));
    }
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 1);
    for (int detector = 2; detector <= 4; ++detector) EXPECT_EQ(Shown(detector), "|||");
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(DetectorTestTest, ALineThatIsTooShortChangesNothing) {
  for (const int version : {64, 65}) {
    RunDetectors(version);
    const Snapshot before = TakeSnapshot();
    for (const char* text : {"", "M", "M0", "M00"}) Tell(text);
    if (version == 65) {
      for (const char* text : {"M001", "M0010", "M00100123", "M001001230420"}) Tell(text);
    }
    EXPECT_EQ(Shown(1), "|||");
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 0);
    ExpectOnlyChanged(before, {});
  }
}

// --- Long lines ---------------------------------------------------------------------------------

TEST_F(DetectorTestTest, ALongLineFillsTheFieldsAndTheTable) {
  struct Row {
    std::string rest;  ///< from the measured value on
    std::string shown;
    int level;
    std::string code;
  };
  RunDetectors(65, 12);
  int detector = 0;
  for (const Row& row : std::vector<Row>{{"0012315001", "TRIGGER!|123|>|150", 150, "01"},
                                         {"0000000100", "TRIGGER!|0|<|1", 1, "00"},
                                         {"9999901610", "TRIGGER!|99999|<|160", 160, "10"},
                                         {"0100005011", "TRIGGER!|1000|>|500", 500, "11"},
                                         {"0000102620", "TRIGGER!|1|<|520", 520, "20"},
                                         {"0000125021", "TRIGGER!|1|>|5000", 5000, "21"},
                                         {"0000101020", "TRIGGER!|1|<|200", 200, "20"}}) {
    const Snapshot before = TakeSnapshot();
    Tell("M0" + std::to_string(detector) + "1" + row.rest);
    ++detector;
    EXPECT_EQ(Shown(detector), row.shown);
    EXPECT_EQ(Level(detector), Cell(row.level));
    EXPECT_EQ(Code(detector), Cell(row.code));
    EXPECT_TRUE(DetectorTestTest::Row(detector).logic.enabled);
    EXPECT_TRUE(DetectorTestTest::Row(detector).level.enabled);
    ExpectOnlyChanged(before, {"DiagBuffer[" + std::to_string(detector - 1) + "]",
                               "DiagBuffer[" + std::to_string(detector + 11) + "]"});
  }
}

TEST_F(DetectorTestTest, EveryLevelOfTheListIsShownFromTheLine) {
  for (const int level : DetectorLevels()) {
    RunDetectors(65, 1);
    const int range = RangeOf(level);
    Tell("M00000000" + WireLevel(level, range) + std::to_string(range) + "1");
    EXPECT_EQ(Row(1).level.Text(), std::to_string(level));
    EXPECT_GE(Row(1).level.Index(), 0);
    EXPECT_EQ(Level(1), Cell(level));
    panel.stop.Click();
  }
}

TEST_F(DetectorTestTest, ALevelThatIsNotListedLeavesItsFieldEmpty) {
  struct Row {
    std::string rest;
    int level;
  };
  for (const Row& row : std::vector<Row>{{"0012300001", 0},
                                         {"0012315101", 151},
                                         {"0012399900", 999},
                                         {"0012301510", 150},
                                         {"0012302520", 500},
                                         {"0012399920", 19'980},
                                         {"0012399990", 89'910}}) {
    RunDetectors(65, 1);
    Tell("M000" + row.rest);
    EXPECT_EQ(Level(1), Cell(row.level));
    const bool listed = row.level == 150 || row.level == 500;
    EXPECT_EQ(DetectorTestTest::Row(1).level.Text(), listed ? std::to_string(row.level) : "");
    EXPECT_TRUE(DetectorTestTest::Row(1).level.enabled);
  }
}

TEST_F(DetectorTestTest, ALogicThatIsNotListedLeavesItsFieldEmpty) {
  for (const char logic : {'2', '9'}) {
    RunDetectors(65, 1);
    Tell(std::string("M0000012304200").replace(13, 1, 1, logic));
    EXPECT_EQ(Row(1).logic.Text(), "");
    EXPECT_EQ(Code(1), Cell(std::string("0") + logic));
    EXPECT_TRUE(Row(1).logic.enabled);
  }
}

TEST_F(DetectorTestTest, DigitsOfTheMeasuredValueCountUpToTheFirstThatIsNone) {
  RunDetectors(65, 12);
  Tell("M01012x4515001");
  EXPECT_EQ(Shown(2), "Rust|12|>|150");
  Tell("M010x234515001");
  EXPECT_EQ(Shown(2), "Rust|0|>|150");
}

TEST_F(DetectorTestTest, WithATornLevelOrCodeOnlyContactAndMeasuredValueFollow) {
  for (const char* torn :
       {"x5001", "1x001", "15x01", "150x1", "1500x", "1501x", "150-1", "150+1", "150 1", "-1501"}) {
    RunDetectors(65, 1);
    const Snapshot before = TakeSnapshot();
    Tell("M00100123" + std::string(torn));
    EXPECT_EQ(Shown(1), "TRIGGER!|123||") << torn;
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 1);
    EXPECT_FALSE(Row(1).logic.enabled || Row(1).level.enabled || panel.update.enabled);
    ExpectOnlyChanged(before, {});
    Tell("M0000012415001");
    EXPECT_EQ(Shown(1), "Rust|124|>|150") << torn;
    EXPECT_EQ(Code(1), Cell("01"));
    EXPECT_TRUE(Row(1).logic.enabled && Row(1).level.enabled && panel.update.enabled);
    panel.stop.Click();
  }
}

TEST_F(DetectorTestTest, ALineWithoutANumberOfADetectorChangesNothing) {
  RunDetectors(65, 12);
  const Snapshot before = TakeSnapshot();
  for (const char* text :
       {"Mxx10012301501", "M1x10012301501", "Mx110012301501", "M+110012301501"}) {
    Tell(text);
  }
  ExpectOnlyChanged(before, {});
  for (int detector = 1; detector <= 12; ++detector) EXPECT_EQ(Shown(detector), "|||");
}

TEST_F(DetectorTestTest, OnceSeenOnlyContactAndMeasuredValueFollow) {
  RunDetectors();
  Tell("M0010012315001");
  const Snapshot before = TakeSnapshot();
  Tell("M0000099902620");
  EXPECT_EQ(Shown(1), "Rust|999|>|150");
  ExpectOnlyChanged(before, {});
  Tell("M0100099902620");
  EXPECT_EQ(Shown(2), "Rust|999|<|520");
}

TEST_F(DetectorTestTest, StartingAgainTakesTheValuesAnew) {
  RunDetectors();
  Tell("M0010012315001");
  panel.stop.Click();
  Run(panel.start);
  EXPECT_EQ(Shown(1), "|||");
  Tell("M0000099902620");
  EXPECT_EQ(Shown(1), "Rust|999|<|520");
  EXPECT_EQ(Level(1), Cell(520));
}

TEST_F(DetectorTestTest, AfterTheEndNothingCanBeEdited) {
  RunDetectors();
  TellAll();
  panel.stop.Click();
  for (int detector = 1; detector <= 4; ++detector) {
    EXPECT_FALSE(Row(detector).logic.enabled || Row(detector).level.enabled);
  }
  EXPECT_FALSE(panel.update.enabled);
  const Snapshot before = TakeSnapshot();
  PickLevel(1, 200);
  Row(1).logic.Pick(1);
  panel.update.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(DetectorUpdate.Enabled());
}

// --- Editing ------------------------------------------------------------------------------------

TEST_F(DetectorTestTest, EveryLevelThatIsPickedSetsLevelAndRange) {
  RunDetectors();
  TellAll("0012304221");
  for (const int level : DetectorLevels()) {
    PickLevel(2, level);
    const int range = level <= 150 ? 0 : level <= 500 ? 1 : 2;
    ASSERT_EQ(Level(2), Cell(level));
    ASSERT_EQ(Code(2).Number(), range * 10 + 1) << level;
  }
}

TEST_F(DetectorTestTest, ALevelThatIsPickedChangesTwoCellsAndOneColour) {
  RunDetectors();
  TellAll("0012304221");
  const Snapshot before = TakeSnapshot();
  PickLevel(4, 5000);
  ExpectOnlyChanged(before, {"DiagBuffer[3]", "DiagBuffer[15]"});
  EXPECT_EQ(Row(4).level.colour, Pink);
  EXPECT_EQ(Row(4).logic.colour, Blue);
  EXPECT_EQ(Row(3).level.colour, Blue);
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(DetectorTestTest, ALogicThatIsPickedSetsBothDigitsOfTheCode) {
  struct Row {
    std::string rest;
    int range;
  };
  // The range follows the level, whatever the module told.
  for (const Row& row : std::vector<Row>{{"0000115000", 0},
                                         {"0000101610", 1},
                                         {"0000102620", 2},
                                         {"0000101020", 1},
                                         {"0000115100", 0},
                                         {"0000115500", 1},
                                         {"0000151000", 2}}) {
    RunDetectors(65, 1);
    Tell("M000" + row.rest);
    for (const int logic : {1, 0}) {
      const Snapshot before = TakeSnapshot();
      DetectorTestTest::Row(1).logic.Pick(logic);
      EXPECT_EQ(Code(1).Number(), row.range * 10 + logic) << row.rest;
      ExpectOnlyChanged(before, {"DiagBuffer[12]"});
      EXPECT_EQ(DetectorTestTest::Row(1).logic.colour, Pink);
      EXPECT_EQ(DetectorTestTest::Row(1).level.colour, Blue);
    }
    panel.stop.Click();
  }
}

TEST_F(DetectorTestTest, WhatWasEditedStaysWhileLinesCome) {
  RunDetectors();
  TellAll();
  PickLevel(1, 200);
  Row(1).logic.Pick(1);
  TellAll("0045604201");
  EXPECT_EQ(Shown(1), "Rust|456|>|200");
  EXPECT_EQ(Row(1).level.colour, Pink);
}

TEST_F(DetectorTestTest, BeforeItsFirstLineADetectorCannotBeEdited) {
  RunDetectors();
  const Snapshot before = TakeSnapshot();
  PickLevel(1, 200);
  Row(1).logic.Pick(1);
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
