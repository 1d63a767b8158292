// The table of subjects and sections.
#include "ui/manual/asunto.h"

#include <array>

namespace tasca {

Asunto AsuntoDe(Fase fase) {
  switch (fase) {
    case Fase::Mus:
      return Asunto::Mus;
    case Fase::Grande:
    case Fase::RespuestaGrande:
      return Asunto::Grande;
    case Fase::Pequena:
    case Fase::RespuestaPequena:
      return Asunto::Pequena;
    case Fase::DeclaracionPares:
    case Fase::Pares:
    case Fase::RespuestaPares:
      return Asunto::Pares;
    case Fase::DeclaracionJuego:
    case Fase::Juego:
    case Fase::RespuestaJuego:
      return Asunto::Juego;
    case Fase::Punto:
    case Fase::RespuestaPunto:
      return Asunto::Punto;
    case Fase::EmpezarMano:  // the count is still to be read
    case Fase::Cuenta:
      return Asunto::Recuento;
  }
  return Asunto::Recuento;
}

Asunto AsuntoDe(Pregunta pregunta) {
  switch (pregunta) {
    case Pregunta::SeguirPartida:
      return Asunto::Inicio;
    case Pregunta::Mus:
      return Asunto::Mus;
    case Pregunta::Descarte:
      return Asunto::Descarte;
    case Pregunta::Pares:
      return Asunto::Pares;
    case Pregunta::Juego:
      return Asunto::Juego;
    case Pregunta::Cantidad:
      return Asunto::Cantidad;
    case Pregunta::OtraPartida:
    case Pregunta::CambiarJugadores:
      return Asunto::FinDePartida;
  }
  return Asunto::FinDePartida;
}

std::string_view AnchorOf(Asunto asunto) {
  static constexpr std::array<std::string_view, Asuntos> anclas{
      "al-empezar",         "el-mus",      "los-descartes",
      "la-grande",          "la-pequeña",  "los-pares",
      "el-juego",           "el-punto",    "envidar-querer-y-no-querer",
      "envidar-más",        "el-recuento", "juegos-vacas-y-partida",
      "hacer-un-personaje",
  };
  return anclas.at(static_cast<std::size_t>(asunto));
}

}  // namespace tasca
