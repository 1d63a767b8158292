// The tables of the manual, row by row, against the rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/errors.h"
#include "cards/deck.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "score/scoreboard.h"
#include "tests/manual/played.h"
#include "tests/manual/source.h"
#include "tests/support/tables.h"
#include "ui/manual/card_reference.h"
#include "ui/manual/pieces.h"
#include "ui/mesa/palabras.h"

namespace tasca::test {
namespace {

// A table at which seat 1 holds the cards of a picture's cell, "![](mano:...)".
Table TableWithHandOf(const std::string& celda) {
  Table t = MesaDePrueba();
  const std::size_t desde = celda.find('(') + 1;
  int hueco = 0;
  for (const int carta : CardsOfReference(celda.substr(desde, celda.find(')') - desde))) {
    t.Manos[AsientoHumano][++hueco] = carta;
  }
  EXPECT_EQ(hueco, 4) << celda;
  return t;
}

TEST(ManualTables, TellTheSeats) {
  const Rows filas = TableWithHeading("| Asiento | Quién | Dónde | Pareja |");
  ASSERT_EQ(filas.size(), 4U);
  for (const auto& fila : filas) {
    EXPECT_EQ(std::to_string(ParejaDe(std::stoi(fila[0]))), fila[3]) << fila[1];
  }
}

// The card of the first suit with that rank.
Card CardOfRank(const std::string& figura) {
  const Table t = MesaDePrueba();
  for (const Card& carta : t.Cartas) {
    if (Utf8(carta.Figura.Trimmed()) == figura) return carta;
  }
  ADD_FAILURE() << figura;
  return {};
}

TEST(ManualTables, TellTheValuesOfTheCards) {
  const Rows filas = TableWithHeading("| Carta | Orden | Empareja con | Puntos |");
  ASSERT_EQ(filas.size(), 10U);
  std::map<std::string, int> pares;  // what a card pairs with, and its value
  for (const auto& fila : filas) {
    const Card carta = CardOfRank(fila[0]);
    const std::vector<std::string> valores{std::to_string(carta.ValorGrande),
                                           std::to_string(carta.ValorJuego)};
    EXPECT_EQ(valores, (std::vector<std::string>{fila[1], fila[3]})) << fila[0];
    EXPECT_EQ(pares.emplace(fila[2], carta.ValorPares).first->second, carta.ValorPares) << fila[0];
  }
  EXPECT_EQ(pares.size(), 8U);
}

// The stones that pareja 1 is paid at the count, when grande and pequeña are settled.
int StonesCounted(Table t) {
  t.Apuesta[NumeroLance::Grande] = ApuestaPagada;
  t.Apuesta[NumeroLance::Pequena] = ApuestaPagada;
  ToldHand mesa{t};
  mesa.Count();
  return t.Piedras[1];
}

// As if only pareja 1 were paid for its pares, and nobody had juego.
std::string StonesOfPares(Table t) {
  t.Apuesta[NumeroLance::Pares] = ApuestaPagada;
  t.Declaracion[NumeroLance::Pares] = 1;
  t.SeJuegaPunto = true;
  return std::to_string(StonesCounted(t));
}

// As if only pareja 0 were paid for its pares, which it has not.
std::string StonesOfJuego(Table t) {
  if (!TieneJuego(t, AsientoHumano)) return "0";
  t.Apuesta[NumeroLance::Pares] = ApuestaPagada;
  t.Declaracion[NumeroLance::Pares] = 0;
  return std::to_string(StonesCounted(t));
}

TEST(ManualTables, TellTheClassesOfPares) {
  const std::map<std::string, std::set<std::size_t>> clases{
      {"nada", {0}}, {"par", {1}}, {"medias", {3}}, {"dúplex", {2, 6}}};
  for (const auto& fila : TableWithHeading("| Cartas | Pares | Piedras |")) {
    const Table t = TableWithHandOf(fila[0]);
    EXPECT_TRUE(clases.at(fila[1]).contains(CartasIguales(t, AsientoHumano).size())) << fila[0];
    EXPECT_EQ(StonesOfPares(t), fila[2]) << fila[0];
  }
}

TEST(ManualTables, TellThePointsOfJuego) {
  for (const auto& fila : TableWithHeading("| Cartas | Puntos | Juego | Piedras |")) {
    const Table t = TableWithHandOf(fila[0]);
    EXPECT_EQ(std::to_string(PuntosJuego(t, AsientoHumano)), fila[1]) << fila[0];
    EXPECT_EQ(TieneJuego(t, AsientoHumano) ? "sí" : "no", fila[2]) << fila[0];
    EXPECT_EQ(StonesOfJuego(t), fila[3]) << fila[0];
  }
}

// A hand of every sum from 31 to 40; 38 and 39 cannot be reached.
const std::map<int, std::string_view> ManosDeJuego{
    {31, "R R 7 4"}, {32, "R R 7 5"}, {33, "R R 7 6"}, {34, "R R 7 7"},
    {35, "R R R 5"}, {36, "R R R 6"}, {37, "R R R 7"}, {40, "R R R R"}};

bool WinsJuego(int uno, int otro) {
  Table t = MesaDePrueba();
  t.OrdenAsiento = {2, 3, 4, 1};  // a tie is won by seat 2
  DarMano(t, 1, ManosDeJuego.at(uno));
  DarMano(t, 2, ManosDeJuego.at(otro));
  EXPECT_EQ(PuntosJuego(t, 1), uno);
  return MejorJuego(t) == 1;
}

TEST(ManualTables, TellTheOrderOfJuegos) {
  std::vector<int> orden;
  orden.reserve(ManosDeJuego.size());
  for (const auto& [puntos, mano] : ManosDeJuego) orden.push_back(puntos);
  std::ranges::sort(orden, WinsJuego);
  std::string dicho;
  for (std::size_t i = 0; i < orden.size(); ++i) {
    if (i > 0) dicho += i + 1 == orden.size() ? " y " : ", ";
    dicho += std::to_string(orden[i]);
  }
  EXPECT_NE(SectionOf("el-juego").find("peor: **" + dicho + "**"), std::string::npos) << dicho;
  EXPECT_NE(SectionOf("el-juego").find("peor: " + dicho + "."), std::string::npos) << dicho;
}

// How many juegos a pareja needs for a vaca.
int JuegosNeeded(int alMejorDe) {
  Table t = MesaDePrueba();
  t.JuegosVaca = alMejorDe;
  t.VacasPartida = 99;
  ToldHand mesa{t};
  Rnd rnd;
  Game g{t, rnd, mesa};
  for (int juegos = 1; juegos < 10; ++juegos) {
    t.Juegos[1] = juegos;
    ComprobarVaca(g);
    if (t.Vacas[1] > 0) return juegos;
  }
  return 0;
}

// Refuses another match.
class Leaver : public ToldHand {
 public:
  using ToldHand::ToldHand;
  bool YesNoBox(const Table& /*t*/, Pregunta /*sobre*/,
                const YesNoQuestion& /*pregunta*/) override {
    return false;
  }
};

// How many vacas a pareja needs for the match.
int VacasNeeded(int alMejorDe) {
  Table t = MesaDePrueba();
  t.VacasPartida = alMejorDe;
  Leaver mesa{t};
  Rnd rnd;
  Game g{t, rnd, mesa};
  for (int vacas = 1; vacas < 10; ++vacas) {
    t.Juegos[1] = 2;
    try {
      ComprobarVaca(g);
    } catch (const LeaveProgram&) {
      return vacas;
    }
  }
  return 0;
}

TEST(ManualTables, TellHowManyWinsTheBestOfNeeds) {
  const Rows filas =
      TableWithHeading("| Al mejor de | Juegos para la vaca | Vacas para la partida |");
  for (const auto& fila : filas) {
    const int alMejorDe = std::stoi(fila[0]);
    EXPECT_EQ(std::to_string(JuegosNeeded(alMejorDe)), fila[1]) << "best of " << alMejorDe;
    EXPECT_EQ(std::to_string(VacasNeeded(alMejorDe)), fila[2]) << "best of " << alMejorDe;
  }
}

// "en paso", "querido 4", "no querido": what the four seats say, none with juego, seat 1 first.
std::vector<Habla> PuntoTold(const std::string& dicho) {
  if (dicho == "en paso") return {};
  const bool seQuiere = dicho != "no querido";
  const int piedras = seQuiere ? *WholeNumber(dicho.substr(dicho.find(' ') + 1)) : 2;
  std::vector<Habla> hablas{{1, Decision::EnvidoMas, piedras, "envido"}};
  hablas.push_back({2, seQuiere ? Decision::Quiero : Decision::NoQuiero, 0, "contesta"});
  if (!seQuiere) hablas.push_back({4, Decision::NoQuiero, 0, "contesta"});
  return hablas;
}

// Before the punto, with this record. The last bet that was refused was of pareja 1.
Table BeforePunto(int libreta) {
  Table t = MesaDePrueba();
  for (const NumeroLance lance : {NumeroLance::Grande, NumeroLance::Pequena, NumeroLance::Pares}) {
    t.Apuesta[lance] = ApuestaPagada;
  }
  t.SeJuegaPunto = true;
  t.Fase = Fase::Punto;
  t.Apuesta[NumeroLance::Punto] = libreta;
  t.Declaracion[NumeroLance::Punto] = 1;
  return t;
}

TEST(ManualTables, TellWhatThePuntoRemembers) {
  const Rows filas = TableWithHeading(
      "| La libreta decía | El punto | Al envidar | Al contar | La libreta dirá |");
  ASSERT_EQ(filas.size(), 11U);
  for (const auto& fila : filas) {
    SCOPED_TRACE(fila[0] + ", " + fila[1]);
    Table t = BeforePunto(*WholeNumber(fila[0]));
    ToldHand mesa{t};
    mesa.Bet(NumeroLance::Punto, PuntoTold(fila[1]));
    const int alEnvidar = t.Piedras[1];
    mesa.Count();
    const std::vector<int> pasa{alEnvidar, t.Piedras[1] - alEnvidar, t.Apuesta[NumeroLance::Punto]};
    const std::vector<int> dicho{*WholeNumber(fila[2]), *WholeNumber(fila[3]),
                                 *WholeNumber(fila[4])};
    EXPECT_EQ(pasa, dicho);
    EXPECT_EQ(int{t.Piedras[0]}, 0);
  }
}

TEST(ManualTables, TellEveryWordOfTheSlate) {
  std::set<std::string> dichas;
  for (const auto& fila : TableWithHeading("| En la pizarra | Quiere decir |")) {
    EXPECT_TRUE(dichas.insert(fila[0]).second) << fila[0];
  }
  std::set<std::string> escritas;
  for (int estado = 0; estado <= static_cast<int>(EstadoLance::SinEnvite); ++estado) {
    CeldaPizarra celda;
    celda.Estado = static_cast<EstadoLance>(estado);
    celda.Piedras = celda.Estado == EstadoLance::Queridas ? 5 : 2;
    escritas.insert(Utf8(EstadoEscrito(celda)));
  }
  CeldaPizarra subida;
  subida.Estado = EstadoLance::Envite;
  subida.Vistas = 2;
  subida.Piedras = 4;
  escritas.insert(Utf8(EstadoEscrito(subida)));
  EXPECT_EQ(dichas, escritas);
}

}  // namespace
}  // namespace tasca::test
