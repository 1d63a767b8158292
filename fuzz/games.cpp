// The bytes as the choices of a player who may do anything, in a game through the trace: whatever
// is done, the table stays in order, and every game ends well or in the error that was asked for.
#include <memory>

#include "fuzz/support/bytes.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"
#include "tests/ui_trace/random_player.h"

namespace tasca::fuzz {
namespace {

using test::Provocation;

constexpr test::Length Longest{.Hands = 12};

std::unique_ptr<Folder> FolderWithCharacters() {
  auto folder = std::make_unique<Folder>();
  std::filesystem::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
                        folder->Path() / "Jugadores.dat");
  return folder;
}

Provocation ProvocationOf(int choice) {
  if (choice == 6) return Provocation::NoPhrases;
  return choice == 7 ? Provocation::HugeAmounts : Provocation::None;
}

bool WaitsForAKey(const test::TraceEvents& events) {
  return !events.empty() && events.back()["event"] == "state";
}

}  // namespace

void Run(std::string_view input) {
  static const std::unique_ptr<Folder> folder = FolderWithCharacters();
  Bytes bytes{input};
  const Provocation provocation = ProvocationOf(bytes.Below(8));
  test::RandomPlayer player{[&bytes](int n) { return bytes.Below(n); }, Longest, provocation};
  folder->Write("mus.ini", player.Settings());
  // The game ends with the bytes, once no question is open.
  const test::Player untilTheEnd = [&](const test::TraceEvents& events) {
    std::optional<std::string> line = player(events);
    return bytes.Empty() && WaitsForAKey(events) ? std::nullopt : line;
  };
  const std::string fault = player.FaultOf(test::Converse(folder->Path(), untilTheEnd));
  Require(fault.empty(), fault);
}

}  // namespace tasca::fuzz
