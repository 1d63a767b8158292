// Each line of the transcript is said once.
#include "ui/spoken/recital.h"

#include <gtest/gtest.h>

#include "tests/ui_mesa/scenes.h"

namespace tasca::test {
namespace {

using Lines = std::vector<std::u16string>;

TEST(Recital, SaysOnlyWhatIsNew) {
  Recital recital;
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nDora: paso\r\n"), (Lines{u"La grande", u"Dora: paso"}));
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nDora: paso\r\n"), Lines{});
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nDora: paso\r\nAna: envido\r\n"), Lines{u"Ana: envido"});
}

TEST(Recital, SaysEverythingAfterAReplacement) {
  Recital recital;
  recital.Nuevos(u"La grande\r\nDora: paso\r\n");
  EXPECT_EQ(recital.Nuevos(u"La pequeña\r\n"), Lines{u"La pequeña"});
}

TEST(Recital, KnowsALineWhosePromptWasTakenAway) {
  Recital recital;
  recital.Nuevos(u"La grande\r\nAna: envido\r\nPulse enter para continuar");
  EXPECT_EQ(recital.Nuevos(u"La grande\r\nAna: envido\r\nDora: quiero\r\n"),
            Lines{u"Dora: quiero"});
}

TEST(Recital, RepeatsAllLinesOfTheLastStep) {
  Recital recital;
  recital.Nuevos(u"Sus cartas son\r\n");
  recital.EmpiezaPaso();
  EXPECT_EQ(recital.Ultimos(), Lines{u"Sus cartas son"}) << "until there is something new";
  recital.Nuevos(u"Dora: mus\r\n");
  recital.Nuevos(u"Dora: mus\r\nBerta: no\r\n");
  EXPECT_EQ(recital.Ultimos(), (Lines{u"Dora: mus", u"Berta: no"}));
}

// The score of both parejas: juegos and vacas, ours first.
Escena ConTanteo(int nuestros, int suyos, int vacasNuestras = 0, int vacasSuyas = 0) {
  Escena escena = EscenaInicial();
  escena.Toca = Turno::Enter;
  escena.Tanteo[1].Juegos = nuestros;
  escena.Tanteo[0].Juegos = suyos;
  escena.Tanteo[1].Vacas = vacasNuestras;
  escena.Tanteo[0].Vacas = vacasSuyas;
  return escena;
}

TEST(Recital, TellsWhoHasWonAJuego) {
  Recital recital;
  EXPECT_EQ(recital.Nuevos(u"Hola", ConTanteo(1, 0)), Lines{u"Hola"}) << "of a kept match";
  recital.EmpiezaPaso();
  const Lines dichas{u"Juego para su pareja. Juegos: 2 a 0", u"Pulse enter"};
  EXPECT_EQ(recital.Nuevos(u"Pulse enter", ConTanteo(2, 0)), dichas);
  EXPECT_EQ(recital.Ultimos(), dichas);
  EXPECT_EQ(recital.Nuevos(u"Pulse enter", ConTanteo(2, 0)), Lines{});
  EXPECT_EQ(recital.Nuevos(u"Pulse enter", ConTanteo(2, 1)),
            Lines{u"Juego para la pareja contraria. Juegos: 2 a 1"});
}

TEST(Recital, TellsWhoHasWonAVacaAndNotItsJuego) {
  Recital recital;
  recital.Nuevos(u"", ConTanteo(0, 1));
  EXPECT_EQ(recital.Nuevos(u"", ConTanteo(0, 0, 0, 1)),
            Lines{u"Vaca para la pareja contraria. Vacas: 0 a 1"});
  EXPECT_EQ(recital.Nuevos(u"", ConTanteo(0, 0)), Lines{}) << "a new match";
}

TEST(Recital, TellsTheJuegoOnceTheBoxesAreClosed) {
  Recital recital;
  recital.Nuevos(u"", ConTanteo(0, 0));
  Escena conCaja = ConTanteo(0, 1);
  conCaja.Toca = Turno::Nadie;
  EXPECT_EQ(recital.Nuevos(u"", conCaja), Lines{});
  EXPECT_EQ(recital.Nuevos(u"", ConTanteo(0, 1)),
            Lines{u"Juego para la pareja contraria. Juegos: 0 a 1"});
}

TEST(Recital, RepeatsNothingBeforeTheFirstLine) { EXPECT_EQ(Recital{}.Ultimos(), Lines{}); }

}  // namespace
}  // namespace tasca::test
