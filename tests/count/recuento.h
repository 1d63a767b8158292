#pragma once
// A hand that is ready to be counted, for the tests of the count.
#include <string>

#include "base/rnd.h"
#include "count/count.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {

// Four hands "7 6 5 4" (no pares, 22 points), seat 1 the mano, nobody named. Grande and pequeña
// were refused and paid, nobody has pares or juego, and the punto has never been bet: nothing is
// left to count. A test changes what it is about.
struct Recuento {
  Table t = MesaDePrueba();
  ScriptedPort port;

  Recuento() {
    for (int lance = 1; lance <= 3; ++lance) t.Apuesta[lance] = ApuestaPagada;
    t.SeJuegaPunto = true;
  }

  // Counts the hand, without a single draw, and gives the transcript.
  std::string Contar() {
    DrawList ninguna{};
    Game g{t, ninguna.Get(), port};
    ContarMano(g);
    return Utf8(t.Text2);
  }
};

inline const std::string GrandeYPequenaPagadas =
    "la grande ya estaba contada \r\nla pequeña ya estaba contada \r\n";

// What stands before the lance in which a hand without pares ends.
inline const std::string Antes = GrandeYPequenaPagadas + "\r\n";

inline const std::string PuntoYaContado = "El Punto ya estaba contado \r\n";

// The last two lines of a count that ends no juego; the human's pareja first.
inline std::string Tanteo(int nuestras, int contrarias) {
  return "\r\nEl tanteo actual es de " + std::to_string(nuestras) + " a " +
         std::to_string(contrarias) + ". \r\nPulse enter para empezar una nueva mano";
}

}  // namespace tasca::test
