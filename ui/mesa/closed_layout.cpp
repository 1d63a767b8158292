// Seats 2 to 4 while their cards lie face down: bubbles beside or above the cards, the middle of
// the cloth free.
#include <algorithm>
#include <cmath>

#include "ui/mesa/seats.h"

namespace tasca {
namespace {

// The three parts of the upper half. With a band, the partner's plate and bubble lie above the side
// seats; without, between them.
struct Zonas {
  double Banda = 0;  // height, 0 for none
  double Columna = 0;
  double LadoArriba = 0;
  double LadoAbajo = 0;
};

// A hand that lies face down on its side: four backs, one over the other.
struct Pila {
  double Alto = 0;  // of one card: the width of the pile
  double Paso = 0;

  double Altura() const { return Alto * ProporcionCarta + 3 * Paso; }
};

Pila PilaDe(double alto, double paso) {
  return {.Alto = std::floor(alto), .Paso = std::floor(alto) * paso};
}

constexpr double PasoHolgado = 0.24;
constexpr double PasoPrieto = 0.15;

// The height below a pile that the plate and the badges need.
double DebajoDeLaPila(const Medidas& m) { return (0.6 + ConDistintivos) * m.f; }

double AnchoCompanero(double alto) { return alto * ProporcionCarta * (4 - 3 * 0.38); }

// The height of a side seat with a bubble of that number of lines above the pile.
double AltoMinimoDelLado(const Medidas& m, int lineas) {
  return PilaDe(m.AltoOtros, PasoHolgado).Altura() + DebajoDeLaPila(m) +
         (AltoGlobo(lineas) + 1.2) * m.f;
}

Zonas ZonasBajas(const Medidas& m) {
  const double centro = std::max(m.Pizarra.Ancho, m.Mano.Ancho);
  return {.Columna = (m.Util.Ancho - centro) / 2 - 0.6 * m.f,
          .LadoArriba = m.Util.Y,
          .LadoAbajo = m.Util.Abajo() - (ConDistintivos + 0.5) * m.f};
}

Zonas ZonasDe(const Medidas& m) {
  if (m.Baja) return ZonasBajas(m);
  Zonas z;
  const double centro = AnchoCompanero(m.AltoOtros) + 2 * m.f;
  z.Columna = std::min(std::max(13.2 * m.f, 0.235 * m.Pano.Ancho), (m.Util.Ancho - centro) / 2);
  z.LadoArriba = m.Util.Y;
  z.LadoAbajo = m.Techo;
  for (const int lineas : {4, 3, 2}) {
    const double banda = std::max(AltoGlobo(lineas), ConDistintivos) + 0.6;
    const int alLado = lineas == 2 ? 1 : lineas + 1;
    if (m.Techo - m.Util.Y - banda * m.f < AltoMinimoDelLado(m, alLado)) continue;
    z.Banda = banda * m.f;
    z.LadoArriba += z.Banda;
    break;
  }
  return z;
}

void PonerPila(const Composicion& c, Seat asiento, const Pila& pila, double x, double y) {
  const double grueso = pila.Alto * ProporcionCarta;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    if (!c.Vista.Asientos[asiento].Naipes[hueco].Hay) continue;
    const Rect donde{x, y + (hueco - 1) * pila.Paso, pila.Alto, grueso};
    c.Hoja.Piezas.emplace_back(CartaPuesta{donde, 0, true, asiento, hueco});
  }
}

// The bubble beside the pile, towards the middle.
void PonerGloboAlLado(const Composicion& c, Seat asiento, const Rect& lado, const Rect& pila) {
  const double f = c.M.f;
  const Globo globo = GloboPara(c, asiento, lado.Ancho - pila.Ancho - 1.2 * f, pila.Alto);
  const bool izquierda = asiento == 4;
  const double x = izquierda ? pila.Derecha() + 1.2 * f : pila.X - 1.2 * f - globo.Ancho;
  const double y = pila.Y + std::min(1.4 * f, globo.Alto / 2);
  PonerGlobo(c, asiento, globo, x, pila.Y, izquierda ? Lado::Izquierda : Lado::Derecha,
             izquierda ? pila.Derecha() + 0.3 * f : pila.X - 0.3 * f, y);
}

void PonerGloboEncima(const Composicion& c, Seat asiento, const Rect& lado, const Globo& globo,
                      const Rect& pila) {
  const double f = c.M.f;
  const bool izquierda = asiento == 4;
  const double x = izquierda ? lado.X : lado.Derecha() - globo.Ancho;
  const double punta = izquierda ? lado.X + 2.4 * f : lado.Derecha() - 2.4 * f;
  PonerGlobo(c, asiento, globo, x, pila.Y - f - globo.Alto, Lado::Abajo, punta, pila.Y - 0.35 * f);
}

// The pile in the middle of its height, lower where the bubble above it needs that. It leaves room
// for two lines from the start, so that the cards seldom move.
double AlturaDeLaPila(const Composicion& c, const Rect& lado, double sobra, const Globo& globo) {
  const double f = c.M.f;
  const double dosLineas = std::min(sobra, (AltoGlobo(2) + 1.2) * f);
  const double dicho = globo.Lineas.empty() ? 0 : globo.Alto + 1.2 * f;
  return std::round(lado.Y + std::max({sobra / 2, dosLineas, std::min(sobra, dicho)}));
}

// A long name may reach into the free cloth, where there is much of it.
double AlcanceDePlaca(const Medidas& m, const Zonas& z) {
  if (z.Banda <= 0) return z.Columna;
  return std::max(z.Columna, std::min(1.3 * z.Columna, m.Util.Ancho / 2 - 12 * m.f));
}

void PonerLado(const Composicion& c, Seat asiento, const Zonas& z) {
  const double f = c.M.f;
  const bool izquierda = asiento == 4;
  const double x = izquierda ? c.M.Util.X : c.M.Util.Derecha() - z.Columna;
  const Rect lado = Entre(x, z.LadoArriba, x + z.Columna, z.LadoAbajo);
  const double cabe = lado.Alto - DebajoDeLaPila(c.M);
  Pila pila = PilaDe(c.M.AltoOtros, PasoHolgado);
  if (pila.Altura() > cabe) {
    pila = PilaDe(std::min(c.M.AltoOtros, cabe / (ProporcionCarta + 3 * PasoPrieto)), PasoPrieto);
  }
  const double sobra = cabe - pila.Altura();
  const bool encima = !c.M.Baja && sobra >= (AltoGlobo(1) + 1.2) * f;
  const Globo globo = encima ? GloboPara(c, asiento, lado.Ancho, sobra - 1.2 * f) : Globo{};
  const double y = encima ? AlturaDeLaPila(c, lado, sobra, globo) : std::round(lado.Y);
  const Rect cartas{izquierda ? x : lado.Derecha() - pila.Alto, y, pila.Alto, pila.Altura()};
  PonerPila(c, asiento, pila, cartas.X, cartas.Y);
  const double alcance = AlcanceDePlaca(c.M, z);
  const Rect debajo{izquierda ? x : lado.Derecha() - alcance, cartas.Abajo() + 0.6 * f, alcance, 0};
  PonerPlacaYDistintivos(c, asiento, debajo, izquierda ? Alineado::Izquierda : Alineado::Derecha);
  if (encima) return PonerGloboEncima(c, asiento, lado, globo, cartas);
  PonerGloboAlLado(c, asiento, lado, cartas);
}

Rect PonerCartasDelCompanero(const Composicion& c, double alto) {
  alto = std::floor(alto);
  const double ancho = alto * ProporcionCarta;
  const double fila = AnchoCompanero(alto);
  const Rect cartas{std::round(c.M.Util.CentroX() - fila / 2), std::round(c.M.Util.Y), fila, alto};
  for (int hueco = 1; hueco <= 4; ++hueco) {
    if (!c.Vista.Asientos[3].Naipes[hueco].Hay) continue;
    const Rect donde{cartas.X + (hueco - 1) * ancho * 0.62, cartas.Y, ancho, alto};
    c.Hoja.Piezas.emplace_back(CartaPuesta{donde, 0, false, 3, hueco});
  }
  return cartas;
}

// The partner's bubble right of the cards, or below the plate where the sides have no room; the
// line below everything of the partner's.
double PonerGloboDelCompanero(const Composicion& c, const Rect& sitio, const Rect& cartas,
                              bool alLado, double debajo) {
  const double f = c.M.f;
  const double x = cartas.Derecha() + 1.4 * f;
  const Globo derecha = GloboPara(c, 3, sitio.Derecha() - x, alLado ? sitio.Alto : cartas.Alto);
  if (!derecha.Lineas.empty()) {
    PonerGlobo(c, 3, derecha, x, cartas.Y, Lado::Izquierda, cartas.Derecha() + 0.4 * f,
               cartas.Y + std::min(1.3 * f, derecha.Alto / 2));
    return std::max(debajo, cartas.Y + derecha.Alto);
  }
  const double y = debajo + 0.9 * f;
  const Globo bajo = GloboPara(c, 3, sitio.Ancho, sitio.Abajo() - y);
  PonerGlobo(c, 3, bajo, sitio.CentroX() - bajo.Ancho / 2, y, Lado::Abajo, sitio.CentroX(),
             y + bajo.Alto);
  return bajo.Lineas.empty() ? debajo : y + bajo.Alto;
}

double PonerCompanero(const Composicion& c, const Zonas& z) {
  const double f = c.M.f;
  const double margen = z.Banda > 0 ? 0 : z.Columna + 0.6 * f;
  const double hasta = z.Banda > 0 ? c.M.Util.Y + z.Banda - 0.4 * f : c.M.Techo;
  const Rect sitio = Entre(c.M.Util.X + margen, c.M.Util.Y, c.M.Util.Derecha() - margen, hasta);
  const double cabe = c.M.Techo - sitio.Y;
  const double lado = (sitio.Ancho - AnchoCompanero(std::min(c.M.AltoOtros, cabe))) / 2 - 0.9 * f;
  constexpr double placaMinima = 6.5;
  const bool alLado = lado >= placaMinima * f && sitio.Alto >= ConDistintivos * f;
  const Rect cartas = PonerCartasDelCompanero(
      c, std::min(c.M.AltoOtros, alLado ? cabe : cabe - (0.4 + ConDistintivos) * f));
  if (!alLado) {
    const double y = cartas.Abajo() + 0.4 * f;
    PonerPlacaYDistintivos(c, 3, {sitio.X, y, sitio.Ancho, 0}, Alineado::Centro);
    return PonerGloboDelCompanero(c, sitio, cartas, false, y + ConDistintivos * f);
  }
  const double ancho = z.Banda > 0 ? std::min(lado, std::max(16 * f, lado * 0.65)) : lado;
  PonerPlacaYDistintivos(c, 3, {cartas.X - 0.9 * f - ancho, cartas.Y, ancho, 0}, Alineado::Derecha);
  const double debajo = std::max(cartas.Abajo(), cartas.Y + ConDistintivos * f);
  return PonerGloboDelCompanero(c, sitio, cartas, true, debajo);
}

}  // namespace

void PonerOtrosTapados(const Composicion& c) {
  const Zonas z = ZonasDe(c.M);
  PonerLado(c, 2, z);
  PonerLado(c, 4, z);
  double ocupado = z.Columna;
  for (const Pieza& pieza : c.Hoja.Piezas) {
    const Rect donde = Lugar(pieza);
    ocupado =
        std::max(ocupado, std::min(donde.Derecha() - c.M.Util.X, c.M.Util.Derecha() - donde.X));
  }
  const double debajo = PonerCompanero(c, z);
  const double margen = ocupado + 0.6 * c.M.f;
  c.Hoja.Libre = Entre(c.M.Util.X + margen, std::max(debajo, c.M.Util.Y + z.Banda) + 0.4 * c.M.f,
                       c.M.Util.Derecha() - margen, c.M.Techo);
}

}  // namespace tasca
