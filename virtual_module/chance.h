// Numbers that depend on a seed alone, the same on every platform: the distributions of the library
// are not. Used by the module model only.
#pragma once

#include <cstdint>
#include <random>

namespace virtual_module {

class Chance {
 public:
  explicit Chance(std::uint32_t seed) : source_(seed) {}

  // From `low` to `high`, both included; `high` must not be below `low`.
  int In(int low, int high) {
    const auto width = static_cast<std::uint32_t>(high - low + 1);
    return low + static_cast<int>(source_() % width);
  }
  bool OneIn(int count) { return In(1, count) == 1; }

 private:
  std::mt19937 source_;
};

}  // namespace virtual_module
