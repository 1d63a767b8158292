// Look-ups of characters and phrases.
#include "table/table.h"

namespace tasca {

const Personaje& PersonajeDe(const Table& t, Seat asiento) {
  return t.Personajes[t.PersonajeAsiento[asiento - 1]];
}

const FixedText<AnchoFrase>& Mensaje(const Table& t, int personaje, MessageCategory categoria,
                                     int hueco) {
  return t.Mensajes[personaje][categoria][hueco];
}

}  // namespace tasca
