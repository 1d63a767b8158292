// Answers from a hash of the table.
#include "tests/support/state_player.h"

#include "base/text.h"
#include "table/dialog.h"

namespace tasca::test {

int StatePlayer::Below(const Table& t, unsigned n) {
  constexpr std::uint32_t Primo = 16'777'619;
  std::uint32_t suma = (2'166'136'261U ^ semilla_) + ++preguntas_;
  for (const char16_t letra : t.Text2) suma = (suma ^ letra) * Primo;
  for (const auto& mano : t.Manos) {
    for (const int carta : mano) suma = (suma ^ static_cast<std::uint32_t>(carta)) * Primo;
  }
  return static_cast<int>((suma >> 8U) % n);
}

bool StatePlayer::YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& /*pregunta*/) {
  if (sobre == Pregunta::OtraPartida) return OtraPartida;
  if (sobre == Pregunta::CambiarJugadores) return CambiarJugadores;
  if (sobre == Pregunta::SeguirPartida) return SeguirPartida;
  return Below(t, 2) == 1;
}

std::u16string StatePlayer::InputBox(const Table& t, Pregunta sobre,
                                     const InputQuestion& /*pregunta*/) {
  return ToText(Below(t, sobre == Pregunta::Descarte ? 5000 : 12));
}

// Órdagos are rare, so that most hands reach the count.
void StatePlayer::ShowDialog(const Table& t, Dialog& dialogo) {
  constexpr int Pocas = 20;
  int boton = Below(t, Pocas) == 0 ? 3 : Below(t, 3);
  if (!dialogo.Command1[boton].Visible) boton = Below(t, 2);
  Command1_Click(dialogo, boton);
}

}  // namespace tasca::test
