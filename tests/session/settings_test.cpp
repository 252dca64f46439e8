#include "session/settings.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/session_test.h"

namespace bkconf {
namespace {

/// The value of a flag that is set.
const Cell Set = 1;

/// Notes which file was read when, by name.
class WatchedFiles : public FakeFiles {
 public:
  std::optional<std::string> Read(const std::string& path) const override {
    reads.push_back(path.substr(path.find_last_of("/\\") + 1));
    return FakeFiles::Read(path);
  }
  int ReadsOf(const std::string& name) const {
    return static_cast<int>(std::count(reads.begin(), reads.end(), name));
  }
  mutable std::vector<std::string> reads;
};

const std::vector<std::string> Names = {"country.vdm", "port.vdm", "pc.vdm", "directory.vdm"};

class SettingsTest : public SessionTest {
 protected:
  SettingsTest() {
    FileSystem = &watched;
    Put("country.vdm", " 2 \r\n");
    Put("port.vdm", "4\r\n");
    Put("pc.vdm", "2000\r\n");
    Put("directory.vdm", "c:\\house\r\n");
  }

  void Put(const std::string& name, const std::string& content) {
    watched.content[SettingsPath(name)] = content;
  }
  void Take(const std::string& name) { watched.content.erase(SettingsPath(name)); }

  void Begin() {
    StartSession([this] { ++started; },
                 [this](const std::string& path) { awaited.push_back(path); });
  }

