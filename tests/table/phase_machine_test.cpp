// The phase machine: which keys do what.
#include "table/phase_machine.h"

#include <gtest/gtest.h>

#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

TEST(Text1_KeyDown, LeavesOtherKeysToTheInputLine) {
  Table t = MesaDePrueba();
  const Table antes = t;
  DrawList rnd{};
  ScriptedPort port;
  Game g{t, rnd, port};
  Integer tecla = 65;
  Text1_KeyDown(g, tecla, 0);
  EXPECT_EQ(tecla, 65);
  EXPECT_EQ(t, antes);
}

}  // namespace
}  // namespace tasca::test
