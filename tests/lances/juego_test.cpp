// Juego: the declaration and the best hand.
#include "lances/juego.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using PorAsiento = Array<Integer, 1, 4>;

TEST(TieneJuego, NeedsThirtyOnePoints) {
  Table t = MesaDePrueba();
  DarMano(t, 3, "R R R A");
  EXPECT_TRUE(TieneJuego(t, 3));
  DarMano(t, 3, "R R 6 4");
  EXPECT_FALSE(TieneJuego(t, 3));
  DarMano(t, 3, "R C S 3");
  EXPECT_TRUE(TieneJuego(t, 3));
  EXPECT_FALSE(TieneJuego(t, 2));
}

// The winner if seats 1 and 2 have these points and the others no juego.
Pareja Mejor(int humano, int contrario, const PorAsiento& orden) {
  Table t = MesaDePrueba();
  DarPuntos(t, 1, humano);
  DarPuntos(t, 2, contrario);
  t.OrdenAsiento = orden;
  return MejorJuego(t);
}

constexpr std::array<int, 11> OrdenDeJuegos{31, 32, 40, 39, 38, 37, 36, 35, 34, 33, 30};

TEST(MejorJuego, IsThirtyOneThenThirtyTwoThenFortyDownToThirtyThree) {
  for (std::size_t i = 0; i + 1 < OrdenDeJuegos.size(); ++i) {
    for (std::size_t j = i + 1; j < OrdenDeJuegos.size(); ++j) {
      const int mejor = OrdenDeJuegos.at(i);
      const int peor = OrdenDeJuegos.at(j);
      EXPECT_EQ(Mejor(mejor, peor, {2, 3, 4, 1}), 1) << mejor << " to " << peor;
      EXPECT_EQ(Mejor(peor, mejor, {1, 2, 3, 4}), 0) << peor << " to " << mejor;
    }
  }
}

TEST(MejorJuego, GivesEqualJuegosToTheSeatNearestTheMano) {
  for (const int puntos : {31, 40, 33}) {
    EXPECT_EQ(Mejor(puntos, puntos, {1, 2, 3, 4}), 1) << puntos;
    EXPECT_EQ(Mejor(puntos, puntos, {2, 3, 4, 1}), 0) << puntos;
    EXPECT_EQ(Mejor(puntos, puntos, {3, 4, 1, 2}), 1) << puntos;
    EXPECT_EQ(Mejor(puntos, puntos, {4, 1, 2, 3}), 1) << puntos;
  }
}

TEST(MejorJuego, FindsTheBestJuegoAtEverySeat) {
  for (Seat mejor = 1; mejor <= 4; ++mejor) {
    Table t = MesaDePrueba();
    for (Seat asiento = 1; asiento <= 4; ++asiento) DarPuntos(t, asiento, 33);
    DarPuntos(t, mejor, 34);
    EXPECT_EQ(MejorJuego(t), mejor % 2) << mejor;
  }
}

TEST(MejorJuego, RanksMoreThanFortyAsNoJuego) { EXPECT_EQ(Mejor(33, 41, {2, 3, 4, 1}), 1); }

// The human (31) and seat 4 (34) have juego.
struct DeclaraJuego : testing::Test {
  Mesa m;

  DeclaraJuego() {
    m.t.Fase = Fase::DeclaracionJuego;
    m.t.Text2 = u"lo de antes\r\n";
    m.t.TurnoJuego = {9, 9, 9, 9};
    DarMano(m.t, 1, "R R R A");
    DarMano(m.t, 4, "R R R 4");
  }

  void Declaran() { m.Juega(tasca::DeclaraJuego, {0, 0, 0, 0, 0, 0}); }
};

