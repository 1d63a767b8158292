#pragma once
// The game's files as bytes, and the check of a character file.
#include <filesystem>
#include <string>
#include <string_view>

namespace tasca {

// The content of a file; "" if there is none.
std::string LeerArchivo(const std::filesystem::path& archivo);

// Replaces a file.
void EscribirArchivo(const std::filesystem::path& archivo, std::string_view bytes);

// Checks a character file and returns the result as JSON (docs/web.md). Writes it into `carpeta`
// meanwhile.
std::string RevisarArchivo(const std::filesystem::path& carpeta, std::string_view bytes);

}  // namespace tasca
