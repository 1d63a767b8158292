// Translates the records of bets into the states shown on the slate.
#include "scene/slate.h"

namespace tasca {
namespace {

// The first and last phase of a lance. A declaration belongs to its lance.
struct Tramo {
  NumeroLance Lance;
  Fase Primera;
  Fase Ultima;
};

constexpr Array<Tramo, 1, 5> Tramos{
    Tramo{NumeroLance::Grande, Fase::Grande, Fase::RespuestaGrande},
    Tramo{NumeroLance::Pequena, Fase::Pequena, Fase::RespuestaPequena},
    Tramo{NumeroLance::Pares, Fase::DeclaracionPares, Fase::RespuestaPares},
    Tramo{NumeroLance::Juego, Fase::DeclaracionJuego, Fase::RespuestaJuego},
    Tramo{NumeroLance::Punto, Fase::Punto, Fase::RespuestaPunto}};

// The only pareja whose seats have a turn in OrdenPares or TurnoJuego; nothing if both parejas or
// neither have.
std::optional<Pareja> UnicaConTurno(const Array<Integer, 1, 4>& turnos) {
  const bool nosotros = turnos[1] > 0 || turnos[3] > 0;
  const bool ellos = turnos[2] > 0 || turnos[4] > 0;
  if (nosotros == ellos) return std::nullopt;
  return nosotros ? 1 : 0;
}

bool NadieTienePares(const Table& t) { return t.OrdenPares == Array<Integer, 1, 4>{}; }

// The state of an ended lance in which nobody has bet.
void CerrarSinApuesta(const Table& t, CeldaPizarra& celda) {
  celda.Estado = EstadoLance::EnPaso;
  if (celda.Lance == NumeroLance::Pares) celda.De = UnicaConTurno(t.OrdenPares);
  if (celda.Lance == NumeroLance::Juego) celda.De = UnicaConTurno(t.TurnoJuego);
  if (celda.De) celda.Estado = EstadoLance::SinEnvite;
}

// The state of an ended lance. An accepted órdago ends the hand at once, so while the hand goes on
// Apuesta[Punto] can be EnviteOrdago only from an earlier hand; the count pays it like a refused
// bet.
void Cerrar(const Table& t, CeldaPizarra& celda) {
  const int apuesta = t.Apuesta[celda.Lance];
  if (AcaboAntesDe(t, celda.Lance)) {
    celda.Estado = EstadoLance::NoSeJugo;
  } else if (celda.Lance == NumeroLance::Juego && t.SeJuegaPunto) {
    celda.Estado = EstadoLance::NoHay;
  } else if (apuesta == EnviteOrdago && t.Fase == Fase::EmpezarMano) {
    celda.Estado = EstadoLance::OrdagoQuerido;
  } else if (apuesta > 0) {
    celda.Estado = EstadoLance::Queridas;
    celda.Piedras = apuesta;
  } else if (apuesta < 0) {
    const bool noHay = celda.Lance == NumeroLance::Pares && NadieTienePares(t);
    celda.Estado = noHay ? EstadoLance::NoHay : EstadoLance::NoQuerida;
  } else {
    CerrarSinApuesta(t, celda);
  }
}

// The state and highlight of the current lance.
void Abrir(const Table& t, Momento momento, CeldaPizarra& celda) {
  celda.Marca = momento == Momento::Reposo ? MarcaLance::Siguiente : MarcaLance::EnJuego;
  if (t.Fase == Fase::DeclaracionPares || t.Fase == Fase::DeclaracionJuego) {
    celda.Estado = EstadoLance::Declaran;
  } else if (t.SeguirLance == EnviteOrdago) {
    celda.Estado = EstadoLance::Ordago;
    celda.De = t.ParejaEnvite;
  } else if (t.SeguirLance != 0) {
    celda.Estado = EstadoLance::Envite;
    celda.Piedras = t.SeguirLance;
    celda.Vistas = t.Apuesta[celda.Lance] > 0 ? t.Apuesta[celda.Lance] : Integer{};
    celda.De = t.ParejaEnvite;
  } else if (t.Fase != Fase::Punto && t.Apuesta[celda.Lance] == EnviteOrdago) {
    celda.Estado = EstadoLance::OrdagoQuerido;
  }
}

CeldaPizarra CeldaDe(const Table& t, Momento momento, const Tramo& tramo) {
  CeldaPizarra celda;
  celda.Lance = tramo.Lance;
  const bool entreManos = t.Fase == Fase::EmpezarMano;
  if (entreManos ? HayManosAbiertas(t) : t.Fase > tramo.Ultima) {
    Cerrar(t, celda);
  } else if (!entreManos && t.Fase >= tramo.Primera) {
    Abrir(t, momento, celda);
  }
  return celda;
}

}  // namespace

std::vector<CeldaPizarra> PizarraDe(const Table& t, Momento momento) {
  std::vector<CeldaPizarra> pizarra;
  for (const Tramo& tramo : Tramos) {
    if (tramo.Lance == NumeroLance::Punto && !t.SeJuegaPunto) continue;
    pizarra.push_back(CeldaDe(t, momento, tramo));
  }
  return pizarra;
}

bool AcaboAntesDe(const Table& t, NumeroLance lance) {
  for (const Tramo& tramo : Tramos) {
    if (tramo.Lance == lance) return false;
    if (t.Apuesta[tramo.Lance] == EnviteOrdago) return true;
  }
  return false;
}

}  // namespace tasca
