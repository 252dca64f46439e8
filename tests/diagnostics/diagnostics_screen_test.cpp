#include "diagnostics/diagnostics_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "diagnostics/diagnostics_test.h"
#include "image/tables.h"

namespace bkconf {
namespace {

using Captions = std::vector<std::string>;

class DiagnosticsScreenTest : public DiagnosticsTest {
 protected:
  static Captions Offered() {
    Captions captions;
    for (const auto& choice : DiagnosticsScreen.choices) {
      if (choice->visible) captions.push_back(choice->caption);
    }
    return captions;
  }
  /// The port was never opened.
  void ExpectNothingSent() const {
    EXPECT_EQ(std::count(line.calls.begin(), line.calls.end(), "open"), 0);
    EXPECT_TRUE(line.written.empty());
  }
  static Captions Usable() {
    Captions names;
    for (const auto& choice : DiagnosticsScreen.choices) {
      if (choice->Usable()) names.push_back(choice->name);
    }
    return names;
  }
  /// The frames of the panels that can be seen.
  static Captions Panels() {
    Captions names;
    for (const Field* group : std::initializer_list<const Field*>{
             &DiagnosticsScreen.line.group, &DiagnosticsScreen.buttons.group,
             &DiagnosticsScreen.outputs.group, &DiagnosticsScreen.light.group,
             &DiagnosticsScreen.clock.group, &DiagnosticsScreen.detectors.group}) {
      if (group->visible) names.push_back(group->name);
    }
    return names;
  }
};

struct Caption {
  const std::string& shown;
  std::string dutch;
  std::string french;
};

const std::vector<Caption>& ScreenCaptions() {
  static const DiagnosticsScreenFields& screen = DiagnosticsScreen;
  static const std::vector<Caption> rows = {
      {screen.heading.caption, "Diagnose:", "Diagnostics:"},
      {screen.choiceGroup.caption, "Keuze:", "Choix:"},
      {screen.leave.caption, "Verlaten", "Quitter"},
      {screen.notice.caption, "Gebruik de Zentrix voor diagnose van knoppen en uitgangen aub!",
       "Utilisez le Zentrix pour le diagnose des boutons poussoirs et les sorties svp!"},
      {screen.line.group.caption, "Lijnstatus:", "Status de la ligne:"},
      {screen.line.levelLabel.caption, "Niveau van de lijn:", "Niveau de la ligne:"},
      {screen.line.help.caption,
       "Met deze test wordt de status van de ingangslijn ingelezen. Het resultaat is afhankelijk "
       "van de gebruikte kabel en de lengte ervan. Klik op 'Start' om de scanning te starten. De "
       "scanning wordt 10 keer uitgevoerd. Deze test kan noodzakelijk zijn voor een diepgaande "
       "analyse van de ingangslijn.",
       "Ce test permet de lire le status de la ligne d'entrée. Le rèsultat dépend du câble utilisé "
       "et de sa longeur. Clicker sur 'Start' pour démarrer le scanning. Le scanning est exécuter "
       "10 fois. Ce test peut être necessaire pour une analyse aprofondie de la ligne d'entrée."},
      {screen.buttons.group.caption, "Drukknoppen:", "Boutons poussoirs:"},
      {screen.buttons.numberLabel.caption, "Drukknop nr.:", "Nr. bouton poussoir:"},
      {screen.buttons.historyLabel.caption, "Historiek", "Historique"},
      {screen.buttons.help.caption,
       "Klik op 'Start'. Alle detectiemodules (drukknoppen) op de lijn die worden aangeboden, "
       "worden nu ingelezen. Onderstaande lijst houdt een historiek bij van ingedrukte knoppen, "
       "plus het tijdstip van indrukken. Om deze test af te sluiten klik op 'Stop'.",
       "Clicker sur 'Start'. Tous les modules de détection (boutons poussoirs) sur la ligne qui "
       "sont activer, seront identifiés. La liste ci-dessous reprend l'hystorique des boutons "
       "poussoirs activés, plus le moment de l'impulsion. Afin de terminer ce test clicker sur "
       "'Stop'."},
      {screen.outputs.group.caption, "Uitgangen:", "Sorties:"},
      {screen.outputs.help.caption,
       "Klik op 'Start' om in verbinding te komen met de module. Nadien kunnen de individuele "
       "uitgangen geschakeld worden. 'Stop' beëindigd deze test.",
       "Clicker sur 'Start' pour rentrer en communication avec le module. Ensuite les sorties "
       "individuelles peuvent être activer. 'Stop' termine ce test."},
  };
  return rows;
}

const std::vector<Caption>& MasterAndAlarmCaptions() {
  static const DiagnosticsScreenFields& screen = DiagnosticsScreen;
  static const std::vector<Caption> rows = {
      {screen.light.group.caption, "Lichtsensor:", "Capteur de luminosité:"},
      {screen.light.help.caption,
       "Na het starten wordt de waarde van de lichtsensor 10 maal ingelezen.",
       "Après le démarrage la valeur de la sonde crépusculaire est mesurée."},
      {screen.clock.group.caption, "Klok:", "Horloge:"},
      {screen.clock.master.group.caption, "Klok master:", "Horloge master:"},
      {screen.clock.pc.group.caption, "Klok PC:", "Horloge PC:"},
      {screen.clock.master.dateLabel.caption, "Datum:", "Date:"},
      {screen.clock.master.hourLabel.caption, "Uur:", "Heure:"},
      {screen.clock.master.weekdayLabel.caption, "Weekdag:", "Jour:"},
      {screen.clock.pc.dateLabel.caption, "Datum:", "Date:"},
      {screen.clock.pc.hourLabel.caption, "Uur:", "Heure:"},
      {screen.clock.pc.weekdayLabel.caption, "Weekdag:", "Jour:"},
      {screen.clock.ask.caption, "Opvragen", "Demander"},
      {screen.clock.synchronise.caption, "Synchroniseren", "Synchroniser"},
      {screen.detectors.group.caption, "Detectoren:", "Détecteurs:"},
      {screen.detectors.help.caption,
       "Detectoren: Status GROEN = 'Rust' --> Status ROOD = ALARM/TRIGGER!",
       "Detectoren: Status GROEN = 'Rust' --> Status ROOD = ALARM/TRIGGER!"},
      {screen.detectors.numberColumn.caption, "Det", "Dét"},
      {screen.detectors.contactColumn.caption, "Contact", "Contacte"},
      {screen.detectors.measuredColumn.caption, "Gemeten", "Valeur"},
      {screen.detectors.logicColumn.caption, "Logica", "Condition"},
      {screen.detectors.levelColumn.caption, "Referentie", "Niveau"},
      {screen.detectors.update.caption, "Update", "Update"},
  };
  return rows;
}

TEST_F(DiagnosticsScreenTest, CaptionsAreDutchOrFrench) {
  for (const int language : {1, 2}) {
    Open(0, language);
    for (const auto* rows : {&ScreenCaptions(), &MasterAndAlarmCaptions()}) {
      for (const Caption& row : *rows) EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
    }
    for (const TestRow& row : TestRows()) {
      if (row.choice == "clockChoice") continue;
      EXPECT_EQ(row.start->caption, "Start");
      if (row.stop != nullptr) {
        EXPECT_EQ(row.stop->caption, "Stop");
      }
    }
  }
}

TEST_F(DiagnosticsScreenTest, OnlyTheDutchKnowTheColoursOfDetectors) {
  Open(5, 1);
  EXPECT_TRUE(DiagnosticsScreen.detectors.help.visible);
  Open(5, 2);
  EXPECT_FALSE(DiagnosticsScreen.detectors.help.visible);
}

TEST_F(DiagnosticsScreenTest, EveryKindHasChoicesOfItsOwn) {
  const Captions outputsDutch = {"Lijnstatus", "Drukknoppen", "Uitgangen"};
  const Captions outputsFrench = {"Status de la ligne", "Boutons poussoirs", "Sorties"};
  for (const int kind : {0, 1, 4, 11}) {
    Open(kind, 1);
    EXPECT_EQ(Offered(), outputsDutch) << kind;
    Open(kind, 2);
    EXPECT_EQ(Offered(), outputsFrench) << kind;
  }
  Open(9, 1);
  EXPECT_EQ(Offered(), (Captions{"Lijnstatus", "Drukknoppen", "Lichtsensor", "Klok"}));
  Open(9, 2);
  EXPECT_EQ(Offered(), (Captions{"Status de la ligne", "Boutons poussoirs", "Capteur de luminosité",
                                 "Horloge"}));
  Open(5, 1);
  EXPECT_EQ(Offered(), (Captions{"Lijnstatus", "Drukknoppen", "Detectoren"}));
  Open(5, 2);
  EXPECT_EQ(Offered(), (Captions{"Status de la ligne", "Boutons poussoirs", "Détecteurs"}));
}

TEST_F(DiagnosticsScreenTest, AnAudioInterfaceHasTheScreenAndNoChoice) {
  Open(6);
  EXPECT_EQ(Offered(), Captions{});
  EXPECT_EQ(Panels(), Captions{});
  DiagnosticsScreen.leave.Click();
  EXPECT_FALSE(DiagnosticsScreen.shown);
  ExpectNothingSent();
}

TEST_F(DiagnosticsScreenTest, NoKindCanBeTestedWithoutAModule) {
  for (const int kind : AllKinds) {
    StartWithImage(kind);
    const Captions actions = VisibleActions();
    EXPECT_EQ(std::count(actions.begin(), actions.end(), "Diagnose"), 0) << kind;
  }
}

TEST_F(DiagnosticsScreenTest, OtherKindsAreNeverTested) {
  for (const int kind : {2, 3, 7, 8}) {
    StartWithImage(kind);
    ShowImage(Origin::Read);
    const Captions actions = VisibleActions();
    EXPECT_EQ(std::count(actions.begin(), actions.end(), "Diagnose"), 0) << kind;
  }
}

TEST_F(DiagnosticsScreenTest, TheTitleIsThatOfTheModule) {
  struct Row {
    int kind;
    std::string dutch;
    std::string french;
  };
  for (const Row& row : std::vector<Row>{
           {0, "Relaismodule KR7021 <adres = C>", "Module relais KR7021 <adresse = C>"},
           {4, "Relaismodule DC KR7023 <adres = C>", "Module relais DC KR7023 <adresse = C>"},
           {1, "Dimmodule KR73XX <adres = C>", "Module dim KR73XX <adresse = C>"},
           {11, "Lumenza module KR7061 <adres = C>", "Module Lumenza KR7061 <adresse = C>"},
           {9, "Mastermodule KR7110", "Module master KR7110"},
           {5, "Alarmmodule KR7160 <adres = C>", "Module alarme KR7160 <adresse = C>"}}) {
    for (const int language : {1, 2}) {
      Start(language);
      EXPECT_EQ(DiagnosticsScreen.title, language == 1 ? "Diagnose" : "Diagnostics");
      Open(row.kind, language);
      EXPECT_EQ(DiagnosticsScreen.title, language == 1 ? row.dutch : row.french);
    }
  }
}

TEST_F(DiagnosticsScreenTest, OpeningShowsTheModelAndChangesNoCell) {
  struct Row {
    int kind;
    std::string model;
  };
  for (const Row& row : std::vector<Row>{{0, "KR7021/KR8021"},
                                         {4, "KR7023/KR8335"},
                                         {1, "KR73XX/KR8330"},
                                         {11, "KR7061"},
                                         {9, "KR7110"},
                                         {5, "KR7160"}}) {
    Open(row.kind);
    DiagnosticsScreen.leave.Click();
    MainWindow.moduleList.Show("");
    const Snapshot before = TakeSnapshot();
    OpenAgain();
    EXPECT_EQ(MainWindow.moduleList.Text(), row.model);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(DiagnosticsScreenTest, OpensWithoutAPanelAndWithoutAStatus) {
  Open(9);
  Choose("clockChoice");
  DiagnosticsScreen.status.caption = "Ready";
  DiagnosticsScreen.leave.Click();
  OpenAgain();
  EXPECT_EQ(Panels(), Captions{});
  EXPECT_EQ(Status(), "");
  EXPECT_FALSE(DiagnosticsScreen.bar.visible);
  ExpectFree(true);
}

TEST_F(DiagnosticsScreenTest, AChoiceHidesTheOtherPanels) {
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    Open(kind);
    for (const std::string& name : Usable()) {
      Choose(name);
      const std::string start = name.substr(0, name.size() - 6);
      EXPECT_EQ(Panels(), Captions{start + "Group"}) << kind;
    }
  }
}

TEST_F(DiagnosticsScreenTest, OpeningAPanelGivesItsFieldsTheirColourAndNothingElse) {
  constexpr Colour blue{0xC0, 0xC0, 0xFF};
  DiagnosticsScreenFields& screen = DiagnosticsScreen;
  Open(9);
  for (LabelField* field :
       {&screen.line.level, &screen.buttons.number, &screen.light.level, &screen.clock.master.hour,
        &screen.clock.master.date, &screen.clock.master.weekday}) {
    field->caption = "old";
    field->colour.reset();
  }
  screen.buttons.history.SetItems({"old"});
  for (const std::string& name : Usable()) Choose(name);
  for (const LabelField* field :
       {&screen.line.level, &screen.buttons.number, &screen.light.level, &screen.clock.master.hour,
        &screen.clock.master.date, &screen.clock.master.weekday}) {
    EXPECT_EQ(field->caption, "") << field->name;
    EXPECT_EQ(field->colour, blue) << field->name;
  }
  for (const LabelField* field :
       {&screen.clock.pc.hour, &screen.clock.pc.date, &screen.clock.pc.weekday}) {
    EXPECT_EQ(field->colour, blue) << field->name;
  }
  EXPECT_TRUE(screen.buttons.history.Items().empty());
}

// --- Later versions -----------------------------------------------------------------------------

TEST_F(DiagnosticsScreenTest, FromVersionEightyOnButtonsAndOutputsAreNotForThisTool) {
  for (const int kind : {0, 1, 4, 11}) {
    for (const int version : {0, 42, 79}) {
      Open(kind, 1, version);
      EXPECT_EQ(Usable(), (Captions{"lineChoice", "buttonsChoice", "outputsChoice"})) << version;
      EXPECT_FALSE(DiagnosticsScreen.notice.visible) << version;
    }
    for (const int version : {80, 81, 255}) {
      Open(kind, 1, version);
      EXPECT_EQ(Usable(), Captions{"lineChoice"}) << version;
      EXPECT_EQ(Offered().size(), 3U);
      EXPECT_TRUE(DiagnosticsScreen.notice.visible) << version;
      EXPECT_EQ(DiagnosticsScreen.notice.colour, (Colour{0xC0, 0xFF, 0xC0}));
    }
  }
}

TEST_F(DiagnosticsScreenTest, TheyStayUnavailableAfterATest) {
  Open(0, 1, 80);
  Choose("lineChoice");
  Run(DiagnosticsScreen.line.start);
  EXPECT_EQ(Usable(), Captions{});
  Tell("STOP");
  EXPECT_EQ(Usable(), Captions{"lineChoice"});
}

TEST_F(DiagnosticsScreenTest, MastersAndAlarmModulesHaveNoSuchVersion) {
  for (const int kind : {5, 9}) {
    Open(kind, 1, 80);
    ModuleVersion = 80;
    DiagnosticsScreen.leave.Click();
    OpenAgain();
    EXPECT_EQ(Usable().size(), kind == 5 ? 3U : 4U);
    EXPECT_FALSE(DiagnosticsScreen.notice.visible);
  }
}

// --- Leaving ------------------------------------------------------------------------------------

TEST_F(DiagnosticsScreenTest, LeavesByButtonAndByClosing) {
  for (const bool byButton : {true, false}) {
    Open(0);
    Choose("outputsChoice");
    if (byButton) {
      DiagnosticsScreen.leave.Click();
    } else {
      DiagnosticsScreen.Close();
    }
    EXPECT_FALSE(DiagnosticsScreen.shown);
    EXPECT_EQ(Panels(), Captions{});
    ExpectNothingSent();
  }
}

}  // namespace
}  // namespace bkconf
