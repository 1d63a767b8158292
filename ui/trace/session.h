#pragma once
// A traced game from the start-up dialog to its end (docs/trace-protocol.md).
#include <filesystem>
#include <istream>
#include <ostream>

namespace tasca {

// Plays with `carpeta` as the program's folder and returns the exit status: 0 when the game or the
// input ends normally, 1 after a run-time error, 2 after a faulty line, which is told on `err`.
int RunTrace(const std::filesystem::path& carpeta, std::istream& in, std::ostream& out,
             std::ostream& err);

}  // namespace tasca
