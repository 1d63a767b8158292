// The chronicle of a match: its texts, its limit, its beginning and its end.
#include "match/cronica.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/text.h"
#include "cards/hand_text.h"
#include "lances/lance.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

constexpr auto Tanteo = "Tanteo: Piedras: 0 / 0;    juegos: 0 / 0;    Vacas: 0 / 0\n\n";

struct CronicaDePrueba : testing::Test {
  CronicaDePrueba() { Relato.Empezar(); }

  void Dice(std::u16string_view texto) {
    Mesa->Text2 = texto;
    Relato.Anotar(*Mesa);
  }
  // With LF for CR LF.
  std::string Texto() const { return Utf8(ReplaceAll(Relato.Texto(), CrLf, u"\n")); }

  std::unique_ptr<Table> Mesa = std::make_unique<Table>(MesaDePrueba());
  Cronica Relato;
};

TEST_F(CronicaDePrueba, IsEmptyAtFirst) { EXPECT_EQ(Texto(), ""); }

TEST_F(CronicaDePrueba, KeepsWhatTheNextStepErases) {
  Relato.EmpezarMano();
  Dice(u"Sus cartas son\r\nReyes\r\nPulse enter para empezar");
  Dice(u"Ana: Mus\r\n");
  Dice(u"Ana: Mus\r\nBerta: No hay mus\r\nBerta es mano\rPulse enter para continuar");
  Dice(u"Grande \r\nAna: Envido\r\nBerta: Quiero\r\n");
  Mesa->Piedras[1] = 7;
  Relato.TerminarMano(*Mesa);
  EXPECT_EQ(Texto(),
            "— Mano 1 —\n\nSus cartas son\nReyes\n\nAna: Mus\nBerta: No hay mus\nBerta es mano\n\n"
            "Grande \nAna: Envido\nBerta: Quiero\n\n"
            "Tanteo: Piedras: 7 / 0;    juegos: 0 / 0;    Vacas: 0 / 0\n\n");
}

TEST_F(CronicaDePrueba, NotesEachLineOnceWhenPromptsAreRemoved) {
  Relato.EmpezarMano();
  Dice(u"Ana: Sí\r\nPulse enter para continuar\r\nEl juego\r\n");
  Dice(u"Ana: Sí\r\n\r\nEl juego\r\nBerta: Quiero\r\n");
  EXPECT_EQ(Texto(), "— Mano 1 —\n\nAna: Sí\nEl juego\nBerta: Quiero\n\n");
}

TEST_F(CronicaDePrueba, OmitsPromptsOnly) {
  Relato.EmpezarMano();
  Dice(
      u"Pulse enter para contar\r\npulse Enter para empezar\r\n"
      u"Pulse enter para empezar una nueva mano\r\nAna: Pulse enter para contar");
  EXPECT_EQ(Texto(), "— Mano 1 —\n\nAna: Pulse enter para contar\n\n");
}

TEST_F(CronicaDePrueba, NotesTheCardsBeforeTheCountOnce) {
  Relato.EmpezarMano();
  Dice(u"Punto\r\n");
  MostrarManos(*Mesa, TodosLosAsientos);
  Mesa->Fase = Fase::Cuenta;
  Dice(u"la pareja 1 gana la grande\r\n");
  Mesa->Fase = Fase::EmpezarMano;
  Relato.TerminarMano(*Mesa);
  const std::string cartas = Utf8(ReplaceAll(Mesa->Text1, CrLf, u"\n"));
  EXPECT_EQ(Texto(),
            "— Mano 1 —\n\nPunto\n\n" + cartas + "\nla pareja 1 gana la grande\n\n" + Tanteo);
}

TEST_F(CronicaDePrueba, NotesTheCardsAfterAnAcceptedOrdago) {
  Relato.EmpezarMano();
  Mesa->Fase = Fase::RespuestaPares;
  Dice(u"Berta: Quiero\r\n");
  Mesa->Apuesta[NumeroLance::Pares] = EnviteOrdago;
  MostrarManos(*Mesa, TodosLosAsientos);
  Relato.AnotarAviso(*Mesa, u"Gana la pareja 1");
  const std::string cartas = Utf8(ReplaceAll(Mesa->Text1, CrLf, u"\n"));
  EXPECT_EQ(Texto(), "— Mano 1 —\n\nBerta: Quiero\n\n" + cartas + "\n[Gana la pareja 1]\n\n");
}

