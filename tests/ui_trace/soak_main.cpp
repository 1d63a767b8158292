// tasca-soak HANDS [CHARACTERS [FIRST-SEED]]: plays random games, with a character file, until so
// many hands have been played, and tells the seed and the lines of the first game in which
// something was not as it must be.
#include <array>
#include <charconv>
#include <cstring>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>

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

// Most games are good play; one in eight each tries one of the ends that a player can cause.
Provocation ProvocationOf(std::uint32_t seed) {
  if (seed % 8 == 6) return Provocation::NoPhrases;
  return seed % 8 == 7 ? Provocation::HugeAmounts : Provocation::None;
}

int Soak(std::uint32_t wanted, const std::filesystem::path& characters, std::uint32_t first) {
  std::array<int, 3> byStatus{};
  std::uint32_t hands = 0;
  std::uint32_t seed = first;
  for (; hands < wanted; ++seed) {
    const RandomGame game = PlayRandomGame(characters, seed, 12, ProvocationOf(seed));
    if (!game.Fault.empty()) {
      std::cout << "seed " << seed << ": " << game.Fault << "\n" << game.In;
      return 1;
    }
    ++byStatus.at(static_cast<std::size_t>(game.Status));
    hands += static_cast<std::uint32_t>(game.Hands);
  }
  std::cout << seed - first << " games, " << hands << " hands; ended well " << byStatus[0]
            << ", in a run-time error that was asked for " << byStatus[1] << "\n";
  return 0;
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
