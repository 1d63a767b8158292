// The checks of the invariants.
#include "tests/ui_trace/invariants.h"

#include <algorithm>
#include <array>
#include <bitset>

namespace tasca::test {
namespace {

constexpr int HandHasEnded = -1;  // the phase after a hand

bool IsCard(int number) { return number >= 1 && number <= 40; }

int ValorGrandeOf(int card) {
  constexpr std::array<int, 10> values{1, 1, 10, 4, 5, 6, 7, 8, 9, 10};
  return values.at(static_cast<std::size_t>((card - 1) % 10));
}

bool HandsAreSortedCards(const Situation& s) {
  return std::all_of(s.Manos.begin(), s.Manos.end(), [](const std::array<int, 4>& hand) {
    return std::all_of(hand.begin(), hand.end(), IsCard) &&
           std::is_sorted(hand.begin(), hand.end(), [](int card, int other) {
             return ValorGrandeOf(card) > ValorGrandeOf(other);
           });
  });
}

// The game never waits in the answer phases: a bet is answered on the same Enter.
bool PhaseIsOneToWaitIn(const Situation& s) {
  constexpr std::array<int, 10> phases{HandHasEnded, 0, 1, 3, 5, 6, 8, 9, 11, 13};
  return std::find(phases.begin(), phases.end(), s.Fase) != phases.end();
}

bool SpeakingOrderGoesRound(const Situation& s) {
  const int mano = s.OrdenAsiento.front();
  const auto after = [mano](int k) { return (mano - 1 + k) % 4 + 1; };
  return mano >= 1 && mano <= 4 &&
         s.OrdenAsiento == std::array<int, 4>{mano, after(1), after(2), after(3)};
}

bool DeckHoldsCards(const Situation& s) {
  return std::all_of(s.Baraja.begin(), s.Baraja.end(), IsCard) && IsCard(s.CartaSiguiente) &&
         IsCard(s.DescarteSiguiente);
}

bool IsNewHand(const Situation& s) { return s.Fase == 0 && s.RondasMus == 0; }

using CardSet = std::bitset<41>;

// The set of the first `count` cards of the deck. It is smaller than `count` if a card is repeated.
CardSet FirstOfTheDeck(const Situation& s, std::size_t count) {
  CardSet cards;
  for (std::size_t i = 0; i < count; ++i) cards.set(static_cast<std::size_t>(s.Baraja.at(i)));
  return cards;
}

bool FreshDeckIsWhole(const Situation& s) {
  return !IsNewHand(s) || (FirstOfTheDeck(s, 40).count() == 40 && s.CartaSiguiente == 17);
}

// The four hands are the first 16 cards of the deck, none of them twice.
bool DealtCardsAreTheFirstOfTheDeck(const Situation& s) {
  if (!IsNewHand(s)) return true;
  CardSet held;
  for (const std::array<int, 4>& hand : s.Manos) {
    for (const int card : hand) held.set(static_cast<std::size_t>(card));
  }
  return held == FirstOfTheDeck(s, 16);
}

// No pareja has as many juegos as end a vaca, or as many vacas as end the match.
bool ScoresEndWhenTheyMust(const Situation& s) {
  const auto within = [](const std::array<int, 2>& score, int most) {
    return std::all_of(score.begin(), score.end(), [most](int n) { return n >= 0 && n <= most; });
  };
  return within(s.Juegos, s.JuegosVaca % 2) &&
         within(s.Vacas, std::min(s.VacasPartida % 2, s.VacasPartida - 1));
}

std::string Score(const std::array<int, 2>& score) {
  return std::to_string(score[1]) + " / " + std::to_string(score[0]);
}

bool HasScoreboard(const Situation& s) { return !s.Text3.empty(); }

// The scoreboard is empty or up to date.
bool ScoreboardIsTrue(const Situation& s) {
  return !HasScoreboard(s) || s.Text3 == "Piedras: " + Score(s.Piedras) +
                                             ";    juegos: " + Score(s.Juegos) +
                                             ";    Vacas: " + Score(s.Vacas);
}

// A refused punto pays what an older record says, at least -2. Otherwise stones are only taken away
// at the end of a juego, from both parejas.
bool StonesFallOnlyTogether(const Situation& before, const Situation& after) {
  const bool fell =
      after.Piedras[0] < before.Piedras[0] - 2 || after.Piedras[1] < before.Piedras[1] - 2;
  return !fell || after.Piedras == std::array<int, 2>{0, 0};
}

struct Rule {
  const char* Name;
  bool (*Holds)(const Situation& s);
};

// The order matters: later rules require valid card numbers.
constexpr std::array<Rule, 9> Rules{{
    {"a hand that is not four sorted cards", HandsAreSortedCards},
    {"a phase in which the game never waits", PhaseIsOneToWaitIn},
    {"an invalid speaking order", SpeakingOrderGoesRound},
    {"an invalid card in the deck", DeckHoldsCards},
    {"an incomplete deck in a new hand", FreshDeckIsWhole},
    {"a new hand that is not from the top of the deck", DealtCardsAreTheFirstOfTheDeck},
    {"an outdated scoreboard", ScoreboardIsTrue},
    {"an unanswered bet", [](const Situation& s) { return s.SeguirLance == 0; }},
    {"a vaca or a match that should have ended", ScoresEndWhenTheyMust},
}};

}  // namespace

std::string FaultIn(const Situation& s) {
  const auto* const broken =
      std::find_if(Rules.begin(), Rules.end(), [&s](const Rule& rule) { return !rule.Holds(s); });
  return broken == Rules.end() ? "" : broken->Name;
}

std::string FaultBetween(const Situation& before, const Situation& after) {
  if (after.Draws < before.Draws) return "a smaller number of draws";
  if (HasScoreboard(before) && !HasScoreboard(after)) return "a cleared scoreboard";
  return StonesFallOnlyTogether(before, after) ? "" : "stones taken away";
}

void Watch::Look(const Situation& s) {
  if (fault_.empty()) fault_ = FaultIn(s);
  if (fault_.empty() && before_) fault_ = FaultBetween(*before_, s);
  if (before_ && before_->Fase != HandHasEnded && s.Fase == HandHasEnded) ++handsPlayed_;
  before_ = s;
}

}  // namespace tasca::test
