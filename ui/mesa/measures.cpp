// Computes the lengths of the drawn table.
#include "ui/mesa/measures.h"

#include <algorithm>
#include <cmath>

namespace tasca {
namespace {

constexpr double AltoTecla = 2.9;   // of the Enter key, in letters
constexpr double AltoFila = 3.1;    // of the row above the cards
constexpr double LadoMinimo = 9.4;  // beside the player's cards, for the plate

bool HayAbiertas(const Escena& escena) {
  for (Seat asiento = 2; asiento <= 4; ++asiento) {
    for (const Naipe& naipe : escena.Asientos[asiento].Naipes) {
      if (naipe.Hay && naipe.Carta != 0) return true;
    }
  }
  return false;
}

double AnchoMano(const Medidas& m, double alto) { return 4 * alto * ProporcionCarta + 3 * m.Hueco; }

// The height of four cards that are `ancho` wide together.
double AltoQueCabe(const Medidas& m, double ancho) {
  return (ancho - 3 * m.Hueco) / 4 / ProporcionCarta;
}

double AltoPizarra(const Medidas& m) { return m.f * (m.Baja ? 4.4 : 5.0); }

double Separacion(const Medidas& m) { return m.f * (m.Baja ? 0.45 : 0.9); }

void PonerPano(Medidas& m, const Rect& donde) {
  const double suelo = m.f * (m.Baja ? 0.45 : 0.9);
  const double borde = m.f * (m.Baja ? 0.8 : 1.5);
  m.Madera = Dentro(donde, std::round(suelo));
  m.Pano = Dentro(m.Madera, std::round(borde));
  m.Util = Dentro(m.Pano, m.f * (m.Baja ? 0.8 : 1.15));
  m.Hueco = m.f * 0.5;
}

void CentrarMano(Medidas& m, double alto) {
  alto = std::floor(alto);
  const double ancho = AnchoMano(m, alto);
  m.Mano = {std::round(m.Util.CentroX() - ancho / 2), std::round(m.Util.Abajo() - alto), ancho,
            alto};
}

// The height of the player's cards in a low picture: what the slate and a plate leave.
double AltoEnBaja(const Medidas& m, double alto) {
  const double cabe = m.Util.Alto - AltoPizarra(m) - 2 * Separacion(m) - 3.95 * m.f;
  return std::min(std::max(84.0, std::min(0.31 * alto, std::max(110.0, 8.3 * m.f))), cabe);
}

// Beside the cards there has to be room for a plate, unless cards below it can be much larger.
void PonerMano(Medidas& m, const Rect& donde) {
  if (m.Baja) return CentrarMano(m, AltoEnBaja(m, donde.Alto));
  const double alto =
      std::min(std::max(84.0, 0.285 * donde.Alto), AltoQueCabe(m, 0.62 * donde.Ancho));
  const double alLado = std::min(alto, AltoQueCabe(m, m.Util.Ancho - 2 * LadoMinimo * m.f));
  const double debajo = std::min(0.225 * donde.Alto, AltoQueCabe(m, m.Util.Ancho));
  m.PlacaEncima = debajo > 1.15 * alLado;
  CentrarMano(m, m.PlacaEncima ? debajo : alLado);
  if (m.PlacaEncima) {
    const double y = m.Mano.Y - m.f * (AltoFila + 0.35);
    m.Fila = {m.Util.X, y, m.Util.Ancho, AltoFila * m.f};
  }
}

void PonerEnter(Medidas& m) {
  const double alto = AltoTecla * m.f;
  const double sitio = m.Util.Derecha() - m.Mano.Derecha() - 0.8 * m.f;
  const double ancho = m.PlacaEncima ? 7.5 * m.f : std::min(8 * m.f, sitio);
  const double abajo = m.PlacaEncima ? m.Fila.Abajo() : m.Util.Abajo();
  m.Enter = {m.Util.Derecha() - ancho, abajo - alto, ancho, alto};
}

void PonerTabla(Medidas& m, const Rect& donde, int lances) {
  const double arriba = m.PlacaEncima ? m.Fila.Y : m.Mano.Y;
  const double alto = AltoPizarra(m);
  double ancho = std::min({m.Util.Ancho, 8.8 * m.f * lances, donde.Ancho * (m.Baja ? 0.5 : 0.8)});
  if (m.Baja) ancho = std::min(ancho, m.Util.Ancho - 24 * m.f);
  m.Pizarra = {m.Util.CentroX() - ancho / 2, arriba - Separacion(m) - alto, ancho, alto};
  m.Techo = m.Pizarra.Y - Separacion(m);
}

// What the height leaves for each of two rows of open cards, above a plate and its badges.
double AltoDosFilas(const Medidas& m) { return (m.Techo - m.Util.Y - 4.55 * m.f - m.Hueco) / 2; }

double AltoOchoAlLado(const Medidas& m) {
  return (m.Util.Ancho - 5 * m.Hueco - 2 * m.f) / 8 / ProporcionCarta;
}

void AbrirManos(Medidas& m) {
  const double legible = std::max(64.0, 4 * m.f);
  if (AltoDosFilas(m) < legible) {
    m.Pizarra = {};
    m.Techo = (m.PlacaEncima ? m.Fila.Y : m.Mano.Y) - Separacion(m);
  }
  m.AltoOtros = std::floor(std::min({0.8 * m.Mano.Alto, AltoDosFilas(m), AltoOchoAlLado(m)}));
  m.Apretada = !m.PlacaEncima && (m.Baja || m.AltoOtros < std::min(legible, 0.8 * m.Mano.Alto));
  if (!m.Apretada) return;
  double alto =
      std::min((m.Util.Alto - 3.4 * m.f) / 2, std::max(56.0, (m.Util.Ancho - 25 * m.f) / 2.6));
  if (!m.Baja) alto = std::min(alto, m.Mano.Alto);
  CentrarMano(m, alto);
  m.Pizarra = {};
  m.AltoOtros = m.Mano.Alto;
}

}  // namespace

Medidas MedidasDe(const Escena& escena, const Rect& donde, double letra) {
  Medidas m;
  m.f = letra;
  m.Baja = donde.Alto < 30 * letra;
  m.Abierta = HayAbiertas(escena);
  PonerPano(m, donde);
  PonerMano(m, donde);
  PonerEnter(m);
  PonerTabla(m, donde, static_cast<int>(escena.Pizarra.size()));
  m.AltoOtros = std::floor(m.Mano.Alto * (m.Baja ? 0.6 : 0.55));
  if (m.Abierta) AbrirManos(m);
  return m;
}

}  // namespace tasca
