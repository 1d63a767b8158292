// The scoreboard, and the steps from juego to vaca to match.
#include "score/scoreboard.h"

#include "base/errors.h"
#include "base/text.h"
#include "cards/hand.h"
#include "characters/speech.h"
#include "sound/effects.h"

namespace tasca {
namespace {

// Kept: the limit is `alMejorDe` modulo 2, not its half. The best of 3 needs two wins, but the best
// of 1 needs two as well, the best of 4 one and the best of 5 two.
int LimiteAlMejorDe(int alMejorDe) { return alMejorDe % 2; }

// The spoken line of an opponent at the end of the match, with its label.
std::u16string Comentario(const Table& t, Seat asiento, MessageCategory categoria) {
  const auto& frase = Mensaje(t, t.PersonajeAsiento[asiento - 1], categoria, 1);
  return Join(NombreAsiento(t, asiento), u": ", frase.Trimmed());
}

void OfrecenLaMano(Game& g, std::u16string_view resultado, MessageCategory categoria) {
  g.port.MsgBox(g.t,
                Join(resultado, CrLf, u"Sus contrarios le ofrecen la mano mientras comentan:", CrLf,
                     Comentario(g.t, 2, categoria), CrLf, Comentario(g.t, 4, categoria)));
}

}  // namespace

std::u16string TextoTanteo(const Table& t) {
  return Join(u"Piedras: ", t.Piedras[1], u" / ", t.Piedras[0],    //
              u";    juegos: ", t.Juegos[1], u" / ", t.Juegos[0],  //
              u";    Vacas: ", t.Vacas[1], u" / ", t.Vacas[0]);
}

void MostrarTanteo(Table& t) { t.Text3 = TextoTanteo(t); }

void ComprobarVaca(Game& g) {
  constexpr Pareja Ninguna = -2;
  Table& t = g.t;
  const int limite = LimiteAlMejorDe(t.JuegosVaca);
  Pareja ganadora = Ninguna;
  if (t.Juegos[0] > limite) ganadora = 0;
  if (t.Juegos[1] > limite) ganadora = 1;
  if (ganadora != Ninguna) {
    t.Vacas[ganadora] += 1;
    const int vacas = t.Vacas[ganadora];
    if (vacas > LimiteAlMejorDe(t.VacasPartida) || vacas >= t.VacasPartida) FinPartida(g, ganadora);
    // Kept: if FinPartida has set up a new match, the scores shown here are already 0.
    g.port.MsgBox(t, Join(u"La pareja ", ganadora, u" gana esta vaca. El resultado ha sido de ",
                          t.Juegos[1], u" a ", t.Juegos[0], u" partidas.", CrLf, t.Vacas[1], u" a ",
                          t.Vacas[0], u" vaca."));
    t.Juegos = {};
  }
  MostrarTanteo(t);
}

void FinPartida(Game& g, Pareja pareja) {
  // Kept: no blank before "gana".
  g.port.MsgBox(g.t, Join(u"La pareja ", pareja, u"gana esta vaca."));
  if (pareja == ParejaDe(AsientoHumano)) {
    SonidoAplauso(g);
    OfrecenLaMano(g, u"Ha ganado la partida.", MessageCategory::Derr);
  } else {
    OfrecenLaMano(g, u"Ha perdido la partida.", MessageCategory::Vict);
  }
  const auto pregunta = [&g](Pregunta sobre, std::u16string_view texto) {
    return g.port.YesNoBox(g.t, sobre, {.Titulo = u"Mus", .Texto = texto, .ConIcono = false});
  };
  if (!pregunta(Pregunta::OtraPartida, u"¿Desea jugar otra partida?")) {
    EmpezarRelato(g.t, u"Hasta pronto");
    throw LeaveProgram{.PartidaAcabada = true};
  }
  if (pregunta(Pregunta::CambiarJugadores, u"¿Desea cambiar de jugadores?")) {
    g.port.ChangePlayers();
    return;
  }
  g.t.Piedras = {};
  g.t.Juegos = {};
  g.t.Vacas = {};
  EmpezarMano(g);
}

void GanaJuego(Game& g, Pareja pareja) {
  g.t.Juegos[pareja] += 1;
  g.t.Piedras = {};
  ComprobarVaca(g);
  g.t.Fase = Fase::EmpezarMano;
  MostrarTanteo(g.t);
  EmpezarRelato(g.t, u"Pulse enter para empezar una nueva mano");
}

}  // namespace tasca
