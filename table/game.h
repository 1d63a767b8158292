#pragma once
// The parameter of every step of the game that asks the human or plays a sound.
#include "base/rnd.h"
#include "table/port.h"
#include "table/table.h"

namespace tasca {

// The state, the random generator and the port of one game. Does not own them.
struct Game {
  Table& t;
  Rnd& rnd;
  Port& port;
};

}  // namespace tasca
