// What differs between the lances in the betting: the texts, the phases and the records of a
// settled bet.
#include "lances/bidding.h"

#include <gtest/gtest.h>

#include <array>

#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/pequena.h"
#include "lances/punto.h"
#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

struct Caso {
  const char* nombre;
  void (*abrir)(Game&);
  void (*responder)(Game&);
  const Lance& (*datos)();
  NumeroLance numero;
  Fase fase;           // of the opening
  Fase faseRespuesta;  // after a bet
  Fase faseSiguiente;  // after the lance

  const char* mano;      // of all seats: may speak; no computer seat accepts with it
  const char* manoGana;  // beats `mano` in this lance
  void (*todosPasan)(Mesa&);

  const char* enPaso;  // whole transcripts that start from "antes" and a line break
  const char* abierto;
  const char* aviso;
  const char* avisoTrasOrdago;
  const char* preguntaApertura;  // the questions to the human
  const char* cantidadApertura;
  const char* preguntaRespuesta;
  const char* cantidadAlSubir;
  const char* preguntaOrdago;
  const char* ordagoGanado;

  bool empiezaSinEnvite;
  int refrescos;
  bool declara;
};

void PrintTo(const Caso& caso, std::ostream* salida) { *salida << caso.nombre; }

const std::array<Caso, 5> Casos{{
    {.nombre = "Grande",
     .abrir = LanceGrande,
     .responder = EnviteGrande,
     .datos = DatosGrande,
     .numero = NumeroLance::Grande,
     .fase = Fase::Grande,
     .faseRespuesta = Fase::RespuestaGrande,
     .faseSiguiente = Fase::Pequena,
     .mano = "7 6 5 4",
     .manoGana = "R 6 5 4",
     .todosPasan =
         [](Mesa& m) {
           m.t.ParejaCortaMus = 2;  // nobody has refused
           m.Juega(LanceGrande, {0, 0, 0, 0, /*3*/ 0, 0, 0, 0, /*4*/ 0, 0, 0, 0});
         },
     .enPaso = "La grande\r\n"
               "Ana: Paso1\r\n"
               "Jugador 2: Paso1\r\n"
               "Jugador 3: Paso1\r\n"
               "Jugador 4: Paso1\r\n"
               "la grande queda en paso\r\n"
               "Pulse enter para continuar\r\n",
     .abierto = "La grande\r\nAna: EnvM1\r\n",
     .aviso = "Pulse enter para continuar",
     .avisoTrasOrdago = "",
     .preguntaApertura = "dialog[La grande]: mode -1",
     .cantidadApertura = "input[Envite a grande]: ¿Cuántas envida? (default 2)",
     .preguntaRespuesta = "dialog[Envite a grande]: mode 0",
     .cantidadAlSubir = "input[Envite a grande]: ¿Cuántas más envida? (default 2)",
     .preguntaOrdago = "dialog[Envite a grande]: mode -2",
     .ordagoGanado = "box: órdago a grande querido y ganado por la pareja 0",
     .empiezaSinEnvite = false,
     .refrescos = 2,
     .declara = false},
    {.nombre = "Pequena",
     .abrir = LancePequena,
     .responder = EnvitePequena,
     .datos = DatosPequena,
     .numero = NumeroLance::Pequena,
     .fase = Fase::Pequena,
     .faseRespuesta = Fase::RespuestaPequena,
     .faseSiguiente = Fase::DeclaracionPares,
     .mano = "7 6 5 4",
     .manoGana = "7 6 5 A",
     .todosPasan =
         [](Mesa& m) {
           m.Juega(LancePequena, {0, 0, 0, 0, 0, 0, 0, 0, 0});
         },
     .enPaso = "Pequeña \r\n"
               "Ana: Paso1\r\n"
               "Jugador 2: Paso1\r\n"
               "Jugador 3: Paso1\r\n"
               "Jugador 4: Paso1\r\n"
               "la Pequeña queda en paso\r\n"
               "Pulse enter para continuar\r\n",
     .abierto = "Pequeña \r\nAna: EnvM1\r\n",
     .aviso = "Pulse enter para continuar",
     .avisoTrasOrdago = "Pulse enter para continuar",
     .preguntaApertura = "dialog[La Pequeña]: mode -1",
     .cantidadApertura = "input[Envite a Pequeña]: ¿Cuántas envida? (default 2)",
     .preguntaRespuesta = "dialog[Envite a pequeña]: mode 0",
     .cantidadAlSubir = "input[Envite a pequeña]: ¿Cuántas más envida? (default 2)",
     .preguntaOrdago = "dialog[Envite a pequeña]: mode -2",
     .ordagoGanado = "box: órdago a pequeña querido y ganado por la pareja 0",
     .empiezaSinEnvite = false,
     .refrescos = 1,
     .declara = false},
    {.nombre = "Pares",
     .abrir = LancePares,
     .responder = EnvitePares,
     .datos = DatosPares,
     .numero = NumeroLance::Pares,
     .fase = Fase::Pares,
     .faseRespuesta = Fase::RespuestaPares,
     .faseSiguiente = Fase::DeclaracionJuego,
     .mano = "7 4 4 A",
     .manoGana = "7 5 5 A",
     .todosPasan =
         [](Mesa& m) {
           m.t.ParejaCortaMus = 2;
           m.Juega(LancePares, {0, 0, 0, 0, 0, 0, 0, 0, 0});
         },
     .enPaso = "Los pares\r\n"
               "Ana: Paso1\r\n"
               "Jugador 2: Paso1\r\n"
               "Jugador 3: Paso1\r\n"
               "Jugador 4: Paso1\r\n"
               "Los pares quedan en paso\r\n"
               "Pulse enter para continuar\r\n",
     .abierto = "Los pares\r\nAna: EnvM1\r\n",
     .aviso = "Pulse enter para continuar",
     .avisoTrasOrdago = "Pulse enter para continuar",
     .preguntaApertura = "dialog[Los pares]: mode -1",
     .cantidadApertura = "input[Envite a Pares]: ¿Cuántas envida? (default 2)",
     .preguntaRespuesta = "dialog[Envite a pares]: mode 0",
     .cantidadAlSubir = "input[Envite a pares]: ¿Cuántas más envida? (default 2)",
     .preguntaOrdago = "dialog[Envite a pares]: mode -2",
     .ordagoGanado = "box: órdago a pares querido y ganado por la pareja 0",
     .empiezaSinEnvite = true,
     .refrescos = 1,
     .declara = false},
    {.nombre = "Juego",
     .abrir = LanceJuego,
     .responder = EnviteJuego,
     .datos = DatosJuego,
     .numero = NumeroLance::Juego,
     .fase = Fase::Juego,
     .faseRespuesta = Fase::RespuestaJuego,
     .faseSiguiente = Fase::Cuenta,
     .mano = "R R R 4",
     .manoGana = "R R R A",
     .todosPasan =
         [](Mesa& m) {
           m.Juega(LanceJuego, {0,       0, 0, 0, 0, 0, 0, /*3*/ 0, 0, 0, 0, 0, 0, 0,
                                /*4*/ 0, 0, 0, 0, 0, 0, 0});
         },
     .enPaso = "antes\r\n\r\n"
               "El juegoAna: Paso1\r\n"
               "Jugador 2: Paso1\r\n"
               "Jugador 3: Paso1\r\n"
               "Jugador 4: Paso1\r\n"
               "\r\n"
               "El juego queda en paso\r\n"
               "Pulse enter para contar",
     .abierto = "antes\r\n\r\nEl juegoAna: EnvM1\r\n",
     .aviso = "Pulse enter para contar",
     .avisoTrasOrdago = "",
     .preguntaApertura = "dialog[El Juego]: mode -1",
     .cantidadApertura = "input[Envite a Juego]: ¿Cuántas envida? (default 2)",
     .preguntaRespuesta = "dialog[Envite a Juego]: mode 0",
     .cantidadAlSubir = "input[Envite a Juego]: ¿Cuántas más envida? (default 2)",
     .preguntaOrdago = "dialog[Envite a Juego]: mode -2",
     .ordagoGanado = "box: órdago a Juego querido y ganado por la pareja 0",
     .empiezaSinEnvite = true,
     .refrescos = 1,
     .declara = true},
    {.nombre = "Punto",
     .abrir = LancePunto,
     .responder = EnvitePunto,
     .datos = DatosPunto,
     .numero = NumeroLance::Punto,
     .fase = Fase::Punto,
     .faseRespuesta = Fase::RespuestaPunto,
     .faseSiguiente = Fase::Cuenta,
     .mano = "7 6 5 4",
     .manoGana = "7 7 5 4",
     .todosPasan =
         [](Mesa& m) {
           m.Juega(LancePunto, {0, 0, 0, 0, 0, 0, 0, 0, 0});
         },
     .enPaso = "antes\r\n\r\n"
               "El puntoAna: Paso1\r\n"
               "Jugador 2: Paso1\r\n"
               "Jugador 3: Paso1\r\n"
               "Jugador 4: Paso1\r\n"
               "\r\n"
               "El punto queda en paso\r\n"
               "Pulse enter para contar",
     .abierto = "antes\r\n\r\nEl puntoAna: EnvM1\r\n",
     .aviso = "Pulse enter para contar",
     .avisoTrasOrdago = "",
     .preguntaApertura = "dialog[El Punto]: mode -1",
     .cantidadApertura = "input[Envite a Punto]: ¿Cuántas envida? (default 2)",
     .preguntaRespuesta = "dialog[Envite a Punto]: mode 0",
     .cantidadAlSubir = "input[Envite al Punto]: ¿Cuántas más envida? (default 2)",
     .preguntaOrdago = "dialog[Envite a Punto]: mode -2",
     .ordagoGanado = "box: órdago a Punto querido y ganado por la pareja 0",
     .empiezaSinEnvite = true,
     .refrescos = 1,
     .declara = true},
}};

