// The answers to what the player asks for.
#include "ui/spoken/on_demand.h"

#include <utility>
#include <vector>

#include "base/text.h"
#include "cards/deck.h"
#include "ui/mesa/spoken.h"
#include "ui/spoken/sentences.h"

namespace tasca {
namespace {

// The names of the ranks are ASCII.
std::u16string ConMinuscula(std::u16string texto) {
  if (!texto.empty() && texto[0] >= u'A' && texto[0] <= u'Z') {
    texto[0] = static_cast<char16_t>(texto[0] - u'A' + u'a');
  }
  return texto;
}

bool SeHaJugado(const Escena& escena, int lance) {
  for (const CeldaPizarra& celda : escena.Pizarra) {
    if (static_cast<int>(celda.Lance) == lance) return celda.Estado != EstadoLance::PorJugar;
  }
  return false;
}

}  // namespace

std::u16string ManoDicha(const Escena& escena) {
  std::u16string dicha;
  for (const Naipe& naipe : escena.Asientos[AsientoHumano].Naipes) {
    if (!naipe.Hay || naipe.Carta == 0) continue;
    const std::u16string carta = NombreDeCarta(naipe.Carta);
    dicha += dicha.empty() ? carta : Join(u", ", ConMinuscula(carta));
  }
  return dicha.empty() ? u"No tiene cartas." : dicha + u".";
}

std::u16string TanteoDicho(const Escena& escena) {
  std::vector<std::u16string> tanteo;
  std::vector<std::u16string> lances;
  for (Frase& frase : LaMesaHablada(escena)) {
    if (frase.De == Parte::Tanteo) tanteo.push_back(std::move(frase.Texto));
    const bool esLance = frase.De == Parte::Lance && SeHaJugado(escena, frase.Indice);
    if (esLance) lances.push_back(std::move(frase.Texto));
  }
  tanteo.insert(tanteo.end(), lances.begin(), lances.end());
  return Seguido(tanteo);
}

std::u16string ManoDichaPorNombre(const Escena& escena) {
  if (escena.Asientos[AsientoHumano].EsMano) return u"Es usted mano.";
  for (Seat asiento = 2; asiento <= 4; ++asiento) {
    const AsientoVisto& visto = escena.Asientos[asiento];
    if (visto.EsMano) return Join(u"Es mano ", visto.Nombre, SitioHablado(asiento), u".");
  }
  return u"Todavía no se sabe quién es mano: lo será el primero que no quiera mus.";
}

}  // namespace tasca
