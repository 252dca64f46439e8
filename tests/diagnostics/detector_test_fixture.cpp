#include <algorithm>

#include "diagnostics/detector_test_test.h"

namespace bkconf {

void DetectorTestTest::OpenDetectors(int version, int count, int language) {
  Open(5, language, version);
  AlarmImage[123] = count;
  Choose("detectorsChoice");
}

void DetectorTestTest::RunDetectors(int version, int count, int language) {
  OpenDetectors(version, count, language);
  Run(panel.start);
  WritesSince();
}

void DetectorTestTest::TellAll(const std::string& rest) {
  for (int detector = 0; detector < AlarmImage[123].Whole(); ++detector) {
    Tell((detector < 10 ? "M0" : "M") + std::to_string(detector) + "0" + rest);
  }
}

void DetectorTestTest::PickLevel(int detector, int level) {
  const auto& items = Row(detector).level.items;
  const auto item = std::find(items.begin(), items.end(), std::to_string(level));
  ASSERT_NE(item, items.end()) << level;
  Row(detector).level.Pick(static_cast<int>(item - items.begin()));
}

std::string DetectorTestTest::Shown(int detector) {
  const DetectorFields& row = Row(detector);
  return row.contact.caption + "|" + row.measured.caption + "|" + row.logic.Text() + "|" +
         row.level.Text();
}

}  // namespace bkconf
