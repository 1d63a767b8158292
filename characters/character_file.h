#pragma once
// The character file "Jugadores.dat": a record of lines for every character, then its phrases under
// one marker line ("QMus>") per kind of phrase.
#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "table/table.h"

namespace tasca {

// The file tags, by MessageCategory - 1.
inline constexpr std::array<std::u16string_view, 14> EtiquetasMensaje{
    u"QMus", u"NMus", u"TPar", u"NPar", u"TJue", u"NJue", u"Paso",
    u"Envi", u"EnvM", u"Orda", u"NQui", u"SQui", u"Vict", u"Derr"};

// Compares the text of a marker with a tag.
using ComparacionEtiquetas = bool (*)(std::u16string_view, std::u16string_view);

// The MessageCategory of a tag, 0 when there is none.
int CategoriaDe(std::u16string_view etiqueta, ComparacionEtiquetas coinciden);

// The marker that starts a record.
inline constexpr std::u16string_view EtiquetaDatos = u"Datos";

// How many characters of the propensity to the órdago are read, and at least written.
inline constexpr int CifrasOrdaguero = 3;

// The character file of the program's folder.
std::filesystem::path ArchivoPersonajes(const Table& t);

// The propensity to the órdago that a text stands for: the whole number that it starts with, or 0.
// Throws RunTimeError (overflow) outside 16 bits.
Integer ValorOrdaguero(std::u16string_view texto);

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
