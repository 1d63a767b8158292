// Grande: texts, decisions and comparison.
#include "lances/grande.h"

#include "cards/deck.h"
#include "lances/bidding.h"
#include "lances/decisions.h"
#include "lances/ranking.h"

namespace tasca {

Decision DecideGrande(const Table& t, Rnd& rnd, Seat asiento) {
  constexpr int MuyOrdaguero = 74;
  if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  const bool cortoMus = ParejaDe(asiento) == t.ParejaCortaMus;
  int k = CuentaCartas(t, asiento, ValorRey);
  k = cortoMus ? k + 1 : k - t.RondasMus;
  if (t.OrdagueroAsiento[asiento] > MuyOrdaguero) k += 1;
  const Decision porReyes = AperturaPorCartas(rnd, k);
  // Kept: a seat of the pareja that refused mus bets in 80 % of the cases where its hand says paso.
  const float r = rnd();
  if (porReyes == Decision::Paso && cortoMus && r < 0.8F) return Decision::Envido;
  return porReyes;
}

Decision RespondeGrande(const Table& t, Rnd& rnd, Seat asiento) {
  return RespuestaPorCartas(t, rnd, asiento, CuentaCartas(t, asiento, ValorRey));
}

Pareja GanaGrande(const Table& t) {
  Array<int, 1, 4> valores;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    int valor = 0;
    for (int hueco = 1; hueco <= 4; ++hueco) {
      valor = valor * 16 + CartaDe(t, asiento, hueco).ValorGrande;
    }
    valores[asiento] = valor;
  }
  return ParejaDe(MejorAsiento(t, valores));
}

namespace {

constexpr Lance Grande{
    .Numero = NumeroLance::Grande,
    .Encabezado = u"La grande\r\n",
    .EncabezadoReemplaza = true,
    .EmpiezaSinEnvite = false,
    .TituloApertura = u"La grande",
    .TituloCantidad = u"Envite a grande",
    .TituloRespuesta = u"Envite a grande",
    .TituloCantidadAlSubir = u"Envite a grande",
    .EnPaso = u"la grande queda en paso\r\nPulse enter para continuar\r\n",
    .OrdagoGanado = u"órdago a grande querido y ganado por la pareja ",
    .Aviso = AvisoContinuar,
    .SiEnvidan = Fase::RespuestaGrande,
    .SiPasan = Fase::Pequena,
    .TrasRespuesta = Fase::Pequena,
    .YaContado = u"la grande ya estaba contada ",
    .Envidadas = u" envidadas a grande ",
    .UnaEnPaso = u" una de la grande en paso",
    .RefrescosAlRehusar = 2,
    .DeclaraAlRehusar = false,
    .AvisoTrasOrdago = false,
    .PuedeHablar = HablanTodos,
    .Decide = DecideGrande,
    .Responde = RespondeGrande,
    .Gana = [](Game& g) { return GanaGrande(g.t); },
};

}  // namespace

const Lance& DatosGrande() { return Grande; }

void LanceGrande(Game& g) { AbrirLance(g, Grande); }
void EnviteGrande(Game& g) { ResponderLance(g, Grande); }

}  // namespace tasca
