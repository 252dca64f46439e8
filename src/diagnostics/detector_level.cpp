#include "diagnostics/detector_level.h"

namespace bkconf {
namespace {

/// Levels from here on lie in range 1, and in range 2.
constexpr int FirstOfRange1 = 155;
constexpr int FirstOfRange2 = 510;

/// The level is divided by this.
int DivisorOf(int range) {
  return range == 0 ? 1 : 10 * range;
}

}  // namespace

std::vector<int> DetectorLevels() {
  std::vector<int> levels;
  for (int level = 1; level <= 150; ++level) levels.push_back(level);
  for (int level = 160; level <= 500; level += 10) levels.push_back(level);
  for (int level = 520; level <= 5000; level += 20) levels.push_back(level);
  return levels;
}

int RangeOf(int level) {
  return level < FirstOfRange1 ? 0 : level < FirstOfRange2 ? 1 : 2;
}

int ShownLevel(int wireLevel, int range) {
  return wireLevel * DivisorOf(range);
}

std::string WireLevel(int level, int range) {
  const std::string text = std::to_string(1000 + level / DivisorOf(range));
  return text.substr(text.size() - 3);
}

}  // namespace bkconf
