#pragma once
// Where the files of the game are: beside the programs, or shipped in one folder and the user's own
// in another.
#include <filesystem>
#include <optional>
#include <string>

namespace tasca {

struct GameFolder {
  std::filesystem::path Files;         // of "Jugadores.dat" and "mus.ini"
  std::filesystem::path Shipped;       // of the sounds
  std::filesystem::path SoundProgram;  // the file tasca-sound
  // Why nothing may be written to Files, as the reason of a WriteError; "" if it may.
  std::u16string NotSaved;
};

// Finds the files from the folder of the programs, never from the current folder.
//
// Portable: "Jugadores.dat" lies beside the programs in a folder that can be written, which is then
// the folder of all files. Installed: the shipped files are in "../share/tasca", the program
// tasca-sound is in "../libexec/tasca", and the user's files are in `propia`, where they are
// brought as ui/own_files.h tells. `elegida` takes the place of that folder in both cases. If the
// user's files cannot be brought, Files is the folder of the shipped ones and NotSaved says why.
GameFolder FindGameFolder(const std::filesystem::path& programas,
                          const std::optional<std::filesystem::path>& elegida,
                          const std::filesystem::path& propia);

}  // namespace tasca
