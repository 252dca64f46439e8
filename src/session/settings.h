// The four settings files and the directory that they lie in. Start-up and the menus use them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/tick.h"
#include "session/state.h"

namespace bkconf {

/// Where settings, pictures, manuals and the upgrade program lie, without a separator at its end.
/// The program sets it before the session starts; nothing else is stored about it.
inline std::string SettingsDirectory;

/// The path of a file of the settings directory.
std::string SettingsPath(std::string_view fileName);

struct Setting {
  std::string_view file;
  Cell* value;
  bool isNumber;        ///< a text that is no number counts as 0
  bool mayBeEmptyFile;  ///< a file of no bytes is an empty value, not one that is being written
};

inline constexpr Setting LanguageSetting = {"country.vdm", &Language, true, false};
inline constexpr Setting PortSetting = {"port.vdm", &PortNumber, true, false};
inline constexpr Setting DirectorySetting = {"directory.vdm", &DefaultDirectory, false, true};

/// In the order in which start-up reads them. There are no built-in defaults: a value exists only
/// because its file does.
inline constexpr auto Settings = std::to_array<Setting>({
    LanguageSetting,
    PortSetting,
    {"pc.vdm", &CharDelayCount, true, false},
    DirectorySetting,
});

/// Reads one setting: the first line of its file, without leading blanks. A comma belongs to the
/// value. False, with the value untouched, when the file is missing or unreadable.
bool ReadSetting(const Setting& setting);

/// Overwrites "country.vdm" with the language, printed like a number of a configuration file.
void StoreLanguage();
/// Overwrites "directory.vdm" with the path as it stands, and makes it the `DefaultDirectory` once
/// it is stored.
void StoreDirectory(const std::string& path);
/// Overwrites "port.vdm" with the bare digit.
void StorePortNumber();

/// Sets every flag to 0 and the kind in memory to none, then reads the settings, and runs `done`
/// when all four are read. A file that is missing or unreadable is tried again every 100 ms without
/// limit; before each new try "country.vdm" is read again, and a failure of that is ignored.
/// `awaited` is told once of each file that start-up waits for.
void StartSession(std::function<void()> done, std::function<void(const std::string& path)> awaited);

/// The retry of a settings file.
extern Tick SettingsRetry;

}  // namespace bkconf
