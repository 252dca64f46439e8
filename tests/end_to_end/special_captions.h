// What a person reads on the screens that only one kind of module has, in both languages. Used by
// their tests.
#pragma once

#include <ostream>

#include "end_to_end/captions.h"

namespace end_to_end {

// --- Alarm --------------------------------------------------------------------------------------

struct AlarmCaptions {
  const Captions* captions;
  const char* title;
  const char* detectors;
  const char* detector;  // in front of its number
  const char* noneChosen;
  const char* inService;
  const char* outOfService;
  const char* settings;
  const char* noCondition;
  const char* light;
  const char* none;
  const char* level;
  const char* time;
  const char* from;
  const char* to;
  const char* both;
  const char* either;
  const char* atOnce;
  const char* delay;
  const char* edit;
  const char* noAction;
  const char* typeAsked;
  const char* relayType;
  const char* output;
  const char* on;
  const char* context;
};

inline void PrintTo(const AlarmCaptions& each, std::ostream* out) {
  *out << each.captions->languageName;
}

inline constexpr AlarmCaptions dutchAlarm = {.captions = &dutch,
                                             .title = "Alarmmodule KR7160 <adres = G>",
                                             .detectors = "Detectoren",
                                             .detector = "Detector ",
                                             .noneChosen = "Detector ?",
                                             .inService = "Detector ACTIEF!",
                                             .outOfService = "BUITEN DIENST!",
                                             .settings = "Instellingen:",
                                             .noCondition = "Geen conditie",
                                             .light = "Licht:",
                                             .none = "Geen",
                                             .level = "Donkerder dan:",
                                             .time = "Tijd:",
                                             .from = "Van uur",
                                             .to = "Tot uur",
                                             .both = "EN",
                                             .either = "OF",
                                             .atOnce = "Onmiddellijke actie",
                                             .delay = "Na een vertraging van",
                                             .edit = "Editeren:",
                                             .noAction = "Geen actie",
                                             .typeAsked = "Module type?",
                                             .relayType = "Relaismodule",
                                             .output = "Uitgang:",
                                             .on = "Aan",
                                             .context = "Sfeer"};

inline constexpr AlarmCaptions frenchAlarm = {.captions = &french,
                                              .title = "Module alarme KR7160 <adresse = G>",
                                              .detectors = "Détecteurs",
                                              .detector = "Détecteur ",
                                              .noneChosen = "Détecteur ?",
                                              .inService = "en service",
                                              .outOfService = "hors service",
                                              .settings = "Modifications:",
                                              .noCondition = "Sans condition",
                                              .light = "Lumière:",
                                              .none = "Pas",
                                              .level = "Luminosité",
                                              .time = "Temps:",
                                              .from = "De Hre",
                                              .to = "A Hre",
                                              .both = "ET",
                                              .either = "OU",
                                              .atOnce = "Action directe",
                                              .delay = "Après un delai de",
                                              .edit = "Editer:",
                                              .noAction = "Pas d'action",
                                              .typeAsked = "Type module?",
                                              .relayType = "Module relais",
                                              .output = "Sortie:",
                                              .on = "ON",
                                              .context = "Contexte"};

// --- Audio --------------------------------------------------------------------------------------

struct AudioCaptions {
  const char* title;
  const char* button;  // of the main window after a read
  const char* general;
  const char* zones;
  const char* sources;
  const char* settings;
  const char* main;
  const char* source;
  const char* volume;
  const char* secondary;
};

inline constexpr AudioCaptions dutchAudio = {.title = "Audio interface KR7920 <adres = H>",
                                             .button = "Audio instellingen",
                                             .general = "Algemeen:",
                                             .zones = "Aantal zone's",
                                             .sources = "Aantal bronnen",
                                             .settings = "Instellingen:",
                                             .main = "Hoofdzone",
                                             .source = "Default bron",
                                             .volume = "Default volume",
                                             .secondary = "Nevenzone"};

inline constexpr AudioCaptions frenchAudio = {.title = "Interface audio KR7920 <adresse = H>",
                                              .button = "Instellen audio",
                                              .general = "Général:",
                                              .zones = "Nombre de zone",
                                              .sources = "Nombre de sources",
                                              .settings = "Instellen:",
                                              .main = "Zone principale",
                                              .source = "Source default",
                                              .volume = "Volume default",
                                              .secondary = "Zone secondaire"};

// --- Simulation ---------------------------------------------------------------------------------

struct SimulationCaptions {
  const char* settings;  // the button of the main window
  const char* off;
  const char* on;
  const char* edit;
};

inline constexpr SimulationCaptions dutchSimulation = {.settings = "Simulatie instellingen",
                                                       .off = "Simulatie uit",
                                                       .on = "Simulatie aan",
                                                       .edit = "Editeren:"};

inline constexpr SimulationCaptions frenchSimulation = {.settings = "Configuration simulation",
                                                        .off = "Simulation OFF",
                                                        .on = "Simulation ON",
                                                        .edit = "Editer:"};

// --- Infrared -----------------------------------------------------------------------------------

struct InfraredCaptions {
  const char* settings;  // the button of the main window
  const char* edit;
  const char* row;
  const char* insert;
  const char* actions;  // in front of the key
};

inline constexpr InfraredCaptions dutchInfrared = {.settings = "IR instellingen",
                                                   .edit = "IR code wijzigen, max 4 ruimtes.",
                                                   .row = "Actie Nr:",
                                                   .insert = "Invoegen",
                                                   .actions = "Acties voor toets "};

inline constexpr InfraredCaptions frenchInfrared = {.settings = "Configuration IR",
                                                    .edit = "Modification code IR",
                                                    .row = "Action Nr:",
                                                    .insert = "Ajouter",
                                                    .actions = "Actions pour touche "};

}  // namespace end_to_end
