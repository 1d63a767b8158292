// The sound effects: the file, the repetitions, the balance and the volume.
#include "sound/effects.h"

#include <gtest/gtest.h>

#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

// A table and a port. No draws are expected.
struct Sala {
  Table t = MesaDePrueba();
  DrawList rnd;
  ScriptedPort port;
  Game g{t, rnd, port};

  Sala() : rnd{} {}
  // Notifies the end of a sound and returns the events.
  Sucesos Termina(int estado = 0) {
    Mp1_FinReproduccion(g, estado);
    return port.TakeEvents();
  }
};

TEST(SonidoCartas, PlaysTheDeal) {
  Sala sala;
  SonidoCartas(sala.g, SonidoReparto);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_ReparteCartas.mp3 x1 balance 0 volume 0"}));
  EXPECT_EQ(sala.t.SonidoActual, -2);
}

TEST(SonidoCartas, PlaysTheShuffle) {
  Sala sala;
  SonidoCartas(sala.g, SonidoBarajado);
  EXPECT_EQ(sala.port.TakeEvents(), (Sucesos{"sound: Son_BarajaCartas.mp3 x1 balance 0 volume 0"}));
  EXPECT_EQ(sala.t.SonidoActual, -1);
}

TEST(SonidoCartas, PlaysOnceWithTheBalanceAndVolumeOfTheLastSound) {
  Sala sala;
  sala.t.Mp1 = {.Veces = 4, .Balance = 300, .Volumen = -500};
  SonidoCartas(sala.g, SonidoReparto);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_ReparteCartas.mp3 x1 balance 300 volume -500"}));
}

TEST(SonidoCartas, PlaysNothingElseButSetsTheCount) {
  for (const int tipo : {0, 1, 2, -3}) {
    Sala sala;
    sala.t.Mp1.Veces = 4;
    sala.t.SonidoActual = SonidoReparto;
    SonidoCartas(sala.g, tipo);
    EXPECT_EQ(sala.port.TakeEvents(), Sucesos{}) << tipo;
    EXPECT_EQ(sala.t.SonidoActual, SonidoReparto) << tipo;
    EXPECT_EQ(sala.t.Mp1.Veces, 1) << tipo;
  }
}

TEST(SonidoDescartes, StartsWithTheFirstSeat) {
  Sala sala;
  sala.t.SonidoActual = SonidoReparto;
  SonidoDescartes(sala.g, {1, 2, 3, 4}, 3);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_DaUnaCarta.wav x3 balance 0 volume -700"}));
  EXPECT_EQ(sala.t.SonidoActual, 0);
  EXPECT_EQ(sala.t.CartasCambiadas, (Array<Integer, 1, 4>{1, 2, 3, 4}));
  EXPECT_EQ(sala.t.PosicionSonido, 3);
  EXPECT_EQ(sala.t.SonidosDados, 1);
}

TEST(SonidoDescartes, PlacesEverySeatAtItsSideOfTheTable) {
  const Sucesos sitios{"sound: Son_DaUnaCarta.wav x1 balance 0 volume -320",
                       "sound: Son_DaUnaCarta.wav x1 balance 300 volume -500",
                       "sound: Son_DaUnaCarta.wav x1 balance 0 volume -700",
                       "sound: Son_DaUnaCarta.wav x1 balance -300 volume -500"};
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    Sala sala;
    SonidoDescartes(sala.g, {1, 1, 1, 1}, asiento);
    EXPECT_EQ(sala.port.TakeEvents(), Sucesos{sitios.at(static_cast<std::size_t>(asiento) - 1)});
  }
}

TEST(SonidoDescartes, PlaysTheSeatsInTurnFromTheMano) {
  Sala sala;
  SonidoDescartes(sala.g, {1, 2, 3, 4}, 3);
  sala.port.TakeEvents();
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_DaUnaCarta.wav x4 balance -300 volume -500"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_DaUnaCarta.wav x1 balance 0 volume -320"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_DaUnaCarta.wav x2 balance 300 volume -500"}));
  EXPECT_EQ(sala.t.SonidosDados, 4);
  EXPECT_EQ(sala.Termina(), (Sucesos{"stop"}));
  EXPECT_EQ(sala.t.Mp1, (MediaPlayerSettings{.Veces = 1, .Balance = 0, .Volumen = -320}));
  EXPECT_EQ(sala.t.SonidoActual, 0);
}

