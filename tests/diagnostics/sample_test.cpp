// The tests that sample a level ten times: that of the input line, and that of the light sensor.
#include <gtest/gtest.h>

#include "diagnostics/diagnostics_test.h"

namespace bkconf {
namespace {

class SampleTest : public DiagnosticsTest {
 protected:
  void RunLine(int kind = 0) {
    Open(kind);
    Choose("lineChoice");
    Run(DiagnosticsScreen.line.start);
  }
  void RunLight() {
    Open(9);
    Choose("lightChoice");
    Run(DiagnosticsScreen.light.start);
  }
  static const std::string& Level() { return DiagnosticsScreen.line.level.caption; }
  static const std::string& Light() { return DiagnosticsScreen.light.level.caption; }
  static int Bar() { return DiagnosticsScreen.bar.Value(); }
};

TEST_F(SampleTest, TheLevelOfTheLineIsTheNumberLessTenThousand) {
  struct Row {
    std::string line;
    std::string level;
  };
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    RunLine(kind);
    for (const Row& row : std::vector<Row>{{"M10042", "42"},
                                           {"x10000", "0"},
                                           {"010001", "1"},
                                           {"M09999", "-1"},
                                           {"M00000", "-10000"},
                                           {"M99999", "89999"},
                                           {"M1004277", "42"}}) {
      Tell(row.line);
      EXPECT_EQ(Level(), row.level) << row.line;
    }
  }
}

TEST_F(SampleTest, DigitsOfTheLineCountUpToTheFirstThatIsNone) {
  RunLine();
  for (const auto& [text, level] :
       std::map<std::string, std::string>{{"M1x042", "-9999"}, {"M1004x", "-8996"}}) {
    Tell(text);
    EXPECT_EQ(Level(), level) << text;
  }
}

TEST_F(SampleTest, AShortLineIsNoSample) {
  RunLine();
  Tell("M10042");
  for (const char* text : {"", "M", "M1", "M1004"}) {
    Tell(text);
    EXPECT_EQ(Level(), "42") << text;
    EXPECT_EQ(Bar(), 1);
  }
}

TEST_F(SampleTest, TheBarCountsTenSamplesAndBeginsAnew) {
  for (const bool light : {false, true}) {
    if (light) {
      RunLight();
    } else {
      RunLine();
    }
    EXPECT_EQ(DiagnosticsScreen.bar.Maximum(), 10);
    for (int sample = 1; sample <= 10; ++sample) {
      Tell(light ? "M25" : "M10042");
      EXPECT_EQ(Bar(), sample);
    }
    Tell(light ? "M25" : "M10042");
    EXPECT_EQ(Bar(), 0);
    EXPECT_TRUE(DiagnosticsScreen.bar.visible);
    Tell("STOP");
    EXPECT_FALSE(DiagnosticsScreen.bar.visible);
  }
}

TEST_F(SampleTest, TheLightIsTwoCharactersAsTheyStand) {
  RunLight();
  for (const auto& [text, light] : std::map<std::string, std::string>{
           {"M07", "07"}, {"M50", "50"}, {"x00", "00"}, {"Mx?", "x?"}, {"M2599", "25"}}) {
    Tell(text);
    EXPECT_EQ(Light(), light) << text;
  }
}

TEST_F(SampleTest, AShortLineIsNoLight) {
  RunLight();
  Tell("M07");
  for (const char* text : {"", "M", "M5"}) {
    Tell(text);
    EXPECT_EQ(Light(), "07") << text;
    EXPECT_EQ(Bar(), 1);
  }
}

TEST_F(SampleTest, ASampleStaysAfterTheEnd) {
  RunLine();
  Tell("M10042");
  Tell("STOP");
  EXPECT_EQ(Level(), "42");
  RunLight();
  Tell("M33");
  Tell("STOP");
  EXPECT_EQ(Light(), "33");
}

}  // namespace
}  // namespace bkconf
