// The terminal's port: the questions of the rules.
#include "ui/terminal/terminal_port.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "base/errors.h"
#include "table/dialog.h"
#include "tests/support/tables.h"
#include "tests/ui_terminal/sessions.h"
#include "ui/manual/brief.h"

namespace tasca::test {
namespace {

TimeOfDay TwentyToFive() { return {.Hora = 16, .Minuto = 40, .Segundo = 1}; }

// A console with a terminal port, at the grande.
struct PortConsole : FakeConsole {
  explicit PortConsole(const std::string& entrada = {}) : FakeConsole{entrada} {
    t.Text2 = u"La grande\r\n";
  }

  // Opens the bidding dialog and returns the pressed button.
  int Bid(std::u16string_view titulo, ModoDialogo modo) {
    Dialog dialogo;
    dialogo.Caption = titulo;
    dialogo.Modo = modo;
    Form_Activate(dialogo);
    Puerto.ShowDialog(t, dialogo);
    EXPECT_FALSE(dialogo.Visible);
    return dialogo.Resultado;
  }

  Table t = MesaDePrueba();
  Screen Pantalla{Consola};
  TerminalPort Puerto{Consola, Pantalla, TwentyToFive};
};

TEST(TerminalMsgBox, PrintsTheNewTextsAndThenItsOwn) {
  PortConsole a;
  a.Puerto.MsgBox(a.t, u"Ha ganado la partida.\r\nDora: Vaya");
  EXPECT_EQ(a.Take(), "La grande\n[Ha ganado la partida.\nDora: Vaya]\n");
}

TEST(TerminalYesNoBox, AsksWithItsTitleWhenItHasNoText) {
  PortConsole a{"s\n"};
  EXPECT_TRUE(a.Puerto.YesNoBox(a.t, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = u""}));
  EXPECT_EQ(a.Take(), "La grande\n¿mus? [S/n] \n");
}

TEST(TerminalYesNoBox, AsksWithItsTextWhenItHasOne) {
  PortConsole a{"n\n"};
  EXPECT_FALSE(a.Puerto.YesNoBox(a.t, Pregunta::OtraPartida,
                                 {.Titulo = u"Mus", .Texto = u"¿Desea jugar otra partida?"}));
  EXPECT_EQ(a.Take(), "La grande\n¿Desea jugar otra partida? [S/n] \n");
}

TEST(TerminalYesNoBox, TakesTheDefaultForAnEmptyLine) {
  PortConsole a{"\n\n"};
  EXPECT_FALSE(a.Puerto.YesNoBox(a.t, Pregunta::Pares,
                                 {.Titulo = u"¿Tiene pares?", .Texto = u"", .PorDefecto = false}));
  EXPECT_TRUE(a.Puerto.YesNoBox(a.t, Pregunta::Pares,
                                {.Titulo = u"¿Tiene pares?", .Texto = u"", .PorDefecto = true}));
}

TEST(TerminalInputBox, AsksWithTitleAndTextAndOffersTheDefault) {
  PortConsole a{"\n5\n-\n"};
  const auto pregunta = [&a] {
    return a.Puerto.InputBox(
        a.t, Pregunta::Cantidad,
        {.Titulo = u"Envite a grande", .Texto = u"¿Cuántas envida?", .PorDefecto = u"2"});
  };
  EXPECT_EQ(pregunta(), u"2");
  EXPECT_EQ(a.Take(), "La grande\nEnvite a grande\n¿Cuántas envida? [2; - cancela] \n");
  EXPECT_EQ(pregunta(), u"5");
  EXPECT_EQ(pregunta(), u"");
}

TEST(TerminalInputBox, DiscardsNothingForAnEmptyLine) {
  PortConsole a{"\n1 3\n"};
  const auto pregunta = [&a] {
    return a.Puerto.InputBox(a.t, Pregunta::Descarte,
                             {.Titulo = u"Sustituir cartas",
                              .Texto = u"Sus cartas son: \r\n1. Rey\r\ncuáles: ",
                              .PorDefecto = u""});
  };
  EXPECT_EQ(pregunta(), u"");
  EXPECT_EQ(pregunta(), u"1 3");
  EXPECT_EQ(a.Take(),
            "La grande\n"
            "Sustituir cartas\nSus cartas son: \n1. Rey\ncuáles: [nada; - cancela] \n"
            "Sustituir cartas\nSus cartas son: \n1. Rey\ncuáles: [nada; - cancela] \n");
}

TEST(TerminalDialog, OffersFourButtonsInAnOpening) {
  PortConsole a{"3\n"};
  EXPECT_EQ(a.Bid(u"La grande", ModoDialogo::Apertura), 3);
  EXPECT_EQ(a.Take(), "La grande\nLa grande: 0 Paso, 1 Envido, 2 Envido Más, 3 Órdago [0] \n");
}

TEST(TerminalDialog, OffersQuieroInAnAnswer) {
  PortConsole a{"quiero\n"};
  EXPECT_EQ(a.Bid(u"Envite a pares", ModoDialogo::Respuesta), 1);
  EXPECT_EQ(a.Take(), "La grande\nEnvite a pares: 0 Paso, 1 Quiero, 2 Envido Más, 3 Órdago [0] \n");
}

TEST(TerminalDialog, OffersAndAcceptsOnlyTwoButtonsAgainstAnOrdago) {
  PortConsole a{"2\nórdago\nenvido\nq\n"};
  EXPECT_EQ(a.Bid(u"Envite a grande", ModoDialogo::RespuestaOrdago), 1);
  const std::string pregunta = "Envite a grande: 0 Paso, 1 Quiero [0] \n";
  const std::string reparo =
      "Eso no se ofrece. Escriba uno de los números o el comienzo de uno de los nombres.\n";
  EXPECT_EQ(a.Take(),
            "La grande\n" + pregunta + reparo + pregunta + reparo + pregunta + reparo + pregunta);
}

TEST(TerminalDialog, PassesForAnEmptyLine) {
  PortConsole a{"\n"};
  EXPECT_EQ(a.Bid(u"La grande", ModoDialogo::Apertura), 0);
}

// A section of the manual in short, as lines.
std::string Brief(std::string_view ancla) {
  const std::string breve = Utf8(BriefOf(ancla));
  EXPECT_NE(breve, "") << ancla;
  return breve + "\n";
}

TEST(TerminalPort, RepeatsHandAndScoreInAQuestionOnDemand) {
  PortConsole a{"?\n1\n"};
  a.t.Fase = Fase::RespuestaPequena;
  a.t.Text1 = u"Rey de oros";
  a.t.Text3 = u"Piedras: 0 / 0";
  EXPECT_EQ(a.Bid(u"Envite a grande", ModoDialogo::RespuestaOrdago), 1);
  const std::string pregunta = "Envite a grande: 0 Paso, 1 Quiero [0] \n";
  const std::string mesa = "Rey de oros\nPiedras: 0 / 0\n";
  EXPECT_EQ(a.Take(), "La grande\n" + mesa + pregunta + mesa + Brief("la-pequeña") +
                          Brief("envidar-querer-y-no-querer") +
                          "Escriba uno de los números o el comienzo de uno de los nombres.\n"
                          "Enter da la respuesta que está entre corchetes.\n"
                          "salir, o Ctrl+D, deja el juego.\n" +
                          pregunta);
}

// The kinds of question.
bool AskMus(PortConsole& a) {
  return a.Puerto.YesNoBox(a.t, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = u""});
}

