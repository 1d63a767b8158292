// The phase machine: the keys, and the step of each phase.
#include "match/phase_machine.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "base/errors.h"
#include "cards/hand_text.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

// Presses a key and returns the new KeyCode.
int Press(Table& t, Rnd& rnd, ScriptedPort& port, Integer tecla, Integer mayusculas = 0) {
  Game g{t, rnd, port};
  Text1_KeyDown(g, tecla, mayusculas);
  return tecla;
}

// Presses Enter in a phase, with exactly these draws.
void PressEnter(Table& t, Fase fase, ScriptedPort& port,
                std::initializer_list<float> sacadas = {}) {
  t.Fase = fase;
  DrawList rnd{sacadas};
  EXPECT_EQ(Press(t, rnd, port, TeclaEnter), 0);
}

// The human is mano and has bet an órdago, which waits for its answer.
Table MesaConOrdago() {
  Table t = MesaDePrueba();
  t.SeguirLance = EnviteOrdago;
  t.ParejaEnvite = 1;
  return t;
}

// The human and seat 2 have pares. Those of seat 2 are too weak to accept an órdago.
void GivePares(Table& t) {
  DarMano(t, 1, "7 7 6 5");
  DarMano(t, 2, "7 6 4 4");
}

// The human and seat 2 have juego. The 33 of seat 2 are too weak to accept an órdago.
void GiveJuego(Table& t) {
  DarMano(t, 1, "R C S A");
  DarMano(t, 2, "C S 7 6");
  t.TurnoJuego[2] = 2;
}

constexpr auto Rehusado = "la pareja 1 se saca 1 piedra\r\n";
constexpr auto Continuar = "Pulse enter para continuar";
constexpr auto Contar = "Pulse enter para contar";

// Keys.

TEST(Text1_KeyDown, LeavesOtherKeysToTheInputLine) {
  for (const int tecla : {0, 1, 8, 10, 12, 14, 32, 47, 49, 65, 80, 82, 113, 96}) {
    for (const int mayusculas : {0, 1, 2, 3, 4, 7}) {
      Table t = MesaDePrueba();
      const Table antes = t;
      DrawList rnd{};
      ScriptedPort port;
      EXPECT_EQ(Press(t, rnd, port, tecla, mayusculas), tecla);
      EXPECT_EQ(t, antes);
    }
  }
}

TEST(Text1_KeyDown, TakesEnterWithAnyShiftState) {
  for (const int mayusculas : {0, 1, 2, 3, 4}) {
    Table t = MesaDePrueba();
    t.Fase = Fase::Cuenta;
    DrawList rnd{};
    ScriptedPort port;
    EXPECT_EQ(Press(t, rnd, port, TeclaEnter, mayusculas), 0);
    EXPECT_EQ(t.Fase, Fase::EmpezarMano);
  }
}

TEST(Text1_KeyDown, HandlesEnterInAnUnknownPhaseWithoutEffect) {
  for (const int fase : {-2, 14, 100, 32767, -32768}) {
    Table t = MesaDePrueba();
    t.SeguirLance = 2;
    t.Fase = static_cast<Fase>(fase);
    const Table antes = t;
    DrawList rnd{};
    ScriptedPort port;
    EXPECT_EQ(Press(t, rnd, port, TeclaEnter), 0);
    EXPECT_EQ(t, antes);
    EXPECT_EQ(port.TakeEvents(), Sucesos{});
  }
}

// Q in this phase starts the next hand without counting the current one.
void ExpectAbandoned(Fase fase) {
  Table t = MesaDePrueba();
  t.Fase = fase;
  t.Piedras = {3, 4};
  t.Apuesta = {2, 2, 2, 2, 0};
  Rnd rnd;
  ScriptedPort port;
  EXPECT_EQ(Press(t, rnd, port, TeclaQ), 0);
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_EQ(t.OrdenAsiento, (Array<Integer, 1, 4>{2, 3, 4, 1}));
  EXPECT_EQ(t.Piedras, (Array<Integer, 0, 1>{3, 4}));
  EXPECT_EQ(t.Apuesta[NumeroLance::Grande], 0);
  EXPECT_TRUE(t.Text2.ends_with(u"pulse Enter para empezar"));
}

