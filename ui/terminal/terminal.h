#pragma once
// The whole game at a text terminal.
#include <filesystem>
#include <optional>
#include <string>

#include "ui/loudspeaker/media_player.h"
#include "ui/terminal/console.h"
#include "ui/terminal/terminal_port.h"

namespace tasca {

// The folders of a game: of its files, and of the match that is kept, as Session tells.
struct TerminalFolders {
  std::filesystem::path Files;
  std::optional<std::filesystem::path> State = std::nullopt;
  SoundPlaces Sound = {};
  std::u16string NotSaved = {};  // why nothing may be written to Files; "" if it may
};

// Plays until the player leaves or the input ends. Returns the exit status: 0, or 1 after a
// run-time error, which is reported on flujos.Err.
int RunTerminal(const TerminalFolders& carpetas, const TerminalStreams& flujos,
                Clock reloj = LocalTime);

}  // namespace tasca
