// The cards, the shuffle and the deal.
#include "cards/deck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using Mano = Array<Integer, 1, 4>;
using Mazo = Array<Integer, 1, 40>;

constexpr std::string_view Recoger = "box: Necesario recoger y barajar cartas descartadas";

// A table whose deck is 1 to 40 in order. No draws are expected.
struct MesaConBaraja {
  Table t = MesaDePrueba();
  DrawList rnd;
  ScriptedPort port;
  Game g{t, rnd, port};

  MesaConBaraja() : rnd{} {
    for (int i = 1; i <= 40; ++i) t.Baraja[i] = i;
  }
};

struct Rango {
  std::string_view Figura;
  int Grande;
  int Pares;
  int Juego;
};

constexpr std::array<Rango, 10> Rangos{{{"As        ", 1, 1, 1},
                                        {"Dos       ", 1, 1, 1},
                                        {"Tres      ", 10, 10, 10},
                                        {"Cuatro    ", 4, 4, 4},
                                        {"Cinco     ", 5, 5, 5},
                                        {"Seis      ", 6, 6, 6},
                                        {"Siete     ", 7, 7, 7},
                                        {"Sota      ", 8, 8, 10},
                                        {"Caballo   ", 9, 9, 10},
                                        {"Rey       ", 10, 10, 10}}};

constexpr std::array<std::string_view, 4> Palos{"oros      ", "copas     ", "espadas   ",
                                                "bastos    "};

// The fields of a card in one line, with their padding.
std::string LineOf(const Card& carta) {
  return std::to_string(carta.Numero) + " " + Utf8(carta.Figura.Full()) + Utf8(carta.Palo.Full()) +
         std::to_string(carta.ValorGrande) + " " + std::to_string(carta.ValorPares) + " " +
         std::to_string(carta.ValorJuego);
}

TEST(CrearBaraja, GivesEveryCardItsNamesAndValues) {
  Table t;
  Rnd rnd;
  CrearBaraja(t, rnd);
  int numero = 0;
  for (const std::string_view palo : Palos) {
    for (const Rango& rango : Rangos) {
      ++numero;
      EXPECT_EQ(LineOf(t.Cartas[numero]), std::to_string(numero) + " " + std::string{rango.Figura} +
                                              std::string{palo} + std::to_string(rango.Grande) +
                                              " " + std::to_string(rango.Pares) + " " +
                                              std::to_string(rango.Juego));
    }
  }
  EXPECT_EQ(LineOf(t.Cartas[1]), "1 As        oros      1 1 1");
  EXPECT_EQ(LineOf(t.Cartas[40]), "40 Rey       bastos    10 10 10");
}

TEST(CrearBaraja, MakesTheEmptyCardBlank) {
  Table t;
  Rnd rnd;
  CrearBaraja(t, rnd);
  EXPECT_EQ(LineOf(t.Cartas[0]), "0                     -1 -1 -1");
}

TEST(CrearBaraja, PutsBothPilesBackToTheirStart) {
  Table t;
  t.CartaSiguiente = 17;
  t.DescarteSiguiente = 23;
  Rnd rnd;
  CrearBaraja(t, rnd);
  EXPECT_EQ(t.CartaSiguiente, 1);
  EXPECT_EQ(t.DescarteSiguiente, 1);
}

// A second implementation of the shuffle: one draw that is not used, then 20,000 swaps of two drawn
// positions.
std::array<int, 41> ShuffledByHand(std::array<int, 41> mazo, std::mt19937& motor, int n) {
  const auto sacar = [&motor] { return static_cast<float>(motor() >> 8U) / 16777216.0F; };
  sacar();
  for (int i = 0; i < 20000; ++i) {
    const float primera = static_cast<float>(n) * sacar();
    const float segunda = static_cast<float>(n) * sacar();
    int& a = mazo.at(static_cast<std::size_t>(primera) + 1);
    int& b = mazo.at(static_cast<std::size_t>(segunda) + 1);
    const int guardada = a;
    a = b;
    b = guardada;
  }
  return mazo;
}

std::array<int, 41> OrderedDeck() {
  std::array<int, 41> mazo{};
  int n = 0;
  for (int& carta : mazo) carta = n++;
  return mazo;
}

void ExpectDeck(const Table& t, const std::array<int, 41>& mazo) {
  for (int i = 1; i <= 40; ++i) ASSERT_EQ(t.Baraja[i], mazo.at(static_cast<std::size_t>(i))) << i;
}

TEST(CrearBaraja, ShufflesAnOrderedDeckOnce) {
  for (const std::uint32_t semilla : {1U, 2U, 86400U}) {
    Table t;
    t.Baraja[1] = 40;
    Rnd rnd;
    rnd.Seed(semilla);
    CrearBaraja(t, rnd);
    std::mt19937 motor{semilla};
    ExpectDeck(t, ShuffledByHand(OrderedDeck(), motor, 40));
    EXPECT_EQ(rnd.Draws(), 40001U);
  }
}

