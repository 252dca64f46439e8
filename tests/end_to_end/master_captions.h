// What a person reads on the screens of a master, in both languages. Used by their tests.
#pragma once

#include <array>

#include "end_to_end/captions.h"

namespace end_to_end {

struct MasterCaptions {
  const char* title;
  // Buttons of the main window
  const char* contexts;
  const char* timePrograms;
  const char* lightPrograms;
  const char* configuration;

  // The configuration page
  const char* page;
  const char* scan;
  const char* add;
  const char* address;
  const char* lumenza;  // a type of module

  // All three screens
  const char* edit;  // the frames
  const char* erase;
  const char* freeMemory;

  // The contexts
  const char* contextChooser;
  const char* context;  // in front of its number
  const char* eraseAction;
  const char* eraseContext;
  const char* output;
  const char* function;
  const char* allOutputs;
  const char* memoryFull;

  // The programmes
  const char* question;
  const char* actionColumn;
  const char* time;
  const char* day;
  std::array<const char*, 9> days;  // Sunday to Saturday, on a date, every day
  const char* level;
  std::array<const char*, 2> directions;  // as it gets dark first
  std::array<const char*, 2> directionsAfterRead;
};

inline constexpr MasterCaptions dutchMaster = {
    .title = "Mastermodule KR7110",
    .contexts = "Sferen",
    .timePrograms = "Tijd programmaties",
    .lightPrograms = "Licht programmaties",
    .configuration = "Configuratie",
    .page = "Configuratie:",
    .scan = "Automatische scanning",
    .add = "Toevoegen:",
    .address = "Adres",
    .lumenza = "Lumenza module",
    .edit = "Editeren:",
    .erase = "Wissen:",
    .freeMemory = "Vrij geheugen",
    .contextChooser = "Sferen:",
    .context = "Sfeer ",
    .eraseAction = "Actie wissen",
    .eraseContext = "Alles wissen !!",
    .output = "Uitgang",
    .function = "Functie",
    .allOutputs = "Alle uitgangen",
    .memoryFull = "Geheugen vol !!",
    .question = "Programmatie wissen?",
    .actionColumn = "Actie",
    .time = "Tijd",
    .day = "Weekdag",
    .days = {"Zondag", "Maandag", "Dinsdag", "Woensdag", "Donderdag", "Vrijdag", "Zaterdag",
             "Op datum", "Elke dag"},
    .level = "Lichtsterkte",
    .directions = {"Licht -> Donker", "Donker -> Licht"},
    .directionsAfterRead = {"Licht > Donker", "Licht < Donker"}};

inline constexpr MasterCaptions frenchMaster = {
    .title = "Module master KR7110",
    .contexts = "Contextes",
    .timePrograms = "Programmation temps",
    .lightPrograms = "Programmation luminosité",
    .configuration = "Configuration",
    .page = "Configuration:",
    .scan = "Scanning automatique",
    .add = "Ajouter:",
    .address = "Adresse",
    .lumenza = "Module Lumenza",
    .edit = "Editer:",
    .erase = "Effacer:",
    .freeMemory = "Mémoire libre",
    .contextChooser = "Contextes:",
    .context = "Contexte ",
    .eraseAction = "Effacer l'action",
    .eraseContext = "Effacer tout !!",
    .output = "Sortie",
    .function = "Fonction",
    .allOutputs = "Tout les sorties",
    .memoryFull = "Mémoire pleine !!",
    .question = "Effacer la programmation?",
    .actionColumn = "Action",
    .time = "Temps",
    .day = "Jour",
    .days = {"Dimanche", "Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi",
             "A la date du", "Quotidien"},
    .level = "Luminosité",
    .directions = {"Clair -> Sombre", "Sombre -> Clair"},
    .directionsAfterRead = {"Clair > Sombre", "Clair < Sombre"}};

}  // namespace end_to_end
