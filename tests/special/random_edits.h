// Somebody who does anything at all in a screen: picks, types, ticks, clicks and moves at random.
// The same seed gives the same steps on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "platform/field.h"

namespace bkconf {

class RandomEdits {
 public:
  /// Never touches the fields of these names.
  RandomEdits(const Screen& screen, std::uint32_t seed, const std::set<std::string>& spared);

  /// One thing in one field, also what the field does not have.
  void Step();
  /// The same in this field.
  void StepIn(Field& field);

 private:
  /// 0 to `count` - 1.
  int Below(int count);
  /// A number that may lie outside a list of so many items.
  int PlaceIn(int count) { return Below(count + 3) - 1; }
  std::string AnyText();

  std::vector<Field*> fields_;
  std::mt19937 random_;
};

}  // namespace bkconf
