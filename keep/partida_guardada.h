#pragma once
// A match as bytes, from which it goes on as if it had not been interrupted: the table, the
// generator and the characters at the table, who may have changed in their file meanwhile. Files
// are the business of keep/archivo_partida.h.
#include <string>
#include <string_view>

#include "base/rnd.h"
#include "table/table.h"

namespace tasca {

// The match between two steps. Begins with the format's name and number and a checksum. Of the
// characters it holds those at the table and the two with the default phrases. It does not hold
// what belongs to the running program: the files and AvisadoSinNombre.
std::string EscribirPartida(const Table& t, const Rnd& rnd);

// The bytes of a match from the values in them, as keep/flujos.h writes them: adds the format's
// name and number and the checksum.
std::string ConCabecera(std::string_view valores);

// What tells a match, in the bytes of EscribirPartida, from others: its checksum.
std::string_view SumaDePartida(std::string_view bytes);

// Reads a match back into a table and its generator; the files and AvisadoSinNombre stay. Returns
// false and changes nothing unless the bytes are a whole and possible match of this format.
bool LeerPartida(std::string_view bytes, Table& t, Rnd& rnd);

}  // namespace tasca
