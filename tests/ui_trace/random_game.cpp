// Plays a random game and checks its end.
#include "tests/ui_trace/random_game.h"

#include <random>

#include "tests/support/temp_folder.h"

namespace tasca::test {

RandomGame PlayRandomGame(const std::filesystem::path& characters, std::uint32_t seed,
                          Length length, Provocation provocation) {
  const TempFolder folder;
  std::mt19937 engine{seed};
  RandomPlayer player{
      [&engine](int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); }, length,
      provocation};
  std::filesystem::copy(characters, folder.Path() / "Jugadores.dat");
  folder.Write("mus.ini", player.Settings());
  const Conversation game =
      Converse(folder.Path(), [&player](const TraceEvents& events) { return player(events); });
  return {.Status = game.Status,
          .Hands = player.HandsPlayed(),
          .Matches = player.MatchesPlayed(),
          .Seated = player.Seated(),
          .In = game.In,
          .Out = game.Out,
          .Fault = player.FaultOf(game)};
}

}  // namespace tasca::test
