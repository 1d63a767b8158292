#pragma once
// What the player is at when asking for help, and the section of the manual about it.
#include <string_view>

#include "table/phases.h"
#include "table/port.h"

namespace tasca {

enum class Asunto {
  Inicio,  // the start-up dialog
  Mus,
  Descarte,
  Grande,
  Pequena,
  Pares,
  Juego,
  Punto,
  Envite,    // whether to bet, or to accept a bet
  Cantidad,  // how many stones to bet
  Recuento,
  FinDePartida,
  Editor,
};
inline constexpr int Asuntos = 13;

// The subject of a phase: the step that Enter runs next, or that has opened a box.
Asunto AsuntoDe(Fase fase);
// The subject of a question.
Asunto AsuntoDe(Pregunta pregunta);

// The anchor of the section about it (AnchorOfTitle).
std::string_view AnchorOf(Asunto asunto);

}  // namespace tasca
