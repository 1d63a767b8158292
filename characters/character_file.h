#pragma once
// Reads and writes the character file "Jugadores.dat". For each character it has a head of four
// lines, then the phrases after a marker line ("QMus>") for each kind. The format is defined in
// characters/record_lines.h.
#include <filesystem>
#include <string>
#include <string_view>

#include "base/line_file.h"
#include "characters/record_lines.h"
#include "table/table.h"

namespace tasca {

// The path of the character file in the folder of the game's files.
std::filesystem::path ArchivoPersonajes(const Table& t);

// Where a save keeps the character file that it replaces: "Jugadores.bak" for "Jugadores.dat",
// "otros.txt.bak" for a name that does not end in ".dat".
std::filesystem::path CopiaDeSeguridad(std::filesystem::path archivo);

// The propensity to the órdago in a text: the integer at its start, 0 without one. Reads at most
// nine characters. Throws RunTimeError (overflow) outside -32768..32767.
Integer ValorOrdaguero(std::u16string_view texto);

// True if the file can hold the value, that is, reading it back gives the same value: 0 to 999.
// Only three characters are read, and the sign of a negative number takes one of them.
bool SeLeeComoSeEscribe(int ordaguero);

// Throws RunTimeError if the file has ended inside the head of a record. Call it after the last
// line.
void ExigirCabecera(LineReader& archivo, const LineasPersonajes& lineas);

// Reads the character file into Personajes and Mensajes. Tags are case-sensitive. Fields that the
// file does not contain keep their old values. Throws RunTimeError if the file is missing or ends
// inside the head of a record, for a phrase before the first record and for a 101st character.
void LeerPersonajes(Table& t);

// The same for the editor, for which tags are case-insensitive. Returns the number of characters, 0
// to 100.
int LeerPersonajesSinMayusculas(Table& t);

// The content of a character file with the characters 1 to `cuantos`; "" if `cuantos` is below 1.
// Phrases are written with their padding, names and stories without. A phrase that is blank or was
// never filled is omitted, so later phrases of the same kind move to a lower slot.
std::string TextoPersonajes(const Table& t, int cuantos);

// Copies the character file to its CopiaDeSeguridad and replaces it by characters 1 to `cuantos`.
// Both files are replaced atomically. Throws WriteError on failure, and for a table whose files may
// not be written.
void EscribirPersonajes(const Table& t, int cuantos);

}  // namespace tasca
