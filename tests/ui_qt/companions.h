#pragma once
// The files of a table to play at: three companions with a phrase for everything.
#include <string>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// "Jugadores.dat" with the two default sets, Berta, "el Cojo & Cía" and Dora (characters 3 to 5),
// and "mus.ini" with the match parameters given and the name Ana.
void SetTable(const TempFolder& carpeta, const std::string& parametros = "35\r\n3\r\n3\r\n");

}  // namespace tasca::test
