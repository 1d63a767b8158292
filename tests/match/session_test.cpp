// The session: a game from the start-up dialog to its end.
#include "match/session.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/errors.h"
#include "base/keys.h"
#include "characters/record_lines.h"
#include "table/dialog.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

// Five characters, of which three can be chosen: la boticaria, el Cojo and Dora.
constexpr auto CincoPersonajes =
    "Datos>\r\nDefault indirecto\r\n000\r\n\r\nQMus>\r\nque quiere mus\r\n"
    "Datos>\r\nDefault directo\r\n000\r\n\r\nQMus>\r\nMus\r\nNMus>\r\nNo hay mus\r\n"
    "Datos>\r\nLa boticaria\r\n040\r\nUna historia\r\n"
    "Datos>\r\nel Cojo\r\n051\r\n\r\n"
    "Datos>\r\nDora\r\n099\r\n\r\n";

// A character file with a phrase for every kind, so that a whole match can be played.
std::string PersonajesQueHablan() {
  std::string bytes;
  for (const char* nombre : {"Default indirecto", "Default directo", "Berta", "el Cojo", "Dora"}) {
    bytes += std::string{"Datos>\r\n"} + nombre + "\r\n050\r\n\r\n";
    for (const std::u16string_view etiqueta : EtiquetasMensaje) {
      bytes += Utf8(etiqueta) + ">\r\n" + Utf8(etiqueta) + "\r\n";
    }
  }
  return bytes;
}

// A session in a temporary folder, with a scripted port.
struct SesionDePrueba {
  TempFolder carpeta;
  ScriptedPort port;
  std::unique_ptr<Session> sesion;

  SesionDePrueba() {
    carpeta.Write("Jugadores.dat", CincoPersonajes);
    sesion = std::make_unique<Session>(carpeta.Path(), port);
  }

  // Opens the dialog and accepts its random choice.
  Situacion Sentarse() const {
    sesion->AbrirInicio();
    return sesion->Aceptar();
  }
  Situacion Pulsar(int tecla) const {
    Integer codigo = tecla;
    return sesion->Tecla(codigo, 0);
  }
};

// Passes, takes the default answers, and answers the question about another match.
class Jugador : public Port {
 public:
  bool OtraPartida = false;

  void MsgBox(const Table& /*t*/, std::u16string_view /*texto*/) override {}
  bool YesNoBox(const Table& /*t*/, Pregunta sobre, const YesNoQuestion& pregunta) override {
    if (sobre == Pregunta::OtraPartida) return OtraPartida;
    return sobre != Pregunta::Mus && pregunta.PorDefecto;
  }
  std::u16string InputBox(const Table& /*t*/, Pregunta /*sobre*/,
                          const InputQuestion& pregunta) override {
    return std::u16string{pregunta.PorDefecto};
  }
  void ShowDialog(const Table& /*t*/, Dialog& dialogo) override { Command1_Click(dialogo, 0); }
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return {}; }
};

// Presses Enter until the match is over, and returns the situation.
Situacion PlayAMatch(Session& sesion) {
  sesion.AbrirInicio();
  Situacion situacion = sesion.Aceptar();
  for (int teclas = 0; situacion == Situacion::EnLaMesa && teclas < 10'000; ++teclas) {
    Integer enter = TeclaEnter;
    situacion = sesion.Tecla(enter, 0);
  }
  return situacion;
}

TEST(Session, ReportsOtrosJugadoresAfterAMatchWhenThePlayerWantsThem) {
  TempFolder carpeta;
  carpeta.Write("Jugadores.dat", PersonajesQueHablan());
  carpeta.Write("mus.ini", "1\r\n1\r\n1\r\nAna>\r\n");
  Jugador jugador;
  jugador.OtraPartida = true;
  const auto sesion = std::make_unique<Session>(carpeta.Path(), jugador);
  EXPECT_EQ(PlayAMatch(*sesion), Situacion::OtrosJugadores);
  EXPECT_EQ(sesion->Ahora(), Situacion::OtrosJugadores);
  EXPECT_FALSE(sesion->HaAcabado());
  EXPECT_EQ(PlayAMatch(*sesion), Situacion::OtrosJugadores) << "the second match";
}

