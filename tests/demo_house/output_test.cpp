// Push-buttons of all modules that have them, and the outputs of relays and dimmers.
#include <gtest/gtest.h>

#include "demo_house/house_files.h"

namespace demo_house_test {
namespace {

bool IsEmptyRecord(const ImageFile& file, int cell) {
  return file.At(cell) == 42 && file.At(cell + 1) == 42 && file.At(cell + 2) == 42;
}

bool NamesATarget(const ImageFile& file, int cell) {
  return (file.At(cell) >= 'A' && file.At(cell) <= 'S') || file.At(cell) == 'Z';
}

bool HasButtons(const ImageFile& file) {
  return file.Kind() != 2 && file.Kind() != 3;
}

TEST(DemoHouseButtons, HaveARecordOrAreWhollyEmpty) {
  for (const ImageFile& file : House()) {
    if (!HasButtons(file)) {
      continue;
    }
    int used = 0;
    for (int cell = 0; cell < 120; cell += 3) {
      EXPECT_TRUE(NamesATarget(file, cell) || IsEmptyRecord(file, cell))
          << file.name << ", cell " << cell;
      used += NamesATarget(file, cell) ? 1 : 0;
    }
    EXPECT_GT(used, 0) << file.name;
  }
}

TEST(DemoHouseButtons, HaveASecondFunctionAfterHalfASecondToFour) {
  for (const ImageFile& file : House()) {
    if (HasButtons(file)) {
      EXPECT_GE(file.At(122), 1) << file.name;
      EXPECT_LE(file.At(122), 8) << file.name;
    }
  }
}

TEST(DemoHouseOutputs, OfRelaysHaveFunctionsTimesAndLinksInRange) {
  for (const int kind : {0, 4}) {
    const ImageFile& file = FileOfKind(kind);
    for (int output = 0; output < 12; ++output) {
      EXPECT_LE(file.At(123 + output), 5) << file.name << ", output " << output + 1;
      EXPECT_GE(file.At(135 + output), 1) << file.name << ", output " << output + 1;
      EXPECT_LE(file.At(135 + output), 15) << file.name << ", output " << output + 1;
      EXPECT_GE(file.At(147 + output), 1) << file.name << ", output " << output + 1;
      EXPECT_LE(file.At(147 + output), 12) << file.name << ", output " << output + 1;
    }
  }
}

// Codes 4 and 5 depend on another output.
TEST(DemoHouseOutputs, OfRelaysDependOnOtherOutputsThanThemselves) {
  int dependent = 0;
  for (const int kind : {0, 4}) {
    const ImageFile& file = FileOfKind(kind);
    for (int output = 0; output < 12; ++output) {
      if (file.At(123 + output) >= 4) {
        ++dependent;
        EXPECT_NE(file.At(147 + output), output + 1) << file.name;
      }
    }
  }
  EXPECT_GT(dependent, 0);
}

TEST(DemoHouseOutputs, OfRelaysLockTheTwoWaysOfAMotorAgainstEachOther) {
  const ImageFile& file = FileOfKind(4);
  int locked = 0;
  for (int output = 0; output < 12; ++output) {
    if (file.At(123 + output) != 5) {
      continue;
    }
    ++locked;
    const int other = file.At(147 + output) - 1;
    EXPECT_EQ(file.At(123 + other), 5) << "output " << output + 1;
    EXPECT_EQ(file.At(147 + other), output + 1);
  }
  EXPECT_GT(locked, 0);
}

TEST(DemoHouseOutputs, OfDimmersStartAtTenToNinetyPercent) {
  for (const int kind : {1, 11}) {
    const ImageFile& file = FileOfKind(kind);
    for (int channel = 0; channel < 4; ++channel) {
      EXPECT_GE(file.At(123 + channel), 1) << file.name;
      EXPECT_LE(file.At(123 + channel), 9) << file.name;
    }
  }
}

}  // namespace
}  // namespace demo_house_test
