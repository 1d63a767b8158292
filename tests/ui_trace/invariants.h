#pragma once
// What holds at the table whenever the game waits for a key.
#include <optional>
#include <string>

#include "tests/ui_trace/situation.h"

namespace tasca::test {

// What is wrong with a situation; "" when nothing is.
std::string FaultIn(const Situation& s);

// What cannot have come of one move; "" when all can.
std::string FaultBetween(const Situation& before, const Situation& after);

// Looks at every situation of a game, one after the other.
class Watch {
 public:
  // The next situation is the first of another table.
  void NewTable() { before_.reset(); }
  void Look(const Situation& s);

  // The first thing that was not as it must be; "" while all is.
  const std::string& Fault() const { return fault_; }
  int HandsPlayed() const { return handsPlayed_; }

 private:
  std::optional<Situation> before_;
  std::string fault_;
  int handsPlayed_ = 0;
};

}  // namespace tasca::test
