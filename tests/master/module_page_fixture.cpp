#include "master/module_page_test.h"

#include "image/module_directory.h"

namespace bkconf {

void ModulePageTest::Open(const std::vector<ListedModule>& modules, int language) {
  StartWithImage(9, language);
  int row = 0;
  for (const ListedModule& module : modules) {
    DirectoryLetter(row) = int{module.letter};
    DirectoryType(row) = module.kind;
    ++row;
  }
  OpenPage();
  MainWindow.send.enabled = false;
}

void ModulePageTest::ExpectShown(bool page, bool add, bool deleting) {
  const ModulePageFields& fields = MainWindow.modulePage;
  EXPECT_EQ(fields.page.visible, page) << "page";
  EXPECT_EQ(fields.addGroup.visible, add) << "add panel";
  EXPECT_EQ(fields.deleteGroup.visible, deleting) << "delete question";
}

std::string ModulePageTest::Row(int row) {
  const GridField& list = MainWindow.modulePage.modules;
  if ((list.At(row, 0) + list.At(row, 1) + list.At(row, 2)).empty()) return {};
  return list.At(row, 0) + " " + list.At(row, 1) + " " + list.At(row, 2);
}

void ModulePageTest::ExpectRows(const std::vector<std::string>& rows) {
  ASSERT_EQ(MainWindow.modulePage.modules.Rows(), 18);
  for (int row = 1; row <= 18; ++row) {
    const auto place = static_cast<std::size_t>(row - 1);
    EXPECT_EQ(Row(row), place < rows.size() ? rows[place] : "") << row;
  }
}

void ModulePageTest::ExpectCells(const std::vector<ListedModule>& modules) {
  for (int row = 0; row < 18; ++row) {
    const auto place = static_cast<std::size_t>(row);
    const bool free = place >= modules.size();
    EXPECT_EQ(ButtonImage[123 + row], Cell(free ? 42 : int{modules[place].letter})) << row;
    EXPECT_EQ(ButtonImage[141 + row], Cell(free ? 42 : modules[place].kind)) << row;
  }
}

}  // namespace bkconf
