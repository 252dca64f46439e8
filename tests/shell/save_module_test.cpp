// Saving: names and paths, a save that fails, what may be saved, and the names that are proposed.
#include <gtest/gtest.h>

#include <map>

#include "image/configuration_file.h"
#include "image/file_lines.h"
#include "link/transfer.h"
#include "platform/runtime_error.h"
#include "shell/module_file.h"
#include "shell/save_dialog.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

const std::string Path = "/house/a.BK1";

class SaveModuleTest : public SessionTest {
 protected:
  void Open(int kind) {
    files.content[Path] = FileOf(kind);
    OpenModule(Path);
  }
  /// The names of all files in the directory.
  Names Saved() const { return directories.FilesIn("/house", ""); }
  const std::string& Content(const std::string& name) { return files.content.at("/house/" + name); }
};

TEST_F(SaveModuleTest, ANameGetsTheExtension) {
  Start();
  Plug(0);
  ReadModule();
  SaveModuleAs("/house", "Relais A");
  EXPECT_EQ(Saved(), Names{"Relais A.BK1"});
  EXPECT_EQ(Content("Relais A.BK1"), PrintConfiguration(0));
  EXPECT_EQ(CurrentFilePath, Cell("/house/Relais A.BK1"));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/Relais A.BK1");
  EXPECT_TRUE(MainWindow.Bewaren.Usable());
  EXPECT_TRUE(MainWindow.Bewaren_als.Usable());
}

TEST_F(SaveModuleTest, ANameTypedWithItsExtensionGivesThatFileAndAPathThatHasItTwice) {
  Start();
  Plug(0);
  ReadModule();
  SaveModuleAs("/house", "Relais A.BK1");
  EXPECT_EQ(Saved(), Names{"Relais A.BK1"});
  EXPECT_EQ(CurrentFilePath, Cell("/house/Relais A.BK1.BK1"));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/Relais A.BK1.BK1");
}

TEST_F(SaveModuleTest, ALaterSaveGoesToThePathThatHasItTwice) {
  Start();
  Plug(0);
  ReadModule();
  SaveModuleAs("/house", "Relais A.BK1");
  const std::string first = Content("Relais A.BK1");
  ButtonImage[0] = 77;
  MainWindow.Bewaren.Click();
  EXPECT_EQ(Saved(), (Names{"Relais A.BK1", "Relais A.BK1.BK1"}));
  EXPECT_EQ(Content("Relais A.BK1"), first);
  EXPECT_EQ(Content("Relais A.BK1.BK1"), PrintConfiguration(0));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/Relais A.BK1.BK1");
}

TEST_F(SaveModuleTest, TheExtensionIsTestedLetterForLetter) {
  const std::map<std::string, std::string> names = {
      {"x.bk1", "x.bk1.BK1"}, {"x.Bk1", "x.Bk1.BK1"}, {"x.BK1 ", "x.BK1 .BK1"},  {"BK1", "BK1.BK1"},
      {"xBK1", "xBK1.BK1"},   {".BK1", ".BK1"},       {"x.BK1.BK1", "x.BK1.BK1"}};
  Start();
  Open(0);
  for (const auto& [typed, file] : names) {
    files.content.clear();
    SaveModuleAs("/house", typed);
    EXPECT_EQ(Saved(), Names{file});
    EXPECT_EQ(CurrentFilePath, Cell("/house/" + typed + ".BK1"));
  }
}

TEST_F(SaveModuleTest, DirectoryAndNameAreJoinedAsTheyStand) {
  Start();
  Open(0);
  SaveModuleAs("/", "x");
  EXPECT_TRUE(files.content.contains("//x.BK1"));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  //x.BK1");
}

