#include "shell/menus.h"

#include <array>
#include <string>

#include "link/transfer.h"
#include "platform/machine.h"
#include "platform/runtime_error.h"
#include "session/language.h"
#include "session/settings.h"
#include "shell/directory_screen.h"
#include "shell/main_window.h"
#include "shell/module_file.h"
#include "shell/open_dialog.h"
#include "shell/save_dialog.h"

namespace bkconf {
namespace {

/// The maker's page, from the build's settings.
constexpr std::string_view WebAddress = BKCONF_WEB_ADDRESS;

std::array<MenuField*, 8> PortEntries() {
  return {&MainWindow.p1, &MainWindow.p2, &MainWindow.p3, &MainWindow.p4,
          &MainWindow.p5, &MainWindow.p6, &MainWindow.p7, &MainWindow.p8};
}

void MarkPort() {
  const auto entries = PortEntries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i]->checked = PortNumber.Number() == static_cast<double>(i + 1);
  }
}

void ShowPortNumbers() {
  for (int number = 1; MenuField * entry : PortEntries()) {
    Show(entry->caption, TextId::PortEntry);
    entry->caption += std::to_string(number);
    ++number;
  }
}

/// In a menu an ampersand marks the letter behind it, unless there are two.
std::string Plain(std::string_view text) {
  std::string plain;
  for (const char character : text) plain.append(character == '&' ? 2 : 1, character);
  return plain;
}

/// The device behind each number, which changes when an adapter is plugged or pulled. A look at the
/// machine's ports takes its time, so it waits until somebody opens the menu.
void ShowDevices() {
  ShowPortNumbers();
  for (int number = 1; MenuField * entry : PortEntries()) {
    const std::string device = Port->DeviceOf(number);
    if (!device.empty()) entry->caption += std::string(TitleSeparator) + Plain(device);
    ++number;
  }
}

struct MenuCaption {
  MenuField* menu;
  TextId caption;
};

std::array<MenuCaption, 13> Captions() {
  return {{{&MainWindow.bestand, TextId::FileMenu},
           {&MainWindow.nieuw, TextId::NewEntry},
           {&MainWindow.openen, TextId::OpenEntry},
           {&MainWindow.Bewaren, TextId::SaveEntry},
           {&MainWindow.Bewaren_als, TextId::SaveAsEntry},
           {&MainWindow.Einde, TextId::EndEntry},
           {&MainWindow.taal, TextId::LanguageMenu},
           {&MainWindow.ned, TextId::DutchEntry},
           {&MainWindow.frans, TextId::FrenchEntry},
           {&MainWindow.settings, TextId::SettingsMenu},
           {&MainWindow.poort, TextId::PortMenu},
           {&MainWindow.instellingen, TextId::PreferencesEntry},
           {&MainWindow.Info, TextId::InfoMenu}}};
}

void ShowMenuCaptions() {
  for (const MenuCaption& row : Captions()) {
    // The design's own captions are the Dutch ones.
    row.menu->caption = TextOf(row.caption).dutch;
    Show(row.menu->caption, row.caption);
  }
  ShowPortNumbers();
}

/// Starts the upgrade program and ends this one. False when it cannot be started.
bool HandOver() {
  if (!OtherPrograms->Start("upgrade.exe")) return false;
  // The other program has taken over: this one ends behind the event, even if the note fails.
  OtherPrograms->End();
  FileSystem->Write(SettingsPath("upgrade.vdm"), "1\r\n");
  return true;
}

void RunUpgradeHandOff() {
  UpgradeHandOff.Disable();
  HandOver();
}

}  // namespace

Tick UpgradeHandOff{"UpgradeHandOff", 50, RunUpgradeHandOff};

void FillMenus() {
  ShowMenuCaptions();
  for (MenuField* line :
       {&MainWindow.lijn1, &MainWindow.lijn2, &MainWindow.lijn3, &MainWindow.lijn4}) {
    line->separator = true;
  }
  MainWindow.nieuw.onClick = NewModule;
  MainWindow.openen.onClick = ShowOpenDialog;
  MainWindow.Bewaren.onClick = SaveModule;
  MainWindow.Bewaren_als.onClick = ShowSaveDialog;
  MainWindow.instellingen.onClick = ShowDirectoryScreen;
  MainWindow.Web.caption = Plain(WebAddress);
  MainWindow.Web.onClick = [] { OtherPrograms->ShowWebPage(std::string(WebAddress)); };
  MainWindow.Einde.onClick = [] { OtherPrograms->End(); };
  MainWindow.ned.checkable = MainWindow.frans.checkable = true;
  MainWindow.ned.checked = Language.Number() == Dutch;
  MainWindow.frans.checked = Language.Number() == French;
  MainWindow.ned.onClick = [] { ChangeLanguage(Dutch); };
  MainWindow.frans.onClick = [] { ChangeLanguage(French); };
  MainWindow.poort.onOpen = ShowDevices;
  for (int number = 1; MenuField * entry : PortEntries()) {
    entry->checkable = true;
    entry->onClick = [number] { ChangePort(number); };
    ++number;
  }
  MarkPort();
  // What is no whole number names no port.
  Port->SetNumber(PortNumber.Number() == PortNumber.Whole() ? PortNumber.Whole() : 0);
}

void ChangeLanguage(int language) {
  Language = language;
  StoreLanguage();
  if (!OtherPrograms->StartThisProgram()) {
    throw RuntimeError(ErrorKind::ProgramNotStarted, "bkconf");
  }
  OtherPrograms->End();
}

void ChangePort(int number) {
  // A display's table frees the window before the module's last line has come.
  StopLink();
  if (Port->IsOpen()) Port->Close();
  PortNumber = number;
  MarkPort();
  // First, so that the port is the one that is marked even if the number cannot be stored.
  Port->SetNumber(number);
  StorePortNumber();
}

void HandOverOnRequest() {
  MainWindow.upgrade.enabled = false;
  MainWindow.moduleList.visible = true;
  MainWindow.actionGroup.visible = true;
  ShowSomeDataGroup();
  MainWindow.pictureGroup.visible = !MainWindow.moduleList.Text().empty();
  if (!HandOver()) FileSystem->Write(SettingsPath("upgrade.vdm"), "0\r\n");
}

}  // namespace bkconf
