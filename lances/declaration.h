#pragma once
// The human's declaration of pares or juego. A false declaration is not possible: a message box
// corrects a wrong answer.
#include <string_view>

#include "table/game.h"

namespace tasca {

// The texts of a declaration question.
struct PreguntaDeclaracion {
  Pregunta Sobre;
  std::u16string_view Titulo;        // the question; it is shown in the title bar
  std::u16string_view SiEnRealidad;  // the correction of a wrong No
  std::u16string_view NoEnRealidad;  // the correction of a wrong Yes
};

// Asks the human the question. `verdad` is the correct answer and the default button. A wrong
// answer is corrected in a message box; it has no other effect.
void PreguntarDeclaracion(Game& g, const PreguntaDeclaracion& pregunta, bool verdad);

}  // namespace tasca