TEST(Text1_KeyDown, AbandonsTheHandAtAnyPhaseOnQ) {
  for (int fase = -1; fase <= 13; ++fase) ExpectAbandoned(static_cast<Fase>(fase));
}

TEST(Text1_KeyDown, TakesQWithAnyShiftState) {
  for (const int mayusculas : {1, 2, 3, 4, 7}) {
    Table t = MesaDePrueba();
    Rnd rnd;
    ScriptedPort port;
    EXPECT_EQ(Press(t, rnd, port, TeclaQ, mayusculas), 0);
    EXPECT_EQ(rnd.Draws(), 80002U);
  }
}

TEST(Text1_KeyDown, LaysAllHandsOpenOnCtrlShift0) {
  Table t = MesaDePrueba();
  t.Fase = Fase::DeclaracionPares;
  Table esperada = t;
  MostrarManos(esperada, TodosLosAsientos);
  DrawList rnd{};
  ScriptedPort port;
  EXPECT_EQ(Press(t, rnd, port, Tecla0, 3), Tecla0);
  EXPECT_EQ(t, esperada);
  EXPECT_TRUE(t.Text1.starts_with(u"Ana\r\n"));
}

TEST(Text1_KeyDown, LeavesZeroWithOtherShiftStatesAlone) {
  for (const int mayusculas : {0, 1, 2, 4, 5, 6, 7}) {
    Table t = MesaDePrueba();
    const Table antes = t;
    DrawList rnd{};
    ScriptedPort port;
    EXPECT_EQ(Press(t, rnd, port, Tecla0, mayusculas), Tecla0);
    EXPECT_EQ(t, antes) << mayusculas;
  }
}

TEST(Text1_KeyDown, HasTheKeyCodesOfTheKeys) {
  EXPECT_EQ(TeclaEnter, 13);
  EXPECT_EQ(TeclaQ, 81);
  EXPECT_EQ(Tecla0, 48);
  EXPECT_EQ(MayusculasYControl, 3);
}

// Phases without a bet.

TEST(Text1_KeyDown, StartsANewHandInPhaseMinus1) {
  Table t = MesaDePrueba();
  t.Fase = Fase::EmpezarMano;
  Rnd rnd;
  ScriptedPort port;
  EXPECT_EQ(Press(t, rnd, port, TeclaEnter), 0);
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_EQ(rnd.Draws(), 80002U);
  EXPECT_TRUE(t.Text2.starts_with(u"Sus cartas son\r\n"));
}

TEST(Text1_KeyDown, AsksForMusInPhase0) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.No();
  PressEnter(t, Fase::Mus, port);
  EXPECT_EQ(port.TakeEvents(), (Sucesos{"yesno[¿mus?]:  (icon, default yes)"}));
  EXPECT_EQ(t.Fase, Fase::Grande);
}

TEST(Text1_KeyDown, AsksForParesInPhase5) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.No();
  PressEnter(t, Fase::DeclaracionPares, port, {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(t.Fase, Fase::DeclaracionJuego);
  EXPECT_EQ(Utf8(t.Text2), std::string{"Ana: NPar1\r\nJugador 2: NPar1\r\nJugador 3: NPar1\r\n"
                                       "Jugador 4: NPar1\r\n"
                                       "Ninguna de las dos parejas tiene pares\r\n"} +
                               Continuar);
}

TEST(Text1_KeyDown, AsksForJuegoInPhase8) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.No();
  PressEnter(t, Fase::DeclaracionJuego, port, {0, 0, 0, 0, 0, 0});
  EXPECT_EQ(t.Fase, Fase::Punto);
  EXPECT_EQ(Utf8(t.Text2), std::string{"Ana: NJue1\r\nJugador 2: NJue1\r\nJugador 3: NJue1\r\n"
                                       "Jugador 4: NJue1\r\n"
                                       "Ninguna de las dos parejas tiene Juego\r\n"} +
                               Continuar);
}

