// Computes the seed from the clock.
#include "startup/seed.h"

#include <cstdint>

namespace tasca {

void SembrarConHora(Game& g) {
  const TimeOfDay hora = g.port.Now();
  const int semilla = (hora.Hora + 1) * ((hora.Minuto + 1) * (hora.Segundo + 1));
  g.rnd.Seed(static_cast<std::uint32_t>(semilla));
}

}  // namespace tasca
