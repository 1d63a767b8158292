#pragma once
// A random player in a trace, who checks every state.
#include <limits>
#include <set>
#include <string>

#include "tests/ui_trace/conversation.h"
#include "tests/ui_trace/invariants.h"
#include "tests/ui_trace/random_choices.h"

namespace tasca::test {

// The player leaves after this many hands or matches, whichever comes first.
struct Length {
  int Hands = std::numeric_limits<int>::max();
  int Matches = std::numeric_limits<int>::max();
};

// A player for Converse.
class RandomPlayer {
 public:
  RandomPlayer(Chooser any, Length length, Provocation provocation);

  // The content of a "mus.ini" for a long or a short match.
  std::string Settings() { return choices_.Settings(); }

  std::optional<std::string> operator()(const TraceEvents& events);

  int HandsPlayed() const { return watch_.HandsPlayed(); }
  int MatchesPlayed() const { return choices_.MatchesPlayed(); }
  // The characters that were seated.
  const std::set<int>& Seated() const { return seated_; }
  // The first fault of the game, its end included; "" if there is none. A game must end with status
  // 0; with a provocation it may also end in the corresponding run-time error.
  std::string FaultOf(const Conversation& game) const;

 private:
  bool HasPlayedEnough() const;
  void Look(const nlohmann::ordered_json& state);
  std::string Start();
  std::string Answer(const nlohmann::ordered_json& question);

  RandomChoices choices_;
  Length length_;
  Provocation provocation_;
  Watch watch_;
  std::set<int> seated_;
  std::string fault_;  // the first fault, with its state
};

}  // namespace tasca::test