TEST_F(DeclaraJuego, GoesOnToTheBetsWhenBothParejasHaveJuego) {
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: TJue1\r\n"
            "Jugador 2: NJue1\r\n"
            "Jugador 3: NJue1\r\n"
            "Jugador 4: TJue1\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"yesno[¿Tiene Juego?]:  (icon, default yes)"}));
  EXPECT_EQ(m.port.Preguntas, std::vector<Pregunta>{Pregunta::Juego});
  EXPECT_EQ(m.t.Fase, Fase::Juego);
  EXPECT_FALSE(m.t.SeJuegaPunto);
  EXPECT_EQ(m.t.TurnoJuego, (PorAsiento{1, 0, 0, 2}));
}

TEST_F(DeclaraJuego, GoesToTheCountWhenOnlyOneParejaHasJuego) {
  DarMano(m.t, 4, "7 6 5 4");
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: TJue1\r\n"
            "Jugador 2: NJue1\r\n"
            "Jugador 3: NJue1\r\n"
            "Jugador 4: NJue1\r\n"
            "Una de las dos parejas no tiene Juego\r\n"
            "Pulse enter para contar");
  EXPECT_EQ(m.t.Fase, Fase::Cuenta);
  EXPECT_FALSE(m.t.SeJuegaPunto);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Juego], 0);
  EXPECT_EQ(m.t.Declaracion[NumeroLance::Juego], -2);
}

TEST_F(DeclaraJuego, GoesToTheCountWhenOnlyTheOpponentsHaveJuego) {
  DarMano(m.t, 1, "7 6 5 4");
  DarMano(m.t, 2, "R R R 4");
  m.port.No();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: NJue1\r\n"
            "Jugador 2: TJue1\r\n"
            "Jugador 3: NJue1\r\n"
            "Jugador 4: TJue1\r\n"
            "Una de las dos parejas no tiene Juego\r\n"
            "Pulse enter para contar");
  EXPECT_EQ(m.t.Fase, Fase::Cuenta);
}

TEST_F(DeclaraJuego, GoesToThePuntoWhenNobodyHasJuego) {
  m.DarATodos("7 6 5 4");
  m.port.No();
  Declaran();
  EXPECT_EQ(m.Texto(),
            "Ana: NJue1\r\n"
            "Jugador 2: NJue1\r\n"
            "Jugador 3: NJue1\r\n"
            "Jugador 4: NJue1\r\n"
            "Ninguna de las dos parejas tiene Juego\r\n"
            "Pulse enter para continuar");
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{"yesno[¿Tiene Juego?]:  (icon, default no)"}));
  EXPECT_EQ(m.t.Fase, Fase::Punto);
  EXPECT_TRUE(m.t.SeJuegaPunto);
  EXPECT_EQ(m.t.TurnoJuego, (PorAsiento{0, 0, 0, 0}));
}

TEST_F(DeclaraJuego, CorrectsTheHumanWhoDeniesAJuego) {
  m.port.No();
  Declaran();
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"yesno[¿Tiene Juego?]:  (icon, default yes)",
                     "box: En realidad sí tiene Juego, y eso es lo que dice (por lo que pudiera "
                     "pasar...)"}));
  EXPECT_TRUE(m.Texto().starts_with("Ana: TJue1\r\n"));
  EXPECT_EQ(m.t.Fase, Fase::Juego);
}

TEST_F(DeclaraJuego, CorrectsTheHumanWhoClaimsAJuego) {
  DarMano(m.t, 1, "7 6 5 4");
  m.port.Yes();
  Declaran();
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{"yesno[¿Tiene Juego?]:  (icon, default no)",
                     "box: En realidad no tiene Juego y eso es lo que dice (por lo que pudiera "
                     "pasar...)"}));
  EXPECT_TRUE(m.Texto().starts_with("Ana: NJue1\r\n"));
  EXPECT_EQ(m.t.TurnoJuego, (PorAsiento{0, 0, 0, 1}));
}

struct CasoTurnos {
  PorAsiento orden;
  std::vector<Seat> conJuego;
  PorAsiento turnos;
};

