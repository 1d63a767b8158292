// Names of cards in the manual.
#include "ui/manual/card_reference.h"

#include <algorithm>
#include <array>

#include "cards/deck.h"
#include "ui/manual/pieces.h"
#include "ui/utf8.h"

namespace tasca {
namespace {

constexpr std::array<std::string_view, 10> NombresDeFigura{
    "as", "dos", "tres", "cuatro", "cinco", "seis", "siete", "sota", "caballo", "rey"};
constexpr std::array<std::string_view, 4> NombresDePalo{"oros", "copas", "espadas", "bastos"};

}  // namespace

std::string NameOfCard(int carta) {
  const auto indice = static_cast<std::size_t>(carta - 1);
  std::string nombre{NombresDeFigura.at(indice % NombresDeFigura.size())};
  nombre += '-';
  nombre += NombresDePalo.at(indice / NombresDeFigura.size());
  return nombre;
}

int CardOfName(std::string_view nombre) {
  for (int carta = 1; carta <= CartasBaraja; ++carta) {
    if (NameOfCard(carta) == nombre) return carta;
  }
  return 0;
}

std::vector<int> CardsOfReference(std::string_view referencia) {
  std::vector<int> cartas;
  if (referencia.starts_with("carta:")) {
    cartas.push_back(CardOfName(referencia.substr(referencia.find(':') + 1)));
  } else if (referencia.starts_with("mano:")) {
    for (const auto nombre : SplitAt(referencia.substr(referencia.find(':') + 1), ",")) {
      cartas.push_back(CardOfName(nombre));
    }
  }
  const bool valen = std::find(cartas.begin(), cartas.end(), 0) == cartas.end();
  return valen ? cartas : std::vector<int>{};
}

std::string CardsInWords(const std::vector<int>& cartas) {
  std::string nombres;
  for (const int carta : cartas) {
    if (!nombres.empty()) nombres += ", ";
    nombres += ToUtf8(NombreDeCarta(carta));
  }
  return nombres;
}

}  // namespace tasca
