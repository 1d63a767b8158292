#pragma once
// The choices of a random player, independent of the face.
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "table/port.h"

namespace tasca::test {

// Choices that may end in a run-time error.
enum class Provocation { None, NoPhrases, HugeAmounts };

// A part of the message of that run-time error; "" for None.
std::u16string_view ErrorOf(Provocation provocation);

// Returns an integer from 0 to n - 1. The choices depend on nothing else.
using Chooser = std::function<int(int n)>;

// A choice in the start-up dialog.
struct StartChoice {
  TimeOfDay Clock;
  std::array<int, 3> Combos{};
  std::array<bool, 2> Checks{};
  int Option = 0;
};

// A key, or a report of the media player if there is one.
struct MoveChoice {
  int Key = 0;
  int Shift = 0;
  std::optional<int> Sound = {};
};

class RandomChoices {
 public:
  RandomChoices(Chooser any, Provocation provocation);

  // The content of a "mus.ini" for a long or a short match.
  std::string Settings();

  StartChoice Start();
  MoveChoice Move();
  // The answers: a button that the bidding dialog offers in this mode; the typed text, or nothing
  // for Cancel; yes or no.
  int Button(int modo);
  std::optional<std::string> Typed(std::u16string_view titulo);
  bool SaysYes(std::u16string_view pregunta);

  // The number of matches that have ended.
  int MatchesPlayed() const { return matchesPlayed_; }

 private:
  // True with a probability of `percent`.
  bool Sometimes(int percent) { return any_(100) < percent; }

  std::optional<std::string> Amount();

  Chooser any_;
  Provocation provocation_;
  int matchesPlayed_ = 0;
};

}  // namespace tasca::test