// A seat's turn is one more than the number of rivals with juego that spoke before it.
TEST_F(DeclaraJuego, Kept_CountsTheOtherParejaForEverySeatsTurn) {
  const std::vector<CasoTurnos> casos{
      {{1, 2, 3, 4}, {1, 2, 3, 4}, {1, 2, 2, 3}}, {{2, 3, 4, 1}, {1, 2, 3, 4}, {3, 1, 2, 2}},
      {{3, 4, 1, 2}, {1, 2, 3, 4}, {2, 3, 1, 2}}, {{4, 1, 2, 3}, {1, 2, 3, 4}, {2, 2, 3, 1}},
      {{1, 2, 3, 4}, {1, 3}, {1, 0, 1, 0}},       {{1, 2, 3, 4}, {2, 4}, {0, 1, 0, 1}},
      {{2, 3, 4, 1}, {1, 2, 4}, {3, 1, 0, 1}},    {{1, 2, 3, 4}, {1, 3, 4}, {1, 0, 1, 3}},
      {{1, 2, 3, 4}, {2, 3}, {0, 1, 2, 0}},       {{3, 4, 1, 2}, {1, 4}, {2, 0, 0, 1}},
      {{4, 1, 2, 3}, {1}, {1, 0, 0, 0}}};
  for (const CasoTurnos& caso : casos) {
    SCOPED_TRACE(testing::Message()
                 << "mano " << caso.orden[1] << ", " << caso.conJuego.size() << " with juego");
    m.DarATodos("7 6 5 4");
    for (const Seat asiento : caso.conJuego) DarMano(m.t, asiento, "R R R 4");
    m.Hablan(caso.orden);
    TieneJuego(m.t, 1) ? m.port.Yes() : m.port.No();
    Declaran();
    EXPECT_EQ(m.t.TurnoJuego, caso.turnos);
  }
}

TEST_F(DeclaraJuego, SpeaksInOrderWithTwoDrawsForEveryComputerSeat) {
  m.Hablan({4, 1, 2, 3});
  m.port.Yes();
  m.Juega(tasca::DeclaraJuego, {0.9F, 0, 0.5F, 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Jugador 4: TJue3\r\n"
            "Ana: TJue1\r\n"
            "Jugador 2: NJue2\r\n"
            "Jugador 3: NJue1\r\n"
            "Pulse enter para continuar");
}

// Runs the declaration, the opening and the answer in turn.
TEST(EnviteJuego, Kept_RemovesThePromptOfTheDeclarationButNotItsLine) {
  Mesa m;
  m.t.Fase = Fase::DeclaracionJuego;
  DarMano(m.t, 1, "R R R A");
  DarMano(m.t, 4, "R R R 4");
  m.port.Yes().Presses(1);
  m.Juega(tasca::DeclaraJuego, {0, 0, 0, 0, 0, 0});
  m.Juega(LanceJuego);
  EXPECT_EQ(m.Texto(),
            "Ana: TJue1\r\n"
            "Jugador 2: NJue1\r\n"
            "Jugador 3: NJue1\r\n"
            "Jugador 4: TJue1\r\n"
            "Pulse enter para continuar\r\n"
            "El juegoAna: Envi1\r\n");
  EXPECT_EQ(m.t.Fase, Fase::RespuestaJuego);
  m.Juega(EnviteJuego, {/*4*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(),
            "Ana: TJue1\r\n"
            "Jugador 2: NJue1\r\n"
            "Jugador 3: NJue1\r\n"
            "Jugador 4: TJue1\r\n"
            "\r\n"
            "El juegoAna: Envi1\r\n"
            "Jugador 4: NQui1\r\n"
            "la pareja 1 se saca 1 piedra\r\n"
            "Pulse enter para contar");
  EXPECT_EQ(m.t.Fase, Fase::Cuenta);
  EXPECT_EQ(m.t.Declaracion[NumeroLance::Juego], 1);
  EXPECT_EQ(m.t.Apuesta[NumeroLance::Juego], -2);
}

}  // namespace
}  // namespace tasca::test
