#include "image/kind_set.h"

#include <gtest/gtest.h>

namespace bkconf {
namespace {

TEST(KindSetTest, HoldsTheKindsItWasMadeOfAndNoOthers) {
  constexpr KindSet set{0, 5, 11};
  for (int kind = -5; kind <= 200; ++kind) {
    EXPECT_EQ(set.Contains(kind), kind == 0 || kind == 5 || kind == 11) << kind;
  }
}

TEST(KindSetTest, AnEmptySetHoldsNoKind) {
  constexpr KindSet set;
  for (int kind = -5; kind <= 200; ++kind) EXPECT_FALSE(set.Contains(kind)) << kind;
}

TEST(KindSetTest, NoModuleIsInNoSet) {
  EXPECT_FALSE(EveryKind.Contains(99));
}

TEST(KindSetTest, EveryKindIsTheElevenKinds) {
  for (int kind = -5; kind <= 200; ++kind) {
    EXPECT_EQ(EveryKind.Contains(kind), kind >= 0 && kind <= 11 && kind != 10) << kind;
  }
}

}  // namespace
}  // namespace bkconf
