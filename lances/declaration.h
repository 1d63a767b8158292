#pragma once
// The human's declaration of pares or juego. Nobody at this table declares falsely: a wrong answer
// is corrected aloud.
#include <string_view>

#include "table/game.h"

namespace tasca {

struct PreguntaDeclaracion {
  Pregunta Sobre;
  std::u16string_view Titulo;        // the question stands in the title bar
  std::u16string_view SiEnRealidad;  // the correction when the human has it after all
  std::u16string_view NoEnRealidad;  // ... and when not
};

// Asks whether the human has it, `verdad` being the default, and corrects a wrong answer in a box.
void PreguntarDeclaracion(Game& g, const PreguntaDeclaracion& pregunta, bool verdad);

}  // namespace tasca
