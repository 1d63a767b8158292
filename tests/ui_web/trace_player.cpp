// Each line of a trace as a call of the page.
#include "tests/ui_web/trace_player.h"

#include <gtest/gtest.h>

#include <utility>

#include "ui/utf8.h"

namespace tasca::test {
namespace {

using nlohmann::ordered_json;

ordered_json Settings(const nlohmann::json& suceso) {
  return {
      {"count", suceso["veces"]}, {"balance", suceso["balance"]}, {"volume", suceso["volumen"]}};
}

// The application's own title is none in a trace.
std::string TitleOf(const nlohmann::json& pregunta) {
  const auto titulo = pregunta["titulo"].get<std::string>();
  return titulo == ToUtf8(u"La tasca del tío Zarandel") ? "" : titulo;
}

ordered_json MessageEvent(const nlohmann::json& pregunta) {
  const bool yesNo = pregunta["clase"] == "siNo";
  std::string porDefecto = "ok";
  if (yesNo) porDefecto = pregunta["foco"] == 0 ? "yes" : "no";
  return {{"event", "msgbox"},
          {"title", TitleOf(pregunta)},
          {"text", pregunta["texto"]},
          {"buttons", yesNo ? "yesno" : "ok"},
          {"icon", yesNo && pregunta["icono"] ? "question" : "none"},
          {"default", porDefecto}};
}

ordered_json QuestionEvent(const nlohmann::json& pregunta) {
  if (pregunta["clase"] == "texto") {
    return {{"event", "inputbox"},
            {"title", TitleOf(pregunta)},
            {"text", pregunta["texto"]},
            {"default", pregunta["porDefecto"]}};
  }
  if (pregunta["clase"] == "envite") {
    return {{"event", "dialog"}, {"title", pregunta["titulo"]}, {"mode", pregunta["modo"]}};
  }
  return MessageEvent(pregunta);
}

}  // namespace

TracePlayer::TracePlayer(std::filesystem::path folder)
    : folder_{std::move(folder)}, juego_{std::make_unique<Tasca>(folder_)} {}

std::string TracePlayer::Play(const std::string& in) {
  std::istringstream lines{in};
  bool esPrimera = true;
  for (std::string line; std::getline(lines, line);) {
    const Json object = Json::parse(line);
    if (!object.contains("start")) {
      Take(object);
      continue;
    }
    if (std::exchange(esPrimera, false)) {
      const Json& reloj = object["start"]["clock"];
      hora_ = {.Hora = reloj[0], .Minuto = reloj[1], .Segundo = reloj[2]};
      Look(juego_->Abrir("", hora_));
    }
    if (vista_["situacion"] == "inicio") Start(object["start"]);
  }
  return out_.str();
}

void TracePlayer::Start(const Json& start) {
  for (int combo = 0; combo < 3; ++combo) {
    vista_ = Json::parse(juego_->Elige(combo, start["combos"][static_cast<std::size_t>(combo)]));
  }
  if (start.contains("checks")) {
    juego_->Marca(0, start["checks"][0]);
    juego_->Marca(1, start["checks"][1]);
  }
  if (start.contains("option")) juego_->Estilo(start["option"]);
  const std::string nombre =
      start.value("name", vista_["inicio"]["nombre"]["valor"].get<std::string>());
  Look(juego_->Aceptar(FromUtf8(nombre), hora_));
}

void TracePlayer::Take(const Json& line) {
  if (line.contains("key")) {
    return Look(juego_->Tecla(line["key"].get<int>(), line.value("shift", 0), hora_));
  }
  if (line.contains("sound")) return Look(juego_->FinDeSonido(line["sound"].get<int>(), hora_));
  Look(Answer(line));
}

std::string TracePlayer::Answer(const Json& line) {
  Entrada respuesta{.Hora = hora_};
  if (line.contains("result")) {
    respuesta.Clase = ClaseEntrada::Boton;
    respuesta.Numero = line["result"].get<int>();
  } else if (line.contains("text")) {
    respuesta.Clase = ClaseEntrada::Texto;
    respuesta.Texto = FromUtf8(line["text"].get<std::string>());
  } else if (line["button"] == "cancel") {
    respuesta.Clase = ClaseEntrada::Cancelado;
  } else {
    respuesta.Clase = line["button"] == "yes" ? ClaseEntrada::Si : ClaseEntrada::No;
  }
  return juego_->Responde(respuesta);
}

void TracePlayer::Look(const std::string& vista) {
  LookOnce(vista);
  while (vista_["pregunta"].is_object() && vista_["pregunta"]["clase"] == "aviso") {
    LookOnce(juego_->Responde({.Clase = ClaseEntrada::Aceptado, .Hora = hora_}));
  }
}

void TracePlayer::LookOnce(const std::string& vista) {
  vista_ = Json::parse(vista);
  WriteCalls(vista_);
  if (!vista_["pregunta"].is_null()) {
    WriteQuestion(vista_);
  } else if (vista_["situacion"] == "mesa") {
    events_.State(juego_->Sesion().Mesa(), juego_->Sesion().Generador());
  } else if (vista_["situacion"] == "fin") {
    WriteEnd(vista_);
  }
  if (cierra_ && vista_["situacion"] == "mesa") CloseAndGoOn();
}

// The sound stop of the start-up dialog is no part of a trace, which ends before.
void TracePlayer::WriteCalls(const Json& vista) {
  for (const Json& suceso : vista["sucesos"]) {
    if (vista["situacion"] == "inicio") continue;
    ordered_json event{{"event", "soundstop"}};
    if (suceso["suceso"] == "sonido") event = {{"event", "sound"}, {"file", suceso["archivo"]}};
    event.update(Settings(suceso));
    out_ << event.dump() << '\n';
  }
}

void TracePlayer::WriteQuestion(const Json& vista) {
  ordered_json event = QuestionEvent(vista["pregunta"]);
  event["texts"] = vista["textos"];
  out_ << event.dump() << '\n';
}

void TracePlayer::WriteEnd(const Json& vista) {
  const Desenlace& final = juego_->Sesion().Final();
  EXPECT_EQ(vista["final"]["estado"], final.Estado);
  EXPECT_EQ(vista["final"]["mensaje"], final.YaMostrado ? "" : ToUtf8(final.Mensaje));
  events_.End(final.Estado == 0 ? "quit" : "error", final.Mensaje);
}

// The new page shows the same, and repeats no sound.
void TracePlayer::CloseAndGoOn() {
  const Json antes = vista_;
  const std::string guardada = juego_->Guardada();
  juego_ = std::make_unique<Tasca>(folder_);
  vista_ = Json::parse(juego_->Abrir(guardada, {}));
  EXPECT_EQ(vista_["situacion"], "mesa");
  EXPECT_EQ(vista_["textos"], antes["textos"]);
  EXPECT_EQ(vista_["pregunta"], antes["pregunta"]);
  EXPECT_EQ(vista_["sucesos"], Json::array());
  EXPECT_EQ(vista_["aviso"], "");
  EXPECT_EQ(juego_->Guardada(), guardada);
  ++cerradas_;
  if (!vista_["pregunta"].is_null()) ++conPregunta_;
}

}  // namespace tasca::test
