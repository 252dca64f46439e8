// What the main window shows when the session has started.
#include <gtest/gtest.h>

#include "image/tables.h"
#include "session/settings.h"
#include "shell/menus.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

std::vector<std::string> Letters() {
  return {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "O", "P", "Q", "R"};
}

std::vector<DataGroupFields*> AllGroups() {
  return {&MainWindow.general, &MainWindow.displayTemperature, &MainWindow.alarm,
          &MainWindow.special};
}

class MainWindowStartTest : public SessionTest {
 protected:
  /// Starts with a settings file of another content.
  void StartWith(const std::string& name, const std::string& content) {
    PutSettings();
    files.content[SettingsPath(name)] = content;
    StartSession(LoadMainWindow, [](const std::string&) {});
  }
};

/// Dutch and French.
class MainWindowLanguageTest : public MainWindowStartTest, public testing::WithParamInterface<int> {
 protected:
  MainWindowLanguageTest() { Start(GetParam()); }
  std::string In(const std::string& dutch, const std::string& french) const {
    return GetParam() == 1 ? dutch : french;
  }
};

TEST_P(MainWindowLanguageTest, TheTitleIsTheNameOfTheProgram) {
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_TRUE(MainWindow.shown);
}

TEST_P(MainWindowLanguageTest, TheCaptionsAreThoseOfTheLanguage) {
  EXPECT_EQ(MainWindow.actionGroup.caption, In("Actie:", "Action:"));
  EXPECT_EQ(MainWindow.connect.caption, In("Verbinden", "Connecter"));
  EXPECT_EQ(MainWindow.send.caption, In("Versturen", "Envoyer"));
  EXPECT_EQ(MainWindow.moduleListLabel.caption, "Module:");
  EXPECT_EQ(MainWindow.roomCountLabel.caption, In("Aantal ruimtes", "Nombre de pièces"));
  EXPECT_EQ(MainWindow.toleranceLabel.caption, In("Tolerantie", "Tolérance"));
  EXPECT_EQ(MainWindow.detectorCountLabel.caption, In("Aantal detectoren:", "Nombre détecteurs:"));
  EXPECT_EQ(MainWindow.moreInfo.caption, In("Meer info...", "Plus de données..."));
  EXPECT_EQ(MainWindow.infoInductive.caption, "Info KR7310");
  EXPECT_EQ(MainWindow.infoCapacitive.caption, "Info KR7320");
  EXPECT_EQ(MainWindow.infoAnalogue.caption, "KR7330/KR8330");
  for (const DataGroupFields* group : AllGroups()) {
    EXPECT_EQ(group->frame.caption, In("Module gegevens:", "Données module:"));
    EXPECT_EQ(group->addressLabel.caption, In("Adres module:", "Adresse module:"));
  }
}

TEST_P(MainWindowLanguageTest, TheMenusHaveTheirCaptions) {
  EXPECT_EQ(MainWindow.bestand.caption, In("Bestand", "Fichier"));
  EXPECT_EQ(MainWindow.nieuw.caption, In("&Nieuwe module", "Nouveau module"));
  EXPECT_EQ(MainWindow.openen.caption, In("Module &Openen ...", "Ouvrir module ..."));
  EXPECT_EQ(MainWindow.Bewaren.caption, In("Module Op&slaan", "Sauver module"));
  EXPECT_EQ(MainWindow.Bewaren_als.caption, In("Module Opslaan als ...", "Sauver module dans ..."));
  EXPECT_EQ(MainWindow.Einde.caption, In("E&xit", "Exit"));
  EXPECT_EQ(MainWindow.taal.caption, "Taal/langue");
  EXPECT_EQ(MainWindow.ned.caption, "&Nederlands");
  EXPECT_EQ(MainWindow.frans.caption, "&Francais");
  EXPECT_EQ(MainWindow.settings.caption, "Settings");
  EXPECT_EQ(MainWindow.poort.caption, "Com-port");
  EXPECT_EQ(MainWindow.instellingen.caption, "Preferences ...");
  EXPECT_EQ(MainWindow.Info.caption, "Info");
}

TEST_P(MainWindowLanguageTest, TheToleranceHasItsHint) {
  EXPECT_EQ(MainWindow.tolerance.toolTip, In("Zie 'Meer info' voor tolerantiewaardes.",
                                             "Voir 'Plus de données' pour valeurs tolérance."));
}

TEST_P(MainWindowLanguageTest, TheLanguageIsMarked) {
  EXPECT_EQ(MainWindow.ned.checked, GetParam() == 1);
  EXPECT_EQ(MainWindow.frans.checked, GetParam() == 2);
  EXPECT_TRUE(MainWindow.ned.checkable);
  EXPECT_TRUE(MainWindow.frans.checkable);
}

TEST_P(MainWindowLanguageTest, TheFourAddressListsHoldTheLettersAToR) {
  for (const DataGroupFields* group : AllGroups()) EXPECT_EQ(group->address.items, Letters());
}

