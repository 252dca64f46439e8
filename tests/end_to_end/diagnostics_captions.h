// What a person reads on the screen of the live tests, in both languages. Used by its tests.
#pragma once

#include "end_to_end/captions.h"

namespace end_to_end {

struct DiagnosticsCaptions {
  const char* choice;  // the frame
  // The choices; with a colon they are the captions of the panels.
  const char* line;
  const char* outputs;
  const char* light;
  const char* clock;
  const char* detectors;
  const char* otherTool;  // for later modules

  // What the status tells while a test runs
  const char* testingButtons;
  const char* testingOutputs;
  const char* testingDetectors;

  // Push-buttons
  const char* pressedAt;  // a row of the history: this, the time...
  const char* pressed;    // ...this, and the number

  // Clocks
  const char* masterClock;
  const char* computerClock;
  const char* ask;
  const char* synchronise;

  // Detectors
  const char* logic;
  const char* level;
  const char* rest;
  const char* trigger;
};

inline constexpr DiagnosticsCaptions dutchDiagnostics = {
    .choice = "Keuze:",
    .line = "Lijnstatus",
    .outputs = "Uitgangen",
    .light = "Lichtsensor",
    .clock = "Klok",
    .detectors = "Detectoren",
    .otherTool = "Gebruik de Zentrix voor diagnose van knoppen en uitgangen aub!",
    .testingButtons = "Drukknoppen test...",
    .testingOutputs = "Uitgangen test...",
    .testingDetectors = "Detectoren test...",
    .pressedAt = "Tijd: ",
    .pressed = "  Knop: ",
    .masterClock = "Klok master:",
    .computerClock = "Klok PC:",
    .ask = "Opvragen",
    .synchronise = "Synchroniseren",
    .logic = "Logica",
    .level = "Referentie",
    .rest = "Rust",
    .trigger = "TRIGGER!"};

inline constexpr DiagnosticsCaptions frenchDiagnostics = {
    .choice = "Choix:",
    .line = "Status de la ligne",
    .outputs = "Sorties",
    .light = "Capteur de luminosité",
    .clock = "Horloge",
    .detectors = "Détecteurs",
    .otherTool = "Utilisez le Zentrix pour le diagnose des boutons poussoirs et les sorties svp!",
    .testingButtons = "Test boutons poussoir...",
    .testingOutputs = "Test sorties...",
    .testingDetectors = "Test detecteurs...",
    .pressedAt = "Temps: ",
    .pressed = "  Bouton: ",
    .masterClock = "Horloge master:",
    .computerClock = "Horloge PC:",
    .ask = "Demander",
    .synchronise = "Synchroniser",
    .logic = "Condition",
    .level = "Niveau",
    .rest = "Fermé",
    .trigger = "Ouvert"};

}  // namespace end_to_end
