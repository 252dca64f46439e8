// One battery for every kind: read, compare with what the module holds, send, compare again.
#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

class EveryKindTest : public SessionTest, public testing::WithParamInterface<int> {};

Table& TableNamed(std::string_view name) {
  for (Table* table : AllTables) {
    if (table->name == name) return *table;
  }
  throw std::out_of_range(std::string(name));
}

TEST_P(EveryKindTest, AReadBringsTheBaseTableOfTheModule) {
  Start();
  virtual_module::Module& module = Plug(GetParam());
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(ActiveCode(), GetParam());
  const virtual_module::Memory::Table& base = module.memory().tables().front();
  Table& table = TableNamed(virtual_module::NameOf(base.name));
  for (int index = 0; index < table.Size(); ++index) {
    if (GetParam() == 5 && index == 293) continue;  // never sent by a module
    EXPECT_EQ(table[index].Number(), base.cells[static_cast<std::size_t>(index)]) << index;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKindTest, testing::ValuesIn(AllKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
