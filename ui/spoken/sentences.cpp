// Removal of padding and line breaks.
#include "ui/spoken/sentences.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace tasca {

std::vector<int> SitiosSinRelleno(std::u16string_view texto) {
  std::vector<int> sitios;
  bool empiezaRenglon = true;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    const bool sigueNada = i + 1 == texto.size() || Contains(u" \r\n,.", texto.substr(i + 1, 1));
    if (texto[i] == u' ' && (empiezaRenglon || sigueNada)) continue;
    empiezaRenglon = texto[i] == u'\r' || texto[i] == u'\n';
    sitios.push_back(static_cast<int>(i));
  }
  return sitios;
}

std::u16string SinRelleno(std::u16string_view texto) {
  std::u16string breve;
  for (const int sitio : SitiosSinRelleno(texto)) breve += texto[static_cast<std::size_t>(sitio)];
  return breve;
}

std::vector<std::u16string> Renglones(std::u16string_view texto) {
  std::vector<std::u16string> renglones;
  while (!texto.empty()) {
    const std::size_t fin = std::min(texto.find_first_of(u"\r\n"), texto.size());
    std::u16string renglon = SinRelleno(texto.substr(0, fin));
    if (!renglon.empty()) renglones.push_back(std::move(renglon));
    texto.remove_prefix(std::min(fin + 1, texto.size()));
  }
  return renglones;
}

std::u16string Seguido(const std::vector<std::u16string>& renglones) {
  constexpr std::u16string_view pausas = u".,:;!?…";
  std::u16string seguido;
  for (const std::u16string& renglon : renglones) {
    if (!seguido.empty()) seguido += u' ';
    seguido += renglon;
    const bool pausa =
        !renglon.empty() && Contains(pausas, std::u16string_view{&renglon.back(), 1});
    if (!pausa) seguido += u'.';
  }
  return seguido;
}

}  // namespace tasca
