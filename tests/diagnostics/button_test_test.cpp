#include <gtest/gtest.h>

#include "diagnostics/diagnostics_test.h"

namespace bkconf {
namespace {

/// Which push-buttons are pressed, with their history.
class ButtonTestTest : public DiagnosticsTest {
 protected:
  void RunButtons(int language = 1) {
    Open(0, language);
    Choose("buttonsChoice");
    Run(DiagnosticsScreen.buttons.start);
  }
  static const std::vector<std::string>& History() {
    return DiagnosticsScreen.buttons.history.Items();
  }
  static const std::string& Number() { return DiagnosticsScreen.buttons.number.caption; }
};

using Rows = std::vector<std::string>;

TEST_F(ButtonTestTest, APressHasARowAndIsShown) {
  RunButtons();
  Tell("M06");
  EXPECT_EQ(History(), Rows{"Tijd: 09:05:03  Knop: 7"});
  EXPECT_EQ(Number(), "7");
  RunButtons(2);
  Tell("M19");
  EXPECT_EQ(History(), Rows{"Temps: 09:05:03  Bouton: 20"});
  EXPECT_EQ(Number(), "20");
}

TEST_F(ButtonTestTest, ButtonsCountFromNoughtOnTheLine) {
  RunButtons();
  for (int index = 0; index <= 99; ++index) {
    now.second = static_cast<unsigned>(index % 60);
    Tell((index < 10 ? "M0" : "M") + std::to_string(index));
    EXPECT_EQ(Number(), std::to_string(index + 1));
    EXPECT_EQ(History().size(), static_cast<std::size_t>(index + 1));
    EXPECT_TRUE(History().back().ends_with("  Knop: " + std::to_string(index + 1)));
  }
}

TEST_F(ButtonTestTest, OneSecondHasOneRow) {
  RunButtons();
  Tell("M00");
  Tell("M01");
  Tell("M00");
  EXPECT_EQ(History(), Rows{"Tijd: 09:05:03  Knop: 1"});
  EXPECT_EQ(Number(), "1");
  now.second = 4;
  Tell("M01");
  EXPECT_EQ(History(), (Rows{"Tijd: 09:05:03  Knop: 1", "Tijd: 09:05:04  Knop: 2"}));
  EXPECT_EQ(Number(), "2");
}

TEST_F(ButtonTestTest, TheSameTimeOfTheNextMinuteHourOrDayIsAnotherRow) {
  RunButtons();
  Tell("M00");
  now.minute = 6;
  Tell("M00");
  now.hour = 10;
  Tell("M00");
  now.hour = 23;
  now.minute = 59;
  now.second = 59;
  Tell("M00");
  now.hour = now.minute = now.second = 0;
  Tell("M00");
  EXPECT_EQ(History(),
            (Rows{"Tijd: 09:05:03  Knop: 1", "Tijd: 09:06:03  Knop: 1", "Tijd: 10:06:03  Knop: 1",
                  "Tijd: 23:59:59  Knop: 1", "Tijd: 00:00:00  Knop: 1"}));
}

TEST_F(ButtonTestTest, AShortLineIsNoPressAndTakesNoSecond) {
  RunButtons();
  for (const char* text : {"", "M", "M0"}) Tell(text);
  EXPECT_TRUE(History().empty());
  Tell("M04");
  EXPECT_EQ(History(), Rows{"Tijd: 09:05:03  Knop: 5"});
}

TEST_F(ButtonTestTest, ALineWithoutANumberIsNoPressAndTakesNoSecond) {
  RunButtons();
  for (const char* text : {"M1x", "Mx1", "M+1", "M 1", "Mxx"}) Tell(text);
  EXPECT_TRUE(History().empty());
  EXPECT_EQ(Number(), "");
  Tell("M04");
  EXPECT_EQ(History(), Rows{"Tijd: 09:05:03  Knop: 5"});
}

TEST_F(ButtonTestTest, StartingEmptiesTheHistoryAndForgetsTheSecond) {
  RunButtons();
  Tell("M00");
  DiagnosticsScreen.buttons.stop.Click();
  EXPECT_EQ(History().size(), 1U);
  EXPECT_EQ(Number(), "1");
  DiagnosticsScreen.buttons.start.Click();
  EXPECT_TRUE(History().empty());
  EXPECT_EQ(Number(), "");
  Run(DiagnosticsScreen.buttons.start);
  Tell("M01");
  EXPECT_EQ(History(), Rows{"Tijd: 09:05:03  Knop: 2"});
}

TEST_F(ButtonTestTest, TheTestHasNoBar) {
  RunButtons();
  Tell("M00");
  EXPECT_FALSE(DiagnosticsScreen.bar.visible);
}

}  // namespace
}  // namespace bkconf
