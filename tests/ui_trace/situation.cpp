// Copies the fields of the table.
#include "tests/ui_trace/situation.h"

#include <algorithm>

#include "base/code_page.h"

namespace tasca::test {
namespace {

template <std::size_t N, int Primero, int Ultimo>
void Copy(const Array<Integer, Primero, Ultimo>& from, std::array<int, N>& to) {
  static_assert(Ultimo - Primero + 1 == N);
  std::copy(from.begin(), from.end(), to.begin());
}

}  // namespace

Situation SituationOf(const Table& t, const Rnd& rnd) {
  Situation s;
  Copy(t.Baraja, s.Baraja);
  s.CartaSiguiente = t.CartaSiguiente;
  s.DescarteSiguiente = t.DescarteSiguiente;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    Copy(t.Manos[asiento], s.Manos.at(static_cast<std::size_t>(asiento - 1)));
  }
  s.Fase = static_cast<int>(t.Fase);
  Copy(t.OrdenAsiento, s.OrdenAsiento);
  s.SeguirLance = t.SeguirLance;
  s.RondasMus = t.RondasMus;
  Copy(t.Piedras, s.Piedras);
  Copy(t.Juegos, s.Juegos);
  Copy(t.Vacas, s.Vacas);
  s.JuegosVaca = t.JuegosVaca;
  s.VacasPartida = t.VacasPartida;
  s.Text3 = Encode(t.Text3);
  s.Draws = rnd.Draws();
  return s;
}

}  // namespace tasca::test
