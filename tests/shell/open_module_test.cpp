// What opening a configuration file does to tables, flags, path and title, and what a file that
// cannot be opened leaves.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>

#include "image/file_lines.h"
#include "link/transfer.h"
#include "platform/runtime_error.h"
#include "shell/module_file.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

const std::string Path = "/house/a.BK1";

/// What a field shows and whether it can be used.
std::vector<std::string> WindowState() {
  std::vector<std::string> state = {MainWindow.title};
  for (const Field* field : MainWindow.fields) {
    std::string text = field->name + " " + field->caption;
    if (const auto* list = dynamic_cast<const ListField*>(field)) text += " " + list->Text();
    if (const auto* picture = dynamic_cast<const PictureField*>(field)) text += picture->file;
    state.push_back(text + (field->enabled ? " enabled" : "") + (field->visible ? " visible" : ""));
  }
  return state;
}

class OpenModuleTest : public SessionTest {
 protected:
  void Open(const std::string& content) {
    files.content[Path] = content;
    OpenModule(Path);
  }
};

class OpenKindTest : public OpenModuleTest, public testing::WithParamInterface<int> {
 protected:
  const int kind = GetParam();

  /// The cells beside the tables that an open of this kind sets.
  Names Values() const {
    static const std::map<int, Names> flags = {
        {2,
         {"TempImage1Loaded", "TempImage2Loaded", "TempHeaderDirty", "TempRoomsDirty",
          "TempProgramDirty", "TempRoomCount"}},
        {3,
         {"LcdScreen1Loaded", "LcdScreen2Loaded", "LcdWeekdayLoaded", "LcdScreen1Dirty",
          "LcdScreen2Dirty", "LcdWeekdayDirty", "LcdHeaderDirty"}},
        {9,
         {"MasterContextsLoaded", "MasterTimeLoaded", "MasterLightLoaded", "MasterBaseDirty",
          "MasterContextsDirty", "MasterTimeDirty", "MasterLightDirty"}},
    };
    Names names = flags.contains(kind) ? flags.at(kind) : Names{};
    names.insert(names.end(), {"ActiveModuleType", "CurrentFilePath"});
    return names;
  }
};

TEST_P(OpenKindTest, FillsItsTablesSetsItsFlagsAndNothingElse) {
  Start();
  const Snapshot before = TakeSnapshot();
  Open(FileOf(kind));
  Names changed = RangesInFile(kind);
  const Names values = Values();
  changed.insert(changed.end(), values.begin(), values.end());
  ExpectOnlyChanged(before, changed);
  EXPECT_EQ(ActiveModuleType, Cell(kind));
  EXPECT_EQ(CurrentFilePath, Cell(Path));
  for (const Flag& flag : StartUpFlags) {
    const bool set = std::find(values.begin(), values.end(), flag.name) != values.end();
    EXPECT_EQ(*flag.cell, Cell(set ? 1 : 0)) << flag.name;
  }
  int number = 0;
  for (const Cell* cell : CellsInFile(kind)) ASSERT_EQ(*cell, Cell(ValueInLine(number++)));
}

TEST_P(OpenKindTest, LeavesTheFlagsOfOtherKindsAsTheyAre) {
  Start();
  for (const Flag& flag : StartUpFlags) *flag.cell = 5;
  Open(FileOf(kind));
  const Names values = Values();
  for (const Flag& flag : StartUpFlags) {
    const bool set = std::find(values.begin(), values.end(), flag.name) != values.end();
    EXPECT_EQ(*flag.cell, Cell(set ? 1 : 5)) << flag.name;
  }
}

TEST_P(OpenKindTest, TheNextConnectTakesItsKindAndNoOther) {
  Start();
  for (const int other : AllKinds) {
    messages.told.clear();
    Open(FileOf(kind));
    Plug(other);
    ReadModule();
    EXPECT_EQ(ActiveModuleType, Cell(kind));
    EXPECT_EQ(messages.told.size(), other == kind ? 0U : 1U) << other;
    EXPECT_TRUE(AllVisibleActionsEnabled());
  }
}

TEST_P(OpenKindTest, OpenedOverAReadModuleOfAnotherKindTheNextConnectRefusesTheOldOne) {
  Start();
  const int read = kind == 5 ? 0 : 5;
  Plug(read);
  ReadModule();
  Open(FileOf(kind));
  const Snapshot opened = TakeSnapshot();
  ReadModule();
  EXPECT_EQ(messages.told, Names{"De gevonden module is niet van het juiste type !"});
  EXPECT_EQ(ActiveModuleType, Cell(kind));
  const Snapshot refused = TakeSnapshot();
  for (const Table* table : AllTables) {
    for (int index = 0; index < table->Size(); ++index) {
      const std::string name = std::string(table->name) + "[" + std::to_string(index) + "]";
      ASSERT_EQ(refused.at(name), opened.at(name)) << name;
    }
  }
}

