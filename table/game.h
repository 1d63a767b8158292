#pragma once
// What a step of the game that asks the human, draws or makes a sound works with.
#include "base/rnd.h"
#include "table/port.h"
#include "table/table.h"

namespace tasca {

struct Game {
  Table& t;
  Rnd& rnd;
  Port& port;
};

}  // namespace tasca
