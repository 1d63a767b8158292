// The count, lance by lance.
#include "count/count.h"

#include <optional>

#include "base/text.h"
#include "cards/deck.h"
#include "cards/hand_text.h"
#include "characters/speech.h"
#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/pequena.h"
#include "lances/punto.h"
#include "score/scoreboard.h"

namespace tasca {
namespace {

std::u16string SeSaca(Pareja pareja) { return Join(u"La pareja ", pareja, u" se saca "); }

// The pareja that takes the grande or the pequeña; none when the bidding has settled it.
std::optional<Pareja> ContarPorCartas(Game& g, const Lance& lance) {
  Table& t = g.t;
  const int apuesta = t.Apuesta[lance.Numero];
  if (apuesta < 0) {
    t.Text2 += Join(lance.YaContado, CrLf);
    return std::nullopt;
  }
  const Pareja pareja = lance.Gana(g);
  t.Text2 += SeSaca(pareja);
  if (apuesta > 0) {
    t.Text2 += Join(u" las ", apuesta, lance.Envidadas, CrLf);
    t.Piedras[pareja] += apuesta;
  } else {
    t.Text2 += Join(lance.UnaEnPaso, CrLf);
    t.Piedras[pareja] += 1;
  }
  return pareja;
}

// The seat's name after a phrase that ends in "de"; "de el ..." becomes "del ...".
void NombrarAsiento(Table& t, Seat asiento) {
  if (!t.UsarNombres) {
    t.Text2 += Join(u"l jugador ", asiento);
  } else if (asiento == AsientoHumano) {
    const bool esJugador = Contains(t.NombreJugador, u"ugador");
    t.Text2 += Join(esJugador ? u"l " : u" ", t.NombreJugador);
  } else {
    const FixedText<AnchoNombre>& nombre = PersonajeDe(t, asiento).Nombre;
    if (nombre.Full().starts_with(u"el")) {
      t.Text2.pop_back();
    } else {
      t.Text2 += u" ";
    }
    t.Text2 += nombre.Trimmed();
  }
}

bool EsDe(Seat asiento, Pareja pareja) { return ParejaDe(asiento) == pareja; }

// The seats of a pareja for which `tiene` holds.
template <class Condicion>
int CuentaAsientos(const Table& t, Pareja pareja, Condicion tiene) {
  int cuenta = 0;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    if (EsDe(asiento, pareja) && tiene(t, asiento)) ++cuenta;
  }
  return cuenta;
}

struct ValorPares {
  int Piedras = 0;
  std::u16string_view Frase;
};

ValorPares ValorDe(const std::vector<int>& iguales) {
  switch (iguales.size()) {
    case 1:
      return {1, u"una del par de"};
    case 3:
      return {2, u"dos de las medias de"};
    case 2:
    case 6:
      return {3, u"tres de los dúplex de"};
    default:
      return {};
  }
}

// Given the pareja of the lance before; returns the one that takes the pares.
// Kept: after a refused bet at pares nobody is named as its taker, so the pareja of the lance
// before is paid for its pares, without a heading.
Pareja QuienSeSacaPares(Table& t, Pareja anterior) {
  const int apuesta = t.Apuesta[NumeroLance::Pares];
  if (apuesta < 0) {
    if (apuesta != ApuestaPagada || t.Declaracion[NumeroLance::Pares] == SinDeclaracion)
      return anterior;
    t.Text2 += SeSaca(t.Declaracion[NumeroLance::Pares]);
    return t.Declaracion[NumeroLance::Pares];
  }
  const Pareja pareja = GanaPares(t);
  if (pareja == -1) {
    t.Text2 += Join(u"Ninguna de las dos parejas tiene pares", CrLf);
    return pareja;
  }
  t.Text2 += SeSaca(pareja);
  if (apuesta > 0) {
    t.Text2 += Join(u" las ", apuesta, DatosPares().Envidadas);
    t.Piedras[pareja] += apuesta;
  }
  return pareja;
}

std::u16string_view SeparadorPares(int porNombrar) {
  if (porNombrar >= 2) return u", ";
  return porNombrar == 1 ? u" y " : u" ";
}

Pareja ContarPares(Table& t, Pareja anterior) {
  const Pareja pareja = QuienSeSacaPares(t, anterior);
  // After a bet the seats still to be named are counted down, without one those named are counted
  // up: either way the second of two gets the "y".
  int porNombrar = t.Apuesta[NumeroLance::Pares] > 0 ? CuentaAsientos(t, pareja, TienePares) : 0;
  const bool haciaArriba =
      t.Declaracion[NumeroLance::Pares] != SinDeclaracion || t.Apuesta[NumeroLance::Pares] == 0;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    if (!EsDe(asiento, pareja)) continue;
    const ValorPares valor = ValorDe(CartasIguales(t, asiento));
    if (valor.Piedras < 1) continue;
    t.Text2 += Join(SeparadorPares(porNombrar), valor.Frase);
    porNombrar += haciaArriba ? 1 : -1;
    NombrarAsiento(t, asiento);
    t.Piedras[pareja] += valor.Piedras;
  }
  t.Text2 += CrLf;
  return pareja;
}

