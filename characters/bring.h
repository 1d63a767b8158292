#pragma once
// Brings characters of another file into those that are being edited. A character whose name one of
// them already has takes its place, or is left out. Nothing is written to the disk.
#include <filesystem>
#include <string>
#include <vector>

#include "characters/editor.h"
#include "table/table.h"

namespace tasca {

// Reads another character file into `otros`, as the editor reads its own. Returns the number of
// characters, at least 1. Throws RunTimeError if the file cannot be used, was saved as UTF-8 or has
// no characters; `otros` is then useless.
int LeerOtroArchivo(const std::filesystem::path& archivo, Table& otros);

// The characters 1 to `deOtros` of another file, compared with the names of characters 1 to
// `numPersonajes` of `t`.
std::vector<Candidato> CandidatosDe(const Table& otros, int deOtros, const Table& t,
                                    int numPersonajes);

// What to do with a chosen character whose name one of the edited ones has.
enum class Repetidos { Sustituir, Dejar };

// A character of the other file and the number that it gets, both from 1.
struct Traido {
  int Otro = 0;
  int Numero = 0;

  bool operator==(const Traido&) const = default;
};

// Where the chosen characters go.
struct Numeracion {
  std::vector<Traido> Traidos;
  int NumPersonajes = 0;  // the number of edited characters after that
};

// Gives each candidate of the positions `elegidos` its number: that of the first edited character
// of its name that no other one replaces, or else the next free number.
Numeracion Numerar(const std::vector<Candidato>& candidatos, const std::vector<int>& elegidos,
                   const Table& t, int numPersonajes, Repetidos repetidos);

// The objection to adding these characters, as sentences for the player; "" if they fit. The file
// holds 100, and the game offers only the first 50: beyond them a name needs "Default".
std::u16string ReparoANumeracion(const Numeracion& numeracion,
                                 const std::vector<Candidato>& candidatos, int numPersonajes);

// Asks for a file, for its characters and about those of the same name, and brings them. Reports
// the result in a message box. Changes nothing if the user cancels or the file cannot be used.
void TraerPersonajes(Dialog1& d, Table& t, EditorPort& port);

}  // namespace tasca
