// All pairs of hands, in all five lances and with each seat as mano. Hands with equal card values
// are the same: 330 hands of four cards out of eight values.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/pequena.h"
#include "lances/punto.h"
#include "tests/lances/second_formula.h"
#include "tests/support/quiet_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

constexpr std::size_t TodosLosPatrones = 330;

// A hand as card numbers, the highest first, and as counts.
struct Patron {
  std::array<int, 4> Cartas{};
  Cuentas Valores;
};

// A card of that value; in odd slots the Tres for a Rey and the Dos for an As. The hands are only
// compared, so that a card may occur several times.
int CartaDeValor(int valor, int hueco) {
  const bool segunda = hueco % 2 == 1;
  if (valor == 10 && segunda) return 3;
  if (valor == 1 && segunda) return 2;
  return valor;
}

Patron PatronDe(const std::array<int, 4>& valores) {
  Patron patron;
  for (std::size_t i = 0; i < 4; ++i) {
    patron.Cartas.at(i) = CartaDeValor(valores.at(i), static_cast<int>(i));
    patron.Valores.Anadir(valores.at(i));
  }
  return patron;
}

std::vector<Patron> Patrones() {
  std::vector<Patron> patrones;
  for (const int a : ValoresDistintos) {
    for (const int b : ValoresDistintos) {
      for (const int c : ValoresDistintos) {
        for (const int d : ValoresDistintos) {
          if (a >= b && b >= c && c >= d) patrones.push_back(PatronDe({a, b, c, d}));
        }
      }
    }
  }
  return patrones;
}

std::string Escrita(const Patron& patron) {
  std::string texto;
  for (const int carta : patron.Cartas) texto += std::to_string(carta) + " ";
  return texto;
}

// The result of hand i against hand j: 1 if i wins, -1 if j wins, 0 if the mano decides.
using Resultados = std::vector<std::vector<int>>;

// A lance: the game's function and the second implementation.
struct Comparacion {
  Pareja (*Gana)(Game& g);
  bool (*EsMejor)(const Cuentas& una, const Cuentas& otra);
  std::array<int, 4> Peor;                   // the values of a hand that beats none
  bool (*Cuenta)(const Cuentas&) = nullptr;  // hands that can win; null: all hands
};

// Two hands at two neighbouring seats.
class Duelo {
 public:
  explicit Duelo(const Comparacion& comparacion)
      : comparacion_{comparacion}, peor_{PatronDe(comparacion.Peor)} {}

  // Gives `una` to seat `primero` and `otra` to the next. The other two seats get the worst hand.
  void Sentar(const Patron& una, const Patron& otra, Seat primero) {
    primero_ = primero;
    for (Seat asiento = 1; asiento <= 4; ++asiento) Poner(asiento, peor_);
    Poner(primero, una);
    Poner(Siguiente(primero), otra);
  }

  // The winner according to the game.
  Pareja Ganadora(Seat mano) {
    Seat asiento = mano;
    for (int i = 1; i <= 4; ++i, asiento = Siguiente(asiento)) t_->OrdenAsiento[i] = asiento;
    return comparacion_.Gana(g_);
  }

  // The expected winner: the first seat from the mano on that no other seat beats; -1 for nobody.
  Pareja Debida(Seat mano) const {
    if (NadieCuenta()) return -1;
    Seat asiento = mano;
    while (AlguienEsMejorQue(asiento)) asiento = Siguiente(asiento);
    return ParejaDe(asiento);
  }

  // The result of `una` against `otra` over all four manos. Records a fault for each unexpected
  // winner.
  int Decidir(Fallos& fallos) {
    bool aVeces = false;
    bool aVecesLaOtra = false;
    for (Seat mano = 1; mano <= 4; ++mano) {
      const Pareja ganadora = Ganadora(mano);
      if (ganadora != Debida(mano)) fallos.Anadir(Escrito(mano));
      if (ganadora == ParejaDe(primero_)) aVeces = true;
      if (ganadora == ParejaContraria(primero_)) aVecesLaOtra = true;
    }
    return static_cast<int>(aVeces) - static_cast<int>(aVecesLaOtra);
  }

  int Cajas() const { return puerto_.Boxes; }

 private:
  static Seat Siguiente(Seat asiento) { return asiento % 4 + 1; }