TEST(Session, EndsAfterAMatchWhenThePlayerWantsNoOther) {
  TempFolder carpeta;
  carpeta.Write("Jugadores.dat", PersonajesQueHablan());
  carpeta.Write("mus.ini", "1\r\n1\r\n1\r\nAna>\r\n");
  Jugador jugador;
  const auto sesion = std::make_unique<Session>(carpeta.Path(), jugador);
  EXPECT_EQ(PlayAMatch(*sesion), Situacion::Fin);
  EXPECT_EQ(sesion->Final().Estado, 0);
  EXPECT_TRUE(sesion->Final().PartidaAcabada);
  EXPECT_EQ(Utf8(sesion->Mesa().Text2), "Hasta pronto");
}

TEST(Session, OpensTheStartUpDialogWithItsLists) {
  const SesionDePrueba prueba;
  EXPECT_EQ(prueba.sesion->AbrirInicio(), Situacion::EnInicio);
  EXPECT_EQ(prueba.sesion->Inicio().Combo1.List.size(), 4U);
  EXPECT_FALSE(prueba.sesion->HaAcabado());
}

TEST(Session, TakesTheEventsOfTheDialog) {
  const SesionDePrueba prueba;
  prueba.sesion->AbrirInicio();
  DlgInicio& d = prueba.sesion->Inicio();
  EXPECT_EQ(prueba.sesion->EnInicio([&d] { Combo1_Click(d, 2); }), Situacion::EnInicio);
  EXPECT_EQ(d.Combo1.ListIndex, 2);
}

TEST(Session, StaysInTheDialogAfterAnInvalidChoice) {
  SesionDePrueba prueba;
  prueba.sesion->AbrirInicio();
  DlgInicio& d = prueba.sesion->Inicio();
  prueba.sesion->EnInicio([&d] {
    Combo2_Click(d, 1);
    Combo3_Click(d, 1);
  });
  EXPECT_EQ(prueba.sesion->Aceptar(), Situacion::EnInicio);
  EXPECT_EQ(prueba.port.TakeEvents().size(), 1U);
  EXPECT_EQ(Utf8(prueba.sesion->Mesa().Text2), "");
}

TEST(Session, StartsTheMatchOnceTheChoiceIsAccepted) {
  const SesionDePrueba prueba;
  EXPECT_EQ(prueba.Sentarse(), Situacion::EnLaMesa);
  const Table& t = prueba.sesion->Mesa();
  EXPECT_TRUE(t.Text2.ends_with(u"Pulse enter para empezar"));
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_GT(prueba.sesion->Generador().Draws(), 20000U) << "the draws of a shuffle";
}

TEST(Session, PassesKeysToTheRulesAndTellsWhichAreHandled) {
  const SesionDePrueba prueba;
  prueba.Sentarse();
  Integer otra = 65;
  EXPECT_EQ(prueba.sesion->Tecla(otra, 0), Situacion::EnLaMesa);
  EXPECT_EQ(otra, 65);
  Integer q = TeclaQ;
  EXPECT_EQ(prueba.sesion->Tecla(q, 0), Situacion::EnLaMesa);
  EXPECT_EQ(q, 0);
  EXPECT_TRUE(prueba.sesion->Mesa().Text2.ends_with(u"pulse Enter para empezar"));
}

TEST(Session, PlaysTheNextSoundAfterTheEndOfOne) {
  SesionDePrueba prueba;
  prueba.Sentarse();
  prueba.port.TakeEvents();
  EXPECT_EQ(prueba.sesion->FinDeSonido(0), Situacion::EnLaMesa);
  EXPECT_EQ(prueba.port.TakeEvents(),
            (Sucesos{"sound: Son_ReparteCartas.mp3 x1 balance 0 volume 0"}));
}

TEST(Session, EndsWithStatus0WhenThePlayerLeaves) {
  const SesionDePrueba prueba;
  prueba.Sentarse();
  EXPECT_EQ(prueba.sesion->Salir(), Situacion::Fin);
  EXPECT_TRUE(prueba.sesion->HaAcabado());
  EXPECT_EQ(prueba.sesion->Final().Estado, 0);
  EXPECT_FALSE(prueba.sesion->Final().PartidaAcabada);
  EXPECT_EQ(Utf8(prueba.sesion->Final().Mensaje), "");
}

TEST(Session, EndsWithTheMessageOfARunTimeError) {
  const SesionDePrueba prueba;
  prueba.carpeta.Write("mus.ini", "35\r\n");
  EXPECT_EQ(prueba.sesion->AbrirInicio(), Situacion::Fin);
  EXPECT_EQ(prueba.sesion->Final().Estado, 1);
  EXPECT_FALSE(prueba.sesion->Final().YaMostrado);
  EXPECT_TRUE(prueba.sesion->Final().Mensaje.ends_with(u"El programa va a terminar su ejecución."));
}