TEST(Barajar, StartsFromTheCurrentOrderOfTheDeck) {
  Table t;
  Rnd rnd;
  rnd.Seed(5);
  CrearBaraja(t, rnd);
  Barajar(t, rnd, 40);
  std::mt19937 motor{5};
  const auto primera = ShuffledByHand(OrderedDeck(), motor, 40);
  ExpectDeck(t, ShuffledByHand(primera, motor, 40));
  EXPECT_EQ(rnd.Draws(), 80002U);
}

TEST(Barajar, TouchesOnlyTheFirstPositions) {
  MesaConBaraja sala;
  Rnd rnd;
  rnd.Seed(9);
  Barajar(sala.t, rnd, 5);
  std::mt19937 motor{9};
  ExpectDeck(sala.t, ShuffledByHand(OrderedDeck(), motor, 5));
  for (int i = 6; i <= 40; ++i) EXPECT_EQ(sala.t.Baraja[i], i);
  EXPECT_EQ(rnd.Draws(), 40001U);
}

TEST(Barajar, KeepsEveryCard) {
  Table t;
  Rnd rnd;
  rnd.Seed(31);
  CrearBaraja(t, rnd);
  Mazo mazo = t.Baraja;
  std::sort(mazo.begin(), mazo.end());
  for (int i = 1; i <= 40; ++i) EXPECT_EQ(mazo[i], i);
}

TEST(Barajar, Kept_DiscardsItsFirstDraw) {
  // One card cannot be swapped, but the draws are made.
  MesaConBaraja sala;
  Rnd rnd;
  rnd.Seed(11);
  Barajar(sala.t, rnd, 1);
  EXPECT_EQ(rnd.Draws(), 1U + 2U * 20000U);
}

TEST(Barajar, GivesTheSameDeckForTheSameSeed) {
  Table una;
  Table otra;
  Rnd rnd;
  rnd.Seed(1234);
  CrearBaraja(una, rnd);
  rnd.Seed(1234);
  CrearBaraja(otra, rnd);
  EXPECT_EQ(una, otra);
}

TEST(Repartir, FillsTheSlotsFromTheLastToTheFirst) {
  // 4, 14, 24, 34 are the four Cuatros: the sort does not move equal cards.
  MesaConBaraja sala;
  sala.t.Baraja[1] = 4;
  sala.t.Baraja[2] = 14;
  sala.t.Baraja[3] = 24;
  sala.t.Baraja[4] = 34;
  Repartir(sala.g, 2, 4);
  EXPECT_EQ(sala.t.Manos[2], (Mano{34, 24, 14, 4}));
  EXPECT_EQ(sala.t.CartaSiguiente, 5);
  EXPECT_EQ(sala.port.TakeEvents(), Sucesos{});
}

TEST(Repartir, ReplacesOnlyTheLastSlotsForFewerCards) {
  for (int cartas = 0; cartas <= 4; ++cartas) {
    MesaConBaraja sala;
    sala.t.Manos[3] = {4, 14, 24, 34};
    sala.t.Baraja[7] = 4;
    sala.t.Baraja[8] = 14;
    sala.t.Baraja[9] = 24;
    sala.t.Baraja[10] = 34;
    sala.t.CartaSiguiente = 7;
    Repartir(sala.g, 3, cartas);
    Mano esperada{4, 14, 24, 34};
    for (int i = 0; i < cartas; ++i) esperada[4 - i] = 4 + 10 * i;
    EXPECT_EQ(sala.t.Manos[3], esperada) << cartas;
    EXPECT_EQ(sala.t.CartaSiguiente, 7 + cartas);
  }
}

TEST(Repartir, SortsByFallingValue) {
  // Cinco, Rey, Sota and Cuatro.
  MesaConBaraja sala;
  sala.t.Baraja[1] = 5;
  sala.t.Baraja[2] = 10;
  sala.t.Baraja[3] = 8;
  sala.t.Baraja[4] = 4;
  Repartir(sala.g, 1, 4);
  EXPECT_EQ(sala.t.Manos[1], (Mano{10, 8, 5, 4}));
}

TEST(Repartir, SortsWithoutDealing) {
  MesaConBaraja sala;
  sala.t.Manos[4] = {4, 10, 0, 8};
  Repartir(sala.g, 4, 0);
  EXPECT_EQ(sala.t.Manos[4], (Mano{10, 8, 4, 0}));
  EXPECT_EQ(sala.t.CartaSiguiente, 1);
}

TEST(Repartir, KeepsCardsOfEqualValueInTheirOrder) {
  // Tres, Rey, As, Dos.
  MesaConBaraja sala;
  sala.t.Manos[1] = {3, 10, 1, 2};
  Repartir(sala.g, 1, 0);
  EXPECT_EQ(sala.t.Manos[1], (Mano{3, 10, 1, 2}));
  // Dos, Rey, As, Tres.
  sala.t.Manos[1] = {2, 10, 1, 3};
  Repartir(sala.g, 1, 0);
  EXPECT_EQ(sala.t.Manos[1], (Mano{10, 3, 2, 1}));
}

TEST(Repartir, LeavesTwoEmptySlotsAtTheEnd) {
  MesaConBaraja sala;
  sala.t.Manos[1] = {0, 10, 0, 4};
  Repartir(sala.g, 1, 0);
  EXPECT_EQ(sala.t.Manos[1], (Mano{10, 4, 0, 0}));
}

