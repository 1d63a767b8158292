// The state of a port.
#include "table/port.h"

#include <gtest/gtest.h>

#include "tests/support/quiet_port.h"

namespace tasca::test {
namespace {

TEST(Port, RemembersARequestToChangePlayersOnce) {
  QuietPort port;
  EXPECT_FALSE(port.TakeChangePlayers());
  port.ChangePlayers();
  EXPECT_TRUE(port.TakeChangePlayers());
  EXPECT_FALSE(port.TakeChangePlayers());
}

}  // namespace
}  // namespace tasca::test
