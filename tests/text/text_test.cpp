#include "text/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "text/windows1252.h"

namespace bkconf {
namespace {

struct Pair {
  TextId id;
  std::string_view dutch;
  std::string_view french;
};

/// Written down apart from the table, letter for letter.
constexpr Pair SessionPairs[] = {
    {TextId::WindowTitle, "TREVAN BK-CONF", "TREVAN BK-CONF"},
    {TextId::ActionCaption, "Actie:", "Action:"},
    {TextId::Connect, "Verbinden", "Connecter"},
    {TextId::Send, "Versturen", "Envoyer"},
    {TextId::ModuleData, "Module gegevens:", "Données module:"},
    {TextId::ModuleAddress, "Adres module:", "Adresse module:"},
    {TextId::Version, "Versie: ", "Version: "},
    {TextId::ModuleCaption, "Module:", "Module:"},
    {TextId::DetectorCount, "Aantal detectoren:", "Nombre détecteurs:"},
    {TextId::RoomCount, "Aantal ruimtes", "Nombre de pièces"},
    {TextId::Tolerance, "Tolerantie", "Tolérance"},
    {TextId::ToleranceHint, "Zie 'Meer info' voor tolerantiewaardes.",
     "Voir 'Plus de données' pour valeurs tolérance."},
    {TextId::MoreInfo, "Meer info...", "Plus de données..."},
    {TextId::InfoInductive, "Info KR7310", "Info KR7310"},
    {TextId::InfoCapacitive, "Info KR7320", "Info KR7320"},
    {TextId::InfoAnalogue, "KR7330/KR8330", "KR7330/KR8330"},
};

constexpr Pair MenuPairs[] = {
    {TextId::FileMenu, "Bestand", "Fichier"},
    {TextId::NewEntry, "&Nieuwe module", "Nouveau module"},
    {TextId::OpenEntry, "Module &Openen ...", "Ouvrir module ..."},
    {TextId::SaveEntry, "Module Op&slaan", "Sauver module"},
    {TextId::SaveAsEntry, "Module Opslaan als ...", "Sauver module dans ..."},
    {TextId::EndEntry, "E&xit", "Exit"},
    {TextId::LanguageMenu, "Taal/langue", "Taal/langue"},
    {TextId::DutchEntry, "&Nederlands", "&Nederlands"},
    {TextId::FrenchEntry, "&Francais", "&Francais"},
    {TextId::SettingsMenu, "Settings", "Settings"},
    {TextId::PortMenu, "Com-port", "Com-port"},
    {TextId::PreferencesEntry, "Preferences ...", "Preferences ..."},
    {TextId::InfoMenu, "Info", "Info"},
};

constexpr Pair TransferPairs[] = {
    {TextId::SearchingModule, "Module zoeken...", "Recherche module..."},
    {TextId::EditMode, "Edit mode", "Edit mode"},
    {TextId::Ready, "Ready", "Ready"},
    {TextId::Diagnosing, "Diagnose", "Diagnostics"},
    {TextId::ReadingData, "Inladen van de gegevens...", "Chargement des données..."},
    {TextId::ReadingContexts, "Inladen van sferen...", "Chargement des contextes..."},
    {TextId::ReadingTimePrograms, "Inladen tijprogrammaties...", "Chargement prog. temps..."},
    {TextId::ReadingLightPrograms, "Inladen lichtprogrammaties...",
     "Chargement prog. luminosité..."},
    {TextId::ReadingDisplay1, "Inladen LCD Display 1...", "Chargement LCD Display 1..."},
    {TextId::ReadingDisplay2, "Inladen LCD Display 2...", "Chargement LCD Display 2..."},
    {TextId::ReadingTemperatures, "Opvragen temperaturen...", "Demander les températures..."},
    {TextId::ScanningModules, "Scanning van de modules...", "Scanning des modules..."},
    {TextId::SendingData, "Versturen van de gegevens...", "Envoyer les données..."},
    {TextId::SendingDisplay1, "Versturen LCD Display 1...", "Envoyer LCD Display 1..."},
    {TextId::SendingDisplay2, "Versturen LCD Display 2...", "Envoyer LCD Display 2..."},
    {TextId::SendingContexts, "Versturen van de sferen...", "Envoyer les contextes..."},
    {TextId::SendingTimePrograms, "Versturen tijdprogrammaties...",
     "Envoyer programmations temps..."},
    {TextId::SendingLightPrograms, "Versturen lichtprogrammaties...",
     "Envoyer programmations luminosité..."},
    {TextId::WrongModule, "De gevonden module is niet van het juiste type !",
     "Le module trouvé n'est pas du bon type !"},
};

constexpr Pair KindPairs[] = {
    {TextId::RelayModule, "Relaismodule", "Module relais"},
    {TextId::RelayFrame, "Relaismodule:", "Module relais:"},
    {TextId::RelayDcModule, "Relaismodule DC", "Module relais DC"},
    {TextId::DimModule, "Dimmodule", "Module dimmer"},
    {TextId::DimFrame, "Dimmodule:", "Module dimmer:"},
    {TextId::LumenzaModule, "Lumenza module", "Module Lumenza"},
    {TextId::LumenzaFrame, "Lumenza module:", "Module Lumenza:"},
    {TextId::MasterModule, "Mastermodule", "Module master"},
    {TextId::MasterFrame, "Mastermodule:", "Module master:"},
    {TextId::TemperatureModule, "Temperatuurmodule", "Module température"},
    {TextId::TemperatureFrame, "Temperatuurmodule:", "Module température:"},
    {TextId::LcdModule, "LCD module", "Module LCD"},
    {TextId::LcdFrame, "LCD controller:", "Module LCD:"},
    {TextId::AlarmModule, "Alarmmodule", "Module alarme"},
    {TextId::AlarmFrame, "Alarmmodule:", "Module alarme:"},
    {TextId::AudioInterface, "Audio interface", "Interface audio"},
    {TextId::AudioFrame, "Audio interface:", "Interface audio:"},
    {TextId::SimulationModule, "Simulatiemodule", "Module simulation"},
    {TextId::SimulationFrame, "Simulatiemodule:", "Module simulation:"},
    {TextId::IrModule, "I.R. module", "Module I.R."},
    {TextId::IrFrame, "I.R. module:", "Module I.R.:"},
    {TextId::RelayInterface, "Interface Relais module", "Interface module Relais"},
    {TextId::RelayInterfaceFrame, "Interface Relais module:", "Interface module Relais:"},
};

constexpr Pair ActionPairs[] = {
    {TextId::ButtonsAction, "Drukknoppen", "Boutons poussoirs"},
    {TextId::SecondFunctionAction, "Tijd 2de functie", "Temps 2ème fonction"},
    {TextId::OutputFunctionsAction, "Functie van de uitgangen", "Fonction des sorties"},
    {TextId::DimStartAction, "Beginwaarde dim-kanalen", "Valeur début des sorties"},
    {TextId::ContextsAction, "Sferen", "Contextes"},
    {TextId::TimeProgramsAction, "Tijd programmaties", "Programmation temps"},
    {TextId::LightProgramsAction, "Licht programmaties", "Programmation luminosité"},
    {TextId::ConfigurationAction, "Configuratie", "Configuration"},
    {TextId::DiagnosticsAction, "Diagnose", "Diagnostics"},
    {TextId::DetectorsAction, "Detectoren", "Détecteurs"},
    {TextId::RoomIdsAction, "ID nummers en uitgangen kleppen", "Numéros ID et sorties des vannes"},
    {TextId::RoomProgramAction, "Instellingen periodes en temperaturen",
     "Paramétrage périodes et températures"},
    {TextId::LiveTemperaturesAction, "Actuele temperaturen (diagnose)",
     "Températures actuelles (diagnostics)"},
    {TextId::Display1Action, "LCD Scherm N°1", "Ecran LCD N°1"},
    {TextId::Display2ActionAfterRead, "LCD Scherm N°2", "LCD Scherm N°2"},
    {TextId::DisplayGeneralAction, "Algemene gegevens", "Données génerales"},
    {TextId::AudioActionAfterRead, "Audio instellingen", "Instellen audio"},
    {TextId::SimulationAction, "Simulatie instellingen", "Configuration simulation"},
    {TextId::IrAction, "IR instellingen", "Configuration IR"},
};

void ExpectPairs(std::span<const Pair> pairs) {
  for (const Pair& pair : pairs) {
    EXPECT_EQ(TextOf(pair.id).dutch, pair.dutch);
    EXPECT_EQ(TextOf(pair.id).french, pair.french);
  }
}

std::vector<TextRow> AllTexts() {
  std::vector<TextRow> texts;
  for (std::size_t i = 0; i < TextCount(); ++i) texts.push_back(TextOf(static_cast<TextId>(i)));
  return texts;
}

TEST(TextTest, TheTextsOfTheSessionAgreeLetterForLetter) {
  ExpectPairs(SessionPairs);
}
TEST(TextTest, TheCaptionsOfTheMenusAgreeLetterForLetter) {
  ExpectPairs(MenuPairs);
}
TEST(TextTest, TheTextsOfATransferAgreeLetterForLetter) {
  ExpectPairs(TransferPairs);
}
TEST(TextTest, TheCaptionsOfTheKindsAgreeLetterForLetter) {
  ExpectPairs(KindPairs);
}
TEST(TextTest, TheCaptionsOfTheActionButtonsAgreeLetterForLetter) {
  ExpectPairs(ActionPairs);
}

TEST(TextTest, EveryTextHasBothLanguages) {
  EXPECT_GT(TextCount(), 0U);
  for (const TextRow& row : AllTexts()) {
    EXPECT_FALSE(row.dutch.empty()) << row.french;
    EXPECT_FALSE(row.french.empty()) << row.dutch;
  }
}

TEST(TextTest, TheLanguagesDifferUnlessTheyAreTheSameOnPurpose) {
  for (const TextRow& row : AllTexts()) {
    EXPECT_EQ(row.dutch == row.french, row.sameOnPurpose) << row.dutch;
  }
}

/// Texts that stand behind another one, or leave room for a field in front of them.
const std::set<TextId> BeginWithABlank = {
    TextId::WordOff,
    TextId::WordOn,
    TextId::WordToggle,
    TextId::WordToPercent,
    TextId::WordVolumeUp,
    TextId::WordVolumeDown,
    TextId::WordSourceUp,
    TextId::WordTrebleUp,
    TextId::WordTrebleDown,
    TextId::WordBassUp,
    TextId::WordBassDown,
    TextId::WordToSource,
    TextId::WordToVolume,
    TextId::WordToTreble,
    TextId::WordToBass,
    TextId::WordToBalance,
    TextId::InAllRooms,
    TextId::InRoom,
    TextId::DegreesInRoom,
    TextId::DegreesInAllRooms,
    TextId::LinkedFor,
    TextId::ContextFull,
    TextId::HistoryButton,
    TextId::ThisModuleOption,
    TextId::BusOption,
    TextId::OwnOutputEnd,
    TextId::Display1Title,
    TextId::Display2Title,
    TextId::WeekdaysScreenTitle,
    TextId::KeyArrowB,
    TextId::KeyNone,
    TextId::StateOn,
    TextId::StateOff,
};

/// Their French alone does, and stands for itself all the same.
const std::set<TextId> FrenchBeginsWithABlank = {TextId::IrEdit, TextId::IrToItself};

/// Texts that something follows.
const std::set<TextId> EndInABlank = {
    TextId::Version,
    TextId::ErrorPlace,
    TextId::FileLine,
    TextId::RelayFileName,
    TextId::DimFileName,
    TextId::RelayDcFileName,
    TextId::LcdFileName,
    TextId::IrFileName,
    TextId::TemperatureFileName,
    TextId::AlarmFileName,
    TextId::AudioFileName,
    TextId::SimulationFileName,
    TextId::OutputSentence,
    TextId::DetectorSentence,
    TextId::WordToPercent,
    TextId::InRoom,
    TextId::MainZoneSentence,
    TextId::SecondaryZoneSentence,
    TextId::WordToSource,
    TextId::WordToVolume,
    TextId::WordToTreble,
    TextId::WordToBass,
    TextId::WordToBalance,
    TextId::ContextSentence,
    TextId::RelayTitle,
    TextId::RelayDcTitle,
    TextId::DimTitle,
    TextId::LumenzaTitle,
    TextId::TemperatureTitle,
    TextId::LcdTitle,
    TextId::AlarmTitle,
    TextId::AudioTitle,
    TextId::SimulationTitle,
    TextId::IrTitle,
    TextId::ButtonNumber,
    TextId::ActiveAfterOutput,
    TextId::LockedWithOutput,
    TextId::LinkedFor,
    TextId::HistoryTime,
    TextId::HistoryButton,
    TextId::Room,
    TextId::OwnOutput,
    TextId::MenuScreen,
    TextId::KeyNone,
    TextId::ActionsOfKey,
};

TEST(TextTest, OnlyTextsThatAreMeantToBeginOrEndInABlank) {
  for (std::size_t i = 0; i < TextCount(); ++i) {
    const auto id = static_cast<TextId>(i);
    for (const std::string_view text : {TextOf(id).dutch, TextOf(id).french}) {
      const bool itself = text == TextOf(id).french && FrenchBeginsWithABlank.contains(id);
      EXPECT_EQ(text.front() == ' ', itself || BeginWithABlank.contains(id)) << text;
      EXPECT_EQ(text.back() == ' ', EndInABlank.contains(id)) << text;
    }
  }
}

TEST(TextTest, EveryTextIsUtf8WithCharactersThatModulesAndFilesHaveToo) {
  for (const TextRow& row : AllTexts()) {
    for (const std::string_view text : {row.dutch, row.french}) {
      EXPECT_EQ(FromWindows1252(ToWindows1252(text)), text);
    }
  }
}

TEST(TextTest, NoTextHoldsAControlCharacter) {
  for (const TextRow& row : AllTexts()) {
    for (const std::string_view text : {row.dutch, row.french}) {
      EXPECT_TRUE(std::none_of(text.begin(), text.end(), [](char each) {
        const auto code = static_cast<unsigned char>(each);
        return code < ' ' || code == 127;
      })) << text;
    }
  }
}

}  // namespace
}  // namespace bkconf
