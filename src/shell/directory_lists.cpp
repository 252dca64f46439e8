#include "shell/directory_lists.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include "platform/machine.h"
#include "platform/runtime_error.h"

namespace bkconf {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Upwards = "..";

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

/// Without separators at the end, but for the root of a drive.
std::string Trimmed(const std::string& path) {
  const fs::path whole = fs::u8path(path);
  const std::string root = Utf8(whole.root_path());
  std::string trimmed = path;
  while (trimmed.size() > root.size() && trimmed.back() == PathSeparator) trimmed.pop_back();
  return trimmed;
}

std::string Above(const std::string& path) {
  return Utf8(fs::u8path(path).parent_path());
}

std::string NameOf(const std::string& path) {
  return Utf8(fs::u8path(path).filename());
}

bool IsRoot(const std::string& path) {
  return Above(path) == path;
}

/// A name within a directory, for the walk: here a root gets no second separator.
std::string Within(const std::string& directory, const std::string& name) {
  return Utf8(fs::u8path(directory) / fs::u8path(name));
}

bool LiesIn(const std::string& path, const std::string& drive) {
  return path == drive || path.starts_with(IsRoot(drive) ? drive : drive + PathSeparator);
}

}  // namespace

std::string Joined(std::string_view directory, std::string_view name) {
  return std::string(directory) + PathSeparator + std::string(name);
}

DirectoryLists::DirectoryLists(ListField& drives, ListBoxField& directories)
    : drives_(drives), directories_(directories) {
  drives_.onPick = [this] { PickDrive(); };
  directories_.onOpen = [this] { OpenDirectory(); };
}

void DirectoryLists::GoTo(const std::string& path) {
  Enter(Trimmed(path), "");
}

/// A hidden folder that the walk has just left is listed, so that there is a way back.
void DirectoryLists::Enter(const std::string& path, const std::string& hiddenFolder) {
  std::vector<std::string> items = DirectorySystem->FoldersIn(path);
  if (!hiddenFolder.empty() && std::find(items.begin(), items.end(), hiddenFolder) == items.end()) {
    items.insert(items.begin(), hiddenFolder);
  }
  if (!IsRoot(path)) items.insert(items.begin(), std::string(Upwards));
  const std::string before = std::exchange(path_, path);
  try {
    if (onChange) onChange();
  } catch (const RuntimeError&) {
    path_ = before;
    throw;
  }
  directories_.SetItems(std::move(items));
  ShowDrive();
}

bool DirectoryLists::TryGoTo(const std::string& path) {
  if (!fs::u8path(path).is_absolute()) return false;
  try {
    GoTo(path);
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

/// The drives there are now, and the innermost of the drives that the directory lies in.
void DirectoryLists::ShowDrive() {
  drives_.items = DirectorySystem->Drives();
  std::string_view innermost;
  for (const std::string& drive : drives_.items) {
    if (LiesIn(path_, drive) && drive.size() > innermost.size()) innermost = drive;
  }
  drives_.Show(innermost);
}

void DirectoryLists::PickDrive() {
  try {
    GoTo(drives_.Text());
  } catch (const RuntimeError&) {
    // A drive that is gone: what the list shows is where it stands.
    ShowDrive();
    throw;
  }
}

void DirectoryLists::OpenDirectory() {
  const std::string name = directories_.Text();
  if (name == Upwards) {
    Enter(Above(path_), NameOf(path_));
  } else {
    Enter(Within(path_, name), "");
  }
}

}  // namespace bkconf
