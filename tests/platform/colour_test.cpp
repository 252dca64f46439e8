#include <gtest/gtest.h>

#include "platform/field.h"
#include "support/open_screen.h"

namespace bkconf {
namespace {

TEST(ColourTest, AFieldHasNoneUntilItGetsOne) {
  OpenScreen screen;
  LabelField label(screen, "label");
  ListField list(screen, "list");
  EXPECT_FALSE(label.colour || list.colour);
  label.colour = Colour{1, 2, 3};
  EXPECT_EQ(label.colour, (Colour{1, 2, 3}));
  EXPECT_FALSE(list.colour);
}

TEST(ColourTest, ColoursDifferInAnyPart) {
  constexpr Colour colour{1, 2, 3};
  EXPECT_EQ(colour, (Colour{1, 2, 3}));
  for (const Colour& other : {Colour{9, 2, 3}, Colour{1, 9, 3}, Colour{1, 2, 9}}) {
    EXPECT_NE(colour, other);
  }
}

TEST(ColourTest, PicksAndTextsLeaveItAsItIs) {
  OpenScreen screen;
  ListField list(screen, "list");
  list.items = {"a", "b"};
  list.colour = Colour{1, 2, 3};
  list.Pick(1);
  list.Clear();
  EXPECT_EQ(list.colour, (Colour{1, 2, 3}));
}

}  // namespace
}  // namespace bkconf
