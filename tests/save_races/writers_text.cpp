// The texts by the writer's number.
#include "tests/save_races/writers_text.h"

#include "base/text.h"

namespace tasca::test {

std::u16string WritersName(int numero) { return Join(u"Escritor ", numero); }

int FillCast(Table& t, int numero) {
  constexpr int Personajes = 10;
  for (int n = 1; n <= Personajes; ++n) {
    t.Personajes[n].Nombre = WritersName(numero);
    for (int categoria = 1; categoria <= 14; ++categoria) {
      t.Mensajes[n][categoria][1] = WritersName(numero);
    }
  }
  return Personajes;
}

}  // namespace tasca::test
