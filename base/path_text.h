#pragma once
// Paths as text for messages to the player.
#include <filesystem>
#include <string>

namespace tasca {

// The path as text, decoded as UTF-8. A component that is not valid UTF-8 is decoded as
// Windows-1252.
std::u16string PathText(const std::filesystem::path& archivo);

// The prefix of a message about a file: "archivo, línea 4: ". `linea` counts from 1; 0 means the
// whole file and gives "archivo: ".
std::u16string PlaceInFile(const std::filesystem::path& archivo, int linea);

}  // namespace tasca
