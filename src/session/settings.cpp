#include "session/settings.h"

#include "platform/machine.h"

namespace bkconf {
namespace {

std::function<void()> sessionStarted;
std::function<void(const std::string&)> settingAwaited;
const Setting* nextSetting = nullptr;
const Setting* told = nullptr;  ///< the one that the user knows start-up waits for

/// Reads on from where the last try stopped: what was read stands.
void ReadSettings() {
  for (; nextSetting != Settings.end(); ++nextSetting) {
    if (ReadSetting(*nextSetting)) continue;
    if (told != nextSetting) settingAwaited(SettingsPath(nextSetting->file));
    told = nextSetting;
    if (!SettingsRetry.Enabled()) SettingsRetry.Enable();
    return;
  }
  SettingsRetry.Disable();
  sessionStarted();
}

void RetrySettings() {
  // The language may have been changed while start-up waited.
  ReadSetting(LanguageSetting);
  ReadSettings();
}

}  // namespace

Tick SettingsRetry{"SettingsRetry", 100, RetrySettings};

std::string SettingsPath(std::string_view fileName) {
  return SettingsDirectory + PathSeparator + std::string(fileName);
}

bool ReadSetting(const Setting& setting) {
  const auto content = FileSystem->Read(SettingsPath(setting.file));
  if (!content) return false;
  if (content->empty() && !setting.mayBeEmptyFile) return false;
  const std::string line = content->substr(0, content->find_first_of("\r\n"));
  const auto first = line.find_first_not_of(' ');
  const std::string text = first == std::string::npos ? "" : line.substr(first);
  if (setting.isNumber) {
    *setting.value = ReadsAsNumber(text).value_or(0);
  } else {
    *setting.value = text;
  }
  return true;
}

void StoreLanguage() {
  FileSystem->Write(SettingsPath(LanguageSetting.file), Language.PrintForm() + "\r\n");
}

void StoreDirectory(const std::string& path) {
  FileSystem->Write(SettingsPath(DirectorySetting.file), path + "\r\n");
  DefaultDirectory = path;
}

void StorePortNumber() {
  FileSystem->Write(SettingsPath(PortSetting.file), PortNumber.Text() + "\r\n");
}

void StartSession(std::function<void()> done,
                  std::function<void(const std::string& path)> awaited) {
  for (const Flag& flag : StartUpFlags) *flag.cell = 0;
  ActiveModuleType = NoModule;
  sessionStarted = std::move(done);
  settingAwaited = std::move(awaited);
  nextSetting = Settings.begin();
  told = nullptr;
  ReadSettings();
}

}  // namespace bkconf
