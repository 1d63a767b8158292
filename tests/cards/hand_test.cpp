// The start of a hand.
#include "cards/hand.h"

#include <gtest/gtest.h>

#include "cards/deck.h"
#include "cards/hand_text.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using Orden = Array<Integer, 1, 4>;

// A table, a seeded generator and a port.
struct Sala {
  Table t = MesaDePrueba();
  Rnd rnd;
  ScriptedPort port;
  Game g{t, rnd, port};

  Sala() { rnd.Seed(2024); }
};

TEST(EmpezarMano, PassesTheManoToTheNextSeat) {
  Sala sala;
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.t.OrdenAsiento, (Orden{2, 3, 4, 1}));
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.t.OrdenAsiento, (Orden{3, 4, 1, 2}));
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.t.OrdenAsiento, (Orden{4, 1, 2, 3}));
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.t.OrdenAsiento, (Orden{1, 2, 3, 4}));
}

TEST(EmpezarMano, ResetsTheRecordsOfTheLastHand) {
  Sala sala;
  Table& t = sala.t;
  t.Fase = Fase::Cuenta;
  t.SeJuegaPunto = true;
  t.RondasMus = 3;
  t.Apuesta = {-1, -2, 5, 7, 0};
  t.Declaracion[NumeroLance::Pares] = 0;
  t.Declaracion[NumeroLance::Juego] = 1;
  EmpezarMano(sala.g);
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_FALSE(t.SeJuegaPunto);
  EXPECT_EQ(t.RondasMus, 0);
  EXPECT_EQ(t.Apuesta, (Array<Integer, 1, 5>{0, 0, 0, 0, 0}));
  EXPECT_EQ(t.Declaracion[NumeroLance::Pares], -2);
  EXPECT_EQ(t.Declaracion[NumeroLance::Juego], -2);
}

TEST(EmpezarMano, Kept_KeepsThePuntoRecordsOfTheLastHand) {
  Sala sala;
  sala.t.Apuesta[NumeroLance::Punto] = -2;
  sala.t.Declaracion[NumeroLance::Punto] = 1;
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.t.Apuesta[NumeroLance::Punto], -2);
  EXPECT_EQ(sala.t.Declaracion[NumeroLance::Punto], 1);
}

TEST(EmpezarMano, KeepsScoresAndMatch) {
  Sala sala;
  Table& t = sala.t;
  t.Piedras = {12, 20};
  t.Juegos = {1, 1};
  t.Vacas = {0, 1};
  t.Text3 = u"marcador";
  t.ParejaCortaMus = 1;
  t.ManoPorDecidir = true;
  EmpezarMano(sala.g);
  EXPECT_EQ(t.Piedras, (Array<Integer, 0, 1>{12, 20}));
  EXPECT_EQ(t.Juegos, (Array<Integer, 0, 1>{1, 1}));
  EXPECT_EQ(t.Vacas, (Array<Integer, 0, 1>{0, 1}));
  EXPECT_EQ(t.Text3, u"marcador");
  EXPECT_EQ(t.ParejaCortaMus, 1);
  EXPECT_TRUE(t.ManoPorDecidir);
}

TEST(EmpezarMano, DealsFourCardsToEachSeatInTurnFromTheTop) {
  Sala sala;
  sala.t.CartaSiguiente = 30;
  sala.t.DescarteSiguiente = 9;
  EmpezarMano(sala.g);
  // Repeats the draws on another table: a new deck, shuffled twice.
  Sala otra;
  CrearBaraja(otra.t, otra.rnd);
  Barajar(otra.t, otra.rnd, 40);
  EXPECT_EQ(sala.t.Baraja, otra.t.Baraja);
  for (Seat asiento = 1; asiento <= 4; ++asiento) Repartir(otra.g, asiento, 4);
  EXPECT_EQ(sala.t.Manos, otra.t.Manos);
  EXPECT_EQ(sala.t.CartaSiguiente, 17);
  EXPECT_EQ(sala.t.DescarteSiguiente, 1);
}

TEST(EmpezarMano, DrawsForTwoShuffles) {
  Sala sala;
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.rnd.Draws(), 80002U);
}

TEST(EmpezarMano, SoundsTheDeal) {
  Sala sala;
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_ReparteCartas.mp3 x1 balance 0 volume 0"}));
  EXPECT_EQ(sala.t.SonidoActual, -2);
}

// Stores the texts at the start of a sound.
class PuertoQueLee : public ScriptedPort {
 public:
  std::u16string Textos = u"nada ha sonado";

  void OpenSound(const Table& t, std::u16string_view archivo) override {
    Textos = t.Text1 + t.Text2;
    ScriptedPort::OpenSound(t, archivo);
  }
};

TEST(EmpezarMano, ClearsTheTextsBeforeTheDealSounds) {
  Sala sala;
  sala.t.Text1 = u"lo de antes";
  sala.t.Text2 = u"lo contado";
  PuertoQueLee port;
  Game g{sala.t, sala.rnd, port};
  EmpezarMano(g);
  EXPECT_EQ(port.Textos, u"");
}

TEST(EmpezarMano, ShowsTheHumansHand) {
  Sala sala;
  sala.t.Text1 = u"lo de antes";
  EmpezarMano(sala.g);
  EXPECT_EQ(sala.t.Text1, TextoMano(sala.t));
}

TEST(EmpezarMano, TellsTheHandAndTheManoByNumber) {
  Sala sala;
  sala.t.Text2 = u"lo de antes";
  EmpezarMano(sala.g);
  EXPECT_EQ(Utf8(sala.t.Text2), "Sus cartas son\r\n" + Utf8(TextoMano(sala.t)) +
                                    "\r\nEl jugador 2 es mano.\r\npulse Enter para empezar");
}

TEST(EmpezarMano, Kept_TellsTheManoByNameWithoutAFullStop) {
  Sala sala;
  sala.t.UsarNombres = true;
  EmpezarMano(sala.g);
  EXPECT_EQ(Utf8(sala.t.Text2), "Sus cartas son\r\n" + Utf8(TextoMano(sala.t)) +
                                    "\r\nBerta es mano\r\npulse Enter para empezar");
}

TEST(EmpezarMano, NamesTheHumanByPersonaje0) {
  Sala sala;
  sala.t.UsarNombres = true;
  sala.t.NombreJugador = u"otra";
  sala.t.OrdenAsiento = {4, 1, 2, 3};
  EmpezarMano(sala.g);
  EXPECT_EQ(Utf8(sala.t.Text2), "Sus cartas son\r\n" + Utf8(TextoMano(sala.t)) +
                                    "\r\nAna es mano\r\npulse Enter para empezar");
}

}  // namespace
}  // namespace tasca::test
