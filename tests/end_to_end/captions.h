// What a person reads on the tool's windows, in both languages. Tests that run in both look their
// buttons, entries and labels up here.
#pragma once

namespace end_to_end {

struct Captions {
  int language;  // the number of the settings: 1 Dutch, 2 French
  const char* languageName;

  // Main window
  const char* connect;
  const char* send;
  const char* action;
  const char* moduleData;
  const char* address;
  const char* moreInfo;
  const char* closeManual;
  const char* diagnostics;
  const char* incomplete;

  // Menus
  const char* fileMenu;
  const char* newEntry;
  const char* openEntry;
  const char* saveEntry;
  const char* saveAsEntry;

  // File screens
  const char* openTitle;
  const char* openButton;
  const char* saveTitle;
  const char* saveButton;
  const char* fileName;

  // Screens of the editors
  const char* confirm;
  const char* leave;
  const char* yes;

  // The push-buttons
  const char* buttons;
  const char* buttonChooser;
  const char* buttonRow;  // in front of its number
  const char* firstColumn;
  const char* secondColumn;
  const char* firstFunction;
  const char* store;
  const char* clearFirst;
  const char* clearSecond;
  const char* baseFunctions;
  const char* baseQuestion;
  const char* secondTime;       // the button of the main window
  const char* secondTimeLabel;  // in front of the list of its screen
  const char* context;

  // The outputs
  const char* outputFunctions;  // the buttons of the main window
  const char* startValues;
  const char* editOutput;
  const char* output;
  const char* function;
  const char* functionColumn;
  const char* pulse;
  const char* time;
  const char* editStart;
  const char* channel;
  const char* startValue;

  // Errors
  const char* fileTooShort;
  const char* place;
  const char* line;
};

inline constexpr Captions dutch = {.language = 1,
                                   .languageName = "Dutch",
                                   .connect = "Verbinden",
                                   .send = "Versturen",
                                   .action = "Actie:",
                                   .moduleData = "Module gegevens:",
                                   .address = "Adres module:",
                                   .moreInfo = "Meer info...",
                                   .closeManual = "Sluiten",
                                   .diagnostics = "Diagnose",
                                   .incomplete = "Niet alles ingeladen!",
                                   .fileMenu = "Bestand",
                                   .newEntry = "Nieuwe module",
                                   .openEntry = "Module Openen ...",
                                   .saveEntry = "Module Opslaan",
                                   .saveAsEntry = "Module Opslaan als ...",
                                   .openTitle = "Openen",
                                   .openButton = "Openen",
                                   .saveTitle = "Opslaan",
                                   .saveButton = "Bewaren",
                                   .fileName = "Bestandsnaam",
                                   .confirm = "Bevestigen",
                                   .leave = "Verlaten",
                                   .yes = "Ja",
                                   .buttons = "Drukknoppen",
                                   .buttonChooser = "Drukknop Nr:",
                                   .buttonRow = "Nummer: ",
                                   .firstColumn = "1ste functie",
                                   .secondColumn = "2de functie",
                                   .firstFunction = "1ste functie:",
                                   .store = "<--Invoegen",
                                   .clearFirst = "Wissen van alle 1ste functies!",
                                   .clearSecond = "Wissen van alle 2de functies!",
                                   .baseFunctions = "Basisfuncties",
                                   .baseQuestion = "Basisfuncties aan drukknoppen toekennen?",
                                   .secondTime = "Tijd 2de functie",
                                   .secondTimeLabel = "Tijd 2de functie:",
                                   .context = "Sfeer:",
                                   .outputFunctions = "Functie van de uitgangen",
                                   .startValues = "Beginwaarde dim-kanalen",
                                   .editOutput = "Functie van uitgang wijzigen:",
                                   .output = "Uitgang:",
                                   .function = "Functie:",
                                   .functionColumn = "Functie",
                                   .pulse = "Puls",
                                   .time = "Tijd:",
                                   .editStart = "Beginwaarde wijzigen:",
                                   .channel = "Dim kanaal:",
                                   .startValue = "Beginwaarde:",
                                   .fileTooShort = "Het bestand is te kort voor deze module.",
                                   .place = "Plaats: ",
                                   .line = "regel "};

inline constexpr Captions french = {.language = 2,
                                    .languageName = "French",
                                    .connect = "Connecter",
                                    .send = "Envoyer",
                                    .action = "Action:",
                                    .moduleData = "Données module:",
                                    .address = "Adresse module:",
                                    .moreInfo = "Plus de données...",
                                    .closeManual = "Fermer",
                                    .diagnostics = "Diagnostics",
                                    .incomplete = "Chargement incomplet!",
                                    .fileMenu = "Fichier",
                                    .newEntry = "Nouveau module",
                                    .openEntry = "Ouvrir module ...",
                                    .saveEntry = "Sauver module",
                                    .saveAsEntry = "Sauver module dans ...",
                                    .openTitle = "Ouvrir",
                                    .openButton = "Ouvrir",
                                    .saveTitle = "Sauver",
                                    .saveButton = "Sauver",
                                    .fileName = "Nom fichier",
                                    .confirm = "Confirmer",
                                    .leave = "Quitter",
                                    .yes = "Oui",
                                    .buttons = "Boutons poussoirs",
                                    .buttonChooser = "Nr. bouton:",
                                    .buttonRow = "Numéro: ",
                                    .firstColumn = "1° fonction",
                                    .secondColumn = "2° fonction",
                                    .firstFunction = "1ère fonction:",
                                    .store = "<--Insérer",
                                    .clearFirst = "Effacer tous les 1ère fonctions!",
                                    .clearSecond = "Effacer tous les 2ème fonctions!",
                                    .baseFunctions = "Fonctions de base",
                                    .baseQuestion = "Fonctions de base aux boutons poussoirs?",
                                    .secondTime = "Temps 2ème fonction",
                                    .secondTimeLabel = "Temps 2ème fonction:",
                                    .context = "Contexte:",
                                    .outputFunctions = "Fonction des sorties",
                                    .startValues = "Valeur début des sorties",
                                    .editOutput = "Editer la fonction de la sortie:",
                                    .output = "Sortie:",
                                    .function = "Fonction:",
                                    .functionColumn = "Fonction",
                                    .pulse = "Impulsion",
                                    .time = "Temps:",
                                    .editStart = "Editer la valeur début:",
                                    .channel = "Canal dim:",
                                    .startValue = "Valeur début:",
                                    .fileTooShort = "Le fichier est trop court pour ce module.",
                                    .place = "Endroit : ",
                                    .line = "ligne "};

}  // namespace end_to_end
