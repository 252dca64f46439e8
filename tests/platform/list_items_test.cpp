#include "platform/list_items.h"

#include <gmock/gmock.h>

namespace bkconf {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ListItemsTest, NumbersArePlainDecimalsFromTheFirstToTheLast) {
  EXPECT_THAT(NumberItems(8, 11), ElementsAre("8", "9", "10", "11"));
  EXPECT_THAT(NumberItems(-1, 1), ElementsAre("-1", "0", "1"));
  EXPECT_THAT(NumberItems(5, 5), ElementsAre("5"));
}

TEST(ListItemsTest, LettersStandAloneFromTheFirstToTheLast) {
  EXPECT_THAT(LetterItems('P', 'S'), ElementsAre("P", "Q", "R", "S"));
  EXPECT_THAT(LetterItems('Z', 'Z'), ElementsAre("Z"));
}

TEST(ListItemsTest, ThereIsNothingWhereTheLastIsBelowTheFirst) {
  EXPECT_THAT(NumberItems(1, 0), IsEmpty());
  EXPECT_THAT(LetterItems('B', 'A'), IsEmpty());
}

}  // namespace
}  // namespace bkconf