TEST_F(SaveModuleTest, AFileThatIsThereIsOverwrittenWithoutAQuestion) {
  Start();
  Open(0);
  files.content["/house/b.BK1"] = "old";
  SaveModuleAs("/house", "b");
  EXPECT_EQ(Content("b.BK1"), FileOf(0));
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(SaveModuleTest, SavingChangesNoCellButThePath) {
  Start();
  Open(9);
  const Snapshot before = TakeSnapshot();
  SaveModuleAs("/house", "b");
  ExpectOnlyChanged(before, {"CurrentFilePath"});
  const Snapshot after = TakeSnapshot();
  MainWindow.Bewaren.Click();
  ExpectOnlyChanged(after, {});
  EXPECT_EQ(Content("b.BK1"), FileOf(9));
}

TEST_F(SaveModuleTest, ASaveUnderAnotherNameLeavesTheOpenedFile) {
  Start();
  Open(7);
  SimulationImage[0] = 42;
  SaveModuleAs("/house", "b");
  EXPECT_EQ(Content("a.BK1"), FileOf(7));
  EXPECT_EQ(Content("b.BK1"), PrintConfiguration(7));
  EXPECT_EQ(CurrentFilePath, Cell("/house/b.BK1"));
}

TEST_F(SaveModuleTest, ASaveThatFailsIsToldAndKeepsImagePathTitleAndMenus) {
  Start();
  Plug(0);
  ReadModule();
  files.full = true;
  const Snapshot before = TakeSnapshot();
  try {
    SaveModuleAs("/house", "b");
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::FileNotWritten);
    EXPECT_NE(std::string(error.what()).find("/house/b.BK1"), std::string::npos);
  }
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  EXPECT_TRUE(MainWindow.Bewaren_als.enabled);
}

TEST_F(SaveModuleTest, ASaveToTheSamePathThatFailsKeepsImagePathTitleAndMenus) {
  Start();
  Open(3);
  LcdScreen1[0] = "x";
  files.full = true;
  const Snapshot before = TakeSnapshot();
  EXPECT_THROW(MainWindow.Bewaren.Click(), RuntimeError);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/a.BK1");
  EXPECT_EQ(Content("a.BK1"), FileOf(3));
  files.full = false;
  MainWindow.Bewaren.Click();
  EXPECT_EQ(Content("a.BK1"), PrintConfiguration(3));
}

/// The state of the two entries: save, and save under another name.
std::pair<bool, bool> Entries() {
  return {MainWindow.Bewaren.Usable(), MainWindow.Bewaren_als.Usable()};
}

TEST_F(SaveModuleTest, TheEntriesAreUsableAsTheSessionGoes) {
  using State = std::pair<bool, bool>;
  Start();
  EXPECT_EQ(Entries(), State(false, false));
  Plug(0);
  MainWindow.connect.Click();
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  EXPECT_TRUE(MainWindow.Bewaren_als.enabled);
  EXPECT_EQ(Entries(), State(false, false));  // as all of the menu during a transfer
  FinishTransfer();
  EXPECT_EQ(Entries(), State(false, true));
  SaveModuleAs("/house", "a");
  EXPECT_EQ(Entries(), State(true, true));
  ReadModule();
  EXPECT_EQ(Entries(), State(false, true));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  OpenModule(Path);
  EXPECT_EQ(Entries(), State(true, true));
  SendToModule();
  EXPECT_EQ(Entries(), State(true, true));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/a.BK1");
  MainWindow.nieuw.Click();
  EXPECT_EQ(Entries(), State(false, false));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
}

TEST_F(SaveModuleTest, ASaveBehindANewIsNotPossible) {
  Start();
  Open(0);
  files.content[Path] = "old";
  MainWindow.nieuw.Click();
  MainWindow.Bewaren.Click();
  EXPECT_EQ(Content("a.BK1"), "old");
}

TEST_F(SaveModuleTest, AfterARefusedConnectAnOpenedImageWithTablesOnDemandCannotBeSaved) {
  for (const int kind : {2, 3, 9}) {
    Start();
    Open(kind);
    Plug(0);
    ReadModule();
    messages.told.clear();
    EXPECT_FALSE(MainWindow.Bewaren.enabled);
    MainWindow.Bewaren_als.Click();
    EXPECT_EQ(messages.told, Names{"Niet alles ingeladen!"}) << kind;
    EXPECT_FALSE(SaveDialog.shown);
  }
}

class SaveGuardTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  const int language = GetParam();

  void ExpectGuard(bool passes, const std::string& what) {
    messages.told.clear();
    SaveDialog.shown = false;
    MainWindow.Bewaren_als.enabled = true;
    const auto written = files.content;
    MainWindow.Bewaren_als.Click();
    EXPECT_EQ(SaveDialog.shown, passes) << what;
    const Names told = {language == 1 ? "Niet alles ingeladen!" : "Chargement incomplet!"};
    EXPECT_EQ(messages.told, passes ? Names{} : told) << what;
    EXPECT_EQ(files.content, written);
  }
};

