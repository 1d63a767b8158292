#pragma once
// The data files for a match: three characters with a phrase for every kind.
#include <string>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// Writes "Jugadores.dat" with the two default sets, Berta, "el Cojo & Cía" and Dora (characters 3
// to 5), and "mus.ini" with these match parameters and the name Ana.
void SetTable(const TempFolder& carpeta, const std::string& parametros = "35\r\n3\r\n3\r\n");

}  // namespace tasca::test
