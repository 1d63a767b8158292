#pragma once
// The character file "Jugadores.dat": a record of lines for every character, then its phrases under
// one marker line ("QMus>") per kind of phrase.
#include <array>
#include <filesystem>
#include <string_view>

#include "table/table.h"

namespace tasca {

// The file tags, by MessageCategory - 1.
inline constexpr std::array<std::u16string_view, 14> EtiquetasMensaje{
    u"QMus", u"NMus", u"TPar", u"NPar", u"TJue", u"NJue", u"Paso",
    u"Envi", u"EnvM", u"Orda", u"NQui", u"SQui", u"Vict", u"Derr"};

// The marker that starts a record.
inline constexpr std::u16string_view EtiquetaDatos = u"Datos";

// The character file of the program's folder.
std::filesystem::path ArchivoPersonajes(const Table& t);

// Reads the whole character file into Personajes and Mensajes. Tags are case-sensitive. What the
// file does not fill keeps what it held before. Throws RunTimeError for a missing file, a record
// cut short, a phrase before the first record, a 101st character.
void LeerPersonajes(Table& t);

}  // namespace tasca