TEST(Repartir, TakesTheFortiethCardAndSaysThatTheDeckIsOver) {
  MesaConBaraja sala;
  sala.t.CartaSiguiente = 37;
  Repartir(sala.g, 1, 4);
  EXPECT_EQ(sala.t.Manos[1], (Mano{40, 39, 38, 37}));
  EXPECT_EQ(sala.t.CartaSiguiente, 1);
  EXPECT_EQ(sala.port.TakeEvents(), Sucesos{std::string{Recoger}});
}

TEST(Repartir, SaysNothingBeforeTheFortiethCard) {
  MesaConBaraja sala;
  sala.t.CartaSiguiente = 36;
  Repartir(sala.g, 1, 4);
  EXPECT_EQ(sala.t.CartaSiguiente, 40);
  EXPECT_EQ(sala.port.TakeEvents(), Sucesos{});
}

TEST(Repartir, Kept_RestartsAtTheFirstCardWithoutShuffling) {
  // Position 1 holds a discard.
  MesaConBaraja sala;
  sala.t.Baraja[39] = 39;  // Caballo
  sala.t.Baraja[40] = 38;  // Sota
  sala.t.Baraja[1] = 27;   // Siete
  sala.t.Baraja[2] = 16;   // Seis
  sala.t.CartaSiguiente = 39;
  const Mazo antes = sala.t.Baraja;
  Repartir(sala.g, 2, 4);
  EXPECT_EQ(sala.t.Manos[2], (Mano{39, 38, 27, 16}));
  EXPECT_EQ(sala.t.CartaSiguiente, 3);
  EXPECT_EQ(sala.t.Baraja, antes);
  EXPECT_EQ(sala.port.TakeEvents(), Sucesos{std::string{Recoger}});
}

TEST(Repartir, TellsOncePerTurnOfTheDeck) {
  MesaConBaraja sala;
  for (int i = 0; i < 21; ++i) Repartir(sala.g, 1, 4);
  EXPECT_EQ(sala.port.TakeEvents(), (Sucesos{std::string{Recoger}, std::string{Recoger}}));
  EXPECT_EQ(sala.t.CartaSiguiente, 5);
}

TEST(CartaDe, FindsTheCardOfASlot) {
  Table t = MesaDePrueba();
  DarMano(t, 3, "R C 5 -");
  EXPECT_EQ(CartaDe(t, 3, 1).Numero, 10);
  EXPECT_EQ(CartaDe(t, 3, 2).Numero, 9);
  EXPECT_EQ(CartaDe(t, 3, 3).Numero, 5);
  EXPECT_EQ(CartaDe(t, 3, 4).ValorGrande, -1);
}

struct CasoCuenta {
  std::string_view Cartas;
  int Reyes;
  int Ases;
  int Puntos;
};

constexpr std::array<CasoCuenta, 8> Cuentas{{{"R 3 A 2", 2, 2, 22},
                                             {"R R 3 3", 4, 0, 40},
                                             {"A A 2 2", 0, 4, 4},
                                             {"S C 7 6", 0, 0, 33},
                                             {"R S C A", 1, 1, 31},
                                             {"3 7 6 5", 1, 0, 28},
                                             {"R S 7 5", 1, 0, 32},
                                             {"7 6 5 4", 0, 0, 22}}};

TEST(CuentaCartas, CountsTresesAsReyesAndDosesAsAses) {
  for (const CasoCuenta& caso : Cuentas) {
    Table t = MesaDePrueba();
    DarMano(t, 2, caso.Cartas);
    EXPECT_EQ(CuentaCartas(t, 2, ValorRey), caso.Reyes) << caso.Cartas;
    EXPECT_EQ(CuentaCartas(t, 2, ValorAs), caso.Ases) << caso.Cartas;
  }
}

TEST(CuentaCartas, CountsOneValueOnly) {
  Table t = MesaDePrueba();
  DarMano(t, 2, "C C S 7");
  EXPECT_EQ(CuentaCartas(t, 2, 9), 2);
  EXPECT_EQ(CuentaCartas(t, 2, 8), 1);
  EXPECT_EQ(CuentaCartas(t, 2, 10), 0);
}

TEST(PuntosJuego, AddsUpTheFourCards) {
  for (const CasoCuenta& caso : Cuentas) {
    Table t = MesaDePrueba();
    DarMano(t, 4, caso.Cartas);
    EXPECT_EQ(PuntosJuego(t, 4), caso.Puntos) << caso.Cartas;
  }
}

TEST(NombreDeCarta, NamesRankAndSuit) {
  EXPECT_EQ(Utf8(NombreDeCarta(1)), "As de oros");
  EXPECT_EQ(Utf8(NombreDeCarta(20)), "Rey de copas");
  EXPECT_EQ(Utf8(NombreDeCarta(28)), "Sota de espadas");
  EXPECT_EQ(Utf8(NombreDeCarta(39)), "Caballo de bastos");
}

}  // namespace
}  // namespace tasca::test
