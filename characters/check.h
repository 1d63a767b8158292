#pragma once
// Looking a character file over for whoever wrote it: what would stop the program, be lost or be
// shown wrongly. The file is taken as its three readers take it: the game, the editor (to which
// "qmus>" is "QMus>" and "datos>" is "Datos>") and the start-up dialog (to which any line with
// "Datos>" in it starts a character, and which skips the names with "Default").
#include <filesystem>
#include <string>
#include <vector>

namespace tasca {

// One fault. The line counts from 1; 0 means the file as a whole.
struct Falta {
  int Linea = 0;
  std::u16string Texto;  // Spanish, a sentence; it may quote the file, control characters included

  bool operator==(const Falta&) const = default;
};

struct Revision {
  std::vector<Falta> Faltas;  // by line; those of the whole file come last
  int Personajes = 0;         // records, as the game counts them
  int Ofrecidos = 0;          // players that the start-up dialog offers
};

// Reads the file to its end, or to a line that is too long for every reader, and lists every fault;
// only a file with faults by the hundred thousand is left at that. Being saved as UTF-8 is one
// fault, at the first line that shows it. A fault that does not concern both the game and the
// editor names its reader. Throws RunTimeError when the file cannot be read.
Revision RevisarPersonajes(const std::filesystem::path& archivo);

}  // namespace tasca
