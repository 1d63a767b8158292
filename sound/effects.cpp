// The files and settings of the sounds, and the sequence of a discard pass.
#include "sound/effects.h"

namespace tasca {
namespace {

// The balance and volume of a seat's cards.
struct Sitio {
  int Balance;
  int Volumen;
};

constexpr Array<Sitio, 1, 4> Sitios{Sitio{0, -320}, Sitio{300, -500}, Sitio{0, -700},
                                    Sitio{-300, -500}};

void TerminarSecuencia(Game& g) {
  g.t.Mp1 = {.Veces = 1, .Balance = 0, .Volumen = -320};
  g.port.StopSound(g.t);
}

// Advances PosicionSonido to the next seat that changed cards. False after the fourth seat.
bool PasarAlSiguiente(Table& t) {
  do {
    t.PosicionSonido = t.PosicionSonido + 1 > 4 ? t.PosicionSonido - 3 : t.PosicionSonido + 1;
    t.SonidosDados += 1;
    if (t.SonidosDados >= 5) return false;
  } while (t.CartasCambiadas[t.PosicionSonido] == 0);
  return true;
}

// Plays the cards of the seat PosicionSonido, one sound per card, panned to its side of the table.
void SonarCartas(Game& g) {
  Table& t = g.t;
  t.SonidoActual = SonidoUnaCarta;
  const Sitio sitio = Sitios[t.PosicionSonido];
  t.Mp1 = {.Veces = t.CartasCambiadas[t.PosicionSonido],
           .Balance = sitio.Balance,
           .Volumen = sitio.Volumen};
  g.port.OpenSound(t, u"Son_DaUnaCarta.wav");
}

}  // namespace

void SonidoCartas(Game& g, Integer Tipo) {
  g.t.Mp1.Veces = 1;
  if (Tipo != SonidoReparto && Tipo != SonidoBarajado) return;
  g.port.OpenSound(g.t, Tipo == SonidoReparto ? u"Son_ReparteCartas.mp3" : u"Son_BarajaCartas.mp3");
  g.t.SonidoActual = Tipo;
}

void SonidoDescartes(Game& g, const Array<Integer, 1, 4>& cambiadas, Seat primero) {
  g.t.CartasCambiadas = cambiadas;
  g.t.PosicionSonido = primero;
  g.t.SonidosDados = 1;
  SonarCartas(g);
}

void SiguienteSonidoDescartes(Game& g) {
  g.t.SonidoActual = SonidoUnaCarta;
  if (!PasarAlSiguiente(g.t)) return TerminarSecuencia(g);
  SonarCartas(g);
}

void SonidoAplauso(Game& g) { g.port.OpenSound(g.t, u"Son_aplauso.wav"); }

void Mp1_FinReproduccion(Game& g, Integer EstadoReproduccion) {
  constexpr int Parado = 0;
  constexpr int Inactivo = 6;
  if (EstadoReproduccion != Parado && EstadoReproduccion != Inactivo) return;
  if (g.t.SonidoActual == SonidoBarajado) return SonidoCartas(g, SonidoReparto);
  if (g.t.SonidoActual == SonidoUnaCarta) SiguienteSonidoDescartes(g);
}

}  // namespace tasca
