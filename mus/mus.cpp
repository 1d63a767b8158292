// The mus phase: the questions and the computer seats' answers.
#include "mus/mus.h"

#include "base/text.h"
#include "cards/deck.h"
#include "characters/speech.h"
#include "lances/juego.h"
#include "lances/pares.h"

namespace tasca {
namespace {

bool QuiereMus(Game& g, Seat asiento) {
  if (asiento == AsientoHumano) {
    return g.port.YesNoBox(g.t, Pregunta::Mus, {.Titulo = u"¿mus?", .Texto = u""});
  }
  return DecideMus(g.t, g.rnd, asiento);
}

// Asks the seats in speaking order until one refuses. True if all four want mus.
bool TodosQuierenMus(Game& g) {
  Table& t = g.t;
  for (int i = 1; i <= 4; ++i) {
    const Seat asiento = t.OrdenAsiento[i];
    const bool quiere = QuiereMus(g, asiento);
    if (!quiere) {
      t.ParejaCortaMus = ParejaDe(asiento);
      if (t.ManoPorDecidir) OrdenarDesde(t, asiento);
      t.ManoPorDecidir = false;
    }
    const auto categoria = quiere ? MessageCategory::QMus : MessageCategory::NMus;
    DiceJugador(t, g.rnd, asiento, categoria, SinCantidad);
    if (!quiere) return false;
  }
  return true;
}

}  // namespace

void FaseMus(Game& g) {
  Table& t = g.t;
  EmpezarRelato(t);
  if (TodosQuierenMus(g)) {
    Descartar(g);
    t.RondasMus += 1;
  } else {
    // Kept: ends in CR without LF, and shows the character's name even without UsarNombres.
    t.Text2 += Join(PersonajeDe(t, t.OrdenAsiento[1]).Nombre.Trimmed(), u" es mano\r");
    t.Fase = Fase::Grande;
  }
  t.Text2 += u"Pulse enter para continuar";
}

void OrdenarDesde(Table& t, Seat asiento) {
  for (int k = 1; k <= 4; ++k) t.OrdenAsiento[k] = (asiento + k - 2) % 4 + 1;
}

bool DecideMus(const Table& t, Rnd& rnd, Seat asiento) {
  constexpr int OrdagueroPrudente = 50;
  bool quiere = false;
  // Kept: the score of the hand has no effect, because the answer is already no.
  if (PuntuacionMus(t, asiento) > 0) quiere = false;
  const float r = rnd();
  if (r < 0.95F) quiere = true;

  const bool tieneJuego = TieneJuego(t, asiento);
  const bool vaDetras = t.Piedras[ParejaContraria(asiento)] > t.Piedras[ParejaDe(asiento)];
  const bool esPrudente = t.OrdagueroAsiento[asiento] <= OrdagueroPrudente;
  if (TienePares(t, asiento) && tieneJuego && (vaDetras || !esPrudente)) quiere = false;

  const int reyes = CuentaCartas(t, asiento, ValorRey);
  if (tieneJuego && reyes > t.RondasMus + 1) quiere = false;
  return quiere;
}

int PuntuacionMus(const Table& t, Seat asiento) {
  constexpr int Treintaydos = 32;
  constexpr int Cerca = 7;
  int puntuacion = 0;
  const int puntos = PuntosJuego(t, asiento);
  if (puntos == Treintaydos) puntuacion += 1;
  if (puntos == Treintayuna) puntuacion += 2;
  if (t.PiedrasJuego - t.Piedras[ParejaDe(asiento)] < Cerca) puntuacion += 2;
  for (int i = 1; i <= 4; ++i) {
    if (t.OrdenAsiento[i] == asiento) puntuacion -= i - 1;
  }
  return puntuacion;
}

}  // namespace tasca
