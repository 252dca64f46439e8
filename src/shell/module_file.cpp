#include "shell/module_file.h"

#include <algorithm>
#include <string_view>

#include "image/configuration_file.h"
#include "link/transfer.h"
#include "platform/machine.h"
#include "platform/runtime_error.h"
#include "session/language.h"
#include "session/resets.h"
#include "shell/directory_lists.h"
#include "shell/main_window.h"
#include "shell/manual.h"

namespace bkconf {
namespace {

/// The tables as the file has them, and its type. A file that cannot be used has changed nothing.
Cell LoadTables(const std::string& path) {
  const std::string content = FileSystem->Load(path);
  try {
    return ReadConfiguration(content);
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.kind,
                       path + ", " + std::string(Text(TextId::FileLine)) + error.what());
  }
}

void Set(std::span<Cell* const> flags) {
  for (Cell* flag : flags) *flag = 1;
}

/// What else the session keeps of an image that has come whole.
void SetFlags() {
  if (const OnDemandFlags* flags = ActiveOnDemandFlags()) {
    Set(flags->loaded);
    Set(flags->dirty);
  }
  KeepCopies();
  for (const WorkTable& work : WorkTables) {
    if (work.kind == ActiveCode()) work.table->Fill(0, work.table->Size() - 1, EmptyCell);
  }
}

void ShowFile() {
  MainWindow.Bewaren.enabled = MainWindow.Bewaren_als.enabled = true;
  ShowTitle(CurrentFilePath.Text());
}

void Write(const std::string& path) {
  FileSystem->Write(path, PrintConfiguration(ActiveModuleType));
}

}  // namespace

void OpenModule(const std::string& path) {
  // A display's table frees the window before the module's last line has come.
  StopLink();
  Cell type = LoadTables(path);
  ActiveModuleType = std::move(type);
  CurrentFilePath = path;
  CloseManual();
  SetFlags();
  ShowImage(Origin::File);
  ShowFile();
}

void SaveModule() {
  Write(CurrentFilePath.Text());
  ShowFile();
}

void SaveModuleAs(const std::string& directory, const std::string& name) {
  const std::string path = Joined(directory, name);
  const std::string extended = path + std::string(FileExtension);
  Write(name.ends_with(FileExtension) ? path : extended);
  CurrentFilePath = extended;
  ShowFile();
}

bool SaveDialogGuard() {
  if (ActiveKind() == nullptr) return false;
  const OnDemandFlags* flags = ActiveOnDemandFlags();
  return flags == nullptr || std::all_of(flags->loaded.begin(), flags->loaded.end(),
                                         [](const Cell* flag) { return flag->Number() == 1; });
}

std::string ProposedName() {
  const ModuleKind* kind = ActiveKind();
  if (kind == nullptr) return {};
  std::string name(Text(kind->filePrefix));
  if (kind->address.table != nullptr) name += OwnLetter();
  return name;
}

}  // namespace bkconf
