// The bar of a screen in the place of the main window's.
#include <gtest/gtest.h>

#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

struct Lender : Screen {
  Lender() : Screen("Lender") {}
  ProgressField bar{*this, "bar"};
};

class LentBarTest : public SessionTest {
 protected:
  LentBarTest() { Start(); }
  Lender first;
  Lender second;
};

TEST_F(LentBarTest, TheBarOfAScreenGetsTheEndOfTheOneThatMoves) {
  Window.bar->Start(8);
  LendBar(first.bar);
  EXPECT_EQ(Window.bar, &first.bar);
  EXPECT_EQ(first.bar.Maximum(), 8);
  EXPECT_TRUE(first.bar.visible);
  EXPECT_FALSE(MainWindow.transferBar.visible);
}

TEST_F(LentBarTest, ABarThatIsLentAlreadyPassesItsOwnEndOn) {
  Window.bar->Start(8);
  LendBar(first.bar);
  Window.bar->Start(146);
  LendBar(first.bar);
  EXPECT_EQ(first.bar.Maximum(), 146);
  EXPECT_TRUE(first.bar.visible);
  LendBar(second.bar);
  EXPECT_EQ(Window.bar, &second.bar);
  EXPECT_EQ(second.bar.Maximum(), 146);
  EXPECT_TRUE(second.bar.visible);
  EXPECT_FALSE(first.bar.visible || MainWindow.transferBar.visible);
}

TEST_F(LentBarTest, EveryTransferStartsWithTheBarOfTheMainWindow) {
  Window.bar->Start(8);
  LendBar(first.bar);
  ASSERT_TRUE(StartTransfer());
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_FALSE(first.bar.visible);
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20'000);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
}

}  // namespace
}  // namespace bkconf
