// A set of module kinds, for the rows of the data tables.
#pragma once

#include <initializer_list>

namespace bkconf {

/// Kinds are the codes 0 to 9 and 11; any other number is in no set.
class KindSet {
 public:
  constexpr KindSet() = default;
  constexpr KindSet(std::initializer_list<int> kinds) {
    for (const int kind : kinds) bits_ |= 1U << kind;
  }
  constexpr bool Contains(int kind) const {
    return kind >= 0 && kind < 16 && (bits_ >> kind & 1U) != 0;
  }

 private:
  unsigned bits_ = 0;
};

inline constexpr KindSet EveryKind{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};

}  // namespace bkconf
