#pragma once
// References to pictures of cards: "carta:rey-oros" is one card, "mano:rey-oros,as-copas" several
// side by side.
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// The cards 1..40 of a reference; none if it is no valid reference.
std::vector<int> CardsOfReference(std::string_view referencia);

// The card 1..40 of a name such as "rey-oros"; 0 if there is none.
int CardOfName(std::string_view nombre);

// The name of a card: "rey-oros". The picture of the card in art/cards/ has the same name.
std::string NameOfCard(int carta);

// The cards in words: "Rey de oros, As de copas". UTF-8.
std::string CardsInWords(const std::vector<int>& cartas);

}  // namespace tasca
