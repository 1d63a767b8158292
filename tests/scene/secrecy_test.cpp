// The scene does not depend on secrets: in thousands of random states all hidden cards are changed,
// and the scene must stay equal.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "scene/scene.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

constexpr int Estados = 10'000;

class Azar {
 public:
  int Entre(int menor, int mayor) { return std::uniform_int_distribution{menor, mayor}(motor_); }
  bool Moneda() { return Entre(0, 1) == 1; }
  std::mt19937& Motor() { return motor_; }

 private:
  std::mt19937 motor_{20260101};
};

constexpr std::array CadaMomento{Momento::Reposo, Momento::Pregunta, Momento::Aviso};

// Deals random hands. An eighth of the slots are empty, and half of the cards have been shown.
void DealAnyhow(Table& t, Azar& azar) {
  std::shuffle(t.Baraja.begin(), t.Baraja.end(), azar.Motor());
  int siguiente = 1;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    for (int hueco = 1; hueco <= 4; ++hueco) {
      const Integer carta = t.Baraja[siguiente++];
      t.Manos[asiento][hueco] = azar.Entre(1, 8) == 1 ? Integer{} : carta;
      t.CartasVistas[asiento][hueco] = azar.Moneda() ? carta : Integer{};
    }
  }
}

void FillRecords(Table& t, Azar& azar) {
  t.Fase = static_cast<Fase>(azar.Entre(-1, 13));
  t.SeguirLance = azar.Entre(-1, 5);
  t.ParejaEnvite = azar.Entre(0, 1);
  t.RondasMus = azar.Entre(0, 2);
  t.ManoPorDecidir = azar.Moneda();
  t.SeJuegaPunto = azar.Moneda();
  for (Integer& apuesta : t.Apuesta) apuesta = azar.Entre(-2, 6);
  for (Integer& turno : t.OrdenPares) turno = azar.Entre(0, 4);
  for (Integer& turno : t.TurnoJuego) turno = azar.Entre(0, 3);
  std::shuffle(t.OrdenAsiento.begin(), t.OrdenAsiento.end(), azar.Motor());
  t.CartaSiguiente = azar.Entre(1, 40);
  t.DescarteSiguiente = azar.Entre(1, 40);
  t.Dichos.clear();
  for (int i = azar.Entre(0, 3); i > 0; --i) {
    t.Dichos.push_back({.Asiento = azar.Entre(1, 4), .Frase = u"algo"});
  }
}

bool LiesOpen(const Table& t, Seat asiento, int hueco) {
  return t.Manos[asiento][hueco] == t.CartasVistas[asiento][hueco];
}

// Replaces every card of seats 2 to 4 that lies face down.
void ChangeHiddenHands(Table& t, Azar& azar) {
  for (Seat asiento = 2; asiento <= 4; ++asiento) {
    for (int hueco = 1; hueco <= 4; ++hueco) {
      if (t.Manos[asiento][hueco] == 0 || LiesOpen(t, asiento, hueco)) continue;
      do {
        t.Manos[asiento][hueco] = azar.Entre(1, 40);
      } while (LiesOpen(t, asiento, hueco));
    }
  }
}

TEST(Escena, HoldsNoSecretOfTheTable) {
  Azar azar;
  Table t = MesaDePrueba();
  for (int estado = 0; estado < Estados; ++estado) {
    DealAnyhow(t, azar);
    FillRecords(t, azar);
    Array<Escena, 0, 2> antes;
    for (const Momento momento : CadaMomento) antes[momento] = EscenaDe(t, momento);
    ChangeHiddenHands(t, azar);
    std::shuffle(t.Baraja.begin(), t.Baraja.end(), azar.Motor());
    for (const Momento momento : CadaMomento) {
      ASSERT_EQ(EscenaDe(t, momento), antes[momento]) << "state " << estado;
    }
  }
}

// Without this the test above would also pass with a scene that shows no cards.
TEST(Escena, ShowsAChangeOfAnOpenHand) {
  Table t = MesaDePrueba();
  t.CartasVistas = t.Manos;
  const Escena antes = EscenaDe(t, Momento::Reposo);
  t.Manos[3][2] = t.Manos[3][2] % 40 + 1;
  EXPECT_NE(EscenaDe(t, Momento::Reposo), antes);
}

}  // namespace
}  // namespace tasca::test
