// What the main window shows of each kind when its module has been read.
#include <gtest/gtest.h>

#include <ostream>

#include "image/tables.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Captions = std::vector<std::string>;

struct KindRow {
  int kind;
  DataGroup group;
  const char* model;
  const char* caption[2];
  const char* addressTable;  ///< null for the kind that has no address
  std::size_t addressCell;
  const char* versionTable;
  std::size_t versionCell;
  Captions actions[2];
};

/// In the names and messages of the tests.
void PrintTo(const KindRow& row, std::ostream* out) {
  *out << row.model;
}

/// Written down apart from the tables of the tool.
const std::vector<KindRow>& Rows() {
  static const Captions relayActions[2] = {
      {"Drukknoppen", "Tijd 2de functie", "Functie van de uitgangen", "Diagnose"},
      {"Boutons poussoirs", "Temps 2ème fonction", "Fonction des sorties", "Diagnostics"}};
  static const std::vector<KindRow> rows = {
      {0,
       DataGroup::General,
       "KR7021/KR8021",
       {"Relaismodule", "Module relais"},
       "ButtonImage",
       121,
       "ButtonImage",
       163,
       {relayActions[0], relayActions[1]}},
      {4,
       DataGroup::General,
       "KR7023/KR8335",
       {"Relaismodule DC", "Module relais DC"},
       "ButtonImage",
       121,
       "ButtonImage",
       163,
       {relayActions[0], relayActions[1]}},
      {11,
       DataGroup::General,
       "KR7061",
       {"Lumenza module", "Module Lumenza"},
       "ButtonImage",
       121,
       "ButtonImage",
       163,
       {relayActions[0], relayActions[1]}},
      {1,
       DataGroup::General,
       "KR73XX/KR8330",
       {"Dimmodule", "Module dimmer"},
       "ButtonImage",
       121,
       "ButtonImage",
       163,
       {{"Drukknoppen", "Tijd 2de functie", "Beginwaarde dim-kanalen", "Diagnose"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Valeur début des sorties", "Diagnostics"}}},
      {9,
       DataGroup::General,
       "KR7110",
       {"Mastermodule", "Module master"},
       nullptr,
       0,
       "ButtonImage",
       163,
       {{"Drukknoppen", "Tijd 2de functie", "Sferen", "Tijd programmaties", "Licht programmaties",
         "Configuratie", "Diagnose"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Contextes", "Programmation temps",
         "Programmation luminosité", "Configuration", "Diagnostics"}}},
      {2,
       DataGroup::DisplayTemperature,
       "KR7150",
       {"Temperatuurmodule", "Module température"},
       "TempHeader",
       0,
       "TempHeader",
       3,
       {{"ID nummers en uitgangen kleppen", "Instellingen periodes en temperaturen",
         "Actuele temperaturen (diagnose)"},
        {"Numéros ID et sorties des vannes", "Paramétrage périodes et températures",
         "Températures actuelles (diagnostics)"}}},
      {3,
       DataGroup::DisplayTemperature,
       "KR721X",
       {"LCD module", "Module LCD"},
       "LcdHeader",
       0,
       "LcdHeader",
       1,
       {{"LCD Scherm N°1", "LCD Scherm N°2", "Algemene gegevens"},
        {"Ecran LCD N°1", "LCD Scherm N°2", "Données génerales"}}},
      {5,
       DataGroup::Alarm,
       "KR7160",
       {"Alarmmodule", "Module alarme"},
       "AlarmImage",
       121,
       "AlarmImage",
       148,
       {{"Drukknoppen", "Tijd 2de functie", "Detectoren", "Diagnose"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Détecteurs", "Diagnostics"}}},
      {6,
       DataGroup::Special,
       "KR7920",
       {"Audio interface", "Interface audio"},
       "AudioImage",
       121,
       "AudioImage",
       123,
       {{"Drukknoppen", "Tijd 2de functie", "Audio instellingen", "Diagnose"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Instellen audio", "Diagnostics"}}},
      {7,
       DataGroup::Special,
       "KR7170",
       {"Simulatiemodule", "Module simulation"},
       "SimulationImage",
       121,
       "SimulationImage",
       124,
       {{"Drukknoppen", "Tijd 2de functie", "Simulatie instellingen"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Configuration simulation"}}},
      {8,
       DataGroup::Special,
       "KR7180",
       {"I.R. module", "Module I.R."},
       "IrImage",
       121,
       "IrImage",
       124,
       {{"Drukknoppen", "Tijd 2de functie", "IR instellingen"},
        {"Boutons poussoirs", "Temps 2ème fonction", "Configuration IR"}}},
  };
  return rows;
}

constexpr DataGroup DataGroups[] = {DataGroup::General, DataGroup::DisplayTemperature,
                                    DataGroup::Alarm, DataGroup::Special};

class ReadKindTest : public SessionTest,
                     public testing::WithParamInterface<std::tuple<KindRow, int>> {
 protected:
  ReadKindTest() {
    Start(language);
    module = &Plug(row.kind);
  }

  std::string In(const std::string& dutch, const std::string& french) const {
    return language == 1 ? dutch : french;
  }
  DataGroupFields& Group() const { return MainWindow.Group(row.group); }
  int CellOf(const char* table, std::size_t cell) const {
    return module->memory().Cells(std::string_view(table))[cell];
  }
  std::string VersionLabel() const {
    const std::string digits = std::to_string(CellOf(row.versionTable, row.versionCell));
    return In("Versie: ", "Version: ") + digits.front() + "." + digits.back();
  }

  const KindRow row = std::get<0>(GetParam());
  const int language = std::get<1>(GetParam());
  virtual_module::Module* module = nullptr;
};

TEST_P(ReadKindTest, ShowsItsModelAndCaption) {
  ReadModule();
  EXPECT_EQ(MainWindow.moduleList.Text(), row.model);
  EXPECT_EQ(MainWindow.moduleCaption.caption, row.caption[language - 1]);
  EXPECT_TRUE(MainWindow.pictureGroup.visible);
  EXPECT_EQ(MainWindow.moreInfo.visible, row.kind != 1);
  EXPECT_EQ(MainWindow.infoInductive.visible, row.kind == 1);
}

TEST_P(ReadKindTest, ShowsItsGroupAndNoOther) {
  ReadModule();
  for (const DataGroup group : DataGroups) {
    EXPECT_EQ(MainWindow.Group(group).frame.visible, group == row.group);
  }
  EXPECT_EQ(Group().frame.caption, In("Module gegevens:", "Données module:"));
}

TEST_P(ReadKindTest, ShowsItsActionButtonsEnabledAndInTheirOrder) {
  ReadModule();
  EXPECT_EQ(VisibleActions(), row.actions[language - 1]);
  EXPECT_TRUE(AllVisibleActionsEnabled());
}

TEST_P(ReadKindTest, ItsActionButtonsStandInItsGroup) {
  ReadModule();
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    if (MainWindow.actionButtons[i]->visible) {
      EXPECT_EQ(ActionButtons[i].group, row.group) << ActionButtons[i].name;
    }
  }
}

TEST_P(ReadKindTest, ShowsItsAddressLetter) {
  ReadModule();
  const bool has = row.addressTable != nullptr;
  EXPECT_EQ(Group().address.visible, has);
  EXPECT_EQ(Group().addressLabel.visible, has);
  if (!has) {
    EXPECT_EQ(Group().address.Text(), "");
    return;
  }
  const int code = CellOf(row.addressTable, row.addressCell);
  EXPECT_EQ(Group().address.Text(), std::string(1, static_cast<char>(code)));
  EXPECT_EQ(Group().address.Index(), code - 'A');
  EXPECT_TRUE(Group().address.enabled);
  EXPECT_EQ(Group().addressLabel.caption, In("Adres module:", "Adresse module:"));
}

TEST_P(ReadKindTest, ShowsALetterOutsideTheListAsItIs) {
  if (row.addressTable == nullptr) {
    // The cell that holds other modules' address is the clock correction of this one.
    module->memory().Cells(std::string_view("ButtonImage"))[121] = 'Z';
    ReadModule();
    EXPECT_EQ(Group().address.Text(), "");
    return;
  }
  module->memory().Cells(std::string_view(row.addressTable))[row.addressCell] = 'Z';
  ReadModule();
  EXPECT_EQ(Group().address.Text(), "Z");
  EXPECT_EQ(Group().address.Index(), -1);
}

TEST_P(ReadKindTest, ShowsItsVersion) {
  ReadModule();
  EXPECT_TRUE(Group().version.visible);
  EXPECT_EQ(Group().version.caption, VersionLabel());
  for (const DataGroup group : DataGroups) {
    if (group != row.group) {
      EXPECT_FALSE(MainWindow.Group(group).version.visible);
    }
  }
}

TEST_P(ReadKindTest, ShowsTheFieldsThatOnlyOneKindHas) {
  ReadModule();
  for (const Field* field :
       std::initializer_list<const Field*>{&MainWindow.roomCount, &MainWindow.roomCountLabel,
                                           &MainWindow.tolerance, &MainWindow.toleranceLabel}) {
    EXPECT_EQ(field->visible, row.kind == 2) << field->name;
  }
  EXPECT_EQ(MainWindow.detectorCount.visible, row.kind == 5);
  EXPECT_EQ(MainWindow.detectorCountLabel.visible, row.kind == 5);
  if (row.kind == 2) {
    EXPECT_EQ(MainWindow.roomCount.Text(), std::to_string(CellOf("TempHeader", 1)));
    EXPECT_EQ(MainWindow.tolerance.Text(), std::to_string(CellOf("TempHeader", 2)));
  }
  if (row.kind == 5) {
    EXPECT_EQ(MainWindow.detectorCount.Text(), std::to_string(CellOf("AlarmImage", 123)));
  }
}

TEST_P(ReadKindTest, EndsInEditModeWithEverythingFree) {
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_FALSE(MainWindow.transferBar.visible);
  EXPECT_TRUE(MainWindow.connect.Usable());
  EXPECT_TRUE(MainWindow.send.Usable());
  EXPECT_TRUE(MainWindow.moduleList.enabled);
  for (const MenuField* menu :
       {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
    EXPECT_TRUE(menu->enabled) << menu->name;
  }
}

TEST_P(ReadKindTest, CanOnlyBeSavedUnderANewName) {
  ReadModule();
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  EXPECT_TRUE(MainWindow.Bewaren_als.enabled);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
}

INSTANTIATE_TEST_SUITE_P(Kinds, ReadKindTest,
                         testing::Combine(testing::ValuesIn(Rows()), testing::Values(1, 2)),
                         [](const auto& test) {
                           return "kind" + std::to_string(std::get<0>(test.param).kind) +
                                  (std::get<1>(test.param) == 1 ? "dutch" : "french");
                         });

class ReadKindsTest : public SessionTest {};

TEST_F(ReadKindsTest, AKindReadAfterAnotherShowsNothingOfTheFirst) {
  Start();
  for (const KindRow& row : Rows()) {
    MainWindow.nieuw.Click();
    Plug(row.kind);
    ReadModule();
    EXPECT_EQ(VisibleActions(), row.actions[0]) << row.kind;
    for (const DataGroup group : DataGroups) {
      EXPECT_EQ(MainWindow.Group(group).frame.visible, group == row.group) << row.kind;
      if (group != row.group) {
        EXPECT_EQ(MainWindow.Group(group).address.Text(), "") << row.kind;
      }
    }
    EXPECT_EQ(MainWindow.roomCount.visible, row.kind == 2) << row.kind;
    EXPECT_EQ(MainWindow.detectorCount.visible, row.kind == 5) << row.kind;
  }
}

TEST_F(ReadKindsTest, AnAddressOfZeroShowsAsNothing) {
  Start();
  Plug(0).memory().Cells(std::string_view("ButtonImage"))[121] = 0;
  ReadModule();
  EXPECT_EQ(MainWindow.general.address.Text(), "");
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

}  // namespace
}  // namespace bkconf
