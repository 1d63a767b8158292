// Juego: declaration, decisions and comparison.
#include "lances/juego.h"

#include "base/text.h"
#include "cards/deck.h"
#include "characters/speech.h"
#include "lances/bidding.h"
#include "lances/decisions.h"
#include "lances/declaration.h"
#include "lances/ranking.h"

namespace tasca {
namespace {

constexpr PreguntaDeclaracion PreguntaJuego{
    .Sobre = Pregunta::Juego,
    .Titulo = u"¿Tiene Juego?",
    .SiEnRealidad = u"sí tiene Juego, y eso es lo que dice (por lo que pudiera pasar...)",
    .NoEnRealidad = u"no tiene Juego y eso es lo que dice (por lo que pudiera pasar...)",
};

// The rank of a juego by its points: 10 (best) for 31 down to 1 for 33; 0 without juego.
int RangoJuego(int puntos) {
  switch (puntos) {
    case 31:
      return 10;
    case 32:
      return 9;
    case 40:
      return 8;
    case 39:
      return 7;
    case 38:
      return 6;
    case 37:
      return 5;
    case 36:
      return 4;
    case 35:
      return 3;
    case 34:
      return 2;
    case 33:
      return 1;
    default:
      return 0;
  }
}

// The reversed rank that the decisions use: 1 (best) for 31, 2 for 32, 3 for 40, ... 10 for 33.
int FuerzaJuego(const Table& t, Seat asiento) { return 11 - RangoJuego(PuntosJuego(t, asiento)); }

// Whether the seat bets. Always draws five times.
bool ApuestaAJuego(const Table& t, Rnd& rnd, Seat asiento) {
  const int fuerza = FuerzaJuego(t, asiento);
  const bool primero = t.TurnoJuego[asiento] == 1;
  const bool segundo = t.TurnoJuego[asiento] == 2;
  const float ordaguero = static_cast<float>(t.OrdagueroAsiento[asiento]) / 2.0F;
  const float r1 = rnd();
  const float r2 = rnd();
  const float r3 = rnd();
  const float r4 = rnd();
  const float r5 = rnd();
  bool apuesta = fuerza < 3 && r1 < 0.85F && primero;
  if (fuerza < 5 && r2 < 0.35F && primero) apuesta = true;
  if (r3 * 100.0F < ordaguero && primero) apuesta = true;
  if (fuerza < 4 && r4 < 0.4F && segundo) apuesta = true;
  if (r5 * 100.0F < ordaguero && fuerza < 6 && segundo) apuesta = true;
  return apuesta;
}

// By pareja: 1 + its seats with juego that have declared.
// Kept: a seat's turn is the counter of the other pareja.
struct ContadoresJuego {
  Array<int, 0, 1> Turno{1, 1};
};

// One seat declares. If it has juego, sets its TurnoJuego.
bool DeclararAsiento(Game& g, Seat asiento, ContadoresJuego& contadores) {
  Table& t = g.t;
  const bool tiene = TieneJuego(t, asiento);
  if (asiento == AsientoHumano) PreguntarDeclaracion(g, PreguntaJuego, tiene);
  if (tiene) {
    t.TurnoJuego[asiento] = contadores.Turno[ParejaContraria(asiento)];
    ++contadores.Turno[ParejaDe(asiento)];
  }
  DiceJugador(t, g.rnd, asiento, tiene ? MessageCategory::TJue : MessageCategory::NJue,
              SinCantidad);
  return tiene;
}

}  // namespace

bool TieneJuego(const Table& t, Seat asiento) { return PuntosJuego(t, asiento) >= Treintayuna; }

void DeclaraJuego(Game& g) {
  Table& t = g.t;
  EmpezarRelato(t);
  t.TurnoJuego = {};
  Array<bool, 0, 1> tienen;
  ContadoresJuego contadores;
  for (int i = 1; i <= 4; ++i) {
    const Seat asiento = t.OrdenAsiento[i];
    if (DeclararAsiento(g, asiento, contadores)) tienen[ParejaDe(asiento)] = true;
  }
  if (tienen[0] && tienen[1]) {
    t.Text2 += AvisoContinuar;
    t.Fase = Fase::Juego;
  } else if (tienen[0] || tienen[1]) {
    t.Text2 += Join(u"Una de las dos parejas no tiene Juego", CrLf, AvisoContar);
    t.Fase = Fase::Cuenta;
  } else {
    t.Text2 += Join(u"Ninguna de las dos parejas tiene Juego", CrLf, AvisoContinuar);
    t.SeJuegaPunto = true;
    t.Fase = Fase::Punto;
  }
}

Pareja MejorJuego(const Table& t) {
  Array<int, 1, 4> rangos;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    rangos[asiento] = RangoJuego(PuntosJuego(t, asiento));
  }
  return ParejaDe(MejorAsiento(t, rangos));
}

Decision DecideJuego(const Table& t, Rnd& rnd, Seat asiento) {
  if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  if (!ApuestaAJuego(t, rnd, asiento)) return Decision::Paso;
  const bool faltaMucho =
      3 * t.Piedras[0] < 2 * t.PiedrasJuego && 3 * t.Piedras[1] < 2 * t.PiedrasJuego;
  if (faltaMucho) return Decision::Envido;
  if (Marcador{t, asiento}.ContrariosCerca) return Decision::Ordago;
  const float r = rnd();
  return r < 0.2F ? Decision::EnvidoMas : Decision::Envido;
}

Decision RespondeJuego(const Table& t, Rnd& rnd, Seat asiento) {
  return RespuestaPorFuerza(t, rnd, asiento, t.TurnoJuego[asiento] * FuerzaJuego(t, asiento));
}

namespace {

constexpr Lance Juego{
    .Numero = NumeroLance::Juego,
    .Encabezado = u"\r\nEl juego",
    .EncabezadoReemplaza = false,
    .EmpiezaSinEnvite = true,
    .TituloApertura = u"El Juego",
    .TituloCantidad = u"Envite a Juego",
    .TituloRespuesta = u"Envite a Juego",
    .TituloCantidadAlSubir = u"Envite a Juego",
    .EnPaso = u"\r\nEl juego queda en paso\r\nPulse enter para contar",
    .OrdagoGanado = u"órdago a Juego querido y ganado por la pareja ",
    .Aviso = AvisoContar,
    .SiEnvidan = Fase::RespuestaJuego,
    .SiPasan = Fase::Cuenta,
    .TrasRespuesta = Fase::Cuenta,
    .YaContado = u"",
    .Envidadas = u" envidadas a juego ",
    .UnaEnPaso = u"",
    .RefrescosAlRehusar = 1,
    .DeclaraAlRehusar = true,
    .AvisoTrasOrdago = false,
    .PuedeHablar = TieneJuego,
    .Decide = DecideJuego,
    .Responde = RespondeJuego,
    .Gana = [](Game& g) { return MejorJuego(g.t); },
};

}  // namespace

const Lance& DatosJuego() { return Juego; }

void LanceJuego(Game& g) { AbrirLance(g, Juego); }
void EnviteJuego(Game& g) { ResponderLance(g, Juego); }

}  // namespace tasca
