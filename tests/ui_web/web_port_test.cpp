// Questions from a record of answers.
#include "ui/web/web_port.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/tables.h"

namespace tasca::test {
namespace {

// A port at a table, whose record is given to Run.
class PuertoDePrueba : public testing::Test {
 protected:
  bool QuiereMus() {
    return puerto_.YesNoBox(*mesa_, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = {}});
  }
  void Sonar(std::u16string_view archivo) { puerto_.OpenSound(*mesa_, archivo); }
  void Correr() { puerto_.Run(guion_); }

  std::unique_ptr<Table> mesa_ = std::make_unique<Table>(MesaDePrueba());
  std::vector<Integer> fines_;
  std::vector<Entrada> guion_;
  WebPort puerto_{[this](Integer estado) { fines_.push_back(estado); }};
};

TEST_F(PuertoDePrueba, LeavesAQuestionOpenThatHasNoAnswer) {
  puerto_.Begin({});
  Correr();
  EXPECT_FALSE(puerto_.Open());
  EXPECT_THROW(QuiereMus(), SinRespuesta);
  ASSERT_TRUE(puerto_.Open());
  EXPECT_EQ(puerto_.Open()->Clase, ClasePregunta::SiNo);
  EXPECT_EQ(puerto_.Open()->Sobre, Pregunta::Mus);
  EXPECT_EQ(puerto_.Open()->Titulo, u"¿mus?");
}

TEST_F(PuertoDePrueba, AnswersFromTheRecordInOrder) {
  guion_ = {{.Clase = ClaseEntrada::Si}, {.Clase = ClaseEntrada::No}};
  puerto_.Begin({});
  Correr();
  EXPECT_TRUE(QuiereMus());
  EXPECT_FALSE(QuiereMus());
  EXPECT_THROW(QuiereMus(), SinRespuesta);
}

TEST_F(PuertoDePrueba, TakesTheAnswerOfEveryKind) {
  guion_ = {{.Clase = ClaseEntrada::Aceptado},
            {.Clase = ClaseEntrada::Texto, .Texto = u"13"},
            {.Clase = ClaseEntrada::Cancelado},
            {.Clase = ClaseEntrada::Boton, .Numero = 3}};
  puerto_.Begin({});
  Correr();
  puerto_.MsgBox(*mesa_, u"Hola");
  EXPECT_EQ(puerto_.InputBox(*mesa_, Pregunta::Descarte, {}), u"13");
  EXPECT_EQ(puerto_.InputBox(*mesa_, Pregunta::Descarte, {}), u"");
  Dialog dialogo;
  dialogo.Modo = ModoDialogo::Apertura;
  Form_Activate(dialogo);
  puerto_.ShowDialog(*mesa_, dialogo);
  EXPECT_EQ(dialogo.Resultado, 3);
  EXPECT_FALSE(dialogo.Visible);
}

TEST_F(PuertoDePrueba, LeavesOutAnAnswerThatDoesNotFit) {
  guion_ = {{.Clase = ClaseEntrada::Boton, .Numero = 3}, {.Clase = ClaseEntrada::Si}};
  puerto_.Begin({});
  Correr();
  EXPECT_TRUE(QuiereMus());
}

TEST_F(PuertoDePrueba, TellsACallOnceThoughTheStepRunsTwice) {
  puerto_.Begin({});
  Correr();
  Sonar(u"uno.wav");
  EXPECT_THROW(QuiereMus(), SinRespuesta);
  ASSERT_EQ(puerto_.TakeCalls().size(), 1);
  guion_ = {{.Clase = ClaseEntrada::Si}};
  Correr();
  Sonar(u"uno.wav");
  EXPECT_TRUE(QuiereMus());
  puerto_.StopSound(*mesa_);
  const std::vector<Suceso> nuevos = puerto_.TakeCalls();
  ASSERT_EQ(nuevos.size(), 1);
  EXPECT_TRUE(nuevos.front().Calla);
  EXPECT_TRUE(puerto_.TakeCalls().empty());
}

TEST_F(PuertoDePrueba, TellsTheSameCallAgainInTheNextStep) {
  for (int paso = 0; paso < 2; ++paso) {
    puerto_.Begin({});
    Correr();
    Sonar(u"uno.wav");
    EXPECT_EQ(puerto_.TakeCalls().size(), 1) << paso;
  }
}

TEST_F(PuertoDePrueba, RunsTheEndsOfSoundsBeforeTheAnswer) {
  guion_ = {{.Clase = ClaseEntrada::FinDeSonido, .Numero = 0},
            {.Clase = ClaseEntrada::FinDeSonido, .Numero = 6},
            {.Clase = ClaseEntrada::Si},
            {.Clase = ClaseEntrada::FinDeSonido, .Numero = 1}};
  puerto_.Begin({});
  Correr();
  EXPECT_TRUE(QuiereMus());
  EXPECT_EQ(fines_, (std::vector<Integer>{0, 6}));
  EXPECT_THROW(QuiereMus(), SinRespuesta);
  EXPECT_EQ(fines_, (std::vector<Integer>{0, 6, 1}));
}

TEST_F(PuertoDePrueba, KeepsTheTimeOfTheStepAndOfItsAnswers) {
  guion_ = {{.Clase = ClaseEntrada::Si, .Hora = {22, 30, 5}}};
  puerto_.Begin({21, 4, 37});
  for (int vez = 0; vez < 2; ++vez) {
    Correr();
    EXPECT_EQ(puerto_.Now().Segundo, 37);
    QuiereMus();
    EXPECT_EQ(puerto_.Now().Hora, 22);
    EXPECT_EQ(puerto_.Now().Segundo, 5);
  }
}

TEST_F(PuertoDePrueba, ForgetsTheChangeOfPlayersOfAnAbandonedRun) {
  puerto_.Begin({});
  Correr();
  puerto_.ChangePlayers();
  Correr();
  EXPECT_FALSE(puerto_.TakeChangePlayers());
}

}  // namespace
}  // namespace tasca::test
