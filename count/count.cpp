// Counts the lances of a hand one by one.
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

// Counts grande or pequeña. Returns the pareja that wins it; nothing if it has already been paid.
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

// Appends the seat's name to a transcript that ends in "de". "de el ..." becomes "del ...".
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

// The number of seats of a pareja for which `tiene` is true.
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

// Returns the pareja that is paid for its pares, -1 if nobody has pares. Pays an accepted bet.
// `anterior` is the pareja that won the lance before.
// Kept: a refused bet at pares does not set Declaracion. Then `anterior` is paid for its pares, and
// the text does not name it.
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
  // With an accepted bet this counts down the seats still to be named; otherwise it counts up the
  // seats named, and the second of two seats gets the "y".
  // Kept: after a refused bet the second seat gets a blank.
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

// Returns the pareja that is paid for its juego, and pays an accepted bet.
// Kept: after a refused bet the heading is written only if the pareja that bet has juego.
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

// Returns the pareja that is paid for the punto. `anterior` is the pareja of the lance before.
// Kept: Apuesta[Punto] is never reset, so a punto en paso is paid like the last punto that was
// bet.
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

// If `pareja` has more stones than the target, it wins the juego: adds the juego, informs the
// player and resets Piedras. Returns true then, and the count ends. A negative `pareja` is nobody.
bool ComprobarJuego(Game& g, Pareja pareja) {
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

// Counts the juego, or the punto if it was played. True if a pareja wins the current juego by it.
bool ContarUltimoLance(Game& g, Pareja anterior) {
  Table& t = g.t;
  if (!t.SeJuegaPunto) return ComprobarJuego(g, ContarJuego(g));
  if (t.Apuesta[NumeroLance::Punto] == 0) {
    t.Text2 += Join(DatosPunto().YaContado, CrLf);
    return false;
  }
  return ComprobarJuego(g, ContarPunto(g, anterior));
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
    // Kept: a lance that was paid in the betting does not win the juego here, even if the pareja
    // has more stones than the target.
    if (!ganadora) continue;
    pareja = *ganadora;
    if (ComprobarJuego(g, pareja)) return;
  }
  pareja = ContarPares(t, pareja);
  if (ComprobarJuego(g, pareja)) return;
  if (!ContarUltimoLance(g, pareja)) TerminarCuenta(g);
}

}  // namespace tasca
