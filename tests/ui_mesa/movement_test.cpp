// What moves between two scenes.
#include "ui/mesa/movement.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/ui_mesa/scenes.h"
#include "ui/mesa/layout.h"

namespace tasca::test {
namespace {

std::vector<Pieza> Puestas(const Escena& escena) {
  return LaminaDe(escena, {0, 0, 840, 740}, 13, LetrasCorrientes(13)).Piezas;
}

// The moving cards, as "seat.slot class", in order.
std::vector<std::string> Movidas(const Escena& antes, const Escena& ahora) {
  std::vector<std::string> textos;
  for (const Movimiento& m : MovimientosDeCartas(antes, ahora, Puestas(ahora))) {
    const auto& carta = std::get<CartaPuesta>(m.Que);
    textos.push_back(std::to_string(int{carta.De}) + "." + std::to_string(carta.Hueco) +
                     (m.Clase == ClaseMovimiento::Voltea ? " voltea" : " desliza"));
  }
  std::sort(textos.begin(), textos.end());
  return textos;
}

Escena SinCartas() {
  Escena escena = EscenaInicial();
  for (const Seat asiento : {1, 2, 3, 4}) escena.Asientos[asiento].Naipes = {};
  return escena;
}

Escena ConManosAbiertas() {
  Escena escena = EscenaInicial();
  int carta = 20;
  for (const Seat asiento : {2, 3, 4}) {
    for (int hueco = 1; hueco <= 4; ++hueco) {
      escena.Asientos[asiento].Naipes[hueco] = {.Hay = true, .Carta = ++carta};
    }
  }
  return escena;
}

TEST(MovimientosDeCartas, NothingMovesWithoutAChange) {
  EXPECT_TRUE(Movidas(EscenaInicial(), EscenaInicial()).empty());
}

TEST(MovimientosDeCartas, ADealtHandSlides) {
  const std::vector<std::string> todas = Movidas(SinCartas(), EscenaInicial());
  ASSERT_EQ(todas.size(), 16U);
  EXPECT_EQ(todas.front(), "1.1 desliza");
  EXPECT_EQ(std::count_if(todas.begin(), todas.end(),
                          [](const std::string& una) { return una.ends_with("desliza"); }),
            16);
}

TEST(MovimientosDeCartas, OnlyTheCardThatThePlayerExchangesSlides) {
  Escena cambiada = EscenaInicial();
  cambiada.Asientos[1].Naipes[3].Carta = 40;
  ASSERT_NE(cambiada, EscenaInicial());
  EXPECT_EQ(Movidas(EscenaInicial(), cambiada), (std::vector<std::string>{"1.3 desliza"}));
}

TEST(MovimientosDeCartas, AsManyHiddenCardsSlideAsASeatHasExchanged) {
  Escena cambiada = EscenaInicial();
  cambiada.Asientos[4].CartasCambiadas = 2;
  EXPECT_EQ(Movidas(EscenaInicial(), cambiada),
            (std::vector<std::string>{"4.3 desliza", "4.4 desliza"}));
  EXPECT_TRUE(Movidas(cambiada, cambiada).empty()) << "they have arrived";
}

TEST(MovimientosDeCartas, HandsThatAreLaidOpenTurnOver) {
  const std::vector<std::string> todas = Movidas(EscenaInicial(), ConManosAbiertas());
  ASSERT_EQ(todas.size(), 12U);
  EXPECT_EQ(todas.front(), "2.1 voltea");
  EXPECT_EQ(todas.back(), "4.4 voltea");
}

TEST(MovimientosDeCartas, TheNextHandSlidesOverTheOpenOne) {
  const std::vector<std::string> todas = Movidas(ConManosAbiertas(), EscenaInicial());
  ASSERT_EQ(todas.size(), 12U);
  EXPECT_EQ(todas.front(), "2.1 desliza");
}

TEST(MovimientosDeCartas, CardsComeFromTheDeck) {
  const std::vector<Pieza> piezas = Puestas(EscenaInicial());
  const auto mazo = std::find_if(piezas.begin(), piezas.end(), [](const Pieza& pieza) {
    return std::holds_alternative<Monton>(pieza);
  });
  ASSERT_NE(mazo, piezas.end());
  for (const Movimiento& m : MovimientosDeCartas(SinCartas(), EscenaInicial(), piezas)) {
    const Rect sale = Lugar(FotogramaDe(m, 0).Que);
    EXPECT_NEAR(sale.CentroX(), Lugar(*mazo).CentroX(), 0.01);
    EXPECT_NEAR(sale.CentroY(), Lugar(*mazo).CentroY(), 0.01);
  }
}

Escena ConEnvite(int piedras) {
  Escena escena = EscenaInicial();
  escena.Pizarra[0].Estado = EstadoLance::Envite;
  escena.Pizarra[0].Piedras = piedras;
  escena.Pizarra[0].De = 1;
  return escena;
}

TEST(MovimientosDeFichas, TheStonesOfANewBetDrop) {
  const auto antes = Puestas(EscenaInicial());
  EXPECT_EQ(MovimientosDeFichas(antes, Puestas(ConEnvite(2))).size(), 2U);
  EXPECT_TRUE(MovimientosDeFichas(antes, antes).empty());
}

Movimiento Una(ClaseMovimiento clase) {
  return {.Que = CartaPuesta{.Donde = {100, 50, 20, 30}, .Carta = 7},
          .Clase = clase,
          .Espera = 30,
          .DesdeX = -80,
          .DesdeY = 40};
}

TEST(FotogramaDe, ACardWaitsAtTheDeckAndEndsAtItsPlaceAfter140Milliseconds) {
  const Movimiento m = Una(ClaseMovimiento::Desliza);
  EXPECT_EQ(Lugar(FotogramaDe(m, 0).Que), (Rect{20, 90, 20, 30}));
  EXPECT_EQ(Lugar(FotogramaDe(m, 30).Que), (Rect{20, 90, 20, 30}));
  EXPECT_EQ(m.Fin(), 170);
  EXPECT_EQ(FotogramaDe(m, 170).Que, m.Que);
  EXPECT_EQ(FotogramaDe(m, 1000).Que, m.Que);
}

// Half of the time covers 1 - (1/2)^3 = 7/8 of the way.
TEST(FotogramaDe, ACardSlowsDown) {
  EXPECT_EQ(Lugar(FotogramaDe(Una(ClaseMovimiento::Desliza), 100).Que), (Rect{90, 55, 20, 30}));
}

// The card that is seen then.
CartaPuesta Volviendose(double milisegundos) {
  return std::get<CartaPuesta>(FotogramaDe(Una(ClaseMovimiento::Voltea), milisegundos).Que);
}

double Estrechez(double milisegundos) {
  return FotogramaDe(Una(ClaseMovimiento::Voltea), milisegundos).Estrecho;
}

TEST(FotogramaDe, ACardTurnsFromItsBackToItsFace) {
  EXPECT_EQ(Volviendose(30).Carta, 0);
  EXPECT_EQ(Volviendose(65).Carta, 0);
  EXPECT_EQ(Volviendose(135).Carta, 7);
  EXPECT_EQ(Volviendose(170).Carta, 7);
  EXPECT_EQ(Volviendose(65).Donde, (Rect{100, 50, 20, 30})) << "it stays at its place";
}

TEST(FotogramaDe, ACardIsSeenFromItsEdgeInTheMiddleOfItsTurn) {
  EXPECT_DOUBLE_EQ(Estrechez(30), 1);
  EXPECT_DOUBLE_EQ(Estrechez(65), 0.5);
  EXPECT_DOUBLE_EQ(Estrechez(100), 0);
  EXPECT_DOUBLE_EQ(Estrechez(135), 0.5);
  EXPECT_DOUBLE_EQ(Estrechez(170), 1);
}

TEST(FotogramaDe, AStoneAppearsWhileItDrops) {
  const Movimiento m = Una(ClaseMovimiento::Cae);
  EXPECT_DOUBLE_EQ(FotogramaDe(m, 30).Opacidad, 0);
  EXPECT_DOUBLE_EQ(FotogramaDe(m, 100).Opacidad, 0.5);
  EXPECT_DOUBLE_EQ(FotogramaDe(m, 170).Opacidad, 1);
}

}  // namespace
}  // namespace tasca::test
