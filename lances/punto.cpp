// Punto: decisions and comparison.
#include "lances/punto.h"

#include "base/text.h"
#include "cards/deck.h"
#include "lances/bidding.h"
#include "lances/decisions.h"
#include "lances/ranking.h"

namespace tasca {
namespace {

// The points that the seat lacks to 31.
int Distancia(const Table& t, Seat asiento) { return Treintayuna - PuntosJuego(t, asiento); }

// The seat's position in the speaking order: 1 (mano) to 4.
int PosicionDe(const Table& t, Seat asiento) {
  int posicion = 1;
  while (t.OrdenAsiento[posicion] != asiento) ++posicion;
  return posicion;
}

}  // namespace

Pareja MejorPunto(Game& g) {
  Array<int, 1, 4> rangos;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    const int puntos = PuntosJuego(g.t, asiento);
    if (puntos < Treintayuna) {
      rangos[asiento] = puntos;
    } else {
      g.port.MsgBox(g.t, u"Error, sí ahbía juego ");
    }
  }
  return ParejaDe(MejorAsiento(g.t, rangos));
}

Decision DecidePunto(const Table& t, Rnd& rnd, Seat asiento) {
  const Marcador m{t, asiento};
  const int distancia = Distancia(t, asiento);
  if (m.FaltanContrarias == 1) return Decision::Ordago;
  if (m.FaltanPropias >= 7 && m.ContrariosCerca && distancia < 3) return Decision::Ordago;
  const float r1 = rnd();
  const float freno = static_cast<float>(t.OrdagueroAsiento[asiento]) / 3.0F;
  const bool apuesta = distancia <= 3 || r1 * 100.0F > freno;
  if (!apuesta) return Decision::Paso;
  const float r2 = rnd();
  const bool faltaMucho = 2 * t.Piedras[0] <= t.PiedrasJuego && 2 * t.Piedras[1] <= t.PiedrasJuego;
  if (faltaMucho) return r2 < 0.8F ? Decision::Envido : Decision::EnvidoMas;
  if (r2 < 0.1F) return Decision::Ordago;
  const float r3 = rnd();
  return r3 < 0.25F ? Decision::EnvidoMas : Decision::Envido;
}

Decision RespondePunto(const Table& t, Rnd& rnd, Seat asiento) {
  return RespuestaPorFuerza(t, rnd, asiento, PosicionDe(t, asiento) * Distancia(t, asiento));
}

namespace {

constexpr Lance Punto{
    .Numero = NumeroLance::Punto,
    .Encabezado = u"\r\nEl punto",
    .EncabezadoReemplaza = false,
    .EmpiezaSinEnvite = true,
    .TituloApertura = u"El Punto",
    .TituloCantidad = u"Envite a Punto",
    .TituloRespuesta = u"Envite a Punto",
    .TituloCantidadAlSubir = u"Envite al Punto",  // Kept: "al", unlike the dialog's caption.
    .EnPaso = u"\r\nEl punto queda en paso\r\nPulse enter para contar",
    .OrdagoGanado = u"órdago a Punto querido y ganado por la pareja ",
    .Aviso = AvisoContar,
    .SiEnvidan = Fase::RespuestaPunto,
    .SiPasan = Fase::Cuenta,
    .TrasRespuesta = Fase::Cuenta,
    .YaContado = u"El Punto ya estaba contado ",
    .Envidadas = u" envidadas a Punto ",
    .UnaEnPaso = u"",
    .RefrescosAlRehusar = 1,
    .DeclaraAlRehusar = true,
    .AvisoTrasOrdago = false,
    .PuedeHablar = HablanTodos,
    .Decide = DecidePunto,
    .Responde = RespondePunto,
    .Gana = MejorPunto,
};

}  // namespace

const Lance& DatosPunto() { return Punto; }

void LancePunto(Game& g) { AbrirLance(g, Punto); }
void EnvitePunto(Game& g) { ResponderLance(g, Punto); }

}  // namespace tasca
