// What a session keeps, and how another one goes on with it.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>

#include "base/errors.h"
#include "base/keys.h"
#include "match/session.h"
#include "tests/support/state_player.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

// A player who can leave in the middle of a step, or let a sound end there.
class JugadorQueSeVa : public StatePlayer {
 public:
  std::function<void()> AlPreguntar = [] {};

  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override {
    AlPreguntar();
    return StatePlayer::YesNoBox(t, sobre, pregunta);
  }
};

const Form1State& VentanaDe(const Session& sesion) { return sesion.Mesa(); }

struct PartidaDeSesion : testing::Test {
  PartidaDeSesion() {
    fs::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
             Carpeta.Path() / "Jugadores.dat");
    Ajustes("35");
    Jugador.Hora = {.Hora = 9, .Minuto = 10, .Segundo = 11};
  }

  void Ajustes(const std::string& piedras) const {
    Carpeta.Write("mus.ini", piedras + "\r\n1\r\n1\r\nAna>\r\n");
  }
  std::unique_ptr<Session> NuevaSesion() {
    return std::make_unique<Session>(Carpeta.Path(), Jugador, Estado.Path());
  }
  Situacion Pulsar(Session& sesion, int tecla = TeclaEnter) {
    Jugador.NewStep();
    Integer codigo = tecla;
    return sesion.Tecla(codigo, 0);
  }
  // A session at the table after this number of steps.
  std::unique_ptr<Session> EnLaMesa(int pasos = 0) {
    auto sesion = NuevaSesion();
    EXPECT_EQ(sesion->Retomar(), Situacion::EnInicio);
    sesion->AbrirInicio();
    EXPECT_EQ(sesion->Aceptar(), Situacion::EnLaMesa);
    for (int i = 0; i < pasos; ++i) EXPECT_EQ(Pulsar(*sesion), Situacion::EnLaMesa);
    return sesion;
  }
  // Presses Enter until the match is over.
  Situacion Acabar(Session& sesion) {
    Situacion situacion = Situacion::EnLaMesa;
    for (int i = 0; i < 1000 && situacion == Situacion::EnLaMesa; ++i) situacion = Pulsar(sesion);
    return situacion;
  }
  // The match that a new session goes on with.
  Form1State Retomada() {
    const auto sesion = NuevaSesion();
    EXPECT_EQ(sesion->Retomar(), Situacion::EnLaMesa);
    return VentanaDe(*sesion);
  }
  bool HayPartida() const { return fs::exists(Estado.Path() / "partida"); }

  TempFolder Carpeta;
  TempFolder Estado;
  JugadorQueSeVa Jugador;
};

TEST_F(PartidaDeSesion, IsKeptAfterEveryStep) {
  for (int pasos = 0; pasos < 12; ++pasos) {
    auto sesion = EnLaMesa(pasos);
    const Form1State mesa = VentanaDe(*sesion);
    sesion.reset();
    EXPECT_TRUE(Retomada() == mesa) << pasos;
    fs::remove(Estado.Path() / "partida");
  }
}

TEST_F(PartidaDeSesion, GoesOnToTheSameEnd) {
  Ajustes("5");
  Jugador.OtraPartida = true;
  Jugador.CambiarJugadores = true;
  auto entera = EnLaMesa();
  const Situacion fin = Acabar(*entera);
  ASSERT_EQ(fin, Situacion::OtrosJugadores);
  const Form1State mesa = VentanaDe(*entera);
  entera.reset();
  EnLaMesa(3).reset();
  auto sesion = NuevaSesion();
  ASSERT_EQ(sesion->Retomar(), Situacion::EnLaMesa);
  EXPECT_EQ(Acabar(*sesion), fin);
  EXPECT_TRUE(sesion->Mesa().Text2 == mesa.Text2);
  EXPECT_EQ(sesion->AbrirInicio(), Situacion::EnInicio);
  EXPECT_EQ(sesion->Aceptar(), Situacion::EnLaMesa) << "a match with others";
}

TEST_F(PartidaDeSesion, NeedsNoCharacterFileToGoOn) {
  EnLaMesa(4).reset();
  fs::remove(Carpeta.Path() / "Jugadores.dat");
  const auto sesion = NuevaSesion();
  ASSERT_EQ(sesion->Retomar(), Situacion::EnLaMesa);
  EXPECT_EQ(Pulsar(*sesion), Situacion::EnLaMesa);
}

