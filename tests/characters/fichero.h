#pragma once
// A valid character file, and functions that put faults into it.
#include <string>
#include <vector>

#include "characters/check.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {

using Textos = std::vector<std::string>;

// The lines of characters 1 to 5: two default sets and the three players "Nombre 3" to "Nombre 5".
// A character has 32 lines, so number 3 starts at line 65: its name 66, its ordaguero 67, its story
// 68, then a marker and one phrase for every kind: QMus> 69 and 70, NMus> 71 and 72, ... EnvM> 85
// and 86, Orda> 87 and 88, ... Derr> 95 and 96. The last line of all is 160.
struct Fichero {
  Textos Lineas;

  Fichero() {
    for (int i = 1; i <= 5; ++i) Anadir(i <= 2 ? "Default " : "Nombre ", i);
  }

  // Appends a complete character.
  Fichero& Anadir(const std::string& nombre, int numero) {
    const Textos marcas{"QMus", "NMus", "TPar", "NPar", "TJue", "NJue", "Paso",
                        "Envi", "EnvM", "Orda", "NQui", "SQui", "Vict", "Derr"};
    for (const std::string& linea : {std::string{"Datos>"}, nombre + std::to_string(numero),
                                     std::string{"050"}, std::string{"Una historia."}}) {
      Lineas.push_back(linea);
    }
    for (const std::string& marca : marcas) {
      Lineas.push_back(marca + ">");
      Lineas.push_back("frase");
    }
    return *this;
  }

  // Replaces line `numero` (from 1), inserts lines before it, removes it.
  Fichero& Cambiar(int numero, const std::string& texto) {
    Lineas.at(static_cast<std::size_t>(numero - 1)) = texto;
    return *this;
  }
  Fichero& Insertar(int numero, const Textos& textos) {
    Lineas.insert(Lineas.begin() + numero - 1, textos.begin(), textos.end());
    return *this;
  }
  Fichero& Quitar(int numero) {
    Lineas.erase(Lineas.begin() + numero - 1);
    return *this;
  }
  // Keeps the first `cuantas` lines only.
  Fichero& Cortar(int cuantas) {
    Lineas.resize(static_cast<std::size_t>(cuantas));
    return *this;
  }

  // The file's content, each line with CR LF.
  std::string Bytes() const {
    std::string bytes;
    for (const std::string& linea : Lineas) bytes += linea + "\r\n";
    return bytes;
  }
};

// Runs the checker on a file with this content.
inline Revision Revisar(const std::string& bytes) {
  const TempFolder carpeta;
  carpeta.Write("Jugadores.dat", bytes);
  return RevisarPersonajes(carpeta.Path() / "Jugadores.dat");
}

// The checker's faults as "LINE: TEXT". Faults of the whole file have line 0.
inline Textos Faltas(const std::string& bytes) {
  Textos faltas;
  for (const Falta& falta : Revisar(bytes).Faltas) {
    faltas.push_back(std::to_string(falta.Linea) + ": " + Utf8(falta.Texto));
  }
  return faltas;
}
inline Textos Faltas(const Fichero& fichero) { return Faltas(fichero.Bytes()); }

}  // namespace tasca::test
