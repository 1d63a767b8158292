// Formatting of events. The order of fields is fixed, so that traces can be compared as text.
#include "ui/trace/events.h"

#include <nlohmann/json.hpp>

#include "table/dialog.h"
#include "ui/utf8.h"

namespace tasca {
namespace {

using nlohmann::ordered_json;

int Json(Integer number) { return number; }
int Json(bool truth) { return truth ? -1 : 0; }
int Json(Fase fase) { return static_cast<int>(fase); }
int Json(ModoDialogo modo) { return static_cast<int>(modo); }

template <class T, int Primero, int Ultimo>
ordered_json Json(const Array<T, Primero, Ultimo>& values) {
  ordered_json list = ordered_json::array();
  for (const T& value : values) list.push_back(Json(value));
  return list;
}

ordered_json Texts(const Table& t) {
  return ordered_json::array({ToUtf8(t.Text1), ToUtf8(t.Text2), ToUtf8(t.Text3)});
}

ordered_json MediaPlayer(const Table& t) {
  return {{"count", Json(t.Mp1.Veces)},
          {"balance", Json(t.Mp1.Balance)},
          {"volume", Json(t.Mp1.Volumen)}};
}

ordered_json Named(std::string_view event) {
  ordered_json object = ordered_json::object();
  object["event"] = event;
  return object;
}

ordered_json OrderAndPhase(const Table& t) {
  return {{"Fase", Json(t.Fase)},
          {"SeguirLance", Json(t.SeguirLance)},
          {"RondasMus", Json(t.RondasMus)},
          {"ParejaCortaMus", Json(t.ParejaCortaMus)},
          {"ManoPorDecidir", Json(t.ManoPorDecidir)},
          {"SeJuegaPunto", Json(t.SeJuegaPunto)},
          {"OrdenAsiento", Json(t.OrdenAsiento)},
          {"OrdagueroAsiento", Json(t.OrdagueroAsiento)}};
}

ordered_json BetsAndScores(const Table& t) {
  return {{"Apuesta", Json(t.Apuesta)},
          {"Declaracion", Json(t.Declaracion)},
          {"ParejaEnvite", Json(t.ParejaEnvite)},
          {"OrdenPares", Json(t.OrdenPares)},
          {"TurnoJuego", Json(t.TurnoJuego)},
          {"Piedras", Json(t.Piedras)},
          {"Juegos", Json(t.Juegos)},
          {"Vacas", Json(t.Vacas)},
          {"PiedrasJuego", Json(t.PiedrasJuego)},
          {"JuegosVaca", Json(t.JuegosVaca)},
          {"VacasPartida", Json(t.VacasPartida)}};
}

ordered_json SoundAndCards(const Table& t) {
  return {{"SonidoActual", Json(t.SonidoActual)},
          {"CartasCambiadas", Json(t.CartasCambiadas)},
          {"PosicionSonido", Json(t.PosicionSonido)},
          {"SonidosDados", Json(t.SonidosDados)},
          {"Baraja", Json(t.Baraja)},
          {"CartaSiguiente", Json(t.CartaSiguiente)},
          {"DescarteSiguiente", Json(t.DescarteSiguiente)},
          {"Manos", Json(t.Manos)}};
}

ordered_json PlayersAndTexts(const Table& t) {
  return {{"PersonajeAsiento", Json(t.PersonajeAsiento)},
          {"NombreJugador", ToUtf8(t.NombreJugador)},
          {"EstiloDirecto", Json(t.EstiloDirecto)},
          {"UsarNombres", Json(t.UsarNombres)},
          {"UsarExpresiones", Json(t.UsarExpresiones)},
          {"Text1", ToUtf8(t.Text1)},
          {"Text2", ToUtf8(t.Text2)},
          {"Text3", ToUtf8(t.Text3)}};
}

}  // namespace

void Events::Write(const ordered_json& event) {
  lines_ << event.dump(-1, ' ', false, ordered_json::error_handler_t::replace) << '\n';
  lines_.flush();
  if (!lines_) throw OutputError{};
}

void Events::MsgBox(const Table& t, std::u16string_view texto) {
  Write({{"event", "msgbox"},
         {"title", ""},
         {"text", ToUtf8(texto)},
         {"buttons", "ok"},
         {"icon", "none"},
         {"default", "ok"},
         {"texts", Texts(t)}});
}

void Events::YesNoBox(const Table& t, const YesNoQuestion& pregunta) {
  Write({{"event", "msgbox"},
         {"title", ToUtf8(pregunta.Titulo)},
         {"text", ToUtf8(pregunta.Texto)},
         {"buttons", "yesno"},
         {"icon", pregunta.ConIcono ? "question" : "none"},
         {"default", pregunta.PorDefecto ? "yes" : "no"},
         {"texts", Texts(t)}});
}

void Events::InputBox(const Table& t, const InputQuestion& pregunta) {
  Write({{"event", "inputbox"},
         {"title", ToUtf8(pregunta.Titulo)},
         {"text", ToUtf8(pregunta.Texto)},
         {"default", ToUtf8(pregunta.PorDefecto)},
         {"texts", Texts(t)}});
}

void Events::ShowDialog(const Table& t, const Dialog& dialogo) {
  Write({{"event", "dialog"},
         {"title", ToUtf8(dialogo.Caption)},
         {"mode", Json(dialogo.Modo)},
         {"texts", Texts(t)}});
}

void Events::Sound(const Table& t, std::u16string_view archivo) {
  ordered_json event = Named("sound");
  event["file"] = ToUtf8(archivo);
  event.update(MediaPlayer(t));
  Write(event);
}

void Events::SoundStop(const Table& t) {
  ordered_json event = Named("soundstop");
  event.update(MediaPlayer(t));
  Write(event);
}

void Events::State(const Table& t, const Rnd& rnd) {
  ordered_json event = Named("state");
  event.update(OrderAndPhase(t));
  event.update(BetsAndScores(t));
  event.update(SoundAndCards(t));
  event.update(PlayersAndTexts(t));
  event["draws"] = rnd.Draws();
  Write(event);
}

void Events::End(std::string_view reason, std::u16string_view texto) {
  Write({{"event", "end"}, {"reason", reason}, {"text", ToUtf8(texto)}});
}

}  // namespace tasca
