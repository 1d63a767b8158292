// The chronicler passes everything on and notes what is said before each question.
#include "match/cronista.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/text.h"
#include "table/dialog.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

struct CronistaDePrueba : testing::Test {
  CronistaDePrueba() {
    Relato.Empezar();
    Relato.EmpezarMano();
  }
  bool Cuenta(std::u16string_view que) const { return Contains(Relato.Texto(), que); }

  std::unique_ptr<Table> Mesa = std::make_unique<Table>(MesaDePrueba());
  ScriptedPort Cara;
  Cronica Relato;
  Cronista Puerto{Cara, Relato};
};

TEST_F(CronistaDePrueba, PassesEveryRequestOn) {
  Cara.Yes().Types(u"5").Presses(1);
  Cara.Hora = {.Hora = 9, .Minuto = 10, .Segundo = 11};
  Dialog dialogo;
  Form_Activate(dialogo);
  Puerto.MsgBox(*Mesa, u"hola");
  EXPECT_TRUE(Puerto.YesNoBox(*Mesa, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = u""}));
  EXPECT_EQ(Puerto.InputBox(*Mesa, Pregunta::Cantidad, {}), u"5");
  Puerto.ShowDialog(*Mesa, dialogo);
  Puerto.OpenSound(*Mesa, u"a.wav");
  Puerto.StopSound(*Mesa);
  Puerto.ChangePlayers();
  EXPECT_EQ(Puerto.Now().Minuto, 10);
  EXPECT_TRUE(Cara.TakeChangePlayers()) << "the face has been asked";
  EXPECT_EQ(Cara.TakeEvents().size(), 7U);
}

TEST_F(CronistaDePrueba, NotesTheTableBeforeEachQuestion) {
  Cara.Yes().Types(u"5").Presses(1);
  Mesa->Text2 = u"antes del aviso\r\n";
  Puerto.MsgBox(*Mesa, u"hola");
  Mesa->Text2 = u"antes de la pregunta\r\n";
  Puerto.YesNoBox(*Mesa, Pregunta::Mus, {});
  Mesa->Text2 = u"antes de la cantidad\r\n";
  Puerto.InputBox(*Mesa, Pregunta::Cantidad, {});
  Mesa->Text2 = u"antes del envite\r\n";
  Dialog dialogo;
  Form_Activate(dialogo);
  Puerto.ShowDialog(*Mesa, dialogo);
  EXPECT_TRUE(Cuenta(u"antes del aviso\r\n[hola]\r\n"));
  EXPECT_TRUE(Cuenta(u"antes de la pregunta\r\n"));
  EXPECT_TRUE(Cuenta(u"antes de la cantidad\r\n"));
  EXPECT_TRUE(Cuenta(u"antes del envite\r\n"));
}

TEST_F(CronistaDePrueba, StartsAnotherChronicleWithTheSameCompanions) {
  Cara.Yes().No();
  Puerto.YesNoBox(*Mesa, Pregunta::OtraPartida, {});
  EXPECT_TRUE(Cuenta(u"Mano 1"));
  EXPECT_TRUE(Cuenta(u"Tanteo: Piedras: 0 / 0"));
  Puerto.YesNoBox(*Mesa, Pregunta::CambiarJugadores, {});
  EXPECT_EQ(Relato.Texto(), u"Otra partida con los mismos jugadores.\r\n\r\n");
}

TEST_F(CronistaDePrueba, LeavesTheChronicleWithOtherCompanions) {
  Cara.Yes().Yes();
  Puerto.YesNoBox(*Mesa, Pregunta::OtraPartida, {});
  Puerto.YesNoBox(*Mesa, Pregunta::CambiarJugadores, {});
  Puerto.MsgBox(*Mesa, u"La pareja 1 gana esta vaca.");
  EXPECT_TRUE(Cuenta(u"Mano 1"));
  EXPECT_TRUE(Cuenta(u"[La pareja 1 gana esta vaca.]"));
}

}  // namespace
}  // namespace tasca::test
