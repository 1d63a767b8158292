// The random choice of characters for "Aleatorio".
#include <gtest/gtest.h>

#include "tests/startup/inicio.h"

namespace tasca::test {
namespace {

// Accepts with these list positions and draws. Returns the new list positions as "1 2 3".
std::string Sorteo(int ofrecidos, std::array<int, 3> eleccion,
                   std::initializer_list<float> sacadas) {
  Inicio inicio{ofrecidos};
  inicio.Elegir(eleccion.at(0), eleccion.at(1), eleccion.at(2));
  EXPECT_TRUE(inicio.Aceptar(sacadas));
  const DlgInicio& d = inicio.d;
  // The characters on offer are numbered from 3.
  EXPECT_EQ(inicio.t.PersonajeAsiento[2], d.Combo1.ListIndex + 2);
  EXPECT_EQ(inicio.t.PersonajeAsiento[1], d.Combo2.ListIndex + 2);
  EXPECT_EQ(inicio.t.PersonajeAsiento[3], d.Combo3.ListIndex + 2);
  return std::to_string(d.Combo1.ListIndex) + " " + std::to_string(d.Combo2.ListIndex) + " " +
         std::to_string(d.Combo3.ListIndex);
}

TEST(Aleatorio, DrawsThePartnerThenTheOpponents) {
  EXPECT_EQ(Sorteo(4, {0, 0, 0}, {0.25F, 0.75F, 0.0F}), "2 4 1");
}

TEST(Aleatorio, SplitsTheDrawEvenlyAmongThoseOnOffer) {
  struct Caso {
    float Sacada;
    std::string Posicion;
  };
  const std::vector<Caso> casos{
      {0.0F, "1"},
      {DrawBelow(0.25F), "1"},
      {DrawFrom(0.25F), "2"},
      {DrawBelow(0.5F), "2"},
      {DrawFrom(0.5F), "3"},
      {DrawBelow(0.75F), "3"},
      {DrawFrom(0.75F), "4"},
      {DrawBelow(1.0F), "4"},
  };
  for (const Caso& caso : casos) {
    // The other two lists leave the drawn position free.
    const bool baja = caso.Sacada < 0.5F;
    EXPECT_EQ(Sorteo(4, {0, baja ? 3 : 1, baja ? 4 : 2}, {caso.Sacada}),
              caso.Posicion + (baja ? " 3 4" : " 1 2"))
        << caso.Sacada;
  }
}

TEST(Aleatorio, SplitsTheDrawAmongThreeOnOffer) {
  EXPECT_EQ(Sorteo(3, {0, 2, 3}, {DrawBelow(1.0F / 3.0F)}), "1 2 3");
  EXPECT_EQ(Sorteo(3, {0, 1, 3}, {DrawFrom(1.0F / 3.0F)}), "2 1 3");
  EXPECT_EQ(Sorteo(3, {0, 1, 3}, {DrawBelow(2.0F / 3.0F)}), "2 1 3");
  EXPECT_EQ(Sorteo(3, {0, 1, 2}, {DrawFrom(2.0F / 3.0F)}), "3 1 2");
}

TEST(Aleatorio, DrawsAgainWhenTheCharacterIsTaken) {
  EXPECT_EQ(Sorteo(4, {0, 0, 0}, {0.0F, 0.0F, 0.25F, 0.25F, 0.0F, 0.75F}), "1 2 4");
}

TEST(Aleatorio, DrawsAgainForACharacterThatAnotherListHasChosen) {
  EXPECT_EQ(Sorteo(4, {0, 3, 1}, {0.5F, 0.0F, 0.25F}), "2 3 1");
  EXPECT_EQ(Sorteo(4, {2, 0, 4}, {0.25F, 0.75F, 0.5F}), "2 3 4");
  EXPECT_EQ(Sorteo(4, {2, 4, 0}, {0.25F, 0.75F, 0.0F}), "2 4 1");
}

TEST(Aleatorio, DrawsOnlyForListsAtAleatorio) {
  EXPECT_EQ(Sorteo(4, {2, 4, 1}, {}), "2 4 1");
  EXPECT_EQ(Sorteo(4, {2, 0, 1}, {0.5F}), "2 3 1");
}

TEST(Aleatorio, SeatsThreeDifferentCharactersWhateverTheDraws) {
  for (int semilla = 1; semilla <= 200; ++semilla) {
    Inicio inicio{3};
    inicio.rnd.Seed(static_cast<std::uint32_t>(semilla));
    Game g{inicio.t, inicio.rnd, inicio.port};
    ASSERT_TRUE(CbOK_Click(inicio.d, g));
    const auto& p = inicio.t.PersonajeAsiento;
    EXPECT_EQ(p[0], 0);
    EXPECT_EQ(p[1] + p[2] + p[3], 3 + 4 + 5);
    EXPECT_EQ(p[1] * p[2] * p[3], 3 * 4 * 5);
  }
}

TEST(Aleatorio, ShowsTheStoryOfTheCharacterDrawnLast) {
  Inicio inicio{4};
  inicio.Elegir(0, 0, 1);
  EXPECT_TRUE(inicio.Aceptar({0.25F, 0.75F}));
  EXPECT_EQ(Utf8(inicio.d.Text4), "Historia 6");
}

const std::string FaltanPersonajes =
    "No hay bastantes personajes en \"Jugadores.dat\" para elegir al azar: hacen falta tres. El "
    "programa va a terminar su ejecución.";

TEST(Aleatorio, EndsTheProgramInsteadOfDrawingForeverWithFewerThanThree) {
  Inicio nadie{0};
  EXPECT_EQ(ErrorOf([&nadie] { nadie.Aceptar(); }), FaltanPersonajes);
  Inicio uno{1};
  EXPECT_EQ(ErrorOf([&uno] { uno.Aceptar({0.5F}); }), FaltanPersonajes);
  Inicio dos{2};
  EXPECT_EQ(ErrorOf([&dos] { dos.Aceptar({0.5F, 0.5F, 0.0F}); }), FaltanPersonajes);
}

TEST(Aleatorio, EndsTheProgramIfTheOtherTwoListsHaveTakenAllCharacters) {
  for (const std::array<int, 3> eleccion :
       {std::array{0, 1, 2}, std::array{1, 0, 2}, std::array{2, 1, 0}}) {
    Inicio dos{2};
    dos.Elegir(eleccion.at(0), eleccion.at(1), eleccion.at(2));
    EXPECT_EQ(ErrorOf([&dos] { dos.Aceptar(); }), FaltanPersonajes);
  }
}

}  // namespace
}  // namespace tasca::test
