// Look-ups of characters and phrases.
#include "table/table.h"

#include "base/text.h"
#include "base/write_error.h"

namespace tasca {

const Personaje& PersonajeDe(const Table& t, Seat asiento) {
  return t.Personajes[t.PersonajeAsiento[asiento - 1]];
}

std::u16string NombreAsiento(const Table& t, Seat asiento) {
  if (asiento == AsientoHumano) return t.NombreJugador;
  if (t.UsarNombres) return std::u16string{PersonajeDe(t, asiento).Nombre.Trimmed()};
  return Join(u"Jugador ", asiento);
}

const FixedText<AnchoFrase>& Mensaje(const Table& t, int personaje, MessageCategory categoria,
                                     int hueco) {
  return t.Mensajes[personaje][categoria][hueco];
}

void ExigirQueSeGuarde(const Table& t, const std::filesystem::path& archivo) {
  if (!t.SinGuardar.empty()) throw WriteError{archivo, t.SinGuardar};
}

}  // namespace tasca
