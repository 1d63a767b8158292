// Pequeña: texts, decisions and comparison.
#include "lances/pequena.h"

#include "cards/deck.h"
#include "lances/bidding.h"
#include "lances/decisions.h"
#include "lances/ranking.h"

namespace tasca {

Decision DecidePequena(const Table& t, Rnd& rnd, Seat asiento) {
  constexpr int ContrariosAUnPaso = 7;
  if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  const int ases = CuentaCartas(t, asiento, ValorAs);
  const Marcador m{t, asiento};
  if (m.FaltanContrarias <= ContrariosAUnPaso && ases >= 1) return Decision::Ordago;
  return AperturaPorCartas(rnd, ases);
}

Decision RespondePequena(const Table& t, Rnd& rnd, Seat asiento) {
  return RespuestaPorCartas(t, rnd, asiento, CuentaCartas(t, asiento, ValorAs));
}

Pareja GanaPequena(const Table& t) {
  Array<int, 1, 4> valores;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    int valor = 0;
    for (int hueco = 4; hueco >= 1; --hueco) {
      valor = valor * 16 + CartaDe(t, asiento, hueco).ValorGrande;
    }
    valores[asiento] = -valor;
  }
  return ParejaDe(MejorAsiento(t, valores));
}

namespace {

// Kept: some texts have "Pequeña", others "pequeña".
constexpr Lance Pequena{
    .Numero = NumeroLance::Pequena,
    .Encabezado = u"Pequeña \r\n",
    .EncabezadoReemplaza = true,
    .EmpiezaSinEnvite = false,
    .TituloApertura = u"La Pequeña",
    .TituloCantidad = u"Envite a Pequeña",
    .TituloRespuesta = u"Envite a pequeña",
    .TituloCantidadAlSubir = u"Envite a pequeña",
    .EnPaso = u"la Pequeña queda en paso\r\nPulse enter para continuar\r\n",
    .OrdagoGanado = u"órdago a pequeña querido y ganado por la pareja ",
    .Aviso = AvisoContinuar,
    .SiEnvidan = Fase::RespuestaPequena,
    .SiPasan = Fase::DeclaracionPares,
    .TrasRespuesta = Fase::DeclaracionPares,
    .YaContado = u"la pequeña ya estaba contada ",
    .Envidadas = u" envidadas a pequeña ",
    .UnaEnPaso = u" una de la pequeña en paso",
    .RefrescosAlRehusar = 1,
    .DeclaraAlRehusar = false,
    .AvisoTrasOrdago = true,
    .PuedeHablar = HablanTodos,
    .Decide = DecidePequena,
    .Responde = RespondePequena,
    .Gana = [](Game& g) { return GanaPequena(g.t); },
};

}  // namespace

const Lance& DatosPequena() { return Pequena; }

void LancePequena(Game& g) { AbrirLance(g, Pequena); }
void EnvitePequena(Game& g) { ResponderLance(g, Pequena); }

}  // namespace tasca
