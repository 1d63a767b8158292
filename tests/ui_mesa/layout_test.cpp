// What is laid on the table for a scene.
#include "ui/mesa/layout.h"

#include <gtest/gtest.h>

#include "tests/support/tables.h"
#include "tests/ui_mesa/scenes.h"

namespace tasca::test {
namespace {

constexpr double LetraDePrueba = 13;

Lamina Mesa(const Escena& escena, double ancho = 840, double alto = 740) {
  return LaminaDe(escena, {0, 0, ancho, alto}, LetraDePrueba, LetrasCorrientes(LetraDePrueba));
}

template <class P>
std::vector<P> Todas(const std::vector<Pieza>& piezas) {
  std::vector<P> deEsas;
  for (const Pieza& pieza : piezas) {
    if (const auto* const una = std::get_if<P>(&pieza)) deEsas.push_back(*una);
  }
  return deEsas;
}

int Fichas(const Lamina& hoja, ClaseFicha clase) {
  int cuantas = 0;
  for (const Ficha& ficha : Todas<Ficha>(hoja.Piezas)) cuantas += ficha.Clase == clase ? 1 : 0;
  return cuantas;
}

Escena ConApuesta(const CeldaPizarra& celda) {
  Escena escena = EscenaInicial();
  escena.Pizarra[0] = celda;
  return escena;
}

TEST(LaminaDe, LaysThePlayersCardsOpenAndTheOthersFaceDown) {
  const std::vector<CartaPuesta> cartas = Todas<CartaPuesta>(Mesa(EscenaInicial()).Piezas);
  ASSERT_EQ(cartas.size(), 16U);
  for (const CartaPuesta& carta : cartas) {
    EXPECT_EQ(carta.Carta != 0, carta.De == 1);
    EXPECT_EQ(carta.Girada, carta.De == 2 || carta.De == 4);
  }
}

TEST(LaminaDe, LaysOpenHandsUpright) {
  Escena escena = EscenaInicial();
  for (const Seat asiento : {2, 3, 4}) {
    for (int hueco = 1; hueco <= 4; ++hueco) escena.Asientos[asiento].Naipes[hueco].Carta = 5;
  }
  for (const CartaPuesta& carta : Todas<CartaPuesta>(Mesa(escena).Piezas)) {
    EXPECT_FALSE(carta.Girada);
    EXPECT_NE(carta.Carta, 0);
  }
}

TEST(LaminaDe, LeavesAGapWhereTheCardIsGone) {
  Escena escena = EscenaInicial();
  const double antes = Todas<CartaPuesta>(Mesa(escena).Piezas).back().Donde.X;
  escena.Asientos[1].Naipes[2] = {};
  const std::vector<CartaPuesta> cartas = Todas<CartaPuesta>(Mesa(escena).Piezas);
  EXPECT_EQ(cartas.size(), 15U);
  EXPECT_EQ(cartas.back().Donde.X, antes);
}

TEST(LaminaDe, LaysBetsAsStonesOfTheirPareja) {
  const Lamina suya =
      Mesa(ConApuesta({.Estado = EstadoLance::Envite, .Piedras = 4, .Vistas = 2, .De = 0}));
  EXPECT_EQ(Fichas(suya, ClaseFicha::Suya), 4);
  EXPECT_EQ(Fichas(suya, ClaseFicha::Vista), 2);
  EXPECT_EQ(Fichas(suya, ClaseFicha::Nuestra), 0);
  const Lamina nuestra = Mesa(ConApuesta({.Estado = EstadoLance::Envite, .Piedras = 20, .De = 1}));
  EXPECT_EQ(Fichas(nuestra, ClaseFicha::Nuestra), 20);
  const Lamina queridas = Mesa(ConApuesta({.Estado = EstadoLance::Queridas, .Piedras = 6}));
  EXPECT_EQ(Fichas(queridas, ClaseFicha::Vista), 6);
}

TEST(LaminaDe, WritesLargeBetsAsANumberAlone) {
  const Lamina hoja =
      Mesa(ConApuesta({.Estado = EstadoLance::Envite, .Piedras = 19, .Vistas = 2, .De = 1}));
  EXPECT_TRUE(Todas<Ficha>(hoja.Piezas).empty());
  EXPECT_EQ(Utf8(Todas<CeldaPuesta>(hoja.Piezas)[0].Estado), "2 vistas + 19");
}

TEST(LaminaDe, KeepsStonesInsideTheirCell) {
  for (const double alto : {300.0, 740.0}) {
    for (int piedras = 1; piedras <= 20; ++piedras) {
      const Lamina hoja =
          Mesa(ConApuesta({.Estado = EstadoLance::Envite, .Piedras = piedras, .De = 1}), 800, alto);
      const Rect celda = Dentro(Todas<CeldaPuesta>(hoja.Piezas)[0].Donde, -0.01);
      for (const Ficha& ficha : Todas<Ficha>(hoja.Piezas)) {
        EXPECT_EQ(Union(celda, ficha.Donde), celda) << piedras << " stones, " << alto;
      }
    }
  }
}

TEST(LaminaDe, MarksAnOrdago) {
  for (const EstadoLance estado : {EstadoLance::Ordago, EstadoLance::OrdagoQuerido}) {
    EXPECT_TRUE(Todas<CeldaPuesta>(Mesa(ConApuesta({.Estado = estado})).Piezas)[0].EsOrdago);
  }
  EXPECT_FALSE(Todas<CeldaPuesta>(Mesa(EscenaInicial()).Piezas)[0].EsOrdago);
}

TEST(LaminaDe, ShowsWhoseTurnItIs) {
  Escena escena = EscenaInicial();
  EXPECT_EQ(Todas<TeclaPuesta>(Mesa(escena).Piezas).size(), 1U);
  EXPECT_TRUE(Todas<AvisoTurno>(Mesa(escena).Piezas).empty());
  escena.Toca = Turno::Jugador;
  EXPECT_TRUE(Todas<TeclaPuesta>(Mesa(escena).Piezas).empty());
  EXPECT_EQ(Todas<AvisoTurno>(Mesa(escena).Piezas).size(), 1U);
  escena.Toca = Turno::Nadie;
  EXPECT_TRUE(Todas<TeclaPuesta>(Mesa(escena).Piezas).empty());
  EXPECT_TRUE(Todas<AvisoTurno>(Mesa(escena).Piezas).empty());
}

TEST(LaminaDe, ShowsWhatEverySeatHasSaid) {
  for (const auto& [ancho, alto] : {std::pair{840, 740}, {800, 330}, {640, 700}, {1400, 1000}}) {
    Escena escena = EscenaInicial();
    for (AsientoVisto& asiento : escena.Asientos) asiento.Bocadillo = u"Paso";
    EXPECT_EQ(Todas<Bocadillo>(Mesa(escena, ancho, alto).Piezas).size(), 4U)
        << ancho << "x" << alto;
  }
}

TEST(LaminaDe, LaysThePilesOnlyWhereTheyAre) {
  Escena escena = EscenaInicial();
  EXPECT_EQ(Todas<Monton>(Mesa(escena).Piezas).size(), 1U);
  escena.GrosorDescartes = 1;
  EXPECT_EQ(Todas<Monton>(Mesa(escena).Piezas).size(), 2U);
  escena.GrosorMazo = 0;
  EXPECT_EQ(Utf8(Todas<Monton>(Mesa(escena).Piezas)[0].Texto), "descartes");
}

std::string Score(int piedras, double ancho = 400) {
  Escena escena = EscenaInicial();
  escena.Tanteo[1].Piedras = piedras;
  int cincos = 0;
  int unos = 0;
  std::string textos;
  const std::vector<Pieza> piezas =
      MarcadorDe(escena, {0, 0, ancho, 110}, LetraDePrueba, LetrasCorrientes(LetraDePrueba));
  for (const Pieza& pieza : piezas) {
    if (Lugar(pieza).Y > 55) continue;  // the other pareja
    if (const auto* const ficha = std::get_if<Ficha>(&pieza)) {
      (ficha->Clase == ClaseFicha::Amarraco ? cincos : unos) += 1;
    }
    const auto* const texto = std::get_if<TextoPuesto>(&pieza);
    if (texto != nullptr && texto->Donde.Y > 20) textos += " " + Utf8(texto->Texto);
  }
  return std::to_string(cincos) + "+" + std::to_string(unos) + textos;
}

TEST(MarcadorDe, CountsInFives) {
  EXPECT_EQ(Score(0), "0+0 sin piedras");
  EXPECT_EQ(Score(4), "0+4");
  EXPECT_EQ(Score(23), "4+3");
  EXPECT_EQ(Score(39), "7+4");
}

TEST(MarcadorDe, WritesWhatIsTooManyToDraw) {
  EXPECT_EQ(Score(50, 600), "1+0 × 10");
  EXPECT_EQ(Score(39, 250), "1+4 × 7");
}

TEST(MarcadorDe, FillsTheSocketsOfWhatIsWon) {
  Escena escena = EscenaInicial();
  escena.Tanteo[0].Vacas = 1;
  int llenas = 0;
  const std::vector<Casilla> casillas = Todas<Casilla>(
      MarcadorDe(escena, {0, 0, 400, 110}, LetraDePrueba, LetrasCorrientes(LetraDePrueba)));
  EXPECT_EQ(casillas.size(), 8U);
  for (const Casilla& casilla : casillas) {
    if (!casilla.Ganada) continue;
    ++llenas;
    EXPECT_TRUE(casilla.EsVaca);
    EXPECT_GT(casilla.Donde.Y, 55) << "theirs lies below ours";
  }
  EXPECT_EQ(llenas, 1);
}

}  // namespace
}  // namespace tasca::test
