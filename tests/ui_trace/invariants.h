#pragma once
// The invariants of the table whenever the game waits for a key.
#include <optional>
#include <string>

#include "tests/ui_trace/situation.h"

namespace tasca::test {

// The first broken invariant of a situation; "" if there is none.
std::string FaultIn(const Situation& s);

// The first broken invariant between a situation and the next; "" if there is none.
std::string FaultBetween(const Situation& before, const Situation& after);

// Checks all situations of a game in turn.
class Watch {
 public:
  // The next situation belongs to a new table.
  void NewTable() { before_.reset(); }
  // Checks a situation, also against the one before.
  void Look(const Situation& s);

  // The first fault; "" if there is none.
  const std::string& Fault() const { return fault_; }
  // The number of hands that have ended.
  int HandsPlayed() const { return handsPlayed_; }

 private:
  std::optional<Situation> before_;
  std::string fault_;
  int handsPlayed_ = 0;
};

}  // namespace tasca::test