TEST_P(MainWindowLanguageTest, TheNumberListsHoldTheirNumbers) {
  EXPECT_EQ(MainWindow.roomCount.items,
            (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8"}));
  EXPECT_EQ(
      MainWindow.detectorCount.items,
      (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}));
  EXPECT_EQ(MainWindow.tolerance.items.size(), 254U);
  EXPECT_EQ(MainWindow.tolerance.items.front(), "2");
  EXPECT_EQ(MainWindow.tolerance.items.back(), "255");
}

TEST_P(MainWindowLanguageTest, TheSelectionListHoldsTheTwelveModelsInTheirOrder) {
  EXPECT_EQ(MainWindow.moduleList.items,
            (std::vector<std::string>{"KR7021/KR8021", "KR7023/KR8335", "KR7110", "KR7150",
                                      "KR721X", "KR73XX/KR8330", "KR7160", "KR7920", "KR7170",
                                      "KR7060", "KR7061", "KR7180"}));
}

TEST_P(MainWindowLanguageTest, NoModelIsSelectedAndNoPictureShown) {
  EXPECT_EQ(MainWindow.moduleList.Text(), "");
  EXPECT_TRUE(MainWindow.moduleList.enabled);
  EXPECT_FALSE(MainWindow.pictureGroup.visible);
  EXPECT_EQ(MainWindow.moduleCaption.caption, "");
  for (const ButtonField* info : {&MainWindow.moreInfo, &MainWindow.infoInductive,
                                  &MainWindow.infoCapacitive, &MainWindow.infoAnalogue}) {
    EXPECT_FALSE(info->visible) << info->name;
  }
}

TEST_P(MainWindowLanguageTest, OnlyTheGeneralGroupIsShownWithItsAddressEmptyAndDisabled) {
  EXPECT_TRUE(MainWindow.general.frame.visible);
  EXPECT_FALSE(MainWindow.displayTemperature.frame.visible);
  EXPECT_FALSE(MainWindow.alarm.frame.visible);
  EXPECT_FALSE(MainWindow.special.frame.visible);
  EXPECT_TRUE(MainWindow.general.addressLabel.visible);
  EXPECT_TRUE(MainWindow.general.address.visible);
  EXPECT_FALSE(MainWindow.general.address.enabled);
  EXPECT_EQ(MainWindow.general.address.Text(), "");
  EXPECT_FALSE(MainWindow.general.version.visible);
  EXPECT_TRUE(VisibleActions().empty());
}

TEST_P(MainWindowLanguageTest, ConnectIsTheOnlyTransferThatCanBeStarted) {
  EXPECT_TRUE(MainWindow.connect.Usable());
  EXPECT_FALSE(MainWindow.send.Usable());
  EXPECT_TRUE(MainWindow.connect.visible);
  EXPECT_TRUE(MainWindow.send.visible);
}

TEST_P(MainWindowLanguageTest, NothingCanBeSaved) {
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  EXPECT_FALSE(MainWindow.Bewaren_als.enabled);
}

TEST_P(MainWindowLanguageTest, TheMenusAreFree) {
  for (const MenuField* menu :
       {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info,
        &MainWindow.nieuw, &MainWindow.Einde, &MainWindow.ned, &MainWindow.frans, &MainWindow.p1}) {
    EXPECT_TRUE(menu->enabled) << menu->name;
  }
}

TEST_P(MainWindowLanguageTest, TheStatusIsEmptyAndTheBarHidden) {
  EXPECT_EQ(MainWindow.status.caption, "");
  EXPECT_FALSE(MainWindow.transferBar.visible);
}

TEST_P(MainWindowLanguageTest, ThePortHasItsNumberAndIsNotOpened) {
  EXPECT_EQ(line.calls, std::vector<std::string>{"number 1"});
  EXPECT_FALSE(line.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowLanguageTest, testing::Values(1, 2),
                         [](const auto& language) {
                           return std::string(language.param == 1 ? "dutch" : "french");
                         });

TEST_F(MainWindowStartTest, TheWindowIsNotShownWhileASettingIsMissing) {
  StartSession(LoadMainWindow, [](const std::string&) {});
  clock.Advance(1000);
  EXPECT_FALSE(MainWindow.shown);
  PutSettings();
  clock.Advance(100);
  EXPECT_TRUE(MainWindow.shown);
}

TEST_F(MainWindowStartTest, TheStartEmptiesTheContextsToEditAndChangesNoOtherTable) {
  PutSettings();
  const Snapshot before = TakeSnapshot();
  StartSession([] {}, [](const std::string&) {});
  const Snapshot loaded = TakeSnapshot();
  LoadMainWindow();
  ExpectOnlyChanged(loaded, {"ContextWork[0..14999]"});
  for (int cell = 0; cell < 15000; ++cell) ASSERT_EQ(ContextWork[cell], Cell(42)) << cell;
  for (const Table* table : AllTables) {
    const std::string first = std::string(table->name) + "[0]";
    EXPECT_EQ(loaded.at(first), before.at(first)) << first;
  }
}

TEST_F(MainWindowStartTest, TheMenusAreBuiltOfTheirEntriesInTheirOrder) {
  Start();
  using Entries = std::vector<MenuField*>;
  EXPECT_EQ(MainWindow.bestand.entries,
            (Entries{&MainWindow.nieuw, &MainWindow.lijn1, &MainWindow.openen, &MainWindow.lijn2,
                     &MainWindow.Bewaren, &MainWindow.Bewaren_als, &MainWindow.lijn3,
                     &MainWindow.Einde}));
  EXPECT_EQ(MainWindow.taal.entries, (Entries{&MainWindow.ned, &MainWindow.frans}));
  EXPECT_EQ(MainWindow.settings.entries,
            (Entries{&MainWindow.poort, &MainWindow.lijn4, &MainWindow.instellingen}));
  EXPECT_EQ(MainWindow.poort.entries,
            (Entries{&MainWindow.p1, &MainWindow.p2, &MainWindow.p3, &MainWindow.p4, &MainWindow.p5,
                     &MainWindow.p6, &MainWindow.p7, &MainWindow.p8}));
  EXPECT_EQ(MainWindow.Info.entries, Entries{&MainWindow.Web});
  for (const MenuField* each :
       {&MainWindow.lijn1, &MainWindow.lijn2, &MainWindow.lijn3, &MainWindow.lijn4}) {
    EXPECT_TRUE(each->separator) << each->name;
  }
}

TEST_F(MainWindowStartTest, EachPortNumberShowsItsDeviceWhenItsMenuIsOpened) {
  Start();
  MainWindow.poort.onOpen();
  int number = 1;
  for (const MenuField* entry : MainWindow.poort.entries) {
    EXPECT_NE(entry->caption.find(std::to_string(number)), std::string::npos) << entry->caption;
    EXPECT_NE(entry->caption.find("fake" + std::to_string(number)), std::string::npos)
        << entry->caption;
    EXPECT_TRUE(entry->checkable);
    ++number;
  }
}

TEST_F(MainWindowStartTest, EachPortOfTheSettingsIsMarkedAlone) {
  PutSettings();
  for (int number = 1; number <= 8; ++number) {
    files.content[SettingsPath("port.vdm")] = std::to_string(number) + "\r\n";
    StartSession(FillMenus, [](const std::string&) {});
    for (int other = 1; other <= 8; ++other) {
      const MenuField* entry = MainWindow.poort.entries[static_cast<std::size_t>(other - 1)];
      EXPECT_EQ(entry->checked, other == number) << number << " " << other;
    }
    EXPECT_EQ(line.calls.back(), "number " + std::to_string(number));
  }
}

TEST_F(MainWindowStartTest, APortOutsideOneToEightMarksNoEntry) {
  StartWith("port.vdm", "9\r\n");
  EXPECT_TRUE(MainWindow.shown);
  for (const MenuField* entry : MainWindow.poort.entries) EXPECT_FALSE(entry->checked);
  EXPECT_EQ(line.calls, std::vector<std::string>{"number 9"});
}

TEST_F(MainWindowStartTest, APortThatIsNoNumberMarksNoEntry) {
  StartWith("port.vdm", "com3\r\n");
  EXPECT_TRUE(MainWindow.shown);
  for (const MenuField* entry : MainWindow.poort.entries) EXPECT_FALSE(entry->checked);
  EXPECT_EQ(line.calls, std::vector<std::string>{"number 0"});
}

TEST_F(MainWindowStartTest, AnotherLanguageLeavesTheCaptionsOfTheDesignAndMarksNone) {
  StartWith("country.vdm", " 3 \r\n");
  EXPECT_TRUE(MainWindow.shown);
  EXPECT_EQ(MainWindow.bestand.caption, "Bestand");
  EXPECT_EQ(MainWindow.nieuw.caption, "&Nieuwe module");
  EXPECT_EQ(MainWindow.Einde.caption, "E&xit");
  EXPECT_FALSE(MainWindow.ned.checked);
  EXPECT_FALSE(MainWindow.frans.checked);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_EQ(MainWindow.connect.caption, "");
  EXPECT_EQ(MainWindow.actionGroup.caption, "");
}

TEST_F(MainWindowStartTest, AModuleIsReadInALanguageThatThereIsNot) {
  StartWith("country.vdm", "x\r\n");
  Plug(5).memory().Cells(std::string_view("AlarmImage"))[148] = 21;
  ReadModule();
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(MainWindow.alarm.version.caption, "2.1");
  EXPECT_EQ(ActiveCode(), 5);
}

}  // namespace
}  // namespace bkconf
