#include "support/snapshot.h"

#include <gtest/gtest.h>

#include <charconv>
#include <set>

#include "image/tables.h"
#include "session/state.h"

namespace bkconf {
namespace {

int NumberIn(std::string_view digits) {
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

/// "A[2..4]" names the cells A[2], A[3] and A[4]; every other name is that of one cell.
std::set<std::string> CellsOf(std::string_view name) {
  const auto dots = name.find("..");
  if (dots == std::string_view::npos) return {std::string(name)};
  const auto bracket = name.find('[');
  const int first = NumberIn(name.substr(bracket + 1, dots - bracket - 1));
  const int last = NumberIn(name.substr(dots + 2));
  std::set<std::string> cells;
  for (int index = first; index <= last; ++index) {
    cells.insert(std::string(name.substr(0, bracket)) + "[" + std::to_string(index) + "]");
  }
  return cells;
}

}  // namespace

Snapshot TakeSnapshot() {
  Snapshot snapshot;
  for (const Table* table : AllTables) {
    for (int index = 0; index < table->Size(); ++index) {
      snapshot[std::string(table->name) + "[" + std::to_string(index) + "]"] = (*table)[index];
    }
  }
  for (const Flag& flag : StartUpFlags) snapshot[std::string(flag.name)] = *flag.cell;
  for (const Flag& flag : SessionValues) snapshot[std::string(flag.name)] = *flag.cell;
  snapshot["RxLine"] = RxLine;
  return snapshot;
}

void ExpectOnlyChanged(const Snapshot& before, const std::vector<std::string>& names) {
  const Snapshot after = TakeSnapshot();
  std::set<std::string> changed;
  for (const auto& [name, cell] : before) {
    if (after.at(name) != cell) changed.insert(name);
  }
  std::set<std::string> allowed;
  for (const std::string& name : names) {
    const std::set<std::string> cells = CellsOf(name);
    bool any = false;
    for (const std::string& cell : cells) {
      EXPECT_TRUE(before.contains(cell)) << cell << " is no global cell";
      any = any || changed.contains(cell);
    }
    EXPECT_TRUE(any) << name << " did not change";
    allowed.insert(cells.begin(), cells.end());
  }
  for (const std::string& name : changed) {
    EXPECT_TRUE(allowed.contains(name)) << name << " changed to '" << after.at(name).Text() << "'";
  }
}

}  // namespace bkconf