// Kept: after a refused bet the heading stands only if the pareja that bet has juego.
Pareja QuienSeSacaJuego(Game& g) {
  Table& t = g.t;
  const int apuesta = t.Apuesta[NumeroLance::Juego];
  if (apuesta < 0) {
    const Pareja pareja = t.Declaracion[NumeroLance::Juego];
    if (pareja == SinDeclaracion) g.port.MsgBox(t, u"Posible error ");
    if (CuentaAsientos(t, pareja, TieneJuego) > 0) t.Text2 += SeSaca(pareja);
    return pareja;
  }
  const Pareja pareja = MejorJuego(t);
  t.Text2 += SeSaca(pareja);
  if (apuesta > 0) {
    t.Text2 += Join(u" las ", apuesta, DatosJuego().Envidadas);
    t.Piedras[pareja] += apuesta;
  }
  return pareja;
}

Pareja ContarJuego(Game& g) {
  Table& t = g.t;
  const Pareja pareja = QuienSeSacaJuego(g);
  const int conJuego = CuentaAsientos(t, pareja, TieneJuego);
  const bool envidado = t.Apuesta[NumeroLance::Juego] > 0;
  bool primero = true;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    if (!EsDe(asiento, pareja) || !TieneJuego(t, asiento)) continue;
    if (!primero) {
      t.Text2 += u" y ";
    } else if (envidado) {
      t.Text2 += conJuego == 2 ? u", " : u" y ";
    }
    primero = false;
    const bool treintayuna = PuntosJuego(t, asiento) == Treintayuna;
    t.Text2 += treintayuna ? u"tres de la treintayuna de" : u"dos del juego de";
    NombrarAsiento(t, asiento);
    t.Piedras[pareja] += treintayuna ? 3 : 2;
  }
  return pareja;
}

// Kept: Apuesta(5) is never reset, so a punto en paso is counted from the last punto that was bet.
Pareja ContarPunto(Game& g, Pareja anterior) {
  Table& t = g.t;
  const int apuesta = t.Apuesta[NumeroLance::Punto];
  if (apuesta < 0) {
    const Pareja pareja = t.Declaracion[NumeroLance::Punto];
    if (pareja == SinDeclaracion) return anterior;
    t.Text2 += Join(SeSaca(pareja), u"una del punto");
    t.Piedras[pareja] += 1;
    return pareja;
  }
  const Pareja pareja = MejorPunto(g);
  t.Text2 += Join(SeSaca(pareja), u" las ", apuesta, DatosPunto().Envidadas, CrLf);
  t.Piedras[pareja] += apuesta;
  return pareja;
}

// The pareja that has just taken stones wins the juego when it is past the target; then the count
// is over. `pareja` may be none at all.
bool GanaElJuego(Game& g, Pareja pareja) {
  Table& t = g.t;
  if (pareja < 0 || pareja > 1 || t.Piedras[pareja] <= t.PiedrasJuego) return false;
  t.Juegos[pareja] += 1;
  g.port.MsgBox(t, Join(u"La pareja ", pareja, u" gana este juego por ", t.Piedras[pareja], u" a ",
                        t.Piedras[1 - pareja]));
  t.Piedras = {};
  ComprobarVaca(g);
  t.Fase = Fase::EmpezarMano;
  return true;
}

// True when the juego or the punto ends the juego in play.
bool ContarUltimoLance(Game& g, Pareja anterior) {
  Table& t = g.t;
  if (!t.SeJuegaPunto) return GanaElJuego(g, ContarJuego(g));
  if (t.Apuesta[NumeroLance::Punto] == 0) {
    t.Text2 += Join(DatosPunto().YaContado, CrLf);
    return false;
  }
  return GanaElJuego(g, ContarPunto(g, anterior));
}

void TerminarCuenta(Game& g) {
  Table& t = g.t;
  t.Text2 += Join(CrLf, u"El tanteo actual es de ", t.Piedras[1], u" a ", t.Piedras[0], u". ", CrLf,
                  u"Pulse enter para empezar una nueva mano");
  ComprobarVaca(g);
  t.Fase = Fase::EmpezarMano;
  MostrarTanteo(t);
}

}  // namespace

void ContarMano(Game& g) {
  Table& t = g.t;
  MostrarManos(t, TodosLosAsientos);
  EmpezarRelato(t);
  Pareja pareja = 0;
  for (const Lance* const lance : {&DatosGrande(), &DatosPequena()}) {
    const std::optional<Pareja> ganadora = ContarPorCartas(g, *lance);
    // Kept: a lance that was settled in the bidding does not win the juego here, even when the
    // stones paid then are past the target.
    if (!ganadora) continue;
    pareja = *ganadora;
    if (GanaElJuego(g, pareja)) return;
  }
  pareja = ContarPares(t, pareja);
  if (GanaElJuego(g, pareja)) return;
  if (!ContarUltimoLance(g, pareja)) TerminarCuenta(g);
}

}  // namespace tasca
