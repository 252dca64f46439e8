// What the main window shows of each kind when its file has been opened.
#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

#include "image/file_lines.h"
#include "shell/module_file.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

struct OpenedRow {
  int kind;
  DataGroup group;
  const char* model;
  const char* caption[2];
  const char* frame[2];
  const char* picture;
  const char* addressTable;  ///< null for the kind that has no address
  int addressCell;
  Names actions[2];
};

/// In the names and messages of the tests.
void PrintTo(const OpenedRow& row, std::ostream* out) {
  *out << row.model;
}

/// Written down apart from the tables of the tool.
const std::vector<OpenedRow>& Rows() {
  static const Names relayActions[2] = {
      {"Drukknoppen", "Tijd 2de functie", "Functie van de uitgangen"},
      {"Boutons poussoirs", "Temps 2ème fonction", "Fonction des sorties"}};
  static const std::vector<OpenedRow> rows = {
      {0,
       DataGroup::General,
       "KR7021/KR8021",
       {"Relaismodule", "Module relais"},
       {"Relaismodule:", "Module relais:"},
       "relais.bmp",
       "ButtonImage",
       121,
       {relayActions[0], relayActions[1]}},
      {4,
       DataGroup::General,
       "KR7023/KR8335",
       {"Relaismodule DC", "Module relais DC"},
       {"Relaismodule:", "Module relais:"},
       "relais DC.bmp",
       "ButtonImage",
       121,
       {relayActions[0], relayActions[1]}},
      {11,
       DataGroup::General,
       "KR7061",
       {"Lumenza module", "Module Lumenza"},
       {"Lumenza module:", "Module Lumenza:"},
       "lumenza.bmp",
       "ButtonImage",
       121,
       {relayActions[0], relayActions[1]}},
      {1,
       DataGroup::General,
       "KR73XX/KR8330",
       {"Dimmodule", "Module dimmer"},
       {"Dimmodule:", "Module dimmer:"},
       "dimmer.bmp",
       "ButtonImage",
       121,
       {{"Drukknoppen", "Tijd 2de functie", "Beginwaarde dim-kanalen"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Valeur début des sorties"}}},
      {9,
       DataGroup::General,
       "KR7110",
       {"Mastermodule", "Module master"},
       {"Mastermodule:", "Module master:"},
       "master.bmp",
       nullptr,
       0,
       {{"Drukknoppen", "Tijd 2de functie", "Sferen", "Tijd programmaties", "Licht programmaties",
         "Configuratie"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Contextes", "Programmation temps",
         "Programmation luminosité", "Configuration"}}},
      {2,
       DataGroup::DisplayTemperature,
       "KR7150",
       {"Temperatuurmodule", "Module température"},
       {"Temperatuurmodule:", "Module température:"},
       "temp.bmp",
       "TempHeader",
       0,
       {{"ID nummers en uitgangen kleppen", "Instellingen periodes en temperaturen",
         "Actuele temperaturen (diagnose)"},
        {"Numéros ID et sorties des vannes", "Paramétrage périodes et températures",
         "Températures actuelles (diagnostics)"}}},
      {3,
       DataGroup::DisplayTemperature,
       "KR721X",
       {"LCD module", "Module LCD"},
       {"LCD controller:", "Module LCD:"},
       "lcd.bmp",
       "LcdHeader",
       0,
       {{"LCD Scherm N°1", "LCD Scherm N°2", "Algemene gegevens"},
        {"Ecran LCD N°1", "Ecran LCD N°2", "Données génerales"}}},
      {5,
       DataGroup::Alarm,
       "KR7160",
       {"Alarmmodule", "Module alarme"},
       {"Alarmmodule:", "Module alarme:"},
       "alarm.bmp",
       "AlarmImage",
       121,
       {{"Drukknoppen", "Tijd 2de functie", "Detectoren"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Détecteurs"}}},
      {6,
       DataGroup::Special,
       "KR7920",
       {"Audio interface", "Interface audio"},
       {"Audio interface:", "Interface audio:"},
       "audio.bmp",
       "AudioImage",
       121,
       {{"Drukknoppen", "Tijd 2de functie", "Audio instellingen"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Instelling audio"}}},
      {7,
       DataGroup::Special,
       "KR7170",
       {"Simulatiemodule", "Module simulation"},
       {"Simulatiemodule:", "Module simulation:"},
       "simu.bmp",
       "SimulationImage",
       121,
       {{"Drukknoppen", "Tijd 2de functie", "Simulatie instellingen"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Configuration simulation"}}},
      {8,
       DataGroup::Special,
       "KR7180",
       {"I.R. module", "Module I.R."},
       {"I.R. module:", "Module I.R.:"},
       "ir.bmp",
       "IrImage",
       121,
       {{"Drukknoppen", "Tijd 2de functie", "IR instellingen"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Configuration IR"}}},
  };
  return rows;
}

constexpr DataGroup DataGroups[] = {DataGroup::General, DataGroup::DisplayTemperature,
                                    DataGroup::Alarm, DataGroup::Special};

/// How the session stood when the file was opened: without an image, with one that was read, or
/// with a manual over the window.
enum class Before { Nothing, Relay, Alarm, Temperature, Manual };
constexpr Before Befores[] = {Before::Nothing, Before::Relay, Before::Alarm, Before::Temperature,
                              Before::Manual};

class OpenedFileTest : public SessionTest,
                       public testing::WithParamInterface<std::tuple<OpenedRow, int>> {
 protected:
  std::string In(const std::string& dutch, const std::string& french) const {
    return language == 1 ? dutch : french;
  }
  DataGroupFields& Group() const { return MainWindow.Group(row.group); }

  /// The file of the kind, with the letter in its address cell.
  std::string File(char letter) const {
    const int address =
        row.addressTable == nullptr ? -1 : LineOf(row.kind, row.addressTable, row.addressCell);
    return FileOf(row.kind, [address, letter](int each) {
      return each == address ? static_cast<int>(letter) : ValueInLine(each);
    });
  }

  void Prepare(Before before) {
    Start(language);
    if (before == Before::Nothing) return;
    Plug(before == Before::Alarm ? 5 : before == Before::Temperature ? 2 : 0);
    ReadModule();
    if (before == Before::Manual) MainWindow.moreInfo.Click();
  }

  void Open(char letter = 'K') {
    files.content["/house/a.BK1"] = File(letter);
    OpenModule("/house/a.BK1");
  }

  const OpenedRow row = std::get<0>(GetParam());
  const int language = std::get<1>(GetParam());
};

TEST_P(OpenedFileTest, ShowsItsModelCaptionPictureAndFrame) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    EXPECT_EQ(MainWindow.moduleList.Text(), row.model);
    EXPECT_TRUE(MainWindow.moduleList.enabled);
    EXPECT_TRUE(MainWindow.pictureGroup.visible);
    EXPECT_EQ(MainWindow.picture.file, row.picture);
    EXPECT_EQ(MainWindow.moduleCaption.caption, row.caption[language - 1]);
    EXPECT_EQ(MainWindow.pictureGroup.caption, row.frame[language - 1]);
  }
}

TEST_P(OpenedFileTest, ShowsTheInfoButtonsOfItsModel) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    EXPECT_EQ(MainWindow.moreInfo.Usable(), row.kind != 1);
    EXPECT_EQ(MainWindow.moreInfo.caption, In("Meer info...", "Plus de données..."));
    EXPECT_EQ(MainWindow.infoInductive.Usable(), row.kind == 1);
    EXPECT_EQ(MainWindow.infoCapacitive.Usable(), row.kind == 1);
    EXPECT_EQ(MainWindow.infoAnalogue.Usable(), row.kind == 1);
  }
}

TEST_P(OpenedFileTest, ShowsItsGroupAndNoOtherAndNoManual) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    for (const DataGroup group : DataGroups) {
      EXPECT_EQ(MainWindow.Group(group).frame.visible, group == row.group);
    }
    EXPECT_EQ(Group().frame.caption, In("Module gegevens:", "Données module:"));
    EXPECT_TRUE(MainWindow.actionGroup.visible);
    EXPECT_FALSE(MainWindow.manual.visible);
    EXPECT_FALSE(MainWindow.closeManual.visible);
    for (const Cell* flag : {&GeneralGroupWasVisible, &DisplayTemperatureGroupWasVisible,
                             &AlarmGroupWasVisible, &SpecialGroupWasVisible}) {
      EXPECT_EQ(*flag, Cell(0));
    }
  }
}

TEST_P(OpenedFileTest, ShowsItsAddressLetterEnabledAndNoVersion) {
  for (const Before before : Befores) {
    Prepare(before);
    Open('K');
    const bool has = row.addressTable != nullptr;
    EXPECT_EQ(Group().address.visible, has);
    EXPECT_EQ(Group().addressLabel.visible, has);
    EXPECT_EQ(Group().address.enabled, has);
    EXPECT_EQ(Group().address.Text(), has ? "K" : "");
    EXPECT_EQ(Group().addressLabel.caption, In("Adres module:", "Adresse module:"));
    for (const DataGroup group : DataGroups) {
      EXPECT_FALSE(MainWindow.Group(group).version.visible);
    }
  }
}

TEST_P(OpenedFileTest, ShowsALetterOutsideTheListAsItIs) {
  if (row.addressTable == nullptr) return;
  Prepare(Before::Nothing);
  Open('z');
  EXPECT_EQ(Group().address.Text(), "z");
  EXPECT_EQ(Group().address.Index(), -1);
}

TEST_P(OpenedFileTest, ShowsItsActionButtonsEnabledButNoneThatNeedsAModule) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    EXPECT_EQ(VisibleActions(), row.actions[language - 1]);
    EXPECT_TRUE(AllVisibleActionsEnabled());
  }
}

TEST_P(OpenedFileTest, ShowsTheFieldsThatOnlyOneKindHas) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    for (const ListField* field : {&MainWindow.roomCount, &MainWindow.tolerance}) {
      EXPECT_EQ(field->visible, row.kind == 2) << field->name;
      EXPECT_EQ(field->enabled, row.kind == 2) << field->name;
    }
    EXPECT_EQ(MainWindow.detectorCount.visible, row.kind == 5);
    EXPECT_EQ(MainWindow.detectorCount.enabled, row.kind == 5);
    EXPECT_EQ(MainWindow.roomCount.Text(),
              row.kind == 2 ? std::to_string(ValueInLine(1)) : std::string());
    EXPECT_EQ(MainWindow.tolerance.Text(),
              row.kind == 2 ? std::to_string(ValueInLine(2)) : std::string());
    EXPECT_EQ(MainWindow.detectorCount.Text(),
              row.kind == 5 ? std::to_string(ValueInLine(123)) : std::string());
  }
}

TEST_P(OpenedFileTest, IsInEditModeWithEverythingFree) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    EXPECT_FALSE(MainWindow.transferBar.visible);
    EXPECT_TRUE(MainWindow.connect.Usable());
    EXPECT_TRUE(MainWindow.send.Usable());
    EXPECT_TRUE(MainWindow.moduleList.enabled);
    for (const MenuField* menu :
         {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
      EXPECT_TRUE(menu->enabled) << menu->name;
    }
    EXPECT_TRUE(messages.told.empty());
  }
}

TEST_P(OpenedFileTest, CanBeSavedUnderItsNameAndAnother) {
  for (const Before before : Befores) {
    Prepare(before);
    Open();
    EXPECT_TRUE(MainWindow.Bewaren.Usable());
    EXPECT_TRUE(MainWindow.Bewaren_als.Usable());
    EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/a.BK1");
    EXPECT_EQ(CurrentFilePath, Cell("/house/a.BK1"));
  }
}

TEST_P(OpenedFileTest, APickOfAnotherAddressIsInTheImage) {
  if (row.addressTable == nullptr) return;
  Prepare(Before::Nothing);
  Open('K');
  Group().address.Pick(2);
  EXPECT_EQ(TableOf(row.addressTable)[row.addressCell], Cell(67));
}

TEST_P(OpenedFileTest, ANewReadOfItsKindBringsTheDiagnosticsBack) {
  Prepare(Before::Nothing);
  Open();
  Plug(row.kind);
  ReadModule();
  const Names visible = VisibleActions();
  const bool tested = row.kind != 2 && row.kind != 3 && row.kind != 7 && row.kind != 8;
  EXPECT_EQ(visible.size(), row.actions[0].size() + (tested ? 1 : 0));
  if (tested) {
    EXPECT_EQ(visible.back(), In("Diagnose", "Diagnostics"));
  }
  EXPECT_TRUE(Group().version.visible);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
}

INSTANTIATE_TEST_SUITE_P(Kinds, OpenedFileTest,
                         testing::Combine(testing::ValuesIn(Rows()), testing::Values(1, 2)),
                         [](const auto& test) {
                           return "kind" + std::to_string(std::get<0>(test.param).kind) +
                                  (std::get<1>(test.param) == 1 ? "dutch" : "french");
                         });

class OpenedFilesTest : public SessionTest {};

TEST_F(OpenedFilesTest, EachKindOpenedAfterAnyOtherShowsItselfAlone) {
  Start(2);
  for (const OpenedRow& first : Rows()) {
    for (const OpenedRow& row : Rows()) {
      files.content["/house/a.BK1"] = FileOf(first.kind);
      files.content["/house/b.BK1"] = FileOf(row.kind);
      OpenModule("/house/a.BK1");
      OpenModule("/house/b.BK1");
      EXPECT_EQ(VisibleActions(), row.actions[1]) << first.kind << row.kind;
      EXPECT_EQ(MainWindow.moduleList.Text(), row.model) << first.kind << row.kind;
      for (const DataGroup group : DataGroups) {
        EXPECT_EQ(MainWindow.Group(group).frame.visible, group == row.group);
        EXPECT_EQ(MainWindow.Group(group).address.enabled,
                  group == row.group && row.addressTable != nullptr);
        if (group != row.group) {
          EXPECT_EQ(MainWindow.Group(group).address.Text(), "") << first.kind << row.kind;
        }
      }
      EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/b.BK1");
    }
  }
}

}  // namespace
}  // namespace bkconf
