// Plates, badges, bubbles, and the player's seat, which is made of them.
#include "ui/mesa/seats.h"

#include <algorithm>
#include <cmath>

#include "ui/mesa/palabras.h"

namespace tasca {
namespace {

double Alinear(const Rect& sitio, double ancho, Alineado a) {
  if (a == Alineado::Izquierda) return sitio.X;
  return a == Alineado::Derecha ? sitio.Derecha() - ancho : sitio.CentroX() - ancho / 2;
}

std::vector<Distintivo> DistintivosDe(const AsientoVisto& visto) {
  std::vector<Distintivo> todos;
  const auto anadir = [&todos](std::u16string texto, ClaseDistintivo clase, bool negrita) {
    if (!texto.empty()) todos.push_back({{}, std::move(texto), clase, {0.86, negrita}});
  };
  const auto clase = [](Declarado que) {
    return que == Declarado::Si ? ClaseDistintivo::Si : ClaseDistintivo::No;
  };
  if (visto.EsMano) anadir(std::u16string{PalabraMano}, ClaseDistintivo::Mano, true);
  anadir(ParesEscritos(visto.Pares), clase(visto.Pares), false);
  anadir(JuegoEscrito(visto.Juego), clase(visto.Juego), false);
  if (visto.CartasCambiadas) {
    anadir(CambioEscrito(*visto.CartasCambiadas), ClaseDistintivo::Si, false);
  }
  return todos;
}

void PonerCartasDelJugador(const Composicion& c) {
  const Rect& mano = c.M.Mano;
  const double ancho = mano.Alto * ProporcionCarta;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    const Naipe& naipe = c.Vista.Asientos[AsientoHumano].Naipes[hueco];
    if (!naipe.Hay) continue;
    const double x = mano.X + (hueco - 1) * (ancho + c.M.Hueco);
    c.Hoja.Piezas.emplace_back(
        CartaPuesta{{x, mano.Y, ancho, mano.Alto}, naipe.Carta, false, AsientoHumano, hueco});
  }
}

void PonerTurno(const Composicion& c) {
  if (c.Vista.Toca == Turno::Enter) c.Hoja.Piezas.emplace_back(TeclaPuesta{c.M.Enter});
  if (c.Vista.Toca != Turno::Jugador) return;
  const double f = c.M.f;
  const double ancho =
      std::min(c.Mide(PalabraLeToca, {1, true}) + 1.4 * f, c.M.Enter.Ancho - 0.6 * f);
  const double cerca = c.M.PlacaEncima ? c.M.Enter.Derecha() - ancho : c.M.Mano.Derecha() + 1.1 * f;
  const double x = std::min(cerca, c.M.Enter.Derecha() - ancho);
  c.Hoja.Piezas.emplace_back(AvisoTurno{{x, c.M.Enter.Abajo() - 2.2 * f, ancho, 1.9 * f}});
}

// Plate, badges and bubble in one row.
void PonerJugadorEnFila(const Composicion& c) {
  const double f = c.M.f;
  const Rect& fila = c.M.Fila;
  const double y = fila.Y + (fila.Alto - AltoPlaca * f) / 2;
  const double hasta = c.M.Enter.X - f;
  const Rect placa =
      PonerPlaca(c, AsientoHumano, {fila.X, y, std::min(12 * f, fila.Ancho / 3), AltoPlaca * f},
                 Alineado::Izquierda);
  const double x = placa.Derecha() + 0.5 * f;
  const Rect distintivos = PonerDistintivos(
      c, AsientoHumano, Entre(x, y + 0.32 * f, std::min(x + 13 * f, hasta), y + 2 * f),
      Alineado::Izquierda);
  const double desde = std::max(x, distintivos.Derecha()) + f;
  const Globo globo = GloboPara(c, AsientoHumano, hasta - desde, fila.Alto);
  PonerGlobo(c, AsientoHumano, globo, desde, fila.CentroY() - globo.Alto / 2, Lado::Izquierda,
             desde - 0.8 * f, fila.CentroY());
}

// How far up the player's bubble may reach: to what already lies above `sitio`.
double TopeDelGlobo(const Composicion& c, const Rect& sitio) {
  if (!c.M.Baja && !c.M.Apretada) return c.M.Mano.Y;
  double tope = c.M.Util.Y;
  for (const Pieza& pieza : c.Hoja.Piezas) {
    const Rect donde = Lugar(pieza);
    if (donde.X < sitio.Derecha() && donde.Derecha() > sitio.X && donde.Y < sitio.Y) {
      tope = std::max(tope, donde.Abajo() + 0.5 * c.M.f);
    }
  }
  return tope;
}

// Left of the cards, from the bottom upwards.
void PonerJugadorAlLado(const Composicion& c) {
  const double f = c.M.f;
  const double ancho = c.M.Mano.X - c.M.Util.X - 0.8 * f;
  const Rect sitio{c.M.Util.X, c.M.Util.Abajo() - AltoPlaca * f, ancho, AltoPlaca * f};
  PonerPlaca(c, AsientoHumano, sitio, Alineado::Izquierda);
  double y = sitio.Y - (BajoPlaca + AltoDistintivo) * f;
  const Rect distintivos = PonerDistintivos(
      c, AsientoHumano, {sitio.X, y, ancho, AltoDistintivo * f}, Alineado::Izquierda);
  if (distintivos.Vacio()) y = sitio.Y;
  y -= 0.8 * f;
  const Globo globo = GloboPara(c, AsientoHumano, ancho, y - TopeDelGlobo(c, sitio));
  PonerGlobo(c, AsientoHumano, globo, sitio.X, y - globo.Alto, Lado::Abajo, sitio.X + 1.7 * f,
             y + 0.65 * f);
}

}  // namespace

