#include "virtual_module/detectors.h"

#include <algorithm>

#include "virtual_module/digits.h"

namespace virtual_module {
namespace {

constexpr int highestMeasured = 99999;  // five digits

// The levels that a range of the reference is set in, as on the line: 1 to 150, 160 to 500 in tens,
// 520 to 5000 in twenties.
struct Range {
  int lowest;
  int highest;
};
constexpr std::array<Range, 3> ranges = {{{1, 150}, {16, 50}, {26, 250}}};

int ReferenceOf(const Detector& detector) {
  const int range = detector.code / 10;
  return range == 0 ? detector.level : detector.level * 10 * range;
}

}  // namespace

Detectors::Detectors(Chance& chance) {
  for (Detector& detector : detectors_) {
    const int range = chance.In(0, 2);
    const Range& levels = ranges.at(static_cast<std::size_t>(range));
    detector.level = chance.In(levels.lowest, levels.highest);
    detector.code = 10 * range + chance.In(0, 1);
  }
}

void Detectors::SetContact(int index, bool open) {
  detectors_.at(static_cast<std::size_t>(index)).open = open;
}

void Detectors::SetReference(int index, int level, int code) {
  Detector& detector = detectors_.at(static_cast<std::size_t>(index));
  detector.level = level;
  detector.code = code;
}

std::string Detectors::ShortText(int index) const {
  const Detector& detector = detectors_.at(static_cast<std::size_t>(index));
  return PaddedDigits(index, 2) + (detector.open ? "1" : "0");
}

std::string Detectors::LongText(int index, Chance& chance) const {
  const Detector& detector = detectors_.at(static_cast<std::size_t>(index));
  return ShortText(index) + PaddedDigits(Measure(detector, chance), 5) +
         PaddedDigits(detector.level, 3) + PaddedDigits(detector.code, 2);
}

// Lies on the side of the reference that agrees with the contact.
int Detectors::Measure(const Detector& detector, Chance& chance) const {
  const int reference = ReferenceOf(detector);
  const int distance = 1 + reference * chance.In(5, 20) / 100;
  const bool alarmBelow = detector.code % 10 == 0;
  const int measured = alarmBelow == detector.open ? reference - distance : reference + distance;
  return std::clamp(measured, 0, highestMeasured);
}

}  // namespace virtual_module
