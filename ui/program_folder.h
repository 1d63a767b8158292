#pragma once
// The folder of the game's files, which is the folder of the executable.
#include <filesystem>

namespace tasca {

// The folder of the running executable, byte for byte, with symbolic links resolved. Falls back to
// the folder part of `orden` (argv[0]) if the system does not report the executable.
std::filesystem::path ProgramFolder(const char* orden);

}  // namespace tasca
