#pragma once
// The character file "Jugadores.dat": a record of lines for every character, then its phrases under
// one marker line ("QMus>") per kind of phrase. characters/record_lines.h knows its format.
#include <filesystem>
#include <string>
#include <string_view>

#include "base/line_file.h"
#include "characters/record_lines.h"
#include "table/table.h"

namespace tasca {

// The character file of the program's folder.
std::filesystem::path ArchivoPersonajes(const Table& t);

// The propensity to the órdago that a text stands for: the whole number that it starts with, or 0.
// Throws RunTimeError (overflow) outside 16 bits.
Integer ValorOrdaguero(std::u16string_view texto);

// True if the file's form of the propensity is read back as the same value: from 0 to 999. The sign
// of a negative value takes the place of a digit.
bool SeLeeComoSeEscribe(int ordaguero);

// At the end of the file: throws RunTimeError when it ends within a record's head.
void ExigirCabecera(LineReader& archivo, const LineasPersonajes& lineas);

// Reads the whole character file into Personajes and Mensajes. Tags are case-sensitive. What the
// file does not fill keeps what it held before. Throws RunTimeError for a missing file, a record
// cut short, a phrase before the first record, a 101st character.
void LeerPersonajes(Table& t);

// The same for the editor, which takes tags in upper or lower case. Tells how many characters there
// are, 0 to 100.
int LeerPersonajesSinMayusculas(Table& t);

// The bytes of a character file with the characters 1 to `cuantos` (none below 1). Phrases are
// written in their full width, names and stories without their padding; a phrase that is blank or
// was never filled is left out, and the next one moves up.
std::string TextoPersonajes(const Table& t, int cuantos);

// Makes the character file anew from characters 1 to `cuantos`, once the file that was there has
// become "Jugadores.bak". Neither is ever absent or half written. Throws WriteError.
void EscribirPersonajes(const Table& t, int cuantos);

}  // namespace tasca
