#pragma once
// Where the game's files lie: beside the programs.
#include <filesystem>

namespace tasca {

// The folder of the executable that runs, byte for byte, whatever its name is made of; `orden`, the
// name it was called by, serves where the system does not tell.
std::filesystem::path ProgramFolder(const char* orden);

}  // namespace tasca