TEST_F(CronicaDePrueba, DoesNotNoteCardsThatThePlayerLaysOpen) {
  Relato.EmpezarMano();
  Mesa->Fase = Fase::Grande;
  Mesa->Apuesta[NumeroLance::Punto] = EnviteOrdago;  // of an earlier hand
  MostrarManos(*Mesa, TodosLosAsientos);
  Dice(u"Grande \r\n");
  EXPECT_EQ(Texto(), "— Mano 1 —\n\nGrande \n\n");
}

TEST_F(CronicaDePrueba, NotesMessagesAfterTheText) {
  Relato.EmpezarMano();
  Mesa->Text2 = u"se saca  las 5";
  Relato.AnotarAviso(*Mesa, u"La pareja 1 gana este juego");
  EXPECT_EQ(Texto(), "— Mano 1 —\n\nse saca  las 5\n[La pareja 1 gana este juego]\n\n");
}

TEST_F(CronicaDePrueba, TellsAHandThatIsNotCounted) {
  Relato.EmpezarMano();
  Relato.EmpezarMano();
  Relato.TerminarMano(*Mesa);
  Relato.TerminarMano(*Mesa);
  Relato.EmpezarMano();
  EXPECT_EQ(Texto(),
            std::string{"— Mano 1 —\n\nLa mano se abandona sin contarla.\n\n— Mano 2 —\n\n"} +
                Tanteo + "— Mano 3 —\n\n");
}

TEST_F(CronicaDePrueba, ForgetsTheMatchBefore) {
  Relato.EmpezarMano();
  Dice(u"Grande \r\n");
  Relato.Empezar(u"Otra partida");
  EXPECT_EQ(Texto(), "Otra partida\n\n");
  Relato.EmpezarMano();
  EXPECT_EQ(Texto(), "Otra partida\n\n— Mano 1 —\n\n");
}

TEST_F(CronicaDePrueba, StaysAsItIsWhenTheMatchIsOver) {
  Relato.EmpezarMano();
  Dice(u"Grande \r\n");
  Relato.Cerrar();
  Dice(u"Pequeña \r\n");
  Relato.AnotarAviso(*Mesa, u"Ese jugador ya está elegido");
  Relato.EmpezarMano();
  Relato.TerminarMano(*Mesa);
  EXPECT_EQ(Texto(), "— Mano 1 —\n\nGrande \n\n");
}

// Hands of 3,000 characters, which is more than a hand has on average.
TEST_F(CronicaDePrueba, RemembersAThousandHandsInLessThanTenMegabytes) {
  for (int mano = 0; mano < 1000; ++mano) {
    Relato.EmpezarMano();
    for (int paso = 0; paso < 10; ++paso) {
      Dice(Join(ToText(mano), u" ", ToText(paso), std::u16string(290, u'x'), CrLf));
    }
    Relato.TerminarMano(*Mesa);
  }
  EXPECT_EQ(Relato.Olvidadas(), 0);
  EXPECT_LT(Relato.Bytes(), 10'000'000U);
  EXPECT_TRUE(Relato.Texto().starts_with(u"— Mano 1 —"));
}

TEST_F(CronicaDePrueba, ForgetsTheOldestHandsBeyondItsLimit) {
  const std::u16string largo(Cronica::LetrasMaximas / 4, u'x');
  for (int mano = 1; mano <= 4; ++mano) {
    Relato.EmpezarMano();
    Dice(Join(ToText(mano), largo, CrLf));
  }
  EXPECT_EQ(Relato.Olvidadas(), 1);
  const std::u16string texto = Relato.Texto();
  EXPECT_TRUE(texto.starts_with(u"Falta la primera mano.\r\n\r\n— Mano 2 —\r\n"));
  EXPECT_TRUE(Contains(texto, u"— Mano 4 —"));
  Relato.EmpezarMano();
  Dice(Join(u"5", largo, CrLf));
  EXPECT_TRUE(Relato.Texto().starts_with(u"Faltan las 2 primeras manos.\r\n"));
  EXPECT_LT(Relato.Bytes(), 2 * sizeof(char16_t) * Cronica::LetrasMaximas);
}

TEST_F(CronicaDePrueba, GoesOnFromWhatIsWritten) {
  Relato.Empezar(u"Otra partida.");
  for (int mano = 1; mano <= 2; ++mano) {
    Relato.EmpezarMano();
    Dice(u"Ana: Mus\r\n");
    Relato.TerminarMano(*Mesa);
  }
  Cronica otra;
  otra.Reanudar(Relato.Escrito(), *Mesa);
  EXPECT_EQ(otra.Texto(), Relato.Texto());
  EXPECT_EQ(otra.Escrito(), Relato.Escrito());
  EXPECT_EQ(Cronica{}.Escrito(), u"");
}

}  // namespace
}  // namespace tasca::test