TEST(Text1_KeyDown, CountsTheHandInPhase13) {
  Table t = MesaDePrueba();
  t.SeJuegaPunto = true;
  ScriptedPort port;
  PressEnter(t, Fase::Cuenta, port);
  EXPECT_EQ(t.Fase, Fase::EmpezarMano);
  EXPECT_TRUE(t.Text2.ends_with(u"Pulse enter para empezar una nueva mano"));
}

// Opening steps in which all pass.

constexpr float NoEnvida = 0.875F;  // a second draw at which the pareja that refused passes

TEST(Text1_KeyDown, OpensTheGrandeInPhase1) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.Presses(0);
  PressEnter(t, Fase::Grande, port, {0, NoEnvida, 0, 0, 0, NoEnvida, 0, 0, 0, NoEnvida, 0, 0});
  EXPECT_EQ(port.TakeEvents(), (Sucesos{"dialog[La grande]: mode -1"}));
  EXPECT_EQ(t.Fase, Fase::Pequena);
  EXPECT_TRUE(Utf8(t.Text2).ends_with("la grande queda en paso\r\nPulse enter para continuar\r\n"));
}

TEST(Text1_KeyDown, OpensThePequenaInPhase3) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.Presses(0);
  PressEnter(t, Fase::Pequena, port, {0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(port.TakeEvents(), (Sucesos{"dialog[La Pequeña]: mode -1"}));
  EXPECT_EQ(t.Fase, Fase::DeclaracionPares);
}

TEST(Text1_KeyDown, OpensTheParesInPhase6) {
  Table t = MesaDePrueba();
  t.SeguirLance = 2;  // an old bet, which the pares reset
  ScriptedPort port;
  PressEnter(t, Fase::Pares, port);
  EXPECT_EQ(t.Fase, Fase::DeclaracionJuego);
  EXPECT_TRUE(
      Utf8(t.Text2).ends_with("Los pares quedan en paso\r\nPulse enter para continuar\r\n"));
}

TEST(Text1_KeyDown, OpensTheJuegoInPhase9) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  PressEnter(t, Fase::Juego, port);
  EXPECT_EQ(t.Fase, Fase::Cuenta);
  EXPECT_EQ(Utf8(t.Text2), "\r\nEl juego\r\nEl juego queda en paso\r\nPulse enter para contar");
}

TEST(Text1_KeyDown, OpensThePuntoInPhase11) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.Presses(0);
  PressEnter(t, Fase::Punto, port, {0, 0, 0, 0, 0, 0, 0, 0, 0});
  EXPECT_EQ(port.TakeEvents(), (Sucesos{"dialog[El Punto]: mode -1"}));
  EXPECT_EQ(t.Fase, Fase::Cuenta);
}

// Opening steps with a bet: it is answered on the same Enter. The human's órdago is refused.

void ExpectRefused(const Table& t, Fase fase, const std::string& final) {
  EXPECT_EQ(t.Fase, fase);
  EXPECT_EQ(t.SeguirLance, 0);
  EXPECT_EQ(t.Piedras, (Array<Integer, 0, 1>{0, 1}));
  EXPECT_TRUE(Utf8(t.Text2).ends_with(Rehusado + final)) << Utf8(t.Text2);
}

TEST(Text1_KeyDown, HasABetToTheGrandeAnsweredAtOnce) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.Presses(3);
  PressEnter(t, Fase::Grande, port, {0, 0, 0, 0});
  ExpectRefused(t, Fase::Pequena, Continuar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Grande], ApuestaPagada);
}

TEST(Text1_KeyDown, HasABetToThePequenaAnsweredAtOnce) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.Presses(3);
  PressEnter(t, Fase::Pequena, port, {0, 0, 0, 0});
  ExpectRefused(t, Fase::DeclaracionPares, Continuar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Pequena], ApuestaPagada);
}

