// The windows in which a file is named: what a person does there. The base of the tests that save
// or open files.
#pragma once

#include <filesystem>
#include <string>

#include "end_to_end/stage.h"

namespace end_to_end {

inline constexpr const char* programName = "TREVAN BK-CONF";

// The title of the main window with that file in memory.
inline std::string TitleOf(const std::filesystem::path& file) {
  return std::string(programName) + "  -  " + file.string();
}

class FileStage : public virtual Stage {
 protected:
  void OpenSaveScreen();
  // Waits until the field of the name shows just that.
  void AwaitName(const std::string& name);
  void TypeName(const std::string& name);
  void PressSave();
  // All of that, to a file of the settings directory, and waits for the title. Gives the file.
  std::filesystem::path SaveAs(const std::string& name);

  void OpenOpenScreen();
  // A click shows the whole path; the button or a double click takes it.
  void ChooseFile(const std::string& name, bool byDoubleClick);
  // Opens a file of the settings directory, and waits until the main window shows it.
  void OpenFile(const std::string& name, bool byDoubleClick = true);
};

}  // namespace end_to_end