std::u16string AskDiscard(PortConsole& a) {
  return a.Puerto.InputBox(a.t, Pregunta::Descarte,
                           {.Titulo = u"Sustituir cartas", .Texto = u"cuáles:", .PorDefecto = u""});
}

TEST(TerminalPort, ExplainsTheSubjectOfTheQuestionOnDemand) {
  PortConsole a{"?\nn\n?\n1 3\n?\n5\n"};
  EXPECT_FALSE(AskMus(a));
  EXPECT_NE(a.Take().find(Brief("el-mus")), std::string::npos);
  EXPECT_EQ(AskDiscard(a), u"1 3");
  EXPECT_NE(a.Take().find(Brief("los-descartes")), std::string::npos);
  EXPECT_EQ(a.Puerto.InputBox(
                a.t, Pregunta::Cantidad,
                {.Titulo = u"Envite a grande", .Texto = u"¿Cuántas envida?", .PorDefecto = u"2"}),
            u"5");
  EXPECT_NE(a.Take().find(Brief("envidar-más")), std::string::npos);
}

TEST(TerminalPort, ExplainsQInEveryKindOfQuestion) {
  const std::string despues = " Para abandonar la mano con q, conteste antes.\n";
  PortConsole a{"q\nn\nQ\n1 3\nq\n1\n"};
  EXPECT_FALSE(AskMus(a));
  const std::string mus = "¿mus? [S/n] \n";
  EXPECT_EQ(a.Take(), "La grande\n" + mus + "Conteste \"s\" (sí) o \"n\" (no)." + despues + mus);
  EXPECT_EQ(AskDiscard(a), u"1 3");
  const std::string descarte = "Sustituir cartas\ncuáles: [nada; - cancela] \n";
  EXPECT_EQ(a.Take(),
            descarte + "Escriba la respuesta, o \"-\" para cancelar." + despues + descarte);
  EXPECT_EQ(a.Bid(u"La grande", ModoDialogo::Apertura), 1);
  const std::string envite = "La grande: 0 Paso, 1 Envido, 2 Envido Más, 3 Órdago [0] \n";
  EXPECT_EQ(a.Take(), envite + "Escriba uno de los números o el comienzo de uno de los nombres." +
                          despues + envite);
}

