// The fixture of the tests of the master's configuration page, opened as a person opens it.
#pragma once

#include <string>
#include <vector>

#include "support/session_test.h"

namespace bkconf {

struct ListedModule {
  char letter;
  int kind;
};

class ModulePageTest : public SessionTest {
 protected:
  /// A master with these modules in its list, as a file brings it, and its page.
  void Open(const std::vector<ListedModule>& modules, int language = 1);
  static void OpenPage() { ShownAction(Action::Configuration).Click(); }
  static void ExpectShown(bool page, bool add, bool deleting);

  /// "1 A Relaismodule"; empty for a row without any text.
  static std::string Row(int row);
  /// The rows that are shown; all others must be blank.
  static void ExpectRows(const std::vector<std::string>& rows);
  /// The list in memory, and free cells behind it.
  static void ExpectCells(const std::vector<ListedModule>& modules);

  ModulePageFields& page = MainWindow.modulePage;
};

}  // namespace bkconf
