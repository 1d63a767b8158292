// The checks, one after the other.
#include "tests/ui_trace/invariants.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <set>
#include <vector>

namespace tasca::test {
namespace {

using nlohmann::ordered_json;
using Numbers = std::vector<int>;

bool IsCard(int number) { return number >= 1 && number <= 40; }

int ValorGrandeOf(int card) {
  constexpr std::array<int, 10> values{1, 1, 10, 4, 5, 6, 7, 8, 9, 10};
  return values.at(static_cast<std::size_t>((card - 1) % 10));
}

bool HandsAreSortedCards(const ordered_json& state) {
  return std::all_of(state["Manos"].begin(), state["Manos"].end(), [](const ordered_json& seat) {
    const auto hand = seat.get<Numbers>();
    return hand.size() == 4 && std::all_of(hand.begin(), hand.end(), IsCard) &&
           std::is_sorted(hand.begin(), hand.end(), [](int card, int other) {
             return ValorGrandeOf(card) > ValorGrandeOf(other);
           });
  });
}

// The answer to a bet comes on the Enter of the bet: its phases are never waited in.
bool PhaseIsOneToWaitIn(const ordered_json& state) {
  const std::set<int> phases{-1, 0, 1, 3, 5, 6, 8, 9, 11, 13};
  return phases.contains(state["Fase"].get<int>());
}

bool SpeakingOrderGoesRound(const ordered_json& state) {
  const auto order = state["OrdenAsiento"].get<Numbers>();
  const int mano = order.front();
  Numbers expected;
  for (int k = 0; k < 4; ++k) expected.push_back((mano - 1 + k) % 4 + 1);
  return mano >= 1 && mano <= 4 && order == expected;
}

bool DeckHoldsCards(const ordered_json& state) {
  const auto deck = state["Baraja"].get<Numbers>();
  const int next = state["CartaSiguiente"];
  const int pile = state["DescarteSiguiente"];
  return deck.size() == 40 && std::all_of(deck.begin(), deck.end(), IsCard) && next >= 1 &&
         next <= 40 && pile >= 1 && pile <= 40;
}

bool IsNewHand(const ordered_json& state) { return state["Fase"] == 0 && state["RondasMus"] == 0; }

bool FreshDeckIsWhole(const ordered_json& state) {
  const auto deck = state["Baraja"].get<std::set<int>>();
  return !IsNewHand(state) || (deck.size() == 40 && state["CartaSiguiente"] == 17);
}

// Four hands of four, none of them twice.
bool DealtCardsAreTheFirstOfTheDeck(const ordered_json& state) {
  const auto deck = state["Baraja"].get<Numbers>();
  std::set<int> held;
  for (const ordered_json& seat : state["Manos"]) {
    for (const int card : seat.get<Numbers>()) held.insert(card);
  }
  return !IsNewHand(state) || held == std::set<int>(deck.begin(), deck.begin() + 16);
}

// Neither juegos nor vacas wait past the number that ends the vaca or the match.
bool ScoresEndWhenTheyMust(const ordered_json& state) {
  const int juegos = state["JuegosVaca"];
  const int vacas = state["VacasPartida"];
  const auto within = [&state](const char* name, int most) {
    const auto score = state[name].get<Numbers>();
    return score.size() == 2 &&
           std::all_of(score.begin(), score.end(), [most](int n) { return n >= 0 && n <= most; });
  };
  return within("Juegos", juegos % 2) && within("Vacas", std::min(vacas % 2, vacas - 1));
}

std::string Score(const ordered_json& state, const char* name) {
  return state[name][1].dump() + " / " + state[name][0].dump();
}

bool HasScoreboard(const ordered_json& state) {
  return !state["Text3"].get_ref<const std::string&>().empty();
}

// Whenever it has been written at all, the scoreboard is up to date when a move has ended.
bool ScoreboardIsTrue(const ordered_json& state) {
  return !HasScoreboard(state) || state["Text3"] == "Piedras: " + Score(state, "Piedras") +
                                                        ";    juegos: " + Score(state, "Juegos") +
                                                        ";    Vacas: " + Score(state, "Vacas");
}

// A refused punto pays what an older record says, at worst -2; nothing else takes stones away but
// the end of a juego, and that from both.
bool StonesFallOnlyTogether(const ordered_json& before, const ordered_json& after) {
  const auto had = before["Piedras"].get<Numbers>();
  const auto has = after["Piedras"].get<Numbers>();
  const bool fell = has.at(0) < had.at(0) - 2 || has.at(1) < had.at(1) - 2;
  return !fell || has == Numbers{0, 0};
}

struct Rule {
  const char* Name;
  bool (*Holds)(const ordered_json& state);
};

constexpr std::array<Rule, 9> Rules{{
    {"a hand that is not four cards in order", HandsAreSortedCards},
    {"a phase that nobody waits in", PhaseIsOneToWaitIn},
    {"a speaking order that does not go round", SpeakingOrderGoesRound},
    {"a deck with something else than cards", DeckHoldsCards},
    {"a new hand without a whole deck", FreshDeckIsWhole},
    {"a new hand with other cards than the first of the deck", DealtCardsAreTheFirstOfTheDeck},
    {"a scoreboard that is not true", ScoreboardIsTrue},
    {"a bet left standing", [](const ordered_json& state) { return state["SeguirLance"] == 0; }},
    {"a vaca or a match that should have ended", ScoresEndWhenTheyMust},
}};

}  // namespace

std::string FaultIn(const ordered_json& state) {
  for (const Rule& rule : Rules) {
    if (!rule.Holds(state)) return rule.Name + std::string{": "} + state.dump();
  }
  return {};
}

std::string FaultBetween(const ordered_json& before, const ordered_json& after) {
  std::string fault;
  if (!StonesFallOnlyTogether(before, after)) fault = "stones that fell";
  if (HasScoreboard(before) && !HasScoreboard(after)) fault = "a scoreboard that went blank";
  if (after["draws"] < before["draws"]) fault = "draws that were taken back";
  return fault.empty() ? fault : fault + ": " + before.dump() + "\n" + after.dump();
}

}  // namespace tasca::test