TEST(Text1_KeyDown, HasABetToTheParesAnsweredAtOnce) {
  Table t = MesaDePrueba();
  GivePares(t);
  ScriptedPort port;
  port.Presses(3);
  PressEnter(t, Fase::Pares, port, {0, 0});
  ExpectRefused(t, Fase::DeclaracionJuego, Continuar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Pares], ApuestaPagada);
}

TEST(Text1_KeyDown, HasABetToTheJuegoAnsweredAtOnce) {
  Table t = MesaDePrueba();
  GiveJuego(t);
  ScriptedPort port;
  port.Presses(3);
  PressEnter(t, Fase::Juego, port, {0, 0, 0});
  ExpectRefused(t, Fase::Cuenta, Contar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Juego], ApuestaPagada);
}

TEST(Text1_KeyDown, HasABetToThePuntoAnsweredAtOnce) {
  Table t = MesaDePrueba();
  ScriptedPort port;
  port.Presses(3);
  PressEnter(t, Fase::Punto, port, {0, 0, 0, 0, 0, 0});
  ExpectRefused(t, Fase::Cuenta, Contar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Punto], ApuestaPagada);
}

// Answer steps.

TEST(Text1_KeyDown, AnswersTheGrandeInPhase2) {
  Table t = MesaConOrdago();
  ScriptedPort port;
  PressEnter(t, Fase::RespuestaGrande, port, {0, 0, 0, 0});
  ExpectRefused(t, Fase::Pequena, Continuar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Grande], ApuestaPagada);
}

TEST(Text1_KeyDown, AnswersThePequenaInPhase4) {
  Table t = MesaConOrdago();
  ScriptedPort port;
  PressEnter(t, Fase::RespuestaPequena, port, {0, 0, 0, 0});
  ExpectRefused(t, Fase::DeclaracionPares, Continuar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Pequena], ApuestaPagada);
}

TEST(Text1_KeyDown, AnswersTheParesInPhase7) {
  Table t = MesaConOrdago();
  GivePares(t);
  ScriptedPort port;
  PressEnter(t, Fase::RespuestaPares, port, {0, 0});
  ExpectRefused(t, Fase::DeclaracionJuego, Continuar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Pares], ApuestaPagada);
}

TEST(Text1_KeyDown, AnswersTheJuegoInPhase10) {
  Table t = MesaConOrdago();
  GiveJuego(t);
  ScriptedPort port;
  PressEnter(t, Fase::RespuestaJuego, port, {0, 0, 0});
  ExpectRefused(t, Fase::Cuenta, Contar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Juego], ApuestaPagada);
}

TEST(Text1_KeyDown, AnswersThePuntoInPhase12) {
  Table t = MesaConOrdago();
  ScriptedPort port;
  PressEnter(t, Fase::RespuestaPunto, port, {0, 0, 0, 0, 0, 0});
  ExpectRefused(t, Fase::Cuenta, Contar);
  EXPECT_EQ(t.Apuesta[NumeroLance::Punto], ApuestaPagada);
}

// Exceptions.

TEST(Text1_KeyDown, LetsLeaveProgramThrough) {
  Table t = MesaDePrueba();
  t.Piedras = {0, 35};
  t.Juegos = {0, 1};
  t.Vacas = {0, 1};
  t.SeJuegaPunto = true;
  t.Fase = Fase::Cuenta;
  DrawList rnd{};
  ScriptedPort port;
  port.No();
  EXPECT_THROW(Press(t, rnd, port, TeclaEnter), LeaveProgram);
  EXPECT_EQ(Utf8(t.Text2), "Hasta pronto");
}

TEST(Text1_KeyDown, LetsARunTimeErrorThrough) {
  Table t = MesaDePrueba();
  t.UsarExpresiones = false;  // the computer seats have nothing to say
  t.Fase = Fase::DeclaracionPares;
  DrawList rnd{};
  ScriptedPort port;
  port.No();
  EXPECT_THROW(Press(t, rnd, port, TeclaEnter), RunTimeError);
}

}  // namespace
}  // namespace tasca::test
