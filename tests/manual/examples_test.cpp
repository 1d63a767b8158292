// Every worked example of the manual is played.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "cards/deck.h"
#include "tests/manual/played.h"
#include "tests/manual/source.h"

namespace tasca::test {
namespace {

bool OnlyTellsWinners(const Ejemplo& ejemplo) {
  return std::ranges::all_of(ejemplo.Lances, [](const LanceEjemplo& lance) {
    return lance.Modo == ModoEjemplo::SoloGana;
  });
}

void ExpectWinners(const Ejemplo& ejemplo) {
  Table t = TableOf(ejemplo);
  ToldHand mesa{t};
  for (const LanceEjemplo& lance : ejemplo.Lances) {
    ASSERT_EQ(lance.Cobros.size(), 1U) << lance.Porque;
    EXPECT_EQ(mesa.Winner(lance.Numero), lance.Cobros.front().De) << lance.Porque;
  }
}

std::string FinalBox(const Ejemplo& ejemplo) {
  if (!ejemplo.GanaElJuego) return "";
  const Pareja pareja = *ejemplo.GanaElJuego;
  const auto [nuestras, suyas] = *ejemplo.Despues;
  return "La pareja " + std::to_string(pareja) + " gana este juego por " +
         std::to_string(pareja == 1 ? nuestras : suyas) + " a " +
         std::to_string(pareja == 1 ? suyas : nuestras);
}

void ExpectScore(const PlayedExample& jugado, const Ejemplo& ejemplo) {
  ASSERT_TRUE(ejemplo.Despues);
  EXPECT_EQ(jugado.Piedras[1], ejemplo.Despues->Nuestras);
  EXPECT_EQ(jugado.Piedras[0], ejemplo.Despues->Suyas);
}

void ExpectStones(const Ejemplo& ejemplo) {
  PlayedExample jugado = Play(ejemplo);
  for (const LanceEjemplo& lance : ejemplo.Lances) {
    Array<int, 0, 1> contadas;
    for (const Cobro& cobro : lance.Cobros) contadas[cobro.De] += cobro.Piedras;
    EXPECT_EQ(jugado.Cobrado[lance.Numero], contadas) << lance.Porque;
  }
  EXPECT_EQ(jugado.Fin, FinalBox(ejemplo));
  if (!ejemplo.GanaElJuego) ExpectScore(jugado, ejemplo);
}

// The cards of a seat, and whether they go from the highest to the lowest.
void ExpectSortedHand(const Table& t, Seat asiento, std::set<int>& cartas) {
  for (int hueco = 1; hueco <= 4; ++hueco) cartas.insert(t.Manos[asiento][hueco]);
  for (int hueco = 2; hueco <= 4; ++hueco) {
    EXPECT_GE(CartaDe(t, asiento, hueco - 1).ValorGrande, CartaDe(t, asiento, hueco).ValorGrande)
        << "seat " << asiento;
  }
}

TEST(ManualExamples, EndAsTheManualTells) {
  const std::vector<std::string> ejemplos = Examples();
  ASSERT_GE(ejemplos.size(), 10U);
  for (const std::string& fuente : ejemplos) {
    SCOPED_TRACE(fuente);
    const Ejemplo ejemplo = LeerEjemplo(fuente);
    ASSERT_FALSE(ejemplo.Lances.empty());
    OnlyTellsWinners(ejemplo) ? ExpectWinners(ejemplo) : ExpectStones(ejemplo);
  }
}

TEST(ManualExamples, HaveNoCardTwiceAndSortedHands) {
  for (const std::string& fuente : Examples()) {
    SCOPED_TRACE(fuente);
    const Table t = TableOf(LeerEjemplo(fuente));
    std::set<int> cartas;
    for (Seat asiento = 1; asiento <= 4; ++asiento) ExpectSortedHand(t, asiento, cartas);
    EXPECT_EQ(cartas.size(), 16U);
  }
}

TEST(ManualExamples, ShowEveryLance) {
  std::set<NumeroLance> lances;
  for (const std::string& fuente : Examples()) {
    for (const LanceEjemplo& lance : LeerEjemplo(fuente).Lances) lances.insert(lance.Numero);
  }
  EXPECT_EQ(lances.size(), 5U);
}

}  // namespace
}  // namespace tasca::test