Letra LetraDeGlobo(const Composicion& c) { return {c.M.Baja ? 1.0 : 1.06, false}; }

// A long name gets smaller letters before it is shortened.
Letra LetraDePlaca(const Composicion& c, std::u16string_view nombre, double ancho) {
  Letra letra{1.06, true};
  for (const double menor : {0.96, 0.86}) {
    if (c.Mide(nombre, letra) > ancho) letra.Factor = menor;
  }
  return letra;
}

Rect PonerPlaca(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a) {
  const double f = c.M.f;
  const AsientoVisto& visto = c.Vista.Asientos[asiento];
  const double adornos = f * (visto.EsMano ? 4.2 : 2.5);
  Placa placa;
  placa.De = asiento;
  placa.EsMano = visto.EsMano;
  placa.LeToca = asiento == AsientoHumano && c.Vista.Toca == Turno::Jugador;
  placa.Tipo = LetraDePlaca(c, visto.Nombre, sitio.Ancho - adornos);
  placa.Nombre = Abreviado(visto.Nombre, placa.Tipo, sitio.Ancho - adornos, c.Mide);
  const double ancho = std::min(sitio.Ancho, adornos + c.Mide(placa.Nombre, placa.Tipo));
  placa.Donde = {Alinear(sitio, ancho, a), sitio.Y, ancho, AltoPlaca * f};
  c.Hoja.Piezas.emplace_back(placa);
  return placa.Donde;
}

Rect PonerDistintivos(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a) {
  std::vector<Distintivo> todos = DistintivosDe(c.Vista.Asientos[asiento]);
  if (todos.empty()) return {};
  const double f = c.M.f;
  double ancho = -0.3 * f;
  for (Distintivo& uno : todos) {
    uno.Donde = {0, sitio.Y, c.Mide(uno.Texto, uno.Tipo) + 0.9 * f, AltoDistintivo * f};
    ancho += uno.Donde.Ancho + 0.3 * f;
  }
  const double escala = std::min(1.0, sitio.Ancho / ancho);
  double x = Alinear(sitio, ancho * escala, a);
  const Rect cubierto{x, sitio.Y, ancho * escala, AltoDistintivo * f};
  for (Distintivo& uno : todos) {
    uno.Donde.X = x;
    uno.Donde.Ancho *= escala;
    uno.Tipo.Factor *= std::max(0.75, escala);
    x += uno.Donde.Ancho + 0.3 * f * escala;
    c.Hoja.Piezas.emplace_back(std::move(uno));
  }
  return cubierto;
}

void PonerPlacaYDistintivos(const Composicion& c, Seat asiento, const Rect& sitio, Alineado a) {
  const Rect placa = PonerPlaca(c, asiento, sitio, a);
  Rect debajo = sitio;
  debajo.Y = placa.Abajo() + BajoPlaca * c.M.f;
  PonerDistintivos(c, asiento, debajo, a);
}

Globo GloboPara(const Composicion& c, Seat asiento, double ancho, double alto) {
  const double f = c.M.f;
  const int caben = std::min(5, static_cast<int>((alto / f - AltoGlobo(0)) / 1.4));
  const double borde = 1.35 * f;
  constexpr double anchoMinimo = 4.5;
  if (caben < 1 || ancho < anchoMinimo * f) return {};
  Globo globo;
  const Letra letra = LetraDeGlobo(c);
  globo.Lineas = EnLineas(c.Vista.Asientos[asiento].Bocadillo, letra, ancho - borde, caben, c.Mide);
  if (globo.Lineas.empty()) return {};
  globo.Ancho = std::min(ancho, AnchoMayor(globo.Lineas, letra, c.Mide) + borde);
  globo.Alto = AltoGlobo(static_cast<int>(globo.Lineas.size())) * f;
  return globo;
}

void PonerGlobo(const Composicion& c, Seat asiento, const Globo& globo, double x, double y,
                Lado punta, double puntaX, double puntaY) {
  if (globo.Lineas.empty()) return;
  c.Hoja.Piezas.emplace_back(Bocadillo{{x, y, globo.Ancho, globo.Alto},
                                       globo.Lineas,
                                       LetraDeGlobo(c).Factor,
                                       asiento,
                                       c.Vista.Asientos[asiento].HaHabladoElUltimo,
                                       punta,
                                       puntaX,
                                       puntaY});
}

void PonerJugador(const Composicion& c) {
  PonerCartasDelJugador(c);
  if (c.M.PlacaEncima) {
    PonerJugadorEnFila(c);
  } else {
    PonerJugadorAlLado(c);
  }
  PonerTurno(c);
}

}  // namespace tasca