TEST_F(PartidaDeSesion, IsKeptWhenThePlayerLeaves) {
  auto sesion = EnLaMesa(4);
  const Form1State mesa = VentanaDe(*sesion);
  sesion->Salir();
  sesion.reset();
  EXPECT_TRUE(Retomada() == mesa);
}

TEST_F(PartidaDeSesion, IsKeptAsBeforeAStepThatThePlayerLeaves) {
  auto sesion = EnLaMesa();
  const Form1State mesa = VentanaDe(*sesion);
  Jugador.AlPreguntar = [] { throw LeaveProgram{}; };
  EXPECT_EQ(Pulsar(*sesion), Situacion::Fin);
  Jugador.AlPreguntar = [] {};
  sesion.reset();
  EXPECT_TRUE(Retomada() == mesa);
}

TEST_F(PartidaDeSesion, IsKeptAsBeforeAStepThatFails) {
  auto sesion = EnLaMesa();
  const Form1State mesa = VentanaDe(*sesion);
  Jugador.AlPreguntar = [] { throw RunTimeError{u"Roto."}; };
  EXPECT_EQ(Pulsar(*sesion), Situacion::Fin);
  Jugador.AlPreguntar = [] {};
  sesion.reset();
  EXPECT_TRUE(Retomada() == mesa);
}

// The question stands in the middle of a step, which is not kept.
TEST_F(PartidaDeSesion, IsNotKeptWhenASoundEndsInTheMiddleOfAStep) {
  auto sesion = EnLaMesa();
  std::string antes;
  Jugador.AlPreguntar = [&] {
    antes = Estado.Read("partida");
    const Form1State mesa = VentanaDe(*sesion);
    sesion->FinDeSonido(0);
    EXPECT_FALSE(sesion->Mesa() == mesa);
    throw LeaveProgram{};
  };
  EXPECT_EQ(Pulsar(*sesion), Situacion::Fin);
  sesion.reset();
  EXPECT_TRUE(Estado.Read("partida") == antes);
}

TEST_F(PartidaDeSesion, IsForgottenWhenItIsPlayedOut) {
  Ajustes("5");
  auto sesion = EnLaMesa(1);
  EXPECT_TRUE(HayPartida());
  EXPECT_EQ(Acabar(*sesion), Situacion::Fin);
  sesion.reset();
  EXPECT_FALSE(HayPartida());
}

TEST_F(PartidaDeSesion, IsForgottenWhenOtherPlayersAreWanted) {
  Ajustes("5");
  Jugador.OtraPartida = true;
  Jugador.CambiarJugadores = true;
  auto sesion = EnLaMesa();
  EXPECT_EQ(Acabar(*sesion), Situacion::OtrosJugadores);
  sesion->AbrirInicio();
  sesion.reset();
  EXPECT_FALSE(HayPartida());
}

TEST_F(PartidaDeSesion, IsForgottenIfThePlayerDoesNotGoOn) {
  EnLaMesa(4).reset();
  Jugador.SeguirPartida = false;
  auto sesion = NuevaSesion();
  EXPECT_EQ(sesion->Retomar(), Situacion::EnInicio);
  sesion.reset();
  EXPECT_FALSE(HayPartida());
}

TEST_F(PartidaDeSesion, StaysIfThePlayerLeavesWithoutAnAnswer) {
  EnLaMesa(4).reset();
  Jugador.AlPreguntar = [] { throw LeaveProgram{}; };
  EXPECT_EQ(NuevaSesion()->Retomar(), Situacion::Fin);
  EXPECT_TRUE(HayPartida());
}

TEST_F(PartidaDeSesion, IsNotKeptByASessionWithoutAFolderOfStates) {
  Session sesion{Carpeta.Path(), Jugador};
  EXPECT_EQ(sesion.Retomar(), Situacion::EnInicio);
  sesion.AbrirInicio();
  EXPECT_EQ(sesion.Aceptar(), Situacion::EnLaMesa);
  EXPECT_EQ(Pulsar(sesion), Situacion::EnLaMesa);
  EXPECT_EQ(Estado.Names(), std::vector<std::string>{});
}

}  // namespace
}  // namespace tasca::test
