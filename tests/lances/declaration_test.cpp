// The human's declaration and its correction.
#include "lances/declaration.h"

#include <gtest/gtest.h>

#include "tests/lances/mesa.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

constexpr PreguntaDeclaracion Declaracion{
    .Sobre = Pregunta::Juego, .Titulo = u"¿Tiene?", .SiEnRealidad = u"sí.", .NoEnRealidad = u"no."};

Sucesos Declara(bool verdad, bool respuesta) {
  Mesa m;
  respuesta ? m.port.Yes() : m.port.No();
  DrawList rnd{};
  Game g{m.t, rnd, m.port};
  PreguntarDeclaracion(g, Declaracion, verdad);
  return m.port.TakeEvents();
}

TEST(PreguntarDeclaracion, AsksInTheTitleBarAndTakesATrueAnswer) {
  EXPECT_EQ(Declara(true, true), (Sucesos{"yesno[¿Tiene?]:  (icon, default yes)"}));
  EXPECT_EQ(Declara(false, false), (Sucesos{"yesno[¿Tiene?]:  (icon, default no)"}));
}

TEST(PreguntarDeclaracion, CorrectsTheHumanWhoDeniesIt) {
  EXPECT_EQ(Declara(true, false),
            (Sucesos{"yesno[¿Tiene?]:  (icon, default yes)", "box: En realidad sí."}));
}

TEST(PreguntarDeclaracion, CorrectsTheHumanWhoClaimsIt) {
  EXPECT_EQ(Declara(false, true),
            (Sucesos{"yesno[¿Tiene?]:  (icon, default no)", "box: En realidad no."}));
}

TEST(PreguntarDeclaracion, GivesTheSubjectOfTheQuestion) {
  Mesa m;
  m.port.Yes();
  DrawList rnd{};
  Game g{m.t, rnd, m.port};
  PreguntarDeclaracion(g, Declaracion, true);
  EXPECT_EQ(m.port.Preguntas, std::vector<Pregunta>{Pregunta::Juego});
}

TEST(PreguntarDeclaracion, ChangesNothingAtTheTable) {
  Mesa m;
  const Table antes = m.t;
  m.port.No();
  DrawList rnd{};
  Game g{m.t, rnd, m.port};
  PreguntarDeclaracion(g, Declaracion, true);
  EXPECT_EQ(m.t, antes);
}

}  // namespace
}  // namespace tasca::test
