#pragma once
// A table at which one step of a lance is run with the draws that it is to make, and what the
// player saw while a question was open.
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "lances/lance.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca {

inline void PrintTo(Decision decision, std::ostream* salida) {
  *salida << "decision " << static_cast<int>(decision);
}

}  // namespace tasca

namespace tasca::test {

inline constexpr float Minima = 0x1p-24F;    // the step from one draw to the next
inline constexpr float Maxima = 1 - Minima;  // the greatest draw

// The texts on the screen while a box with OK is open.
struct Vista {
  std::u16string Text1;
  std::u16string Text2;
  std::u16string Text3;
};

class PuertoConVistas : public ScriptedPort {
 public:
  std::vector<Vista> Cajas;      // one for each box with OK
  std::vector<Dialog> Dialogos;  // one for each bidding dialog, as it opened

  void MsgBox(const Table& t, std::u16string_view texto) override {
    Cajas.push_back({t.Text1, t.Text2, t.Text3});
    ScriptedPort::MsgBox(t, texto);
  }
  void ShowDialog(const Table& t, Dialog& dialogo) override {
    Dialogos.push_back(dialogo);
    ScriptedPort::ShowDialog(t, dialogo);
  }
};

struct Mesa {
  Table t = MesaDePrueba();
  PuertoConVistas port;

  // Runs a step, which has to make exactly these draws. Every computer seat that speaks makes two
  // of them: with 0, 0 it says its first phrase.
  void Juega(void (*paso)(Game&), std::initializer_list<float> sacadas = {}) {
    DrawList rnd{sacadas};
    Game g{t, rnd, port};
    paso(g);
  }

  void DarATodos(std::string_view mano) {
    for (Seat asiento = 1; asiento <= 4; ++asiento) DarMano(t, asiento, mano);
  }
  void Hablan(const Array<Integer, 1, 4>& orden) { t.OrdenAsiento = orden; }
  // A bet on the table that waits for its answer.
  void Envidan(Pareja pareja, int piedras) {
    t.ParejaEnvite = pareja;
    t.SeguirLance = piedras;
  }
  std::string Texto() const { return Utf8(t.Text2); }
};

using Decisor = Decision (*)(const Table& t, Rnd& rnd, Seat asiento);

// What a computer seat decides; it has to make exactly these draws.
inline Decision Elige(Decisor decisor, const Table& t, Seat asiento,
                      std::initializer_list<float> sacadas = {}) {
  DrawList rnd{sacadas};
  return decisor(t, rnd, asiento);
}

// The score as pareja 0 (seats 2 and 4) sees it.
inline void Marcan(Table& t, int propias, int contrarias) {
  t.Piedras[0] = propias;
  t.Piedras[1] = contrarias;
}

// Gives a seat any points of juego: three Reyes and a card of its own that makes up the rest.
inline void DarPuntos(Table& t, Seat asiento, int puntos) {
  DarMano(t, asiento, "R R R 7");
  t.Manos[asiento][4] = NumeroDeCarta('7', asiento);
  t.Cartas[NumeroDeCarta('7', asiento)].ValorJuego = puntos - 30;
}

}  // namespace tasca::test
