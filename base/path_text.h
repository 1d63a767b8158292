#pragma once
// Paths as the messages name them.
#include <filesystem>
#include <string>

namespace tasca {

// The path as text. A name in it that is not valid UTF-8 is read as Windows-1252.
std::u16string PathText(const std::filesystem::path& archivo);

// The place of a fault in a file, with the blank that follows it: "archivo, línea 4: ". `linea`
// counts from 1; 0 stands for the file as a whole and gives "archivo: ".
std::u16string PlaceInFile(const std::filesystem::path& archivo, int linea);

}  // namespace tasca
