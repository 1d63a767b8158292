// The decision rules that several lances share.
#include "lances/decisions.h"

#include <algorithm>

namespace tasca {
namespace {

// An órdago can only be accepted or refused.
Decision LimitarContraOrdago(const Table& t, Decision decision) {
  return t.SeguirLance == EnviteOrdago ? std::min(decision, Decision::Quiero) : decision;
}

}  // namespace

Marcador::Marcador(const Table& t, Seat asiento)
    : Propias{t.Piedras[ParejaDe(asiento)]},
      Contrarias{t.Piedras[ParejaContraria(asiento)]},
      FaltanPropias{t.PiedrasJuego - Propias},
      FaltanContrarias{t.PiedrasJuego - Contrarias},
      ContrariosCerca{FaltanContrarias < 7} {}

std::optional<Decision> OrdagoPorTanteo(const Table& t, Seat asiento) {
  const Marcador m{t, asiento};
  if (m.FaltanContrarias == 1) return Decision::Ordago;
  if (m.ContrariosCerca && m.Propias < m.Contrarias) return Decision::Ordago;
  return std::nullopt;
}

Decision AperturaPorCartas(Rnd& rnd, int cartas) {
  const float r = rnd();
  const float x = static_cast<float>(cartas + 2) * r;
  if (x < 2.0F) return Decision::Paso;
  if (x < 5.0F) return Decision::Envido;
  if (x < 5.5F) return Decision::EnvidoMas;
  return Decision::Ordago;
}

Decision RespuestaPorCartas(const Table& t, Rnd& rnd, Seat asiento, int cartas) {
  const bool contraOrdago = t.SeguirLance == EnviteOrdago;
  if (!contraOrdago) {
    if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  }
  const int k = cartas - t.RondasMus - (contraOrdago ? 1 : 0);
  if (k >= 2) return Decision::Quiero;
  if (contraOrdago) return Decision::NoQuiero;

  const Marcador m{t, asiento};
  const auto ordaguero = static_cast<float>(t.OrdagueroAsiento[asiento]);
  const float r = rnd();
  const float azar = r * 100.0F;
  const float x = ordaguero / 4.0F - azar;
  const bool contrariosCasiFuera = 4 * m.Contrarias > 3 * t.PiedrasJuego;
  if (m.Contrarias > m.Propias && x > 0.0F && contrariosCasiFuera) return Decision::Ordago;
  const float empuje = ordaguero * 0.08F;
  return empuje + x > 0.0F ? Decision::EnvidoMas : Decision::NoQuiero;
}

Decision RespuestaPorFuerza(const Table& t, Rnd& rnd, Seat asiento, int fuerza) {
  if (t.SeguirLance != EnviteOrdago) {
    if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  }
  const float r = rnd();
  const float y = 2.0F * r + static_cast<float>(fuerza);
  Decision decision = Decision::NoQuiero;
  if (y < 1.3F) {
    decision = Decision::Ordago;
  } else if (y < 2.5F) {
    decision = Decision::EnvidoMas;
  } else if (y < 4.0F) {
    decision = Decision::Quiero;
  }
  return LimitarContraOrdago(t, decision);
}

}  // namespace tasca