  void Poner(Seat asiento, const Patron& patron) {
    for (int hueco = 1; hueco <= 4; ++hueco) {
      t_->Manos[asiento][hueco] = patron.Cartas.at(static_cast<std::size_t>(hueco - 1));
    }
    manos_[asiento] = patron.Valores;
  }
  bool NadieCuenta() const {
    return comparacion_.Cuenta != nullptr &&
           std::none_of(manos_.begin(), manos_.end(), comparacion_.Cuenta);
  }
  bool AlguienEsMejorQue(Seat asiento) const {
    return std::any_of(manos_.begin(), manos_.end(), [this, asiento](const Cuentas& otra) {
      return comparacion_.EsMejor(otra, manos_[asiento]);
    });
  }
  std::string Escrito(Seat mano) const {
    std::string texto = "mano " + std::to_string(mano) + ":";
    for (Seat asiento = 1; asiento <= 4; ++asiento) {
      texto += " seat " + std::to_string(asiento) + " has";
      for (const int carta : t_->Manos[asiento]) texto += " " + std::to_string(carta);
    }
    return texto;
  }

  Comparacion comparacion_;
  Patron peor_;
  std::unique_ptr<Table> t_ = std::make_unique<Table>(MesaDePrueba());
  Rnd rnd_;
  QuietPort puerto_;
  Game g_{*t_, rnd_, puerto_};
  Array<Cuentas, 1, 4> manos_;
  Seat primero_ = 1;
};

// The results of all pairs of hands. The pairs of seats take turns.
Resultados TodosContraTodos(Duelo& duelo, Fallos& fallos) {
  const std::vector<Patron> patrones = Patrones();
  Resultados resultados(patrones.size(), std::vector<int>(patrones.size()));
  for (std::size_t i = 0; i < patrones.size(); ++i) {
    for (std::size_t j = 0; j < patrones.size(); ++j) {
      duelo.Sentar(patrones[i], patrones[j], static_cast<Seat>((i + j) % 4) + 1);
      resultados[i][j] = duelo.Decidir(fallos);
    }
  }
  return resultados;
}

// Checks that the results are a strict weak order: with the wins minus the losses of each hand as
// its rank, the hand of higher rank wins. So the results are antisymmetric and have no cycles.
void ComprobarOrden(const Resultados& resultados, Fallos& fallos) {
  std::vector<int> rangos;
  for (const std::vector<int>& fila : resultados) {
    int rango = 0;
    for (const int resultado : fila) rango += resultado;
    rangos.push_back(rango);
  }
  const std::vector<Patron> patrones = Patrones();
  for (std::size_t i = 0; i < patrones.size(); ++i) {
    for (std::size_t j = 0; j < patrones.size(); ++j) {
      if (resultados[i][j] != std::clamp(rangos[i] - rangos[j], -1, 1)) {
        fallos.Anadir(Escrita(patrones[i]) + "and " + Escrita(patrones[j]) + "are out of order");
      }
    }
  }
}

void Comprobar(const Comparacion& comparacion, int cajas = 0) {
  Duelo duelo{comparacion};
  Fallos fallos;
  const Resultados resultados = TodosContraTodos(duelo, fallos);
  ComprobarOrden(resultados, fallos);
  EXPECT_EQ(resultados.size(), TodosLosPatrones);
  EXPECT_EQ(duelo.Cajas(), cajas);
  EXPECT_EQ(fallos.Texto(), "");
}

TEST(ExhaustiveWinners, OfTheGrande) {
  Comprobar({[](Game& g) { return GanaGrande(g.t); }, MejorGrande, {1, 1, 1, 1}});
}

TEST(ExhaustiveWinners, OfThePequena) {
  Comprobar({[](Game& g) { return GanaPequena(g.t); }, MejorPequena, {10, 10, 10, 10}});
}

TEST(ExhaustiveWinners, OfThePares) {
  const auto tiene = [](const Cuentas& mano) { return ParesDe(mano).Que != Clase::Nada; };
  Comprobar({[](Game& g) { return GanaPares(g.t); }, MejoresPares, {7, 6, 5, 4}, tiene});
}

TEST(ExhaustiveWinners, OfTheJuego) {
  Comprobar({[](Game& g) { return MejorJuego(g.t); }, MejorElJuego, {7, 6, 5, 4}});
}

// The worst hand is one with juego. The game reports every hand with juego in a box.
TEST(ExhaustiveWinners, OfThePunto) {
  int conJuego = 0;
  for (const Patron& patron : Patrones()) conJuego += Puntos(patron.Valores) >= 31 ? 1 : 0;
  constexpr int manos = static_cast<int>(TodosLosPatrones);
  const int cajas = 4 * (manos * manos * 2 + 2 * manos * conJuego);
  Comprobar({MejorPunto, MejorElPunto, {10, 10, 10, 1}}, cajas);
}

}  // namespace
}  // namespace tasca::test
