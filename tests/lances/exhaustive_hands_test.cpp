// All hands of four cards: C(40, 4) = 91,390.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "cards/deck.h"
#include "count/count.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "tests/lances/second_formula.h"
#include "tests/support/quiet_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

constexpr int TodasLasManos = 91'390;

using Mano = std::array<int, 4>;

std::string Escrita(const Mano& mano) {
  std::string texto;
  for (const int carta : mano) texto += std::to_string(carta) + " ";
  return texto;
}

constexpr int Partes = 4;

// Calls `mirar` with the ascending card numbers of every hand of one part, and returns their
// number. A hand's part depends on its lowest card.
template <class Mirar>
int EnLasManosDe(int parte, Mirar mirar) {
  int cuantas = 0;
  Mano mano{};
  for (mano[0] = 1 + parte; mano[0] <= 37; mano[0] += Partes) {
    for (mano[1] = mano[0] + 1; mano[1] <= 38; ++mano[1]) {
      for (mano[2] = mano[1] + 1; mano[2] <= 39; ++mano[2]) {
        for (mano[3] = mano[2] + 1; mano[3] <= 40; ++mano[3]) {
          mirar(mano);
          ++cuantas;
        }
      }
    }
  }
  return cuantas;
}

// Split into parts, so that no test takes long in a build without optimisation.
class ExhaustiveHands : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Parts, ExhaustiveHands, testing::Range(0, Partes));

TEST(ExhaustiveHandsParts, AreAllTheHandsTogether) {
  int cuantas = 0;
  for (int parte = 0; parte < Partes; ++parte) cuantas += EnLasManosDe(parte, [](const Mano&) {});
  EXPECT_EQ(cuantas, TodasLasManos);
}

// A table with the deck. Seats 2 to 4 hold "7 6 5 4": no pares and no juego.
struct MesaDeManos {
  std::unique_ptr<Table> T = std::make_unique<Table>(MesaDePrueba());
  Rnd Sacadas;
  QuietPort Puerto;
  Game G{*T, Sacadas, Puerto};

  // Puts the cards on top of the deck and deals them to seat 1.
  void Dar(const Mano& cartas) {
    for (int i = 0; i < 4; ++i) T->Baraja[i + 1] = cartas.at(static_cast<std::size_t>(i));
    T->CartaSiguiente = 1;
    Repartir(G, AsientoHumano, 4);
  }
  Mano Dadas() const {
    const auto& mano = T->Manos[AsientoHumano];
    return {mano[1], mano[2], mano[3], mano[4]};
  }
};

// The expected hand after the deal: the first card dealt goes to slot 4 and the last to slot 1;
// then a stable sort by descending value.
Mano Ordenada(const Mano& dadas) {
  Mano huecos{};
  std::reverse_copy(dadas.begin(), dadas.end(), huecos.begin());
  Mano ordenada{};
  for (std::size_t i = 0; i < 4; ++i) {
    const int valor = ValorDeCarta(huecos.at(i));
    std::size_t antes = 0;
    for (std::size_t j = 0; j < 4; ++j) {
      const int otro = ValorDeCarta(huecos.at(j));
      if (otro > valor || (otro == valor && j < i)) ++antes;
    }
    ordenada.at(antes) = huecos.at(i);
  }
  return ordenada;
}

TEST_P(ExhaustiveHands, AreSortedInWhateverOrderTheyAreDealt) {
  MesaDeManos mesa;
  Fallos fallos;
  EnLasManosDe(GetParam(), [&](Mano mano) {
    do {
      mesa.Dar(mano);
      if (mesa.Dadas() != Ordenada(mano)) {
        fallos.Anadir(Escrita(mano) + "lies as " + Escrita(mesa.Dadas()));
      }
    } while (std::next_permutation(mano.begin(), mano.end()));
  });
  EXPECT_EQ(mesa.Puerto.Boxes, 0);
  EXPECT_EQ(fallos.Texto(), "");
}

