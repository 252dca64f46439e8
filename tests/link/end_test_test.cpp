#include <gtest/gtest.h>

#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// The end of a live test that the user has stopped.
class EndTestTest : public SessionTest {};

TEST_F(EndTestTest, NothingOfTheLinkRunsAnyMoreAndTheWindowIsFree) {
  for (Tick* tick : LinkTicks) {
    StartWithImage(0);
    ShowImage(Origin::Read);
    ASSERT_TRUE(StartRequest("T80200"));
    tick->Enable();
    EndTest();
    for (const Tick* each : LinkTicks) EXPECT_FALSE(each->Enabled()) << each->name;
    EXPECT_FALSE(TransferUnderWay);
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_TRUE(MainWindow.bestand.enabled && MainWindow.taal.enabled &&
                MainWindow.settings.enabled && MainWindow.Info.enabled);
    EXPECT_TRUE(MainWindow.moduleList.enabled && MainWindow.connect.enabled &&
                MainWindow.general.address.enabled);
    EXPECT_TRUE(AllVisibleActionsEnabled());
  }
}

TEST_F(EndTestTest, ThePortStaysOpenAndNobodyIsTold) {
  StartWithImage(0);
  ASSERT_TRUE(StartRequest("T80200"));
  int told = 0;
  for (auto& handlers : LinkHandlers) handlers = {[&told] { ++told; }};
  const Snapshot before = TakeSnapshot();
  EndTest();
  EXPECT_TRUE(line.IsOpen());
  EXPECT_EQ(told, 0);
  EXPECT_TRUE(line.written.empty());
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