TEST(SonidoDescartes, SkipsSeatsThatChangedNoCards) {
  Sala sala;
  SonidoDescartes(sala.g, {4, 0, 0, 2}, 1);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_DaUnaCarta.wav x4 balance 0 volume -320"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_DaUnaCarta.wav x2 balance -300 volume -500"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"stop"}));
}

TEST(SonidoDescartes, StaysSilentAfterTheHumanWhenNobodyElseChanges) {
  Sala sala;
  SonidoDescartes(sala.g, {3, 0, 0, 0}, 1);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_DaUnaCarta.wav x3 balance 0 volume -320"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"stop"}));
}

TEST(SonidoDescartes, SoundsTheHumanAfterASilentMano) {
  Sala sala;
  SonidoDescartes(sala.g, {2, 0, 0, 0}, 2);
  sala.port.TakeEvents();
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_DaUnaCarta.wav x2 balance 0 volume -320"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"stop"}));
}

TEST(SonidoDescartes, Kept_OpensTheFileZeroTimesForAManoThatChangedNothing) {
  Sala sala;
  SonidoDescartes(sala.g, {0, 0, 0, 0}, 2);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_DaUnaCarta.wav x0 balance 300 volume -500"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"stop"}));
}

TEST(SonidoDescartes, Kept_RunsTheStepAgainWhenTheSequenceIsOver) {
  Sala sala;
  SonidoDescartes(sala.g, {1, 1, 1, 1}, 1);
  sala.port.TakeEvents();
  for (int i = 0; i < 4; ++i) sala.Termina();
  EXPECT_EQ(sala.t.SonidosDados, 5);
  EXPECT_EQ(sala.Termina(), (Sucesos{"stop"}));
  EXPECT_EQ(sala.t.SonidosDados, 6);
  EXPECT_EQ(sala.t.PosicionSonido, 2);
}

TEST(SonidoDescartes, RestartsInTheMiddleOfASequence) {
  Sala sala;
  SonidoDescartes(sala.g, {1, 1, 1, 1}, 1);
  sala.Termina();
  SonidoDescartes(sala.g, {4, 3, 2, 1}, 4);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_DaUnaCarta.wav x1 balance -300 volume -500"}));
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_DaUnaCarta.wav x4 balance 0 volume -320"}));
}

TEST(SonidoAplauso, OpensTheFileAndNothingElse) {
  Sala sala;
  sala.t.SonidoActual = SonidoReparto;
  sala.t.Mp1 = {.Veces = 3, .Balance = -300, .Volumen = -500};
  const Table antes = sala.t;
  SonidoAplauso(sala.g);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"sound: Son_aplauso.wav x3 balance -300 volume -500"}));
  EXPECT_EQ(sala.t, antes);
}

TEST(Mp1_FinReproduccion, DealsAfterTheShuffle) {
  Sala sala;
  SonidoCartas(sala.g, SonidoBarajado);
  sala.port.TakeEvents();
  EXPECT_EQ(sala.Termina(), (Sucesos{"sound: Son_ReparteCartas.mp3 x1 balance 0 volume 0"}));
  EXPECT_EQ(sala.t.SonidoActual, -2);
}

TEST(Mp1_FinReproduccion, DoesNothingAfterTheDeal) {
  Sala sala;
  SonidoCartas(sala.g, SonidoReparto);
  sala.port.TakeEvents();
  const Table antes = sala.t;
  EXPECT_EQ(sala.Termina(), Sucesos{});
  EXPECT_EQ(sala.t, antes);
}

TEST(Mp1_FinReproduccion, TakesBothIdleStates) {
  Sala sala;
  SonidoCartas(sala.g, SonidoBarajado);
  sala.port.TakeEvents();
  EXPECT_EQ(sala.Termina(6), (Sucesos{"sound: Son_ReparteCartas.mp3 x1 balance 0 volume 0"}));
}

TEST(Mp1_FinReproduccion, LeavesEveryOtherStateAlone) {
  for (const int estado : {-1, 1, 2, 3, 4, 5, 7}) {
    Sala sala;
    SonidoCartas(sala.g, SonidoBarajado);
    sala.port.TakeEvents();
    EXPECT_EQ(sala.Termina(estado), Sucesos{}) << estado;
    EXPECT_EQ(sala.t.SonidoActual, SonidoBarajado) << estado;
  }
}

}  // namespace
}  // namespace tasca::test
