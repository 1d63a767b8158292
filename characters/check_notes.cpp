// Sorts and merges the notes, and builds the sentences.
#include "characters/check_notes.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace tasca {

std::u16string NombreLectores(Lectores quienes) {
  constexpr std::array<std::u16string_view, 3> Nombres{u"el juego", u"el editor",
                                                       u"el diálogo de inicio"};
  std::u16string lista;
  for (std::size_t i = 0; i < Nombres.size(); ++i) {
    if ((quienes >> i & 1U) == 0) continue;
    if (!lista.empty()) lista += u" y ";
    lista += Nombres.at(i);
  }
  return lista;
}

std::u16string Cita(std::u16string_view texto) {
  constexpr std::size_t LargoCita = 40;
  return Join(u"\"", texto.substr(0, LargoCita), texto.size() > LargoCita ? u"…\"" : u"\"");
}

void CuadernoFaltas::Anotar(Lectores quienes, int linea, std::u16string texto) {
  notas_.push_back({linea, std::move(texto), quienes});
}

std::vector<CuadernoFaltas::Nota> CuadernoFaltas::Reunidas() const {
  const auto lugar = [](const Nota& nota) { return std::pair{nota.Linea == 0, nota.Linea}; };
  std::vector<Nota> orden = notas_;
  std::stable_sort(orden.begin(), orden.end(), [&lugar](const Nota& una, const Nota& otra) {
    return lugar(una) < lugar(otra);
  });
  std::vector<Nota> reunidas;
  for (Nota& nota : orden) {
    auto igual = reunidas.rbegin();
    while (igual != reunidas.rend() && igual->Linea == nota.Linea && igual->Texto != nota.Texto) {
      ++igual;
    }
    if (igual != reunidas.rend() && igual->Linea == nota.Linea) {
      igual->Quienes |= nota.Quienes;
    } else {
      reunidas.push_back(std::move(nota));
    }
  }
  return reunidas;
}

std::vector<Falta> CuadernoFaltas::Faltas() const {
  constexpr Lectores Completos = LectorJuego | LectorEditor;
  std::vector<Falta> faltas;
  for (const Nota& nota : Reunidas()) {
    const bool esDeTodos = (nota.Quienes & Completos) == Completos;
    faltas.push_back({nota.Linea, esDeTodos ? Join(nota.Texto, u".")
                                            : Join(nota.Texto, u" (solo para ",
                                                   NombreLectores(nota.Quienes), u").")});
  }
  return faltas;
}

}  // namespace tasca