// The human is mano. Every computer seat refuses a bet with one draw and speaks with two.
struct CadaLance : testing::TestWithParam<Caso> {
  Mesa m;
  const Caso& caso = GetParam();

  CadaLance() {
    m.t.Fase = caso.fase;
    m.t.Text2 = u"antes\r\n";
    m.t.OrdenPares = {1, 4, 3, 2};
    m.t.TurnoJuego = {1, 3, 3, 3};
    m.t.RondasMus = 2;
    m.DarATodos(caso.mano);
  }

  void PonerEnRespuesta(Pareja pareja, int piedras) {
    m.t.Fase = caso.faseRespuesta;
    m.t.Text2.clear();
    m.Envidan(pareja, piedras);
  }
};

INSTANTIATE_TEST_SUITE_P(, CadaLance, testing::ValuesIn(Casos),
                         [](const auto& lance) { return lance.param.nombre; });

TEST_P(CadaLance, WritesThatItStaysEnPaso) {
  m.port.Presses(0);
  caso.todosPasan(m);
  EXPECT_EQ(m.Texto(), caso.enPaso);
  EXPECT_EQ(m.t.Fase, caso.faseSiguiente);
  EXPECT_EQ(m.t.Apuesta, (Array<Integer, 1, 5>{}));
  EXPECT_EQ(m.t.SeguirLance, 0);
  EXPECT_EQ(Utf8(m.t.Text3), "");
}

