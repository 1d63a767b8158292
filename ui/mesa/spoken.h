#pragma once
// The table as sentences for screen readers, in the order in which they are read.
#include <string>
#include <string_view>
#include <vector>

#include "scene/scene.h"

namespace tasca {

// The subject of a sentence, which locates it on the picture.
enum class Parte {
  Asiento,  // Indice: the seat
  Carta,    // Indice: the player's card 1 to 4
  Lance,    // Indice: the NumeroLance
  Tanteo,   // Indice: the pareja
};

struct Frase {
  Parte De = Parte::Asiento;
  int Indice = 0;
  std::u16string Texto;

  bool operator==(const Frase&) const = default;
};

// What follows the name of a seat: ", de su pareja, enfrente".
std::u16string_view SitioHablado(Seat asiento);

// Seats 1 to 4, each of the player's cards, the lances, and both scores. A face-down card has no
// name.
std::vector<Frase> LaMesaHablada(const Escena& escena);

}  // namespace tasca
