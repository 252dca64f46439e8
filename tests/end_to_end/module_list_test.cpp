// The configuration page of a master: its list of modules, read from the line and changed by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "end_to_end/master_stage.h"

namespace end_to_end {
namespace {

struct Listed {
  char letter;
  int code;
  const char* type;
};

const std::vector<Listed> house = {
    {'A', 0, "Module relais"},   {'B', 4, "Module relais DC"},   {'C', 1, "Module dim"},
    {'D', 11, "Module Lumenza"}, {'E', 2, "Module température"}, {'F', 3, "LCD-TOUCH"},
    {'G', 5, "Module alarme"},   {'H', 6, "Interface audio"},    {'I', 7, "Module simulation"},
    {'J', 8, "Module I.R."},
};

constexpr int places = 18;
constexpr int firstLetter = 123;  // cells
constexpr int firstType = 141;
constexpr int empty = 42;

std::vector<Listed> Without(std::vector<Listed> modules, char letter) {
  std::erase_if(modules, [letter](const Listed& each) { return each.letter == letter; });
  return modules;
}

// Behind the last module there is an empty row.
std::vector<std::string> RowsOf(const std::vector<Listed>& modules) {
  std::vector<std::string> rows;
  for (const Listed& each : modules) {
    rows.push_back(std::to_string(rows.size() + 1) + "|" + each.letter + "|" + each.type);
  }
  rows.emplace_back("||");
  return rows;
}

std::map<int, int> CellsOf(const std::vector<Listed>& modules) {
  std::map<int, int> cells;
  for (int place = 0; place < places; ++place) {
    const auto index = static_cast<std::size_t>(place);
    const bool free = index >= modules.size();
    cells[firstLetter + place] = free ? empty : modules[index].letter;
    cells[firstType + place] = free ? empty : modules[index].code;
  }
  return cells;
}

class ModuleList : public MasterStage {
 protected:
  void SetUp() override {
    StartWithDemoMaster(french);
    ConnectAndRead();
  }

  void Delete(const std::string& number, const std::string& letter) {
    const std::string question = "Effacer le module?";
    desktop().DoubleClick(AwaitCell(number, "Adresse", letter));
    AwaitText(question);
    ClickOn("push button", captions().yes);
    AwaitGone("label", question);
  }
};

TEST_F(ModuleList, IsReadFromTheLineChangedAndSent) {
  OpenPage();
  AwaitRows(RowsOf(house));

  Delete("3", "C");
  AwaitRows(RowsOf(Without(house, 'C')));
  ScanModules();
  AwaitRows(RowsOf(house));

  const Listed added = {'K', 11, "Module Lumenza"};
  AddModule(added.letter, 9, added.type);
  std::vector<Listed> modules = house;
  modules.push_back(added);
  AwaitRows(RowsOf(modules));
  Delete("2", "B");
  modules = Without(modules, 'B');
  AwaitRows(RowsOf(modules));

  SendAndExpect("Master.BK1", CellsOf(modules));
  EXPECT_FALSE(desktop().Find("panel", "Configuration:")) << "it goes with the send";
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
