#pragma once
// The folder in which a recorded game is played.
#include <filesystem>
#include <string>

namespace tasca::test {

// Copies the folder that all games share, without the files that the game does not want, and the
// game's own files over it.
void FillFolder(const std::filesystem::path& folder, const std::filesystem::path& game);

// The output with the folder's path replaced by FOLDER: the errors of a file contain the path,
// which changes from run to run.
std::string WithoutFolder(std::string out, const std::string& folder);

}  // namespace tasca::test
