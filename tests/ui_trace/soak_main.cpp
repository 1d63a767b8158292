// tasca-soak HANDS [CHARACTERS [FIRST-SEED]]: plays random games with a character file until this
// many hands have been played. Prints the seed and the input lines of the first game with a fault.
// Exit status: 0, 1 for a fault, 2 for an error.
#include <array>
#include <charconv>
#include <cstring>
#include <exception>
#include <iostream>
#include <set>
#include <stdexcept>
#include <string>

#include "characters/check.h"
#include "tests/ui_trace/random_game.h"

namespace tasca::test {
namespace {

std::uint32_t Number(const char* text) {
  std::uint32_t number = 0;
  const char* const end = text + std::strlen(text);
  if (std::from_chars(text, end, number).ptr != end || number == 0) {
    throw std::runtime_error{std::string{"no number from 1: "} + text};
  }
  return number;
}

// One game in eight each has one of the provocations.
Provocation ProvocationOf(std::uint32_t seed) {
  if (seed % 8 == 6) return Provocation::NoPhrases;
  return seed % 8 == 7 ? Provocation::HugeAmounts : Provocation::None;
}

// The totals of all games.
struct Tally {
  std::array<int, 3> ByStatus{};
  std::uint32_t Hands = 0;
  int Matches = 0;
  std::set<int> Seated;

  void Add(const RandomGame& game) {
    ++ByStatus.at(static_cast<std::size_t>(game.Status));
    Hands += static_cast<std::uint32_t>(game.Hands);
    Matches += game.Matches;
    Seated.insert(game.Seated.begin(), game.Seated.end());
  }
};

constexpr Length Longest{.Hands = 12};

// Plays the game of a seed. One in 49 is played twice and compared.
RandomGame PlaySeed(const std::filesystem::path& characters, std::uint32_t seed) {
  RandomGame game = PlayRandomGame(characters, seed, Longest, ProvocationOf(seed));
  const bool again = seed % 49 == 0 && game.Fault.empty();
  if (again && PlayRandomGame(characters, seed, Longest, ProvocationOf(seed)).Out != game.Out) {
    game.Fault = "another game from the same seed";
  }
  return game;
}

// Whether every offered character was seated. Requires at least 200 hands per character; with fewer
// it is true.
bool EverybodyHasSat(const Tally& tally, const std::filesystem::path& characters) {
  const int offered = RevisarPersonajes(characters).Ofrecidos;
  return tally.Hands / 200 < static_cast<std::uint32_t>(offered) ||
         std::ssize(tally.Seated) == offered;
}

int Soak(std::uint32_t wanted, const std::filesystem::path& characters, std::uint32_t first) {
  Tally tally;
  std::uint32_t seed = first;
  for (; tally.Hands < wanted; ++seed) {
    const RandomGame game = PlaySeed(characters, seed);
    if (!game.Fault.empty()) {
      std::cout << "seed " << seed << ": " << game.Fault << "\n" << game.In;
      return 1;
    }
    tally.Add(game);
  }
  std::cout << seed - first << " games, " << tally.Hands << " hands; ended well "
            << tally.ByStatus[0] << ", in a run-time error that was asked for " << tally.ByStatus[1]
            << "; " << tally.Matches << " matches to their end, " << tally.Seated.size()
            << " characters at the table\n";
  if (EverybodyHasSat(tally, characters)) return 0;
  std::cout << "some characters were never seated\n";
  return 1;
}

}  // namespace
}  // namespace tasca::test

int main(int argc, char** argv) {
  using tasca::test::Number;
  try {
    if (argc < 2 || argc > 4) throw std::runtime_error{"HANDS [CHARACTERS [FIRST-SEED]]"};
    const std::filesystem::path characters =
        argc > 2 ? argv[2] : TASCA_SOURCE_DIR "/data/Jugadores.dat";
    return tasca::test::Soak(Number(argv[1]), characters, argc > 3 ? Number(argv[3]) : 1);
  } catch (const std::exception& error) {
    std::cerr << "tasca-soak: " << error.what() << '\n';
    return 2;
  }
}
