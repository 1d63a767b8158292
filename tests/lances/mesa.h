#pragma once
// A table for one step of a lance, with scripted draws and a port that records what the player
// sees.
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

inline constexpr float Minima = 0x1p-24F;    // the distance between two draws
inline constexpr float Maxima = 1 - Minima;  // the greatest draw

// The texts on the screen while a message box is open.
struct Vista {
  std::u16string Text1;
  std::u16string Text2;
  std::u16string Text3;
};

// A scripted port that also stores the state at each message box and bidding dialog.
class PuertoConVistas : public ScriptedPort {
 public:
  std::vector<Vista> Cajas;
  std::vector<Dialog> Dialogos;  // as they opened

  void MsgBox(const Table& t, std::u16string_view texto) override {
    Cajas.push_back({t.Text1, t.Text2, t.Text3});
    ScriptedPort::MsgBox(t, texto);
  }
  void ShowDialog(const Table& t, Dialog& dialogo) override {
    Dialogos.push_back(dialogo);
    ScriptedPort::ShowDialog(t, dialogo);
  }
};

// The table of MesaDePrueba with its port.
struct Mesa {
  Table t = MesaDePrueba();
  PuertoConVistas port;

  // Runs a step, which must make exactly these draws. Every computer seat that speaks makes two of
  // them; with 0, 0 it says its first phrase.
  void Juega(void (*paso)(Game&), std::initializer_list<float> sacadas = {}) {
    DrawList rnd{sacadas};
    Game g{t, rnd, port};
    paso(g);
  }

  void DarATodos(std::string_view mano) {
    for (Seat asiento = 1; asiento <= 4; ++asiento) DarMano(t, asiento, mano);
  }
  void Hablan(const Array<Integer, 1, 4>& orden) { t.OrdenAsiento = orden; }
  // Sets a bet that waits for its answer; -1 is an órdago.
  void Envidan(Pareja pareja, int piedras) {
    t.ParejaEnvite = pareja;
    t.SeguirLance = piedras;
  }
  // The transcript.
  std::string Texto() const { return Utf8(t.Text2); }
};

// What the human types into an input box, and the stones that it means.
struct CasoTecleado {
  const char16_t* texto;
  int piedras;
};

// A decision function of a computer seat.
using Decisor = Decision (*)(const Table& t, Rnd& rnd, Seat asiento);

// The decision of a computer seat, which must make exactly these draws.
inline Decision Elige(Decisor decisor, const Table& t, Seat asiento,
                      std::initializer_list<float> sacadas = {}) {
  DrawList rnd{sacadas};
  return decisor(t, rnd, asiento);
}

// Sets the stones of pareja 0 (seats 2 and 4) and of pareja 1.
inline void Marcan(Table& t, int propias, int contrarias) {
  t.Piedras[0] = propias;
  t.Piedras[1] = contrarias;
}

// Gives a seat a hand with these points: three Reyes and a Siete whose juego value is changed.
inline void DarPuntos(Table& t, Seat asiento, int puntos) {
  DarMano(t, asiento, "R R R 7");
  t.Manos[asiento][4] = NumeroDeCarta('7', asiento);
  t.Cartas[NumeroDeCarta('7', asiento)].ValorJuego = puntos - 30;
}

}  // namespace tasca::test
