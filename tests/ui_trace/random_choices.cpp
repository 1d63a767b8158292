// Draws the choices. The order of the draws must not change: a random game is known by its seed.
#include "tests/ui_trace/random_choices.h"

#include <utility>

#include "base/keys.h"
#include "table/dialog.h"

namespace tasca::test {

std::u16string_view ErrorOf(Provocation provocation) {
  switch (provocation) {
    case Provocation::NoPhrases:
      return u"Un personaje no tiene nada que decir";
    case Provocation::HugeAmounts:
      return u"Desbordamiento";
    default:
      return {};
  }
}

RandomChoices::RandomChoices(Chooser any, Provocation provocation)
    : any_{std::move(any)}, provocation_{provocation} {}

std::string RandomChoices::Settings() {
  constexpr std::array<int, 6> stones{1, 5, 12, 25, 40, 200};
  const int piedras = stones.at(static_cast<std::size_t>(any_(6)));
  const int juegos = any_(5) + 1;
  const int vacas = any_(5) + 1;
  return std::to_string(piedras) + "\r\n" + std::to_string(juegos) + "\r\n" +
         std::to_string(vacas) + "\r\nAna> Nombre\r\n";
}

StartChoice RandomChoices::Start() {
  constexpr std::array<std::array<int, 3>, 4> seats{{{0, 0, 0}, {1, 2, 3}, {3, 0, 1}, {2, 3, 0}}};
  StartChoice start;
  start.Clock.Hora = any_(24);
  start.Clock.Minuto = any_(60);
  start.Clock.Segundo = any_(60);
  start.Combos = seats.at(static_cast<std::size_t>(any_(4)));
  start.Checks = {Sometimes(50), provocation_ != Provocation::NoPhrases};
  start.Option = any_(2);
  return start;
}

MoveChoice RandomChoices::Move() {
  if (Sometimes(90)) return {.Key = TeclaEnter};
  if (Sometimes(60)) return {.Sound = any_(4) * 2};
  if (Sometimes(30)) return {.Key = TeclaQ};
  if (Sometimes(50)) return {.Key = Tecla0, .Shift = MayusculasYControl};
  return {.Key = any_(256)};
}

std::optional<std::string> RandomChoices::Amount() {
  if (Sometimes(15)) return std::nullopt;
  if (Sometimes(10)) return "muchas";
  const int greatest = provocation_ == Provocation::HugeAmounts ? 60000 : 12;
  return std::to_string(any_(greatest));
}

// Órdagos are rare, so that most hands reach the count.
int RandomChoices::Button(int modo) {
  if (modo == static_cast<int>(ModoDialogo::RespuestaOrdago)) return any_(2);
  return Sometimes(5) ? 3 : any_(3);
}

std::optional<std::string> RandomChoices::Typed(std::u16string_view titulo) {
  if (titulo != u"Sustituir cartas") return Amount();
  return std::to_string(any_(10000));
}

bool RandomChoices::SaysYes(std::u16string_view pregunta) {
  if (pregunta == u"¿Desea cambiar de jugadores?") return Sometimes(5);
  if (pregunta != u"¿Desea jugar otra partida?") return Sometimes(70);
  ++matchesPlayed_;
  return Sometimes(95);
}

}  // namespace tasca::test
