// The tables of suits and ranks, the shuffle and the deal.
#include "cards/deck.h"

#include <array>
#include <string_view>
#include <utility>

#include "base/exchange_sort.h"
#include "base/text.h"

namespace tasca {
namespace {

constexpr int PalosBaraja = 4;
constexpr int CartasPorPalo = 10;
static_assert(CartasBaraja == PalosBaraja * CartasPorPalo);

constexpr std::array<std::u16string_view, PalosBaraja> Palos{u"oros", u"copas", u"espadas",
                                                             u"bastos"};

struct Rango {
  std::u16string_view Figura;
  int ValorGrande;
  int ValorPares;
  int ValorJuego;
};

constexpr std::array<Rango, CartasPorPalo> Rangos{{
    {u"As", 1, 1, 1},
    {u"Dos", 1, 1, 1},
    {u"Tres", 10, 10, 10},
    {u"Cuatro", 4, 4, 4},
    {u"Cinco", 5, 5, 5},
    {u"Seis", 6, 6, 6},
    {u"Siete", 7, 7, 7},
    {u"Sota", 8, 8, 10},
    {u"Caballo", 9, 9, 10},
    {u"Rey", 10, 10, 10},
}};

Card CartaVacia() {
  Card carta;
  carta.Figura = u"";
  carta.Palo = u"";
  carta.ValorGrande = -1;
  carta.ValorPares = -1;
  carta.ValorJuego = -1;
  return carta;
}

void OrdenarMano(Table& t, Seat asiento) {
  OrdenarPorCambios(t.Manos[asiento], [&t](int carta, int otra) {
    return t.Cartas[carta].ValorGrande > t.Cartas[otra].ValorGrande;
  });
}

}  // namespace

const Card& CartaDe(const Table& t, Seat asiento, int hueco) {
  return t.Cartas[t.Manos[asiento][hueco]];
}

int CuentaCartas(const Table& t, Seat asiento, int valor) {
  int cuenta = 0;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    if (CartaDe(t, asiento, hueco).ValorGrande == valor) ++cuenta;
  }
  return cuenta;
}

int PuntosJuego(const Table& t, Seat asiento) {
  int puntos = 0;
  for (int hueco = 1; hueco <= 4; ++hueco) puntos += CartaDe(t, asiento, hueco).ValorJuego;
  return puntos;
}

std::u16string NombreDeCarta(int carta) {
  const auto orden = static_cast<std::size_t>(carta - 1);
  return Join(Rangos.at(orden % CartasPorPalo).Figura, u" de ", Palos.at(orden / CartasPorPalo));
}

void CrearCartas(Table& t) {
  t.Cartas[0] = CartaVacia();
  int numero = 0;
  for (const std::u16string_view palo : Palos) {
    for (const Rango& rango : Rangos) {
      Card& carta = t.Cartas[++numero];
      carta.Numero = numero;
      carta.Palo = palo;
      carta.Figura = rango.Figura;
      carta.ValorGrande = rango.ValorGrande;
      carta.ValorPares = rango.ValorPares;
      carta.ValorJuego = rango.ValorJuego;
    }
  }
}

void CrearBaraja(Table& t, Rnd& rnd) {
  CrearCartas(t);
  for (int i = 1; i <= CartasBaraja; ++i) t.Baraja[i] = i;
  t.CartaSiguiente = 1;
  t.DescarteSiguiente = 1;
  Barajar(t, rnd, CartasBaraja);
}

void Barajar(Table& t, Rnd& rnd, Integer N) {
  constexpr int Cambios = 20000;
  // Kept: the first draw is not used. Without it the same seed would give other games.
  rnd();
  const auto cartas = static_cast<float>(N);
  for (int i = 0; i < Cambios; ++i) {
    const int a = static_cast<int>(cartas * rnd()) + 1;
    const int b = static_cast<int>(cartas * rnd()) + 1;
    std::swap(t.Baraja[a], t.Baraja[b]);
  }
}

void Repartir(Game& g, Seat asiento, Integer N) {
  Table& t = g.t;
  for (int hueco = 4; hueco >= 5 - N; --hueco) {
    t.Manos[asiento][hueco] = t.Baraja[t.CartaSiguiente];
    if (t.CartaSiguiente < CartasBaraja) {
      t.CartaSiguiente += 1;
    } else {
      // Kept: the discards are not shuffled; they are dealt in the order in which they were thrown.
      g.port.MsgBox(t, u"Necesario recoger y barajar cartas descartadas");
      t.CartaSiguiente = 1;
    }
  }
  OrdenarMano(t, asiento);
}

}  // namespace tasca
