#pragma once
// The user's own copies of the files that are shipped with the game: the characters and the
// settings.
#include <filesystem>
#include <string>
#include <vector>

namespace tasca {

// The folder of an installed game is only read. Its "Jugadores.dat" and "mus.ini" are copied to a
// folder of the user's, where they are changed. The folder ".original" in it holds them as they
// were last shipped: a file that equals its original has not been changed by the user.

// Creates the user's folder, copies the files that are missing there and follows an update of the
// game: files that the user has not changed are renewed; beside a changed one the new one is laid
// as "Jugadores.dat.nuevo". Returns why a file that the game needs could not be brought there, as
// the reason of a WriteError; "" if the folder has them all. `propia` is empty if the user has no
// folder.
std::u16string BringOwnFiles(const std::filesystem::path& shipped,
                             const std::filesystem::path& propia);

// The files laid beside changed ones since the last call, for telling the user once.
std::vector<std::filesystem::path> TakeNewFiles(const std::filesystem::path& propia);

}  // namespace tasca
