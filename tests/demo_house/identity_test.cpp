// Who is who: names, letters, versions, and the master's list of all others.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "demo_house/house_files.h"

namespace demo_house_test {
namespace {

TEST(DemoHouseIdentity, IsTheNameThatTheToolProposes) {
  const std::map<int, std::string> prefixes = {
      {0, "Relais "},    {4, "Relais_DC "}, {1, "Dimmer "}, {11, "Dimmer "},
      {2, "Temp "},      {3, "LCD "},       {5, "Alarm "},  {6, "Audio "},
      {7, "Simulatie "}, {8, "I.R. "},      {9, "Master"}};
  for (const ImageFile& file : House()) {
    const int cell = AddressCell(file.Kind());
    const std::string letter = cell < 0 ? "" : std::string(1, static_cast<char>(file.At(cell)));
    EXPECT_EQ(file.name, prefixes.at(file.Kind()) + letter + ".BK1");
  }
}

TEST(DemoHouseIdentity, HasALetterOfItsOwn) {
  std::set<int> letters;
  for (const ImageFile& file : House()) {
    const int cell = AddressCell(file.Kind());
    if (cell < 0) {
      continue;
    }
    EXPECT_GE(file.At(cell), 'A') << file.name;
    EXPECT_LE(file.At(cell), 'R') << file.name;
    EXPECT_TRUE(letters.insert(file.At(cell)).second) << file.name;
  }
  EXPECT_EQ(letters.size(), 10U);
}

TEST(DemoHouseIdentity, HasAVersionOfTwoDigits) {
  for (const ImageFile& file : House()) {
    const int version = file.At(VersionCell(file.Kind()));
    EXPECT_GE(version, 10) << file.name;
    EXPECT_LE(version, 99) << file.name;
  }
}

TEST(DemoHouseIdentity, StandsInTheListOfTheMaster) {
  std::map<int, int> expected;
  for (const ImageFile& file : House()) {
    if (const int cell = AddressCell(file.Kind()); cell >= 0) {
      expected[file.At(cell)] = file.Kind();
    }
  }
  const ImageFile& file = FileOfKind(9);
  std::map<int, int> listed;
  int row = 0;
  for (; row < 18 && file.At(123 + row) != 42; ++row) {
    EXPECT_TRUE(listed.emplace(file.At(123 + row), file.At(141 + row)).second) << "row " << row + 1;
  }
  EXPECT_EQ(listed, expected);
  for (; row < 18; ++row) {
    EXPECT_EQ(file.At(123 + row), 42) << "row " << row + 1;
    EXPECT_EQ(file.At(141 + row), 42) << "row " << row + 1;
  }
}

}  // namespace
}  // namespace demo_house_test