  WatchedFiles watched;
  int started = 0;
  std::vector<std::string> awaited;
};

TEST_F(SettingsTest, AreReadInTheirOrderAndOnce) {
  Begin();
  EXPECT_EQ(watched.reads, Names);
  EXPECT_EQ(started, 1);
  EXPECT_TRUE(awaited.empty());
}

TEST_F(SettingsTest, EachFileFillsItsOwnValue) {
  const Snapshot before = TakeSnapshot();
  for (const Setting& setting : Settings) ASSERT_TRUE(ReadSetting(setting)) << setting.file;
  ExpectOnlyChanged(before, {"Language", "PortNumber", "CharDelayCount", "DefaultDirectory"});
  EXPECT_EQ(Language, Cell(2));
  EXPECT_EQ(PortNumber, Cell(4));
  EXPECT_EQ(CharDelayCount, Cell(2000));
  EXPECT_EQ(DefaultDirectory, Cell("c:\\house"));
}

TEST_F(SettingsTest, LieInTheSettingsDirectory) {
  SettingsDirectory = "somewhere";
  const std::string path = SettingsPath("port.vdm");
  EXPECT_EQ(path.substr(0, 9), "somewhere");
  EXPECT_EQ(path.substr(10), "port.vdm");
  EXPECT_TRUE(path[9] == '/' || path[9] == '\\');
}

TEST_F(SettingsTest, FlagsAndKindAreSetBackBeforeTheFirstFileIsRead) {
  for (const Flag& flag : StartUpFlags) *flag.cell = Set;
  ActiveModuleType = 5;
  Take("country.vdm");
  Begin();
  EXPECT_EQ(started, 0);
  for (const Flag& flag : StartUpFlags) EXPECT_EQ(*flag.cell, Cell(0)) << flag.name;
  EXPECT_EQ(ActiveModuleType, Cell(99));
}

TEST_F(SettingsTest, TheStartStopsNoLaterTryAfterIt) {
  Begin();
  clock.Advance(10'000);
  EXPECT_EQ(started, 1);
  EXPECT_EQ(watched.reads.size(), 4U);
}

class MissingSettingTest : public SettingsTest, public testing::WithParamInterface<std::string> {
 protected:
  MissingSettingTest() { Take(GetParam()); }

  bool IsCountry() const { return GetParam() == "country.vdm"; }
};

TEST_P(MissingSettingTest, IsTriedAgainEvery100MillisecondsWithoutLimit) {
  Begin();
  // Each try rereads the country, which is the missing file itself once.
  const int readsATry = IsCountry() ? 2 : 1;
  clock.Advance(99);
  EXPECT_EQ(watched.ReadsOf(GetParam()), 1);
  clock.Advance(1);
  EXPECT_EQ(watched.ReadsOf(GetParam()), 1 + readsATry);
  clock.Advance(600'000 - 100);
  EXPECT_EQ(watched.ReadsOf(GetParam()), 1 + 6000 * readsATry);
  EXPECT_EQ(started, 0);
}

TEST_P(MissingSettingTest, IsToldOnceByItsPathAndInNoMessage) {
  Begin();
  clock.Advance(10'000);
  EXPECT_EQ(awaited, std::vector<std::string>{SettingsPath(GetParam())});
  EXPECT_TRUE(messages.told.empty());
}

TEST_P(MissingSettingTest, NoFileBehindItIsReadAndNoneIsMade) {
  const auto content = watched.content;
  Begin();
  clock.Advance(1000);
  const auto missing = std::find(Names.begin(), Names.end(), GetParam());
  for (auto name = missing + 1; name != Names.end(); ++name) {
    EXPECT_EQ(watched.ReadsOf(*name), 0) << *name;
  }
  EXPECT_EQ(watched.content, content);
}

TEST_P(MissingSettingTest, TheStartGoesOnWhenItAppears) {
  const std::string content = std::string(IsCountry() ? "2" : "3") + "\r\n";
  Begin();
  clock.Advance(1000);
  Put(GetParam(), content);
  EXPECT_EQ(started, 0);
  clock.Advance(100);
  EXPECT_EQ(started, 1);
  const auto row = std::find_if(Settings.begin(), Settings.end(),
                                [](const Setting& each) { return each.file == GetParam(); });
  EXPECT_EQ(row->value->Text(), content.substr(0, 1));
  clock.Advance(10'000);
  EXPECT_EQ(started, 1);
}

TEST_P(MissingSettingTest, StepsThatWereDoneAreNotRepeated) {
  Begin();
  clock.Advance(1000);
  Put(GetParam(), "1\r\n");
  clock.Advance(100);
  ASSERT_EQ(started, 1);
  for (const std::string& name : Names) {
    if (name == "country.vdm" || name == GetParam()) continue;
    EXPECT_EQ(watched.ReadsOf(name), 1) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, MissingSettingTest, testing::ValuesIn(Names), [](const auto& file) {
  return file.param.substr(0, file.param.find('.'));
});

TEST_F(SettingsTest, TheCountryIsReadAgainBeforeEachTry) {
  Take("pc.vdm");
  Begin();
  watched.reads.clear();
  clock.Advance(200);
  EXPECT_EQ(watched.reads,
            (std::vector<std::string>{"country.vdm", "pc.vdm", "country.vdm", "pc.vdm"}));
}

TEST_F(SettingsTest, ACountryThatChangesBetweenTwoTriesCounts) {
  Take("pc.vdm");
  Begin();
  EXPECT_EQ(Language, Cell(2));
  Put("country.vdm", "1\r\n");
  clock.Advance(100);
  EXPECT_EQ(Language, Cell(1));
}

TEST_F(SettingsTest, ACountryThatVanishesBetweenTwoTriesStopsNothing) {
  Take("pc.vdm");
  Begin();
  Take("country.vdm");
  clock.Advance(500);
  EXPECT_EQ(Language, Cell(2));
  Put("pc.vdm", "5\r\n");
  clock.Advance(100);
  EXPECT_EQ(started, 1);
  EXPECT_EQ(awaited, std::vector<std::string>{SettingsPath("pc.vdm")});
}

TEST_F(SettingsTest, SeveralMissingFilesAreWaitedForAndToldOneAfterTheOther) {
  for (const std::string& name : Names) Take(name);
  Begin();
  for (const std::string& name : Names) {
    clock.Advance(1000);
    EXPECT_EQ(started, 0) << name;
    Put(name, "1\r\n");
    clock.Advance(100);
  }
  EXPECT_EQ(started, 1);
  std::vector<std::string> paths;
  for (const std::string& name : Names) paths.push_back(SettingsPath(name));
  EXPECT_EQ(awaited, paths);
}

TEST_F(SettingsTest, AFileOfNoBytesIsStillBeingWrittenAndIsTriedAgain) {
  for (const char* name : {"country.vdm", "port.vdm", "pc.vdm"}) {
    started = 0;
    Put(name, "");
    Begin();
    clock.Advance(1000);
    EXPECT_EQ(started, 0) << name;
    Put(name, "1\r\n");
    clock.Advance(100);
    EXPECT_EQ(started, 1) << name;
  }
}

TEST_F(SettingsTest, ADirectoryFileOfNoBytesIsAnEmptyDirectory) {
  Put("directory.vdm", "");
  Begin();
  EXPECT_EQ(started, 1);
  EXPECT_EQ(DefaultDirectory.Text(), "");
}

TEST_F(SettingsTest, AnEmptyLineIsAnEmptyValue) {
  for (const std::string& name : Names) Put(name, "\r\n");
  Begin();
  EXPECT_EQ(started, 1);
  EXPECT_EQ(Language.Number(), 0);
  EXPECT_EQ(PortNumber.Number(), 0);
  EXPECT_EQ(CharDelayCount.Number(), 0);
  EXPECT_EQ(DefaultDirectory.Text(), "");
}

struct LineRow {
  const char* content;
  const char* value;
};

TEST_F(SettingsTest, ADirectoryIsTheFirstLineWithoutItsLeadingBlanks) {
  constexpr LineRow rows[] = {
      {"c:\\house\r\n", "c:\\house"},
      {"c:\\house\n", "c:\\house"},
      {"c:\\house", "c:\\house"},
      {"   c:\\house\r\n", "c:\\house"},
      {"c:\\my house\r\n", "c:\\my house"},
      {"c:\\house \r\n", "c:\\house "},
      {"c:\\house, the second\r\n", "c:\\house, the second"},
      {"\"c:\\house\"\r\n", "\"c:\\house\""},
      {"c:\\house\r\nsecond line\r\n", "c:\\house"},
      {"c:\\house\nsecond line\n", "c:\\house"},
      {"07\r\n", "07"},
      {"   \r\n", ""},
      {"\r\nsecond line\r\n", ""},
  };
  for (const LineRow& row : rows) {
    Put("directory.vdm", row.content);
    ASSERT_TRUE(ReadSetting(Settings.back()));
    EXPECT_EQ(DefaultDirectory, Cell(row.value)) << row.content;
  }
}

struct NumberRow {
  const char* content;
  double value;
};

TEST_F(SettingsTest, ANumberIsTheFirstLineWithBlanksAround) {
  constexpr NumberRow rows[] = {
      {" 2 \r\n", 2}, {"2\r\n", 2},     {"2\n", 2},     {"2", 2},
      {"   2", 2},    {"02\r\n", 2},    {"-1\r\n", -1}, {"2\r\n3\r\n", 2},
      {"x\r\n", 0},   {"2x\r\n", 0},    {"1,2\r\n", 0}, {"2000000000000\r\n", 2e12},
      {"two\r\n", 0}, {"\"2\"\r\n", 0},
  };
  for (const NumberRow& row : rows) {
    Put("pc.vdm", row.content);
    ASSERT_TRUE(ReadSetting(Settings[2]));
    EXPECT_EQ(CharDelayCount, Cell(row.value)) << row.content;
  }
}

TEST_F(SettingsTest, APortThatIsNoNumberOrOutOfRangeIsNoReasonToWait) {
  for (const char* port : {"x\r\n", "9\r\n", "0\r\n", "-1\r\n"}) {
    started = 0;
    Put("port.vdm", port);
    Begin();
    EXPECT_EQ(started, 1) << port;
  }
}

TEST_F(SettingsTest, AFileThatCannotBeReadLeavesItsValue) {
  Begin();
  for (const std::string& name : Names) Take(name);
  const Snapshot before = TakeSnapshot();
  for (const Setting& setting : Settings) EXPECT_FALSE(ReadSetting(setting)) << setting.file;
  ExpectOnlyChanged(before, {});
}

TEST_F(SettingsTest, TheLanguageIsStoredAsANumberLine) {
  Language = 1;
  StoreLanguage();
  EXPECT_EQ(watched.content.at(SettingsPath("country.vdm")), "\x20\x31\x20\x0D\x0A");
  Language = 2;
  StoreLanguage();
  EXPECT_EQ(watched.content.at(SettingsPath("country.vdm")), "\x20\x32\x20\x0D\x0A");
}

TEST_F(SettingsTest, ThePortNumberIsStoredAsABareDigit) {
  for (int number = 1; number <= 8; ++number) {
    PortNumber = number;
    StorePortNumber();
    EXPECT_EQ(watched.content.at(SettingsPath("port.vdm")), std::to_string(number) + "\r\n");
  }
}

TEST_F(SettingsTest, WhatIsStoredIsReadBack) {
  Language = 1;
  PortNumber = 7;
  StoreLanguage();
  StorePortNumber();
  Begin();
  EXPECT_EQ(Language, Cell(1));
  EXPECT_EQ(PortNumber, Cell(7));
}

TEST_F(SettingsTest, StoringOneSettingTouchesNoOtherFile) {
  auto expected = watched.content;
  PortNumber = 3;
  StorePortNumber();
  expected[SettingsPath("port.vdm")] = "3\r\n";
  EXPECT_EQ(watched.content, expected);
}

}  // namespace
}  // namespace bkconf