TEST_P(CadaLance, AsksTheHumanWithItsTextsInTheOpening) {
  m.port.Presses(2).Types(u"4");
  m.Juega(caso.abrir);
  EXPECT_EQ(m.Texto(), caso.abierto);
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{caso.preguntaApertura, caso.cantidadApertura}));
  EXPECT_EQ(m.t.SeguirLance, 4);
  EXPECT_EQ(m.t.Fase, caso.faseRespuesta);
}

TEST_P(CadaLance, ResetsAnOldBetOnlyFromParesOn) {
  m.t.SeguirLance = 3;
  if (caso.empiezaSinEnvite) m.port.Presses(1);
  m.Juega(caso.abrir);
  EXPECT_EQ(m.port.TakeEvents().size(), caso.empiezaSinEnvite ? 1U : 0U);
  EXPECT_EQ(m.t.SeguirLance, caso.empiezaSinEnvite ? 2 : 3);
  EXPECT_EQ(m.t.Fase, caso.faseRespuesta);
}

TEST_P(CadaLance, AsksTheHumanWithItsTextsInTheAnswer) {
  PonerEnRespuesta(0, 2);
  m.port.Presses(2).Types(u"3");
  m.Juega(caso.responder, {/*2*/ 0, 0, 0, /*4*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(), std::string{"Ana: EnvM1\r\n"
                                   "Jugador 2: NQui1\r\n"
                                   "Jugador 4: NQui1\r\n"
                                   "la pareja 1 se saca 2 piedras\r\n"} +
                           caso.aviso);
  EXPECT_EQ(m.port.TakeEvents(), (Sucesos{caso.preguntaRespuesta, caso.cantidadAlSubir}));
}

TEST_P(CadaLance, PaysARefusedBetAtOnce) {
  PonerEnRespuesta(1, 2);
  m.t.Piedras = {4, 6};
  m.Juega(caso.responder, {/*2*/ 0, 0, 0, /*4*/ 0, 0, 0});
  EXPECT_EQ(m.Texto(), std::string{"Jugador 2: NQui1\r\n"
                                   "Jugador 4: NQui1\r\n"
                                   "la pareja 1 se saca 1 piedra\r\n"} +
                           caso.aviso);
  EXPECT_EQ(m.t.Piedras, (Array<Integer, 0, 1>{4, 7}));
  Array<Integer, 1, 5> apuesta;
  apuesta[caso.numero] = -2;
  EXPECT_EQ(m.t.Apuesta, apuesta);
  EXPECT_EQ(m.t.SeguirLance, 0);
  EXPECT_EQ(m.t.Fase, caso.faseSiguiente);
  EXPECT_EQ(Utf8(m.t.Text3), "Piedras: 7 / 4;    juegos: 0 / 0;    Vacas: 0 / 0");
}