TEST_P(SaveGuardTest, ImagesOfOneTableAreAlwaysWhole) {
  Start(language);
  for (const int kind : {0, 1, 4, 5, 6, 7, 8, 11}) {
    ActiveModuleType = kind;
    ExpectGuard(true, "kind " + std::to_string(kind));
  }
}

TEST_P(SaveGuardTest, WithoutAnImageThereIsNothingToSave) {
  Start(language);
  for (const Flag& flag : StartUpFlags) *flag.cell = 1;
  for (const Cell& type : {Cell(99), Cell(10), Cell("abc"), Cell()}) {
    ActiveModuleType = type;
    ExpectGuard(false, "type " + type.Text());
  }
}

TEST_P(SaveGuardTest, EveryTableOnDemandHasToBeThere) {
  Start(language);
  const std::map<int, std::vector<Cell*>> kinds = {
      {2, {&TempImage1Loaded, &TempImage2Loaded}},
      {3, {&LcdScreen1Loaded, &LcdScreen2Loaded, &LcdWeekdayLoaded}},
      {9, {&MasterContextsLoaded, &MasterTimeLoaded, &MasterLightLoaded}}};
  for (const auto& [kind, flags] : kinds) {
    ActiveModuleType = kind;
    const std::string name = "kind " + std::to_string(kind);
    for (const Flag& flag : StartUpFlags) *flag.cell = 1;
    for (const Cell* flag : flags) {
      for (const Cell& value : {Cell(0), Cell(), Cell(2)}) {
        for (Cell* each : flags) *each = each == flag ? value : Cell(1);
        ExpectGuard(false, name);
      }
    }
    // The flags of other kinds, and those that tell what is changed, do not matter.
    for (const Flag& flag : StartUpFlags) *flag.cell = 0;
    for (Cell* each : flags) *each = 1;
    ExpectGuard(true, name);
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, SaveGuardTest, testing::Values(1, 2), [](const auto& test) {
  return std::string(test.param == 1 ? "dutch" : "french");
});

struct NameRow {
  int kind;
  const char* dutch;
  const char* french;
};

constexpr NameRow NameRows[] = {
    {0, "Relais K", "Relais K"},       {4, "Relais_DC K", "Relais_DC K"},
    {1, "Dimmer K", "Dimmer K"},       {11, "Dimmer K", "Dimmer K"},
    {2, "Temp K", "Temp K"},           {3, "LCD K", "LCD K"},
    {5, "Alarm K", "Alarme K"},        {6, "Audio K", "Audio K"},
    {7, "Simulatie K", "Simulatie K"}, {8, "I.R. K", "I.R. K"},
    {9, "Master", "Master"},
};

class ProposedNameTest : public SessionTest {
 protected:
  /// Puts a letter into the address cells of all kinds.
  static void PutAddress(const Cell& address) {
    for (Table* table : {&ButtonImage, &AlarmImage, &AudioImage, &SimulationImage, &IrImage}) {
      (*table)[121] = address;
    }
    TempHeader[0] = LcdHeader[0] = address;
  }
};

TEST_F(ProposedNameTest, IsAWordForTheKindAndTheAddressLetter) {
  for (const int language : {1, 2}) {
    Start(language);
    PutAddress('K');
    for (const NameRow& row : NameRows) {
      ActiveModuleType = row.kind;
      EXPECT_EQ(ProposedName(), language == 1 ? row.dutch : row.french);
    }
  }
}

TEST_F(ProposedNameTest, TakesTheLetterFromTheCellOfItsKind) {
  Start();
  const std::map<int, Cell*> cells = {{0, &ButtonImage[121]}, {1, &ButtonImage[121]},
                                      {4, &ButtonImage[121]}, {5, &AlarmImage[121]},
                                      {6, &AudioImage[121]},  {11, &ButtonImage[121]},
                                      {8, &IrImage[121]},     {7, &SimulationImage[121]},
                                      {2, &TempHeader[0]},    {3, &LcdHeader[0]}};
  for (const auto& [kind, cell] : cells) {
    PutAddress('K');
    *cell = 'B';
    ActiveModuleType = kind;
    EXPECT_EQ(ProposedName().back(), 'B') << kind;
  }
}

TEST_F(ProposedNameTest, TakesADigitTextAsTheCodeItReadsAs) {
  Start();
  PutAddress("75");
  ActiveModuleType = 0;
  EXPECT_EQ(ProposedName(), "Relais K");
}

}  // namespace
}  // namespace bkconf
