#pragma once
// Checks a character file for its author: reports what would stop the program, be lost or be shown
// wrongly. The file is read as each of its three readers does (see LectorPersonajes): the game; the
// editor, for which tags are case-insensitive; and the start-up dialog, for which any line that
// contains "Datos>" starts a record and which skips names that contain "Default".
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// The note of a file that was saved as UTF-8.
inline constexpr std::u16string_view PareceUtf8 =
    u"el archivo parece guardado en UTF-8, y así sus acentos se ven mal: guárdelo en Windows-1252 "
    u"(ANSI)";

// One fault of a file.
struct Falta {
  int Linea = 0;         // from 1; 0 for the whole file
  std::u16string Texto;  // a Spanish sentence; may quote the file, including control characters

  bool operator==(const Falta&) const = default;
};

// The result of a check.
struct Revision {
  std::vector<Falta> Faltas;  // by line; those of the whole file come last
  int Personajes = 0;         // number of records that the game reads
  int Ofrecidos = 0;          // number of players that the start-up dialog offers
};

// Lists all faults of the file. Stops at a line longer than LineReader::LargoMaximo, and after
// 200,000 notes. A file saved as UTF-8 has one fault for that, at the first line with a multi-byte
// sequence. A fault that does not affect both the game and the editor names the readers it affects.
// Throws RunTimeError if the file cannot be read.
Revision RevisarPersonajes(const std::filesystem::path& archivo);

}  // namespace tasca
