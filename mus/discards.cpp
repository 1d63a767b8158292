// The discard pass.
#include "base/exchange_sort.h"
#include "base/text.h"
#include "cards/deck.h"
#include "cards/hand_text.h"
#include "mus/mus.h"
#include "sound/effects.h"

namespace tasca {
namespace {

// The pile of discards restarts at position 1 when the next free position is past the limit.
// Kept: the human's limit is tested once, after all discards; a computer seat's after each card.
constexpr int LimitePilaHumano = 36;
constexpr int LimitePilaComputador = 40;

// Moves the card of a slot to the pile of discards.
void Tirar(Table& t, Seat asiento, int hueco) {
  t.Baraja[t.DescarteSiguiente] = t.Manos[asiento][hueco];
  t.DescarteSiguiente += 1;
  t.Manos[asiento][hueco] = 0;
}

void ReiniciarPilaPasado(Table& t, int limite) {
  if (t.DescarteSiguiente > limite) t.DescarteSiguiente = 1;
}

std::u16string TextoDescarte(const Table& t) {
  std::u16string texto = Join(u"Sus cartas son: ", CrLf);
  for (int hueco = 1; hueco <= 4; ++hueco) {
    texto += Join(hueco, u". ", TextoCarta(t, AsientoHumano, hueco), CrLf);
  }
  return texto + u"introduzca los números de las cartas que quiere desechar: ";
}

int DescartarHumano(Game& g) {
  Table& t = g.t;
  const std::u16string respuesta = g.port.InputBox(
      t, Pregunta::Descarte,
      {.Titulo = u"Sustituir cartas", .Texto = TextoDescarte(t), .PorDefecto = u""});
  int cambiadas = 0;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    if (!Contains(respuesta, ToText(hueco))) continue;
    // Kept: the human's limit is tested after the discards, so a nearly full pile could overflow.
    // The discard that would go past the deck restarts the pile.
    ReiniciarPilaPasado(t, LimitePilaComputador);
    Tirar(t, AsientoHumano, hueco);
    ++cambiadas;
  }
  ReiniciarPilaPasado(t, LimitePilaHumano);
  // Moves the empty slots to the end.
  OrdenarPorCambios(t.Manos[AsientoHumano], [](int carta, int otra) { return carta > otra; });
  return cambiadas;
}

int DescartarComputador(Table& t, Seat asiento) {
  const Array<bool, 1, 4> seTira = DecideDescarte(t, asiento);
  int cambiadas = 0;
  for (int hueco = 4; hueco >= 1; --hueco) {
    if (!seTira[hueco]) continue;
    Tirar(t, asiento, hueco);
    ReiniciarPilaPasado(t, LimitePilaComputador);
    ++cambiadas;
  }
  return cambiadas;
}

// Kept: the name of a computer seat is written with its padding.
std::u16string QuienCambia(const Table& t, Seat asiento) {
  if (!t.UsarNombres) return Join(u"El jugador ", asiento);
  if (asiento == AsientoHumano) return t.NombreJugador;
  return std::u16string{PersonajeDe(t, asiento).Nombre.Full()};
}

int CambiarCartas(Game& g, Seat asiento) {
  Table& t = g.t;
  const bool humano = asiento == AsientoHumano;
  const int cambiadas = humano ? DescartarHumano(g) : DescartarComputador(t, asiento);
  t.Text2 += Join(QuienCambia(t, asiento), u" cambia ", cambiadas, u" cartas.", CrLf);
  Repartir(g, asiento, cambiadas);
  if (humano) t.Text2 += Join(u"Sus cartas son ", CrLf, TextoMano(t), CrLf);
  return cambiadas;
}

}  // namespace

Array<bool, 1, 4> DecideDescarte(const Table& t, Seat asiento) {
  Array<bool, 1, 4> seTira;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    seTira[hueco] = CartaDe(t, asiento, hueco).ValorGrande != ValorRey;
  }
  return seTira;
}

void Descartar(Game& g) {
  Array<Integer, 1, 4> cambiadas;
  for (int i = 1; i <= 4; ++i) {
    const Seat asiento = g.t.OrdenAsiento[i];
    cambiadas[asiento] = CambiarCartas(g, asiento);
  }
  SonidoDescartes(g, cambiadas, g.t.OrdenAsiento[1]);
  MostrarManos(g.t, AsientoHumano);
}

}  // namespace tasca