TEST_P(OpenKindTest, HidesTheBarOfAReadThatEndedShort) {
  Start();
  Plug(kind, virtual_module::Fault::ShortStream);
  ReadModule();
  ASSERT_TRUE(MainWindow.transferBar.visible);
  Open(FileOf(kind));
  EXPECT_FALSE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

TEST_P(OpenKindTest, AFileThatIsTooShortIsToldWithPathAndLineAndChangesNothing) {
  for (const int language : {1, 2}) {
    Start(language);
    Plug(kind == 5 ? 0 : 5);
    ReadModule();
    Open(FileOf(0));
    const int lines = FileRowOf(kind).lines - 1;
    const std::string shortPath = "/house/short.BK1";
    files.content[shortPath] = FileOfLines(" " + std::to_string(kind) + " ", lines);
    const Snapshot before = TakeSnapshot();
    const auto window = WindowState();
    try {
      OpenModule(shortPath);
      FAIL() << "the file is taken";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::FileTooShort);
      const std::string place = error.what();
      EXPECT_EQ(place,
                shortPath + (language == 1 ? ", regel " : ", ligne ") + std::to_string(lines + 2));
    }
    ExpectOnlyChanged(before, {});
    EXPECT_EQ(WindowState(), window);
    MainWindow.nieuw.Click();
  }
}

TEST_P(OpenKindTest, AFailedOpenWithoutAnImageLeavesTheEmptyWindow) {
  Start();
  const Snapshot before = TakeSnapshot();
  const auto window = WindowState();
  EXPECT_THROW(Open(FileOfLines(" " + std::to_string(kind) + " ", 10)), RuntimeError);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(WindowState(), window);
  EXPECT_FALSE(MainWindow.send.enabled);
}

INSTANTIATE_TEST_SUITE_P(Kinds, OpenKindTest, testing::ValuesIn(AllKinds),
                         [](const auto& test) { return "kind" + std::to_string(test.param); });

TEST_F(OpenModuleTest, TheNumberOfRoomsIsThatOfTheHeader) {
  Start();
  Open(FileOf(2, [](int each) { return each == 1 ? 6 : 1; }));
  EXPECT_EQ(TempRoomCount, Cell(6));
}

TEST_F(OpenModuleTest, TheNumberOfRoomsIsLeftByEveryOtherKind) {
  Start();
  TempRoomCount = 3;
  for (const int kind : AllKinds) {
    if (kind == 2) continue;
    Open(FileOf(kind));
    EXPECT_EQ(TempRoomCount, Cell(3)) << kind;
  }
}

TEST_F(OpenModuleTest, AFileThatIsMissingIsToldWithItsPathAndChangesNothing) {
  Start();
  Open(FileOf(9));
  const Snapshot before = TakeSnapshot();
  const auto window = WindowState();
  try {
    OpenModule("/house/gone.BK1");
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::FileNotRead);
    EXPECT_NE(std::string(error.what()).find("/house/gone.BK1"), std::string::npos);
  }
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(WindowState(), window);
}

TEST_F(OpenModuleTest, AnEmptyFileIsToldAndChangesNothing) {
  Start();
  Open(FileOf(5));
  const Snapshot before = TakeSnapshot();
  const auto window = WindowState();
  EXPECT_THROW(Open(""), RuntimeError);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(WindowState(), window);
}

TEST_F(OpenModuleTest, AFailedOpenLeavesTheManualThatIsShown) {
  Start();
  Open(FileOf(2));
  MainWindow.moreInfo.Click();
  const Snapshot before = TakeSnapshot();
  const auto window = WindowState();
  EXPECT_THROW(Open(" 2 \r\n"), RuntimeError);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(WindowState(), window);
}

TEST_F(OpenModuleTest, ASecondOpenOfTheSameFileBringsItBack) {
  Start();
  Open(FileOf(7));
  const Snapshot opened = TakeSnapshot();
  SimulationImage[3] = "x";
  SimulationImage[121] = Cell();
  OpenModule(Path);
  EXPECT_EQ(TakeSnapshot(), opened);
}

