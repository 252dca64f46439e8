// A module with one table, a screen of its own and that of the push-buttons. Both edit the same
// table. The base of the tests of such modules.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "end_to_end/table_stage.h"

namespace end_to_end {

class SpecialStage : public TableStage {
 protected:
  // A module with a file of the demo house, some cells of it changed, and the tool. Both are up and
  // the module is read then.
  void ConnectTo(int kind, const std::string& demoFile, const Captions& language,
                 const std::map<int, int>& changes = {});

  void OpenScreen(std::string_view button, std::string_view title);
  // A first function of a push-button, in its screen: output 5 of relay module A goes on.
  void SetButtonByMouse(std::string_view title, int button);
  // The same with the keyboard alone: runs context 7.
  void SetButtonByKeyboard(std::string_view title, int button);
  // Opens that screen, looks and leaves it.
  void ExpectButton(std::string_view title, int button, std::string_view code,
                    std::string_view mainTitle);

  // Line by line: numbers, but for the cells that hold a text.
  void ExpectLines(const std::filesystem::path& file, const std::map<int, std::string>& texts = {});

 private:
  std::string kindLine_;
};

}  // namespace end_to_end
