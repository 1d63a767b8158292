// The questions: valid and invalid answers, and the end of the input.
#include "ui/terminal/prompts.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "tests/ui_terminal/sessions.h"

namespace tasca::test {
namespace {

// A console with prompts. "?" is a command that prints what the question expects.
struct Asked : FakeConsole {
  explicit Asked(const std::string& entrada)
      : FakeConsole{entrada}, Preguntas{Consola, [this](const TypedLine& linea) {
                                          EsOpcion.push_back(linea.EsOpcion);
                                          if (linea.Texto != u"?") return false;
                                          Consola.Line(linea.SeContesta);
                                          return true;
                                        }} {}

  std::vector<bool> EsOpcion;  // for each input line
  Prompts Preguntas;
};

const std::vector<Option> Botones{{0, u"Paso"}, {1, u"Quiero"}};
const std::vector<Option> Nombres{{0, u"el Cojo"}, {7, u"el Conde"}};

TEST(PromptsYesNo, ShowsTheDefaultAsACapitalAndTakesItForAnEmptyLine) {
  Asked si{"\n"};
  EXPECT_TRUE(si.Preguntas.YesNo(u"¿mus?", true));
  EXPECT_EQ(si.Take(), "¿mus? [S/n] \n");
  Asked no{"  \n"};
  EXPECT_FALSE(no.Preguntas.YesNo(u"¿Tiene pares?", false));
  EXPECT_EQ(no.Take(), "¿Tiene pares? [s/N] \n");
}

TEST(PromptsYesNo, TakesTheTypedAnswer) {
  Asked a{"n\nSÍ\n"};
  EXPECT_FALSE(a.Preguntas.YesNo(u"¿mus?", true));
  EXPECT_TRUE(a.Preguntas.YesNo(u"¿mus?", false));
}

TEST(PromptsYesNo, ExplainsAnInvalidAnswerAndAsksAgain) {
  Asked a{"quizás\nn\n"};
  EXPECT_FALSE(a.Preguntas.YesNo(u"¿mus?", true));
  EXPECT_EQ(a.Take(),
            "¿mus? [S/n] \n"
            "Conteste \"s\" (sí) o \"n\" (no).\n"
            "¿mus? [S/n] \n");
}

TEST(PromptsYesNo, LetsTheInputEnd) {
  Asked a{"quizás\n"};
  EXPECT_THROW(a.Preguntas.YesNo(u"¿mus?", true), LeaveProgram);
}

TEST(PromptsChoose, TakesANumberANameOrTheDefault) {
  Asked a{"1\npaso\n\n"};
  EXPECT_EQ(a.Preguntas.Choose(u"La grande:", Botones, u"0", 0), 1);
  EXPECT_EQ(a.Preguntas.Choose(u"La grande:", Botones, u"1 Quiero", 1), 0);
  EXPECT_EQ(a.Preguntas.Choose(u"La grande:", Botones, u"1", 1), 1);
  EXPECT_EQ(a.Take(), "La grande: [0] \nLa grande: [1 Quiero] \nLa grande: [1] \n");
}

TEST(PromptsChoose, RefusesWhatIsNotOfferedAndAsksAgain) {
  Asked a{"3\nórdago\n1\n"};
  EXPECT_EQ(a.Preguntas.Choose(u"La grande:", Botones, u"0", 0), 1);
  const std::string reparo =
      "Eso no se ofrece. Escriba uno de los números o el comienzo de uno de los nombres.\n";
  EXPECT_EQ(a.Take(),
            "La grande: [0] \n" + reparo + "La grande: [0] \n" + reparo + "La grande: [0] \n");
}

TEST(PromptsChoose, ListsTheOptionsOfAnAmbiguousAnswer) {
  Asked a{"el co\nconde\n"};
  EXPECT_EQ(a.Preguntas.Choose(u"Compañero:", Nombres, u"0", 0), 7);
  EXPECT_EQ(a.Take(),
            "Compañero: [0] \n"
            "Puede ser el Cojo o el Conde. Escriba algo más, o el número.\n"
            "Compañero: [0] \n");
}

TEST(PromptsChoose, LetsTheInputEnd) {
  Asked a{"9"};
  EXPECT_THROW(a.Preguntas.Choose(u"La grande:", Botones, u"0", 0), LeaveProgram);
}

TEST(PromptsText, TrimsTheText) {
  Asked a{"  Ana María \n-\n"};
  EXPECT_EQ(a.Preguntas.Text(u"Su nombre:", u"Jugador 1"), u"Ana María");
  EXPECT_EQ(a.Preguntas.Text(u"Su nombre:", u"Jugador 1"), u"-");
  EXPECT_EQ(a.Take(), "Su nombre: [Jugador 1] \nSu nombre: [Jugador 1] \n");
}

TEST(PromptsText, TakesTheDefaultForAnEmptyLine) {
  Asked a{"\n"};
  EXPECT_EQ(a.Preguntas.Text(u"Su nombre:", u"Jugador 1"), u"Jugador 1");
}

TEST(PromptsTextOrCancel, TakesTheTextAsItIs) {
  Asked a{"13\nabc\n-5\n"};
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), u"13");
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), u"abc");
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), u"-5");
}