TEST_F(OpenModuleTest, AnOpenBehindADisplaysTableWaitsForNoLastLine) {
  Start();
  Plug(3);
  ReadModule();
  StartRequest("T81000");
  FinishTransfer();
  Open(FileOf(3));
  const Snapshot before = TakeSnapshot();
  const auto window = WindowState();
  clock.Advance(1000);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(WindowState(), window);
}

struct UnknownRow {
  const char* name;
  const char* line;
  Cell type;
};

/// In the names and messages of the tests.
void PrintTo(const UnknownRow& row, std::ostream* out) {
  *out << row.name;
}

class OpenUnknownTest : public OpenModuleTest, public testing::WithParamInterface<UnknownRow> {
 protected:
  const UnknownRow& row = GetParam();
};

TEST_P(OpenUnknownTest, FillsTheTableOfARelayModuleAndSetsNoFlag) {
  Start();
  ActiveModuleType = 5;
  const Snapshot before = TakeSnapshot();
  Open(FileOfLines(row.line, 164));
  ExpectOnlyChanged(before, {"ButtonImage[0..163]", "ActiveModuleType", "CurrentFilePath"});
  EXPECT_EQ(ActiveModuleType, row.type);
}

TEST_P(OpenUnknownTest, IsInEditModeAndChangesNeitherGroupNorCaptionNorPicture) {
  Start();
  Open(FileOf(5));
  Open(FileOfLines(row.line, 164));
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(MainWindow.alarm.frame.visible);
  EXPECT_FALSE(MainWindow.general.frame.visible);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7160");
  EXPECT_EQ(MainWindow.moduleCaption.caption, "Alarmmodule");
  EXPECT_EQ(MainWindow.picture.file, "alarm.bmp");
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  " + Path);
  EXPECT_TRUE(MainWindow.send.enabled);
  EXPECT_TRUE(MainWindow.connect.enabled);
  EXPECT_TRUE(MainWindow.Bewaren.Usable());
  EXPECT_TRUE(MainWindow.Bewaren_als.Usable());
}

TEST_P(OpenUnknownTest, OffersNothingToEdit) {
  Start();
  Open(FileOf(5));
  Open(FileOfLines(row.line, 164));
  for (const auto& button : MainWindow.actionButtons) EXPECT_FALSE(button->Usable());
  const Snapshot before = TakeSnapshot();
  for (DataGroupFields* group : {&MainWindow.general, &MainWindow.displayTemperature,
                                 &MainWindow.alarm, &MainWindow.special}) {
    group->address.Pick(3);
    group->address.Type("x");
  }
  MainWindow.detectorCount.Pick(3);
  MainWindow.roomCount.Pick(3);
  ExpectOnlyChanged(before, {});
}

TEST_P(OpenUnknownTest, CanBeSavedUnderItsOwnNameAsItWas) {
  Start();
  const std::string file = FileOfLines(row.type.PrintForm(), 164);
  Open(file);
  files.content[Path] = "old";
  MainWindow.Bewaren.Click();
  EXPECT_EQ(files.content[Path], file);
  MainWindow.Bewaren_als.Click();
  EXPECT_EQ(messages.told, Names{"Niet alles ingeladen!"});
}

TEST_P(OpenUnknownTest, TakesNoModuleUnlessItMeansNone) {
  Start();
  for (const int kind : AllKinds) {
    messages.told.clear();
    Open(FileOfLines(row.line, 164));
    Plug(kind);
    ReadModule();
    const bool none = row.type == Cell(99);
    EXPECT_EQ(messages.told.size(), none ? 0U : 1U) << kind;
    EXPECT_EQ(ActiveModuleType, none ? Cell(kind) : row.type) << kind;
  }
}

INSTANTIATE_TEST_SUITE_P(Types, OpenUnknownTest,
                         testing::ValuesIn(std::vector<UnknownRow>{
                             {"ten", " 10 ", 10},
                             {"none", " 99 ", 99},
                             {"negative", "-1 ", -1},
                             {"fraction", " 1.5 ", 1.5},
                             {"word", "abc", "abc"},
                             {"empty", "", Cell()},
                         }),
                         [](const auto& test) { return test.param.name; });

TEST_F(OpenModuleTest, ASendOfAnUnknownTypeIsRefusedByEveryModule) {
  Start();
  for (const char* type : {" 10 ", "-1 ", " 1.5 ", "abc", " 99 "}) {
    messages.told.clear();
    auto& module = Plug(0);
    const auto memory = module.memory();
    Open(FileOfLines(type, 164));
    SendToModule();
    EXPECT_EQ(messages.told.size(), 1U) << type;
    EXPECT_EQ(module.memory(), memory) << type;
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  }
}

}  // namespace
}  // namespace bkconf
