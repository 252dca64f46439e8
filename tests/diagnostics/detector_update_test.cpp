#include <gtest/gtest.h>

#include "diagnostics/detector_level.h"
#include "diagnostics/detector_test_test.h"
#include "link/link_ticks.h"
#include "link/transfer.h"

namespace bkconf {
namespace {

/// Handing edited levels and logics to the module.
class DetectorUpdateTest : public DetectorTestTest {
 protected:
  void RunSeen(int count = 4, int language = 1) {
    RunDetectors(65, count, language);
    TellAll("0001215001");
  }
  const std::string announcement = Repeated(50, "\x54\x38\x38\x38\x38\x38\x0A\x0D");
};

TEST_F(DetectorUpdateTest, WaitsUntilEveryDetectorInUseHasToldItsValues) {
  for (const int count : {1, 4, 12}) {
    RunDetectors(65, count);
    EXPECT_FALSE(panel.update.enabled);
    for (int detector = count - 1; detector >= 0; --detector) {
      EXPECT_FALSE(panel.update.enabled);
      Tell((detector < 10 ? "M0" : "M") + std::to_string(detector) + "00001215001");
    }
    EXPECT_TRUE(panel.update.enabled);
    panel.stop.Click();
    EXPECT_FALSE(panel.update.enabled);
  }
}

TEST_F(DetectorUpdateTest, ThereIsNoneInAShortTest) {
  RunDetectors(64, 2);
  Tell("M0010012315001");
  Tell("M0110012315001");
  EXPECT_FALSE(panel.update.enabled);
}

TEST_F(DetectorUpdateTest, BeginsWithFiftyAnnouncementsAtOnce) {
  for (const int language : {1, 2}) {
    RunSeen(4, language);
    WritesSince();
    const std::int64_t start = clock.Now();
    panel.update.Click();
    const std::vector<FakeLine::Written> writes = WritesSince();
    ASSERT_EQ(writes.size(), 50U);
    for (const FakeLine::Written& write : writes) {
      EXPECT_EQ(write.characters, "\x54\x38\x38\x38\x38\x38\x0A\x0D");
      EXPECT_EQ(write.time, start);
    }
    EXPECT_EQ(Status(), language == 1 ? "Update condities en niveau's..."
                                      : "Update conditions et niveaux...");
    EXPECT_FALSE(panel.update.enabled);
    EXPECT_EQ(DiagnosticsScreen.bar.Maximum(), 4);
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 0);
    EXPECT_TRUE(DiagnosticsScreen.bar.visible);
    for (int detector = 1; detector <= 4; ++detector) {
      EXPECT_FALSE(Row(detector).logic.enabled || Row(detector).level.enabled);
    }
  }
}

TEST_F(DetectorUpdateTest, SendsADetectorEveryTenthOfASecond) {
  RunSeen();
  PickLevel(2, 160);
  PickLevel(3, 5000);
  Row(4).logic.Pick(0);
  panel.update.Click();
  WritesSince();
  const std::int64_t start = clock.Now();
  clock.Advance(99);
  EXPECT_EQ(WrittenSince(), "");
  clock.Advance(400);
  const std::vector<FakeLine::Written> writes = WritesSince();
  const std::vector<std::string> frames = {"\x41\x30\x30\x31\x35\x30\x30\x31\x0A\x0D",
                                           "A0101611\n\r", "A0225021\n\r", "A0315000\n\r"};
  ASSERT_EQ(writes.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(writes[i].characters, frames[i]);
    const std::int64_t due = start + static_cast<std::int64_t>(i + 1) * 100'000;
    EXPECT_GE(writes[i].time, due);
    EXPECT_LT(writes[i].time, due + 1000);
  }
}

TEST_F(DetectorUpdateTest, EndsInTheTickThatSendsTheLast) {
  for (const int language : {1, 2}) {
    RunSeen(2, language);
    panel.update.Click();
    clock.Advance(150);
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 1);
    EXPECT_TRUE(DetectorUpdate.Enabled());
    EXPECT_FALSE(panel.update.enabled);
    clock.Advance(100);
    EXPECT_EQ(DiagnosticsScreen.bar.Value(), 2);
    EXPECT_FALSE(DetectorUpdate.Enabled());
    EXPECT_TRUE(panel.update.enabled);
    EXPECT_EQ(Status(), language == 1 ? "Detectoren test..." : "Test detecteurs...");
    for (int detector = 1; detector <= 2; ++detector) {
      EXPECT_TRUE(Row(detector).logic.enabled && Row(detector).level.enabled);
    }
    EXPECT_FALSE(Row(3).logic.enabled);
    EXPECT_TRUE(panel.stop.enabled);
    EXPECT_TRUE(LinkTick.Enabled());
    WritesSince();
    clock.Advance(500);
    EXPECT_EQ(WrittenSince(), "");
  }
}

TEST_F(DetectorUpdateTest, GivesEachDetectorItsColourBackAsItGoesOut) {
  RunSeen(2);
  for (const int detector : {1, 2}) {
    PickLevel(detector, 200);
    Row(detector).logic.Pick(0);
  }
  panel.update.Click();
  EXPECT_EQ(Row(1).level.colour, Pink);
  clock.Advance(150);
  EXPECT_EQ(Row(1).level.colour, Blue);
  EXPECT_EQ(Row(1).logic.colour, Blue);
  EXPECT_EQ(Row(2).level.colour, Pink);
  EXPECT_EQ(Row(2).logic.colour, Pink);
  clock.Advance(100);
  EXPECT_EQ(Row(2).level.colour, Blue);
  EXPECT_EQ(Row(2).logic.colour, Blue);
}

