#include "support/session_test.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <stdexcept>

#include "diagnostics/clock_panel.h"
#include "diagnostics/detector_panel.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "platform/date.h"
#include "session/settings.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/menus.h"
#include "shell/open_dialog.h"
#include "shell/save_dialog.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"

namespace bkconf {
namespace {

/// A screen cannot be assigned, since its fields know their place.
template <typename Screen>
void MakeAnew(Screen& screen) {
  std::destroy_at(&screen);
  std::construct_at(&screen);
}

void ResetGlobals() {
  for (Table* table : AllTables) {
    for (int index = 0; index < table->Size(); ++index) (*table)[index] = Cell();
  }
  for (const Flag& flag : StartUpFlags) *flag.cell = Cell();
  for (const Flag& flag : SessionValues) *flag.cell = Cell();
  ActiveModuleType = NoModule;
  Now = LocalNow;
  RxLine.clear();
  TransferUnderWay = false;
  RunningTest = nullptr;
  LinkHandlers = {};
  ActionHandlers = {};
  MakeAnew(MainWindow);
  MakeAnew(OpenDialog);
  MakeAnew(SaveDialog);
  MakeAnew(DirectoryScreen);
  MakeAnew(DirectoryPicker);
  MakeAnew(ButtonScreen);
  MakeAnew(OutputScreen);
  MakeAnew(ContextScreen);
  MakeAnew(TimeProgramScreen);
  MakeAnew(LightProgramScreen);
  MakeAnew(AlarmScreen);
  MakeAnew(DiagnosticsScreen);
  MakeAnew(TemperatureScreen);
  MakeAnew(DisplayMenuScreen);
  MakeAnew(WeekdayTextScreen);
  MakeAnew(AudioScreen);
  MakeAnew(SimulationScreen);
  MakeAnew(IrScreen);
}

void DisableTicks() {
  for (Tick* tick : LinkTicks) tick->Disable();
  SettingsRetry.Disable();
  UpgradeHandOff.Disable();
  FolderRetry.Disable();
  AlarmNote.Disable();
  PcClock.Disable();
  ClockSend.Disable();
  DetectorUpdate.Disable();
}

}  // namespace

std::optional<std::string> FakeFiles::Read(const std::string& path) const {
  const auto file = content.find(path);
  if (file == content.end()) return std::nullopt;
  return file->second;
}

std::string FakeFiles::Load(const std::string& path) const {
  const auto file = content.find(path);
  if (file == content.end()) throw RuntimeError(ErrorKind::FileNotRead, path + ": missing");
  return file->second;
}

namespace {

std::string ParentOf(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

bool EndsInEitherCase(const std::string& name, std::string_view ending) {
  return name.size() >= ending.size() &&
         std::equal(ending.begin(), ending.end(), name.end() - std::ssize(ending),
                    [](unsigned char a, unsigned char b) { return toupper(a) == toupper(b); });
}

}  // namespace

std::vector<std::string> FakeDirectories::FoldersIn(const std::string& path) const {
  if (!existing.contains(path)) throw RuntimeError(ErrorKind::DirectoryNotRead, path + ": missing");
  std::vector<std::string> names;
  for (const std::string& each : existing) {
    if (each == "/" || ParentOf(each) != path || NameOf(each).front() == '.') continue;
    names.push_back(NameOf(each));
  }
  return names;
}

std::vector<std::string> FakeDirectories::FilesIn(const std::string& path,
                                                  std::string_view ending) const {
  if (!existing.contains(path)) throw RuntimeError(ErrorKind::DirectoryNotRead, path + ": missing");
  std::vector<std::string> names;
  for (const auto& [file, text] : files_.content) {
    if (ParentOf(file) == path && EndsInEitherCase(file, ending)) names.push_back(NameOf(file));
  }
  return names;
}

bool FakeDirectories::Make(const std::string& path) {
  tries.push_back(path);
  return canMake && existing.insert(path).second;
}

void FakeFiles::Write(const std::string& path, std::string_view text) {
  if (full) throw RuntimeError(ErrorKind::FileNotWritten, path);
  content[path] = text;
}

bool FakePrograms::Start(const std::string& fileName) {
  events.push_back("start " + fileName);
  return canStart;
}

bool FakePrograms::StartThisProgram() {
  events.emplace_back("start this program");
  return canStart;
}

SessionTest::SessionTest() {
  ActiveTickDriver = &clock;
  Port = &line;
  Messages = &messages;
  FileSystem = &files;
  DirectorySystem = &directories;
  OtherPrograms = &programs;
  SettingsDirectory = "/settings";
  BusyLoop = [this](std::int64_t last) {
    if (last >= 0) clock.Hold(last + 1);
  };
  ResetGlobals();
}

SessionTest::~SessionTest() {
  DisableTicks();
  BusyLoop = RunBusyLoop;
}

void SessionTest::PutSettings(int language) {
  files.content[SettingsPath("country.vdm")] = " " + std::to_string(language) + " \r\n";
  files.content[SettingsPath("port.vdm")] = "1\r\n";
  files.content[SettingsPath("pc.vdm")] = "2000\r\n";
  files.content[SettingsPath("directory.vdm")] = "/house\r\n";
}

void SessionTest::Start(int language) {
  PutSettings(language);
  LinkHandlers = {};
  StartSession(LoadMainWindow, [](const std::string&) {});
}

void SessionTest::StartWithImage(int kind, int language, char letter) {
  Start(language);
  ActiveModuleType = kind;
  const ModuleKind& row = *FindKind(kind);
  for (int cell = 0; cell < row.version.table->Size(); ++cell) (*row.version.table)[cell] = 42;
  if (row.address.table != nullptr) CellAt(row.address) = int{letter};
  ShowImage(Origin::File);
}

virtual_module::Module& SessionTest::Plug(int kind, std::optional<virtual_module::Fault> fault,
                                          std::uint32_t seed) {
  return Plug({kind, virtual_module::DefaultMemory(kind, seed), fault, seed});
}

virtual_module::Module& SessionTest::Plug(virtual_module::Options options) {
  line.module = nullptr;
  module_ = std::make_unique<virtual_module::Module>(std::move(options));
  module_->Run(clock.Now());
  line.module = module_.get();
  return *module_;
}

void SessionTest::ReadModule() {
  MainWindow.connect.Click();
  FinishTransfer();
}

void SessionTest::SendToModule() {
  MainWindow.send.Click();
  FinishTransfer();
  // The last characters are still on the line.
  clock.Advance(50);
  line.Settle();
}

void SessionTest::FinishTransfer(std::int64_t limitMs) {
  ASSERT_TRUE(clock.RunUntil([] { return !TransferUnderWay; }, limitMs))
      << "status: " << MainWindow.status.caption;
}

const ButtonField& ShownAction(Action action) {
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    if (ActionButtons[i].action == action && button.visible) return button;
  }
  throw std::runtime_error("no such action is shown");
}

std::vector<std::string> VisibleActions() {
  std::vector<std::string> captions;
  for (const auto& button : MainWindow.actionButtons) {
    if (button->visible) captions.push_back(button->caption);
  }
  return captions;
}

bool AllVisibleActionsEnabled() {
  for (const auto& button : MainWindow.actionButtons) {
    if (button->visible && !button->enabled) return false;
  }
  return true;
}

}  // namespace bkconf
