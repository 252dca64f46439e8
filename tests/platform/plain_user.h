// Whoever runs the tests is a plain user for a while: nothing is forbidden to an administrator.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace bkconf {

class PlainUser {
 public:
  PlainUser() {
    if (geteuid() == 0) Become(65534);
  }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;
  ~PlainUser() {
    if (getuid() == 0) Become(0);
  }

 private:
  static void Become(uid_t user) { EXPECT_EQ(seteuid(user), 0); }
};

}  // namespace bkconf
