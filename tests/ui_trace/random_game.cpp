// Playing and judging.
#include "tests/ui_trace/random_game.h"

#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

std::string_view ErrorOf(Provocation provocation) {
  switch (provocation) {
    case Provocation::NoPhrases:
      return "Un personaje no tiene nada que decir";
    case Provocation::HugeAmounts:
      return "Desbordamiento";
    default:
      return {};
  }
}

std::string Judge(const Conversation& game, Provocation provocation) {
  if (!game.Err.empty()) return "a message: " + game.Err;
  if (game.Status == 0) return {};
  const std::string_view allowed = ErrorOf(provocation);
  const bool asked = game.Status == 1 && !allowed.empty() && !game.Rest.empty() &&
                     game.Rest.back().dump().find(allowed) != std::string::npos;
  return asked ? "" : "an end that nobody asked for, status " + std::to_string(game.Status);
}

}  // namespace

RandomGame PlayRandomGame(const std::filesystem::path& characters, std::uint32_t seed, int hands,
                          Provocation provocation) {
  const TempFolder folder;
  RandomPlayer player{seed, hands, provocation};
  std::filesystem::copy(characters, folder.Path() / "Jugadores.dat");
  folder.Write("mus.ini", player.Settings());
  const Conversation game =
      Converse(folder.Path(), [&player](const TraceEvents& events) { return player(events); });
  const std::string fault = player.Fault().empty() ? Judge(game, provocation) : player.Fault();
  return {.Status = game.Status,
          .Hands = player.HandsPlayed(),
          .In = game.In,
          .Out = game.Out,
          .Fault = fault};
}

}  // namespace tasca::test
