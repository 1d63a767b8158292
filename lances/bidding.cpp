// The opening and the answer step. Human and computer seats differ only in where the decision and
// the amount come from: the port, or the functions of the lance and the generator.
#include "lances/bidding.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "cards/hand_text.h"
#include "characters/speech.h"
#include "score/scoreboard.h"

namespace tasca {
namespace {

constexpr int MinimoApertura = 2;  // stones
constexpr int MinimoAlSubir = 1;   // stones

Decision PreguntarDecision(Game& g, std::u16string_view titulo, ModoDialogo modo) {
  Dialog dialogo;
  dialogo.Caption = titulo;
  dialogo.Modo = modo;
  Form_Activate(dialogo);
  g.port.ShowDialog(g.t, dialogo);
  return static_cast<Decision>(static_cast<int>(dialogo.Resultado));
}

Integer PreguntarCantidad(Game& g, std::u16string_view texto, std::u16string_view titulo,
                          int minimo) {
  const std::u16string tecleada = g.port.InputBox(
      g.t, Pregunta::Cantidad, {.Titulo = titulo, .Texto = texto, .PorDefecto = u"2"});
  return std::max<int>(CInt(LeadingNumber(tecleada)), minimo);
}

void Decir(Game& g, Seat asiento, MessageCategory categoria) {
  DiceJugador(g.t, g.rnd, asiento, categoria, SinCantidad);
}

Decision DecidirApertura(Game& g, const Lance& lance, Seat asiento) {
  if (asiento == AsientoHumano)
    return PreguntarDecision(g, lance.TituloApertura, ModoDialogo::Apertura);
  return lance.Decide(g.t, g.rnd, asiento);
}

Integer CantidadApertura(Game& g, const Lance& lance, Seat asiento) {
  if (asiento == AsientoHumano) {
    return PreguntarCantidad(g, u"¿Cuántas envida?", lance.TituloCantidad, MinimoApertura);
  }
  const float r = g.rnd();
  return CInt(r * 5.0F) + MinimoApertura;
}

// One seat speaks in the opening, while nobody has bet.
void HablarEnApertura(Game& g, const Lance& lance, Seat asiento) {
  Table& t = g.t;
  const Decision decision = DecidirApertura(g, lance, asiento);
  switch (decision) {
    case Decision::Envido:
      t.SeguirLance = MinimoApertura;
      Decir(g, asiento, MessageCategory::Envi);
      break;
    case Decision::EnvidoMas:
      t.SeguirLance = CantidadApertura(g, lance, asiento);
      DiceJugador(t, g.rnd, asiento, MessageCategory::EnvM, t.SeguirLance);
      break;
    case Decision::Ordago:
      Decir(g, asiento, MessageCategory::Orda);
      t.SeguirLance = EnviteOrdago;
      break;
    default:
      Decir(g, asiento, MessageCategory::Paso);
      return;
  }
  t.ParejaEnvite = ParejaDe(asiento);
}

// The state of the bet during the answer step. Abierto: unanswered, or refused by all seats so far.
enum class Envite { Abierto, Querido, OrdagoQuerido };

bool YaDecideElJuego(const Table& t, const Lance& lance) {
  return t.Apuesta[lance.Numero] + t.SeguirLance > t.PiedrasJuego;
}

Decision DecidirRespuesta(Game& g, const Lance& lance, Seat asiento) {
  const Table& t = g.t;
  if (asiento == AsientoHumano) {
    const ModoDialogo modo =
        t.SeguirLance == EnviteOrdago ? ModoDialogo::RespuestaOrdago : ModoDialogo::Respuesta;
    return PreguntarDecision(g, lance.TituloRespuesta, modo);
  }
  const Decision decision = lance.Responde(t, g.rnd, asiento);
  // Kept: a computer seat accepts instead of raising once the bet exceeds the target of the juego.
  // More stones change nothing, and two seats with strong hands would raise forever.
  if (decision == Decision::EnvidoMas && YaDecideElJuego(t, lance)) return Decision::Quiero;
  return decision;
}

Integer CantidadAlSubir(Game& g, const Lance& lance, Seat asiento) {
  if (asiento == AsientoHumano) {
    return PreguntarCantidad(g, u"¿Cuántas más envida?", lance.TituloCantidadAlSubir,
                             MinimoAlSubir);
  }
  const float r = g.rnd();
  return std::max(static_cast<int>(r * 4.0F) + 2, MinimoAlSubir);
}

Envite Querer(Game& g, const Lance& lance, Seat asiento) {
  Table& t = g.t;
  Decir(g, asiento, MessageCategory::SQui);
  const bool esOrdago = t.SeguirLance == EnviteOrdago;
  t.Apuesta[lance.Numero] = esOrdago ? EnviteOrdago : t.Apuesta[lance.Numero] + t.SeguirLance;
  t.SeguirLance = 0;
  return esOrdago ? Envite::OrdagoQuerido : Envite::Querido;
}

// One seat answers the bet. A raise or an órdago accepts the bet before it and sets `posicion` to
// 0: the answers start again from the mano, now by the other pareja.
Envite Contestar(Game& g, const Lance& lance, Seat asiento, int& posicion) {
  Table& t = g.t;
  const Decision decision = DecidirRespuesta(g, lance, asiento);
  switch (decision) {
    case Decision::NoQuiero:
      Decir(g, asiento, MessageCategory::NQui);
      return Envite::Abierto;
    case Decision::Quiero:
      return Querer(g, lance, asiento);
    case Decision::EnvidoMas:
      t.Apuesta[lance.Numero] += t.SeguirLance;
      t.SeguirLance = CantidadAlSubir(g, lance, asiento);
      DiceJugador(t, g.rnd, asiento, MessageCategory::EnvM, t.SeguirLance);
      break;
    case Decision::Ordago:
      t.Apuesta[lance.Numero] += t.SeguirLance;
      Decir(g, asiento, MessageCategory::Orda);
      t.SeguirLance = EnviteOrdago;
      break;
    case Decision::Callar:
      return Envite::Abierto;
  }
  t.ParejaEnvite = ParejaDe(asiento);
  posicion = 0;
  return Envite::Abierto;
}

Envite AsentarEnvite(Game& g, const Lance& lance) {
  Table& t = g.t;
  for (int posicion = 1; posicion <= 4; ++posicion) {
    t.Text2 = ReplaceAll(t.Text2, AvisoContinuar, u"");
    const Seat asiento = t.OrdenAsiento[posicion];
    if (ParejaDe(asiento) == t.ParejaEnvite || !lance.PuedeHablar(t, asiento)) continue;
    const Envite envite = Contestar(g, lance, asiento, posicion);
    if (envite != Envite::Abierto) return envite;
  }
  return Envite::Abierto;
}

void PagarRehusado(Table& t, const Lance& lance) {
  int piedras = t.Apuesta[lance.Numero];
  if (piedras == 0) piedras = t.SeguirLance == 0 ? 0 : 1;
  t.Piedras[t.ParejaEnvite] += piedras;
  for (int i = 0; i < lance.RefrescosAlRehusar; ++i) MostrarTanteo(t);
  t.Text2 += Join(u"la pareja ", t.ParejaEnvite, u" se saca ", piedras,
                  piedras == 1 ? u" piedra" : u" piedras", CrLf);
  t.Apuesta[lance.Numero] = ApuestaPagada;
  if (lance.DeclaraAlRehusar) t.Declaracion[lance.Numero] = t.ParejaEnvite;
  t.SeguirLance = 0;
}

void DecidirOrdago(Game& g, const Lance& lance) {
  const Pareja pareja = lance.Gana(g);
  MostrarManos(g.t, TodosLosAsientos);
  g.port.MsgBox(g.t, Join(lance.OrdagoGanado, pareja));
  if (lance.AvisoTrasOrdago) g.t.Text2 += AvisoContinuar;
  GanaJuego(g, pareja);
}

}  // namespace

void AbrirLance(Game& g, const Lance& lance) {
  Table& t = g.t;
  if (lance.EncabezadoReemplaza) EmpezarRelato(t);
  t.Text2 += lance.Encabezado;
  if (lance.EmpiezaSinEnvite) t.SeguirLance = 0;
  for (int i = 1; i <= 4 && t.SeguirLance == 0; ++i) {
    const Seat asiento = t.OrdenAsiento[i];
    if (lance.PuedeHablar(t, asiento)) HablarEnApertura(g, lance, asiento);
  }
  if (t.SeguirLance == 0) t.Text2 += lance.EnPaso;
  t.Fase = t.SeguirLance == 0 ? lance.SiPasan : lance.SiEnvidan;
}

void ResponderLance(Game& g, const Lance& lance) {
  Table& t = g.t;
  const Envite envite = AsentarEnvite(g, lance);
  if (envite == Envite::OrdagoQuerido) return DecidirOrdago(g, lance);
  if (envite == Envite::Abierto) {
    PagarRehusado(t, lance);
  } else {
    t.Text2 += Join(u"envite querido", CrLf);
  }
  t.Text2 += lance.Aviso;
  t.Fase = lance.TrasRespuesta;
}

}  // namespace tasca
