#pragma once
// Collects the faults that the readers of a character file find. The same fault of several readers
// is merged into one.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "characters/check.h"

namespace tasca {

// A set of readers, as a bit mask.
using Lectores = unsigned;
inline constexpr Lectores LectorJuego = 1;
inline constexpr Lectores LectorEditor = 2;
inline constexpr Lectores LectorInicio = 4;
inline constexpr Lectores TodosLosLectores = LectorJuego | LectorEditor | LectorInicio;

// The Spanish names of the readers: "el juego y el editor".
std::u16string NombreLectores(Lectores quienes);

// The text in quotes. Text after 40 characters is replaced by an ellipsis.
std::u16string Cita(std::u16string_view texto);

// The notes of one check.
class CuadernoFaltas {
 public:
  int Linea = 0;  // the current line, from 1; 0 for the whole file

  // Notes a fault of the current line. `texto` is a sentence without the final stop.
  void Anotar(Lectores quienes, std::u16string texto) { Anotar(quienes, Linea, std::move(texto)); }
  // Notes a fault of line `linea`.
  void Anotar(Lectores quienes, int linea, std::u16string texto);

  // The number of notes, before merging.
  std::size_t Cuantas() const { return notas_.size(); }

  // The merged faults by line, within a line in the order of the notes; those of the whole file
  // come last. A fault that does not affect both the game and the editor names its readers.
  std::vector<Falta> Faltas() const;

 private:
  struct Nota {
    int Linea;
    std::u16string Texto;
    Lectores Quienes;
  };

  // The notes sorted by line. Notes of one line with the same text are merged.
  std::vector<Nota> Reunidas() const;

  std::vector<Nota> notas_;
};

}  // namespace tasca