TEST(PromptsTextOrCancel, ReturnsTheDefaultForAnEmptyLineAndNothingForADash) {
  Asked a{"\n-\n - \n"};
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), u"2");
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), u"");
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), u"");
  EXPECT_TRUE(a.Take().starts_with("¿Cuántas? [2; - cancela] \n"));
}

TEST(PromptsTextOrCancel, ShowsAnEmptyDefaultAsNada) {
  Asked a{"\n"};
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuáles?: ", u""), u"");
  EXPECT_EQ(a.Take(), "¿Cuáles?: [nada; - cancela] \n");
}

TEST(PromptsTextOrCancel, LetsTheInputEnd) {
  Asked a{""};
  EXPECT_THROW(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"2"), LeaveProgram);
}

TEST(Prompts, RunCommandsInsteadOfTreatingThemAsAnswers) {
  Asked a{"?\nAna\n"};
  EXPECT_EQ(a.Preguntas.Text(u"Su nombre:", u"Jugador 1"), u"Ana");
  EXPECT_EQ(a.Take(), "Su nombre: [Jugador 1] \nEscriba la respuesta.\nSu nombre: [Jugador 1] \n");
}

TEST(Prompts, TellTheCommandsWhatEachQuestionExpects) {
  Asked a{"?\ns\n?\n1\n?\n2\n"};
  EXPECT_TRUE(a.Preguntas.YesNo(u"¿mus?", true));
  EXPECT_EQ(a.Preguntas.Choose(u"La grande:", Botones, u"0", 0), 1);
  EXPECT_EQ(a.Preguntas.TextOrCancel(u"¿Cuántas?", u"5"), u"2");
  EXPECT_EQ(a.Take(),
            "¿mus? [S/n] \n"
            "Conteste \"s\" (sí) o \"n\" (no).\n"
            "¿mus? [S/n] \n"
            "La grande: [0] \n"
            "Escriba uno de los números o el comienzo de uno de los nombres.\n"
            "La grande: [0] \n"
            "¿Cuántas? [5; - cancela] \n"
            "Escriba la respuesta, o \"-\" para cancelar.\n"
            "¿Cuántas? [5; - cancela] \n");
}

TEST(Prompts, TellTheCommandsWhetherALineMeansAnOption) {
  Asked a{"el\nx\nconde\n"};
  EXPECT_EQ(a.Preguntas.Choose(u"Compañero:", Nombres, u"0", 0), 7);
  EXPECT_EQ(a.EsOpcion, (std::vector<bool>{true, false, true}));
}

}  // namespace
}  // namespace tasca::test