TEST(TerminalPort, TakesQForQuieroIfItIsOffered) {
  PortConsole a{"q\n"};
  EXPECT_EQ(a.Bid(u"Envite a grande", ModoDialogo::Respuesta), 1);
}

TEST(TerminalPort, LeavesOnSalirInEveryKindOfQuestion) {
  PortConsole a{"salir\nn\nSalir\n1 3\n salir \n1\n"};
  EXPECT_THROW(AskMus(a), LeaveProgram);
  EXPECT_FALSE(AskMus(a)) << "salir is not an answer";
  EXPECT_THROW(AskDiscard(a), LeaveProgram);
  EXPECT_EQ(AskDiscard(a), u"1 3");
  EXPECT_THROW(a.Bid(u"La grande", ModoDialogo::Apertura), LeaveProgram);
  EXPECT_EQ(a.Bid(u"La grande", ModoDialogo::Apertura), 1);
}

TEST(TerminalPort, LeavesAtTheEndOfTheInputInEveryKindOfQuestion) {
  PortConsole a;
  EXPECT_THROW(a.Puerto.YesNoBox(a.t, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = u""}),
               LeaveProgram);
  EXPECT_THROW(a.Puerto.InputBox(a.t, Pregunta::Cantidad,
                                 {.Titulo = u"Envite", .Texto = u"¿Cuántas?", .PorDefecto = u"2"}),
               LeaveProgram);
  EXPECT_THROW(a.Bid(u"La grande", ModoDialogo::Apertura), LeaveProgram);
}

TEST(TerminalPort, ReturnsTheTimeOfItsClock) {
  PortConsole a;
  EXPECT_EQ(a.Puerto.Now().Hora, 16);
  EXPECT_EQ(a.Puerto.Now().Minuto, 40);
  EXPECT_EQ(a.Puerto.Now().Segundo, 1);
}

int SecondsIn(const char* zona) {
  ::setenv("TZ", zona, 1);  // NOLINT(concurrency-mt-unsafe): the test has one thread
  const TimeOfDay hora = LocalTime();
  EXPECT_TRUE(hora.Hora >= 0 && hora.Hora <= 23);
  EXPECT_TRUE(hora.Minuto >= 0 && hora.Minuto <= 59);
  EXPECT_TRUE(hora.Segundo >= 0 && hora.Segundo <= 59);
  return (hora.Hora * 60 + hora.Minuto) * 60 + hora.Segundo;
}

TEST(LocalTime, FollowsTheTimeZone) {
  constexpr int Dia = 24 * 60 * 60;
  const int aqui = SecondsIn("UTC0");
  const int alEste = SecondsIn("XXX-5:30");
  const int diferencia = (alEste - aqui + Dia) % Dia;
  EXPECT_GE(diferencia, (5 * 60 + 30) * 60);
  EXPECT_LE(diferencia, (5 * 60 + 30) * 60 + 5) << "plus the time between the two readings";
}

}  // namespace
}  // namespace tasca::test
