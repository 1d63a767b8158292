#pragma once
// Runs a traced game from the start-up dialog to its end (docs/trace-protocol.md).
#include <filesystem>
#include <istream>
#include <ostream>

namespace tasca {

// Plays with `carpeta` as the program's folder. Returns the exit status: 0 if the game or the input
// ends normally, 1 after a run-time error, 2 after an invalid line or a failed write, which is
// reported on `err`.
int RunTrace(const std::filesystem::path& carpeta, std::istream& in, std::ostream& out,
             std::ostream& err);

}  // namespace tasca
