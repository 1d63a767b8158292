// Computes the scene from the table.
#include "scene/scene.h"

#include <algorithm>

#include "scene/slate.h"

namespace tasca {
namespace {

// A card is face up if it is the one that was shown in the same slot.
bool EstaAbierta(const Table& t, Seat asiento, int hueco) {
  const Integer carta = t.Manos[asiento][hueco];
  return carta != 0 && carta == t.CartasVistas[asiento][hueco];
}

// The human's empty slots stay where they are.
Array<Naipe, 1, 4> ManoDelJugador(const Table& t) {
  Array<Naipe, 1, 4> naipes;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    const Integer carta = t.Manos[AsientoHumano][hueco];
    naipes[hueco] = {.Hay = carta != 0, .Carta = carta};
  }
  return naipes;
}

// The empty slots come last: in a sorted face-down hand their places would reveal which cards were
// discarded.
Array<Naipe, 1, 4> ManoDeOtro(const Table& t, Seat asiento) {
  Array<Naipe, 1, 4> naipes;
  int siguiente = 1;
  for (int hueco = 1; hueco <= 4; ++hueco) {
    const Integer carta = t.Manos[asiento][hueco];
    if (carta == 0) continue;
    naipes[siguiente++] = {.Hay = true,
                           .Carta = EstaAbierta(t, asiento, hueco) ? carta : Integer{}};
  }
  return naipes;
}

// A declaration: the phase in which the seats declare, and the lance that follows.
struct PasoDeclaracion {
  Fase Pregunta;
  NumeroLance Lance;
};

constexpr PasoDeclaracion DePares{Fase::DeclaracionPares, NumeroLance::Pares};
constexpr PasoDeclaracion DeJuego{Fase::DeclaracionJuego, NumeroLance::Juego};

// Between two hands the table still holds the declarations of the last hand.
bool HaDeclarado(const Table& t, Momento momento, const PasoDeclaracion& d, Seat asiento) {
  if (t.Fase == Fase::EmpezarMano) return HayManosAbiertas(t) && !AcaboAntesDe(t, d.Lance);
  if (t.Fase != d.Pregunta) return t.Fase > d.Pregunta;
  if (momento == Momento::Reposo) return false;
  // The open box asks the human: the seats that speak earlier have declared.
  const auto turno = [&t](Seat s) {
    return std::find(t.OrdenAsiento.begin(), t.OrdenAsiento.end(), Integer{s});
  };
  return turno(asiento) < turno(AsientoHumano);
}

Declarado LoDeclarado(bool haDeclarado, bool tiene) {
  if (!haDeclarado) return Declarado::SinSaber;
  return tiene ? Declarado::Si : Declarado::No;
}

void Escuchar(const Table& t, Array<AsientoVisto, 1, 4>& asientos) {
  for (const Dicho& dicho : t.Dichos) asientos[dicho.Asiento].Bocadillo = dicho.Frase;
  if (!t.Dichos.empty()) asientos[t.Dichos.back().Asiento].HaHabladoElUltimo = true;
}

AsientoVisto AsientoDe(const Table& t, Momento momento, Seat asiento) {
  AsientoVisto visto;
  visto.Nombre = NombreAsiento(t, asiento);
  visto.EsMano = !t.ManoPorDecidir && t.OrdenAsiento[1] == asiento;
  visto.Naipes = asiento == AsientoHumano ? ManoDelJugador(t) : ManoDeOtro(t, asiento);
  visto.Pares = LoDeclarado(HaDeclarado(t, momento, DePares, asiento), t.OrdenPares[asiento] > 0);
  visto.Juego = LoDeclarado(HaDeclarado(t, momento, DeJuego, asiento), t.TurnoJuego[asiento] > 0);
  const bool acabaDeDescartar =
      t.Fase == Fase::Mus && t.RondasMus > 0 && momento == Momento::Reposo;
  if (acabaDeDescartar) visto.CartasCambiadas = t.CartasCambiadas[asiento];
  return visto;
}

Turno TurnoEn(Momento momento) {
  if (momento == Momento::Aviso) return Turno::Nadie;
  return momento == Momento::Pregunta ? Turno::Jugador : Turno::Enter;
}

// The thickness of a pile, 0 to 3. The exact number of cards cannot be seen, so it is no part of
// the scene.
int Grosor(int cartas) {
  constexpr int porCapa = CartasBaraja / 3 + 1;
  return (cartas + porCapa - 1) / porCapa;
}

// The targets follow ComprobarVaca: "al mejor de" N needs N modulo 2 + 1 wins, but never more vacas
// than the match has.
TanteoVisto TanteoDe(const Table& t, Pareja pareja) {
  const int vacas = t.VacasPartida;
  return {.Piedras = t.Piedras[pareja],
          .Juegos = t.Juegos[pareja],
          .Vacas = t.Vacas[pareja],
          .JuegosParaVaca = t.JuegosVaca % 2 + 1,
          .VacasParaPartida = std::min(vacas % 2 + 1, vacas)};
}

}  // namespace

Escena EscenaDe(const Table& t, Momento momento) {
  Escena escena;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    escena.Asientos[asiento] = AsientoDe(t, momento, asiento);
  }
  Escuchar(t, escena.Asientos);
  escena.Toca = TurnoEn(momento);
  escena.Pizarra = PizarraDe(t, momento);
  escena.GrosorMazo = Grosor(CartasBaraja + 1 - t.CartaSiguiente);
  escena.GrosorDescartes = Grosor(t.DescarteSiguiente - 1);
  for (const Pareja pareja : {0, 1}) escena.Tanteo[pareja] = TanteoDe(t, pareja);
  return escena;
}

bool HayManosAbiertas(const Table& t) {
  for (Seat asiento = 2; asiento <= 4; ++asiento) {
    for (int hueco = 1; hueco <= 4; ++hueco) {
      if (EstaAbierta(t, asiento, hueco)) return true;
    }
  }
  return false;
}

}  // namespace tasca
