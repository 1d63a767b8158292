#pragma once
// A player who does anything that is allowed: the choices, whatever way they reach the game.
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "table/port.h"

namespace tasca::test {

// What a random game may try besides good play.
enum class Provocation { None, NoPhrases, HugeAmounts };

// What the run-time error says that a provocation may end in; "" for None.
std::u16string_view ErrorOf(Provocation provocation);

// Says a whole number from 0 to n - 1: what the player does depends on nothing else.
using Chooser = std::function<int(int n)>;

struct StartChoice {
  TimeOfDay Clock;
  std::array<int, 3> Combos{};
  std::array<bool, 2> Checks{};
  int Option = 0;
};

// A key or, when there is one, a report of the media player.
struct MoveChoice {
  int Key = 0;
  int Shift = 0;
  std::optional<int> Sound = {};
};

class RandomChoices {
 public:
  RandomChoices(Chooser any, Provocation provocation);

  // A "mus.ini" with match parameters that make long and short matches.
  std::string Settings();

  StartChoice Start();
  MoveChoice Move();
  // The answers: a button that the bidding dialog offers in this mode; what is typed, nothing when
  // it is cancelled; yes or no.
  int Button(int modo);
  std::optional<std::string> Typed(std::u16string_view titulo);
  bool SaysYes(std::u16string_view pregunta);

  // Matches that were played to their end.
  int MatchesPlayed() const { return matchesPlayed_; }

 private:
  // True `percent` times of a hundred.
  bool Sometimes(int percent) { return any_(100) < percent; }

  std::optional<std::string> Amount();

  Chooser any_;
  Provocation provocation_;
  int matchesPlayed_ = 0;
};

}  // namespace tasca::test
