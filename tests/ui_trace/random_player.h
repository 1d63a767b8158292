#pragma once
// A random player in a trace, who looks at every state as it comes by.
#include <limits>
#include <set>
#include <string>

#include "tests/ui_trace/conversation.h"
#include "tests/ui_trace/invariants.h"
#include "tests/ui_trace/random_choices.h"

namespace tasca::test {

// When the player leaves the table: after so many hands, or so many matches played to their end.
struct Length {
  int Hands = std::numeric_limits<int>::max();
  int Matches = std::numeric_limits<int>::max();
};

class RandomPlayer {
 public:
  RandomPlayer(Chooser any, Length length, Provocation provocation);

  // A "mus.ini" with match parameters that make long and short matches.
  std::string Settings() { return choices_.Settings(); }

  std::optional<std::string> operator()(const TraceEvents& events);

  int HandsPlayed() const { return watch_.HandsPlayed(); }
  int MatchesPlayed() const { return choices_.MatchesPlayed(); }
  // The characters that have sat at the table.
  const std::set<int>& Seated() const { return seated_; }
  // The first thing that was not as it must always be, the end of the game included; "" when all
  // was. A game that was not provoked must end well; a provoked one may also end in the run-time
  // error that it asks for.
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
  std::string fault_;  // the first one, with the state
};

}  // namespace tasca::test
