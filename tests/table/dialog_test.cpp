// The bidding dialog's buttons.
#include "table/dialog.h"

#include <gtest/gtest.h>

#include <array>

#include "base/errors.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

constexpr std::array CadaModo{ModoDialogo::Apertura, ModoDialogo::Respuesta,
                              ModoDialogo::RespuestaOrdago};

Dialog Abierto(ModoDialogo modo) {
  Dialog dialogo;
  dialogo.Modo = modo;
  Form_Activate(dialogo);
  return dialogo;
}

std::string Rotulo(const Dialog& dialogo, int indice) {
  return Utf8(dialogo.Command1[indice].Caption);
}

bool Ofrecido(const DialogButton& boton) { return boton.Visible && boton.Enabled; }
bool Retirado(const DialogButton& boton) { return !boton.Visible && !boton.Enabled; }

// Buttons 0 and 1 are always offered. The two raises are offered only if `ofrecidas`.
void EsperarSubidas(const Dialog& dialogo, bool ofrecidas) {
  EXPECT_TRUE(Ofrecido(dialogo.Command1[0]) && Ofrecido(dialogo.Command1[1]));
  for (const int indice : {2, 3}) {
    const DialogButton& boton = dialogo.Command1[indice];
    EXPECT_TRUE(ofrecidas ? Ofrecido(boton) : Retirado(boton)) << indice;
  }
}

TEST(Dialog, StartsHiddenWithFourButtonsAndAPlaceholderCaption) {
  const Dialog dialogo;
  EXPECT_EQ(Utf8(dialogo.Caption), "Dialog Caption");
  EXPECT_EQ(Rotulo(dialogo, 0), "Paso");
  EXPECT_EQ(Rotulo(dialogo, 1), "Envido");
  EXPECT_EQ(Rotulo(dialogo, 2), "Envido Más");
  EXPECT_EQ(Rotulo(dialogo, 3), "Órdago");
  EXPECT_FALSE(dialogo.Visible);
}

TEST(Form_Activate, OffersEnvidoAndBothRaisesInTheOpening) {
  const Dialog dialogo = Abierto(ModoDialogo::Apertura);
  EXPECT_TRUE(dialogo.Visible);
  EXPECT_EQ(Rotulo(dialogo, 1), "Envido");
  EsperarSubidas(dialogo, true);
}

TEST(Form_Activate, OffersQuieroAndBothRaisesAgainstStones) {
  const Dialog dialogo = Abierto(ModoDialogo::Respuesta);
  EXPECT_EQ(Rotulo(dialogo, 1), "Quiero");
  EsperarSubidas(dialogo, true);
}

TEST(Form_Activate, OffersOnlyPasoAndQuieroAgainstAnOrdago) {
  const Dialog dialogo = Abierto(ModoDialogo::RespuestaOrdago);
  EXPECT_EQ(Rotulo(dialogo, 1), "Quiero");
  EsperarSubidas(dialogo, false);
}

TEST(Form_Activate, Kept_SaysPasoAlsoWhereItMeansNoQuiero) {
  for (const ModoDialogo modo : CadaModo)
    EXPECT_EQ(Rotulo(Abierto(modo), 0), "Paso") << static_cast<int>(modo);
}

TEST(Form_Activate, LeavesTheCaptionsOfTheRaisesAlone) {
  for (const ModoDialogo modo : CadaModo) {
    EXPECT_EQ(Rotulo(Abierto(modo), 2), "Envido Más") << static_cast<int>(modo);
    EXPECT_EQ(Rotulo(Abierto(modo), 3), "Órdago") << static_cast<int>(modo);
  }
}

TEST(Form_Activate, PutsTheFocusOnPasoEveryTime) {
  for (const ModoDialogo modo : CadaModo) {
    Dialog dialogo;
    dialogo.Modo = modo;
    dialogo.Foco = 3;
    Form_Activate(dialogo);
    EXPECT_EQ(dialogo.Foco, 0) << static_cast<int>(modo);
  }
}

TEST(Form_Activate, BringsTheRaisesBackAfterAnOrdago) {
  for (const ModoDialogo modo : {ModoDialogo::Apertura, ModoDialogo::Respuesta}) {
    Dialog dialogo = Abierto(ModoDialogo::RespuestaOrdago);
    dialogo.Modo = modo;
    Form_Activate(dialogo);
    EsperarSubidas(dialogo, true);
  }
}

TEST(Form_Activate, LeavesTheCaptionUnchangedInAnyOtherMode) {
  for (const int numero : {1, -3, 7}) {
    const auto modo = static_cast<ModoDialogo>(numero);
    Dialog dialogo = Abierto(ModoDialogo::RespuestaOrdago);
    dialogo.Modo = modo;
    Form_Activate(dialogo);
    EXPECT_EQ(Rotulo(dialogo, 1), "Quiero") << static_cast<int>(modo);
    EsperarSubidas(dialogo, true);

    EXPECT_EQ(Rotulo(Abierto(modo), 1), "Envido") << static_cast<int>(modo);
  }
}

TEST(Form_Activate, KeepsModoResultadoAndTheCaption) {
  Dialog dialogo;
  dialogo.Caption = u"La grande";
  dialogo.Modo = ModoDialogo::RespuestaOrdago;
  dialogo.Resultado = 3;
  Form_Activate(dialogo);
  EXPECT_EQ(Utf8(dialogo.Caption), "La grande");
  EXPECT_EQ(dialogo.Modo, ModoDialogo::RespuestaOrdago);
  EXPECT_EQ(dialogo.Resultado, 3);
}

TEST(Command1_Click, NotesTheButtonAndHidesTheForm) {
  for (const int indice : {0, 1, 2, 3}) {
    Dialog dialogo = Abierto(ModoDialogo::Apertura);
    Command1_Click(dialogo, indice);
    EXPECT_EQ(dialogo.Resultado, indice);
    EXPECT_FALSE(dialogo.Visible);
  }
}

TEST(Command1_Click, LeavesModoAlone) {
  Dialog dialogo = Abierto(ModoDialogo::Respuesta);
  Command1_Click(dialogo, 2);
  EXPECT_EQ(dialogo.Modo, ModoDialogo::Respuesta);
}

TEST(Dialog, HasNoFifthButton) {
  Dialog dialogo;
  EXPECT_THROW(dialogo.Command1[4].Visible = true, RunTimeError);
  EXPECT_THROW(dialogo.Command1[-1].Visible = true, RunTimeError);
}

}  // namespace
}  // namespace tasca::test
