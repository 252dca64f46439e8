// Runs the end-to-end tests. The screen reader's connections want the one application object.
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int count, char** words) {
  ::testing::InitGoogleTest(&count, words);
  const QCoreApplication application(count, words);
  return RUN_ALL_TESTS();
}