TEST(Session, TellsThatTheMessageHasAlreadyBeenShown) {
  SesionDePrueba prueba;
  std::filesystem::remove(prueba.carpeta.Path() / "Jugadores.dat");
  EXPECT_EQ(prueba.sesion->AbrirInicio(), Situacion::Fin);
  EXPECT_TRUE(prueba.sesion->Final().YaMostrado);
  EXPECT_EQ(prueba.port.TakeEvents(), (Sucesos{"box: " + Utf8(prueba.sesion->Final().Mensaje)}));
}

TEST(Session, EndsWithARunTimeErrorOfTheFace) {
  const SesionDePrueba prueba;
  prueba.Sentarse();
  EXPECT_EQ(prueba.sesion->Atender([] {}), Situacion::EnLaMesa);
  EXPECT_EQ(prueba.sesion->Atender([] { throw RunTimeError{u"Roto."}; }), Situacion::Fin);
  EXPECT_EQ(prueba.sesion->Final().Estado, 1);
}

TEST(Session, StaysEnded) {
  SesionDePrueba prueba;
  prueba.Sentarse();
  prueba.sesion->Salir();
  prueba.port.TakeEvents();
  const auto antes = std::make_unique<Table>(prueba.sesion->Mesa());
  EXPECT_EQ(prueba.Pulsar(TeclaQ), Situacion::Fin);
  EXPECT_EQ(prueba.sesion->AbrirInicio(), Situacion::Fin);
  EXPECT_EQ(prueba.sesion->FinDeSonido(0), Situacion::Fin);
  EXPECT_EQ(prueba.sesion->Atender([] { throw RunTimeError{u"Roto."}; }), Situacion::Fin);
  EXPECT_EQ(prueba.sesion->Final().Estado, 0);
  EXPECT_TRUE(prueba.sesion->Mesa() == *antes);
  EXPECT_EQ(prueba.port.TakeEvents(), Sucesos{});
}

TEST(Session, IsEndedByAStepWithinAStep) {
  const SesionDePrueba prueba;
  prueba.Sentarse();
  EXPECT_EQ(prueba.sesion->Atender([&prueba] { prueba.sesion->Salir(); }), Situacion::Fin);
}

TEST(Session, ClearsTheTableWhenTheDialogIsReopened) {
  SesionDePrueba prueba;
  prueba.Sentarse();
  prueba.port.TakeEvents();
  EXPECT_EQ(prueba.sesion->AbrirInicio(), Situacion::EnInicio);
  EXPECT_EQ(prueba.port.TakeEvents(), Sucesos{"stop"});
  EXPECT_TRUE(static_cast<const Form1State&>(prueba.sesion->Mesa()) == Form1State{});
  EXPECT_EQ(prueba.sesion->Inicio().Combo1.ListIndex, 0);
}

TEST(Session, RunsAStepAgainFromItsCopyAsTheFirstTime) {
  SesionDePrueba prueba;
  prueba.Sentarse();
  const auto antes = std::make_unique<Instante>();
  prueba.sesion->Copiar(*antes);
  prueba.port.TakeEvents();
  const std::u16string relato = prueba.sesion->Relato().Texto();
  prueba.Pulsar(TeclaQ);
  const auto despues = std::make_unique<Table>(prueba.sesion->Mesa());
  const Sucesos sucesos = prueba.port.TakeEvents();
  const std::u16string relatoDespues = prueba.sesion->Relato().Texto();
  EXPECT_NE(relatoDespues, relato);
  prueba.sesion->Volver(*antes);
  EXPECT_TRUE(prueba.sesion->Mesa() == antes->Mesa);
  EXPECT_EQ(prueba.sesion->Relato().Texto(), relato);
  prueba.Pulsar(TeclaQ);
  EXPECT_TRUE(prueba.sesion->Mesa() == *despues);
  EXPECT_EQ(prueba.port.TakeEvents(), sucesos);
  EXPECT_EQ(prueba.sesion->Relato().Texto(), relatoDespues);
}

TEST(Session, ComesBackFromItsEndToACopy) {
  SesionDePrueba prueba;
  prueba.Sentarse();
  const auto antes = std::make_unique<Instante>();
  prueba.sesion->Copiar(*antes);
  prueba.sesion->Salir();
  EXPECT_EQ(prueba.sesion->Ahora(), Situacion::Fin);
  prueba.sesion->Volver(*antes);
  EXPECT_EQ(prueba.sesion->Ahora(), Situacion::EnLaMesa);
  EXPECT_FALSE(prueba.sesion->HaAcabado());
}

}  // namespace
}  // namespace tasca::test