TEST_F(DetectorUpdateTest, TheModulesValuesAreTakenAnewAfterwards) {
  RunSeen(2);
  PickLevel(1, 200);
  panel.update.Click();
  clock.Advance(300);
  Tell("M0000012302620");
  EXPECT_EQ(Shown(1), "Rust|123|<|520");
  EXPECT_EQ(Level(1), Cell(520));
}

TEST_F(DetectorUpdateTest, APickBeforeTheNextLineIsNotMarked) {
  RunSeen(2);
  panel.update.Click();
  clock.Advance(300);
  PickLevel(1, 200);
  EXPECT_EQ(Level(1), Cell(200));
  EXPECT_EQ(Row(1).level.colour, Blue);
}

TEST_F(DetectorUpdateTest, LinesThatComeMeanwhileAreStillShown) {
  RunSeen(2);
  PickLevel(1, 200);
  panel.update.Click();
  Tell("M0010099902620");
  EXPECT_EQ(Shown(1), "TRIGGER!|999|>|200");
  EXPECT_FALSE(Row(1).level.enabled || panel.update.enabled);
  clock.Advance(150);
  EXPECT_NE(WrittenSince().find("A0002011\n\r"), std::string::npos);
}

TEST_F(DetectorUpdateTest, LinesDuringASecondUpdateOpenNoField) {
  RunSeen(2);
  panel.update.Click();
  clock.Advance(300);
  panel.update.Click();
  Tell("M0010099902620");
  Tell("M0110099902620");
  for (const int detector : {1, 2}) {
    EXPECT_FALSE(Row(detector).logic.enabled || Row(detector).level.enabled);
  }
  EXPECT_FALSE(panel.update.enabled);
  clock.Advance(300);
  EXPECT_TRUE(Row(1).level.enabled && panel.update.enabled);
}

TEST_F(DetectorUpdateTest, WhatTheModuleToldGoesBackAsItCame) {
  for (const int range : {0, 1, 2, 3, 9}) {
    for (const int wire : {0, 1, 10, 16, 26, 150, 250, 999}) {
      RunDetectors(65, 1);
      const std::string told = std::to_string(1000 + wire).substr(1) + std::to_string(range) + "1";
      Tell("M00000012" + told);
      panel.update.Click();
      clock.Advance(100);
      EXPECT_TRUE(WrittenSince().ends_with("A00" + told + "\n\r")) << told;
      panel.stop.Click();
    }
  }
}

TEST_F(DetectorUpdateTest, ATornLineBeforeAGoodOneIsNeverSent) {
  for (const char* torn : {"1501x", "150-1", "150+1", "1x001"}) {
    RunDetectors(65, 2);
    Tell("M00000012" + std::string(torn));
    Tell("M0100001202621");
    EXPECT_FALSE(panel.update.enabled) << torn;
    Tell("M0000001201610");
    panel.update.Click();
    clock.Advance(250);
    EXPECT_EQ(WrittenSince(), announcement + "A0001610\n\rA0102621\n\r") << torn;
    panel.stop.Click();
  }
}

TEST_F(DetectorUpdateTest, EveryLevelOfTheListGoesOutInItsRange) {
  RunSeen(1);
  for (const int level : DetectorLevels()) {
    PickLevel(1, level);
    panel.update.Click();
    clock.Advance(101);
    const int range = level <= 150 ? 0 : level <= 500 ? 1 : 2;
    const int divisor = range == 0 ? 1 : 10 * range;
    EXPECT_EQ(WrittenSince(), announcement + "A00" +
                                  std::to_string(1000 + level / divisor).substr(1) +
                                  std::to_string(range) + "1\n\r");
  }
}

TEST_F(DetectorUpdateTest, TwelveDetectorsHaveTwoDigits) {
  RunSeen(12);
  panel.update.Click();
  clock.Advance(1300);
  std::string frames = announcement;
  for (int d = 0; d < 12; ++d) {
    frames += (d < 10 ? "A0" : "A") + std::to_string(d) + "15001\n\r";
  }
  EXPECT_EQ(WrittenSince(), frames);
}

TEST_F(DetectorUpdateTest, StoppingTheTestEndsIt) {
  RunSeen();
  panel.update.Click();
  clock.Advance(150);
  WritesSince();
  panel.stop.Click();
  EXPECT_FALSE(DetectorUpdate.Enabled());
  EXPECT_EQ(WrittenSince(), Repeated(50, "T99999\n\r"));
  clock.Advance(500);
  EXPECT_EQ(WrittenSince(), "");
  ExpectFree(true);
  EXPECT_FALSE(panel.update.enabled || Row(1).level.enabled);
}

TEST_F(DetectorUpdateTest, APortThatVanishesEndsTestAndUpdate) {
  for (const bool announced : {false, true}) {
    RunSeen();
    if (announced) {
      panel.update.Click();
      clock.Advance(150);
      LinkTick.Disable();
      line.failed = true;
      EXPECT_THROW(clock.Advance(150), RuntimeError);
    } else {
      line.failed = true;
      EXPECT_THROW(panel.update.Click(), RuntimeError);
    }
    LeaveFailedTransfer();
    EXPECT_FALSE(DetectorUpdate.Enabled());
    EXPECT_FALSE(panel.update.enabled || Row(1).level.enabled);
    ExpectFree(true);
    line.failed = false;
  }
}

TEST_F(DetectorUpdateTest, ChangesNoImage) {
  RunSeen();
  const Snapshot before = TakeSnapshot();
  panel.update.Click();
  clock.Advance(1000);
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
