#pragma once
// What the readers of a character file come upon while it is looked over, brought together: the
// same fault for several readers is one.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "characters/check.h"

namespace tasca {

// Who reads the file: bits, added up.
using Lectores = unsigned;
inline constexpr Lectores LectorJuego = 1;
inline constexpr Lectores LectorEditor = 2;
inline constexpr Lectores LectorInicio = 4;
inline constexpr Lectores TodosLosLectores = LectorJuego | LectorEditor | LectorInicio;

// "el juego y el editor".
std::u16string NombreLectores(Lectores quienes);

// A piece of the file between quotes, cut when it is long.
std::u16string Cita(std::u16string_view texto);

class CuadernoFaltas {
 public:
  int Linea = 0;  // the line being read, where faults are noted; 0 for those of the whole file

  // `texto` is a sentence without its stop.
  void Anotar(Lectores quienes, std::u16string texto) { Anotar(quienes, Linea, std::move(texto)); }
  void Anotar(Lectores quienes, int linea, std::u16string texto);

  std::size_t Cuantas() const { return notas_.size(); }

  // Every fault once, by line and, within one, as noted; those of the whole file come last. A fault
  // that the game and the editor do not share names its readers.
  std::vector<Falta> Faltas() const;

 private:
  struct Nota {
    int Linea;
    std::u16string Texto;
    Lectores Quienes;
  };

  // The notes by line, those of one line with the same text made one.
  std::vector<Nota> Reunidas() const;

  std::vector<Nota> notas_;
};

}  // namespace tasca
