#pragma once
// A hand before its count, for the tests of the count.
#include <string>

#include "base/rnd.h"
#include "count/count.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {

// All seats hold "7 6 5 4" (no pares, 22 points), seat 1 is mano, names are not used. Grande,
// pequeña and pares are settled and the punto was never bet, so that nothing is left to count. A
// test changes what it needs.
struct Recuento {
  Table t = MesaDePrueba();
  ScriptedPort port;

  Recuento() {
    for (int lance = 1; lance <= 3; ++lance) t.Apuesta[lance] = ApuestaPagada;
    t.SeJuegaPunto = true;
  }

  // Counts the hand, without a draw, and returns the transcript.
  std::string Contar() {
    DrawList ninguna{};
    Game g{t, ninguna.Get(), port};
    ContarMano(g);
    return Utf8(t.Text2);
  }
};

// The lines of settled lances.
inline const std::string GrandeYPequenaPagadas =
    "la grande ya estaba contada \r\nla pequeña ya estaba contada \r\n";

// The transcript before juego or punto, in a hand without pares.
inline const std::string Antes = GrandeYPequenaPagadas + "\r\n";

inline const std::string PuntoYaContado = "El Punto ya estaba contado \r\n";

// The last two lines of a count that ends no juego. The human's pareja comes first.
inline std::string Tanteo(int nuestras, int contrarias) {
  return "\r\nEl tanteo actual es de " + std::to_string(nuestras) + " a " +
         std::to_string(contrarias) + ". \r\nPulse enter para empezar una nueva mano";
}

}  // namespace tasca::test
