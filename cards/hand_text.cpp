// The text of one hand and of all four.
#include "cards/hand_text.h"

#include "base/text.h"

namespace tasca {
namespace {

std::u16string TextoManoDe(const Table& t, Seat asiento) {
  std::u16string texto = TextoCarta(t, asiento, 1);
  for (int hueco = 2; hueco <= 4; ++hueco) texto += Join(u", ", TextoCarta(t, asiento, hueco));
  return texto;
}

}  // namespace

std::u16string TextoCarta(const Table& t, Seat asiento, int hueco) {
  const Card& carta = t.Cartas[t.Manos[asiento][hueco]];
  return Join(carta.Figura.Full(), u" de ", carta.Palo.Full());
}

std::u16string TextoMano(const Table& t) { return TextoManoDe(t, AsientoHumano); }

void MostrarManos(Table& t, Integer asiento) {
  if (asiento != TodosLosAsientos) {
    t.Text1 = TextoManoDe(t, asiento);
    t.CartasVistas = {};
    return;
  }
  t.Text1.clear();
  for (Seat s = 1; s <= 4; ++s) {
    t.Text1 += Join(NombreAsiento(t, s), CrLf, TextoManoDe(t, s), CrLf);
  }
  t.CartasVistas = t.Manos;
}

}  // namespace tasca
