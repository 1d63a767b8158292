#pragma once
// The table told in words, for those who hear it: a list in speaking order, built from the scene.
#include <string>
#include <vector>

#include "scene/scene.h"

namespace tasca {

// What a sentence is about, so that it can be found on the picture.
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

// The seats from the player's own, each of the player's cards, the lances, and both scores. A card
// that lies face down has no name.
std::vector<Frase> LaMesaHablada(const Escena& escena);

}  // namespace tasca