TEST_P(ExhaustiveHands, HaveTheirReyesAndAses) {
  MesaDeManos mesa;
  Fallos fallos;
  EnLasManosDe(GetParam(), [&](const Mano& mano) {
    mesa.Dar(mano);
    const Cuentas cuentas = CuentasDe(mano);
    const bool bien = CuentaCartas(*mesa.T, 1, ValorRey) == cuentas[10] &&
                      CuentaCartas(*mesa.T, 1, ValorAs) == cuentas[1];
    if (!bien) fallos.Anadir(Escrita(mano));
  });
  EXPECT_EQ(fallos.Texto(), "");
}

// The values of all pairs of equal cards, the highest first: n cards of a value give n (n - 1) / 2
// entries.
std::vector<int> ParejasDeCartas(const Cuentas& mano) {
  constexpr std::array<std::size_t, 5> parejas{0, 0, 1, 3, 6};
  std::vector<int> valores;
  for (int valor = 10; valor >= 1; --valor) {
    valores.insert(valores.end(), parejas.at(static_cast<std::size_t>(mano[valor])), valor);
  }
  return valores;
}

TEST_P(ExhaustiveHands, HaveTheirPares) {
  MesaDeManos mesa;
  Fallos fallos;
  EnLasManosDe(GetParam(), [&](const Mano& mano) {
    mesa.Dar(mano);
    const Cuentas cuentas = CuentasDe(mano);
    const bool bien = TienePares(*mesa.T, 1) == (ParesDe(cuentas).Que != Clase::Nada) &&
                      CartasIguales(*mesa.T, 1) == ParejasDeCartas(cuentas);
    if (!bien) fallos.Anadir(Escrita(mano));
  });
  EXPECT_EQ(fallos.Texto(), "");
}

TEST_P(ExhaustiveHands, HaveTheirPointsOfJuegoAndPunto) {
  MesaDeManos mesa;
  Fallos fallos;
  EnLasManosDe(GetParam(), [&](const Mano& mano) {
    mesa.Dar(mano);
    const int puntos = Puntos(CuentasDe(mano));
    const bool bien = PuntosJuego(*mesa.T, 1) == puntos && TieneJuego(*mesa.T, 1) == (puntos >= 31);
    if (!bien) fallos.Anadir(Escrita(mano) + "has " + std::to_string(PuntosJuego(*mesa.T, 1)));
  });
  EXPECT_EQ(fallos.Texto(), "");
}

// The stones that the count pays for the pares and, if `conJuego`, the juego of seat 1.
int PiedrasContadas(MesaDeManos& mesa, bool conJuego) {
  Table& t = *mesa.T;
  for (int lance = 1; lance <= 2; ++lance) t.Apuesta[lance] = ApuestaPagada;
  t.SeJuegaPunto = !conJuego;
  t.Piedras = {};
  ContarMano(mesa.G);
  return t.Piedras[1];
}

TEST_P(ExhaustiveHands, EarnTheStonesOfTheirPares) {
  MesaDeManos mesa;
  Fallos fallos;
  EnLasManosDe(GetParam(), [&](const Mano& mano) {
    mesa.Dar(mano);
    const int piedras = PiedrasContadas(mesa, false);
    if (piedras != PiedrasDePares(CuentasDe(mano))) {
      fallos.Anadir(Escrita(mano) + "earns " + std::to_string(piedras));
    }
  });
  EXPECT_EQ(mesa.T->Piedras[0], 0);
  EXPECT_EQ(fallos.Texto(), "");
}

TEST_P(ExhaustiveHands, EarnTheStonesOfTheirParesAndTheirJuego) {
  MesaDeManos mesa;
  Fallos fallos;
  EnLasManosDe(GetParam(), [&](const Mano& mano) {
    mesa.Dar(mano);
    const Cuentas cuentas = CuentasDe(mano);
    const int piedras = PiedrasContadas(mesa, true);
    if (piedras != PiedrasDePares(cuentas) + PiedrasDeJuego(cuentas)) {
      fallos.Anadir(Escrita(mano) + "earns " + std::to_string(piedras));
    }
  });
  EXPECT_EQ(mesa.T->Piedras[0], 0);
  EXPECT_EQ(fallos.Texto(), "");
}

}  // namespace
}  // namespace tasca::test
