// Asks for the human's declaration and corrects it.
#include "lances/declaration.h"

#include "base/text.h"

namespace tasca {

void PreguntarDeclaracion(Game& g, const PreguntaDeclaracion& pregunta, bool verdad) {
  const bool respuesta = g.port.YesNoBox(
      g.t, pregunta.Sobre, {.Titulo = pregunta.Titulo, .Texto = u"", .PorDefecto = verdad});
  if (respuesta == verdad) return;
  g.port.MsgBox(g.t, Join(u"En realidad ", verdad ? pregunta.SiEnRealidad : pregunta.NoEnRealidad));
}

}  // namespace tasca