TEST_P(CadaLance, Kept_ARefusedBetDeclaresOnlyJuegoAndPunto) {
  for (const Pareja pareja : {0, 1}) {
    PonerEnRespuesta(pareja, 2);
    m.t.Declaracion = {-2, -2, -2};
    m.t.Apuesta = {};
    if (pareja == 1) {
      m.Juega(caso.responder, {/*2*/ 0, 0, 0, /*4*/ 0, 0, 0});
    } else {
      m.port.Presses(0);
      m.Juega(caso.responder, {/*3*/ 0, 0, 0});
    }
    Array<Integer, 3, 5> declaracion{-2, -2, -2};
    if (caso.declara) declaracion[caso.numero] = pareja;
    EXPECT_EQ(m.t.Declaracion, declaracion) << pareja;
  }
}

TEST_P(CadaLance, KeepsAnAcceptedBetForTheCount) {
  PonerEnRespuesta(0, 5);
  m.port.Presses(1);
  m.Juega(caso.responder);
  EXPECT_EQ(m.Texto(), std::string{"Ana: SQui1\r\nenvite querido\r\n"} + caso.aviso);
  Array<Integer, 1, 5> apuesta;
  apuesta[caso.numero] = 5;
  EXPECT_EQ(m.t.Apuesta, apuesta);
  EXPECT_EQ(m.t.Fase, caso.faseSiguiente);
  EXPECT_EQ(m.t.Piedras, (Array<Integer, 0, 1>{}));
  EXPECT_EQ(m.t.Declaracion, MesaDePrueba().Declaracion);
  EXPECT_EQ(Utf8(m.t.Text3), "");
}

// Seat 2 has the better hand. The juego completes a vaca, whose box shows Text2 at that moment.
TEST_P(CadaLance, AnAcceptedOrdagoGoesToTheBestHand) {
  PonerEnRespuesta(0, -1);
  DarMano(m.t, 2, caso.manoGana);
  m.t.Juegos[0] = 1;
  m.port.Presses(1);
  m.Juega(caso.responder);
  EXPECT_EQ(m.port.TakeEvents(),
            (Sucesos{caso.preguntaOrdago, caso.ordagoGanado,
                     "box: La pareja 0 gana esta vaca. El resultado ha sido de 0 a 2 partidas.|"
                     "0 a 1 vaca."}));
  ASSERT_EQ(m.port.Cajas.size(), 2U);
  EXPECT_EQ(Utf8(m.port.Cajas[0].Text2), "Ana: SQui1\r\n");
  EXPECT_EQ(Utf8(m.port.Cajas[1].Text2), std::string{"Ana: SQui1\r\n"} + caso.avisoTrasOrdago);
  EXPECT_EQ(m.t.Vacas[0], 1);
}

TEST_P(CadaLance, AnAcceptedOrdagoStartsAnotherHand) {
  PonerEnRespuesta(0, -1);
  m.t.Piedras = {12, 20};
  m.port.Presses(1);
  m.Juega(caso.responder);
  EXPECT_EQ(m.Texto(), "Pulse enter para empezar una nueva mano");
  EXPECT_EQ(m.t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(m.t.Juegos, (Array<Integer, 0, 1>{0, 1}));
  EXPECT_EQ(m.t.Piedras, (Array<Integer, 0, 1>{}));
  EXPECT_EQ(m.t.SeguirLance, 0);
  Array<Integer, 1, 5> apuesta;
  apuesta[caso.numero] = -1;
  EXPECT_EQ(m.t.Apuesta, apuesta);
}

// A second refresh of the scoreboard has no visible effect, so that the lance's data is tested.
TEST_P(CadaLance, Kept_OnlyTheGrandeRewritesTheScoreboardTwice) {
  EXPECT_EQ(caso.datos().RefrescosAlRehusar, caso.refrescos);
}

}  // namespace
}  // namespace tasca::test
