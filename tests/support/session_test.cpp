#include "support/session_test.h"

#include <memory>

#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "session/settings.h"
#include "shell/menus.h"

namespace bkconf {
namespace {

void ResetGlobals() {
  for (Table* table : AllTables) {
    for (int index = 0; index < table->Size(); ++index) (*table)[index] = Cell();
  }
  for (const Flag& flag : StartUpFlags) *flag.cell = Cell();
  for (const Flag& flag : SessionValues) *flag.cell = Cell();
  ActiveModuleType = NoModule;
  RxLine.clear();
  TransferUnderWay = false;
  LinkHandlers = {};
  ActionHandlers = {};
  // A window cannot be assigned, since its fields know their place: it is made anew.
  std::destroy_at(&MainWindow);
  std::construct_at(&MainWindow);
}

void DisableTicks() {
  for (Tick* tick : LinkTicks) tick->Disable();
  SettingsRetry.Disable();
  UpgradeHandOff.Disable();
}

}  // namespace

std::optional<std::string> FakeFiles::Read(const std::string& path) const {
  const auto file = content.find(path);
  if (file == content.end()) return std::nullopt;
  return file->second;
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
  OtherPrograms = &programs;
  SettingsDirectory = "settings";
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
  files.content[SettingsPath("directory.vdm")] = "house\r\n";
}

void SessionTest::Start(int language) {
  PutSettings(language);
  StartSession(LoadMainWindow, [](const std::string&) {});
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
