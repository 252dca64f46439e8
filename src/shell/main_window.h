// The main window, as logic: its fields, what it shows for each kind, and the entries Connect, Send
// and New. The window mirrors it; scripts and tests drive it.
#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "master/module_page.h"
#include "platform/field.h"
#include "platform/tick.h"
#include "session/state.h"
#include "shell/action_buttons.h"

namespace bkconf {

/// One of the four groups of module data; one is shown at a time.
struct DataGroupFields {
  DataGroupFields(Screen& screen, DataGroup dataGroup, std::string_view prefix);

  const DataGroup group;
  GroupField frame;
  LabelField addressLabel;
  ListField address;  ///< the letters "A" to "R"
  LabelField version;
};

struct MainWindowScreen : Screen {
  MainWindowScreen();

  // Menus
  MenuField bestand, nieuw, lijn1, openen, lijn2, Bewaren, Bewaren_als, lijn3, Einde;
  MenuField taal, ned, frans;
  MenuField settings, poort, p1, p2, p3, p4, p5, p6, p7, p8, lijn4, instellingen;
  MenuField Info, Web;

  // Selection and picture
  LabelField moduleListLabel;
  ListField moduleList;
  GroupField pictureGroup;
  PictureField picture;
  LabelField moduleCaption;
  ButtonField moreInfo, infoInductive, infoCapacitive, infoAnalogue;

  // Transfer buttons
  GroupField actionGroup;
  ButtonField connect, send, upgrade;

  // Module data groups, with what only one kind has
  DataGroupFields general, displayTemperature, alarm, special;
  LabelField roomCountLabel;
  ListField roomCount;  ///< cell 1 of TempHeader, 1 to 8
  LabelField toleranceLabel;
  ListField tolerance;  ///< cell 2 of TempHeader, 2 to 255
  LabelField detectorCountLabel;
  ListField detectorCount;                                  ///< cell 123 of AlarmImage, 1 to 12
  std::vector<std::unique_ptr<ButtonField>> actionButtons;  ///< one for each row of ActionButtons

  ModulePageFields modulePage;  ///< of a master

  // Over all of it
  ManualField manual;
  ButtonField closeManual;

  // Status
  LabelField status;
  ProgressField transferBar;

  DataGroupFields& Group(DataGroup group);
};

/// The tool's only permanent screen.
inline MainWindowScreen MainWindow;

/// Start-up of the window once the settings are read: title, captions, lists, marks.
void LoadMainWindow();

/// Where the image in memory has come from. A file comes without a module to test.
enum class Origin { Read, File };

/// Shows what the image in memory is and holds: model, picture, groups, address and action buttons,
/// all of them usable. A kind that is unknown leaves what is shown, with nothing to edit.
void ShowImage(Origin origin);

/// Shows the module data group of the kind in memory; without a kind the general one, unless one is
/// shown already.
void ShowSomeDataGroup();

/// The program's name, and behind it the path of a file unless it is empty.
void ShowTitle(const std::string& path);

/// What the button Connect does.
void Connect();
/// What the entry `nieuw` does.
void NewModule();

}  // namespace bkconf
