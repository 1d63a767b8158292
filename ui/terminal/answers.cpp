// Comparison of typed answers with the options offered.
#include "ui/terminal/answers.h"

#include <algorithm>
#include <functional>

#include "base/text.h"

namespace tasca {
namespace {

char16_t FoldLetter(char16_t letra) {
  constexpr std::u16string_view Acentuadas = u"àáâãäåçèéêëìíîïñòóôõöùúûüýÿœšž";
  constexpr std::u16string_view Sencillas = u"aaaaaaceeeeiiiinooooouuuuyyœsz";
  static_assert(Acentuadas.size() == Sencillas.size());
  constexpr int Minuscula = u'a' - u'A';
  if (letra == u'Ÿ') return u'y';
  if (letra == u'Œ' || letra == u'Š' || letra == u'Ž') ++letra;
  const bool esMayuscula =
      (letra >= u'A' && letra <= u'Z') || (letra >= u'À' && letra <= u'Þ' && letra != u'×');
  if (esMayuscula) letra = static_cast<char16_t>(letra + Minuscula);
  const std::size_t i = Acentuadas.find(letra);
  return i == std::u16string_view::npos ? letra : Sencillas[i];
}

// Some input methods send decomposed letters.
bool IsCombiningAccent(char16_t letra) { return letra >= u'\u0300' && letra <= u'\u036F'; }

bool AWordStarts(std::u16string_view texto, std::u16string_view comienzo) {
  return texto.starts_with(comienzo) || Contains(texto, Join(u" ", comienzo));
}

using Criterio = std::function<bool(std::u16string_view)>;

std::vector<Option> Those(const std::vector<Option>& opciones, const Criterio& criterio) {
  std::vector<Option> elegidas;
  for (const Option& opcion : opciones) {
    if (criterio(opcion.Texto)) elegidas.push_back(opcion);
  }
  return elegidas;
}

// The numbers of the options, or of the one whose name is the beginning of all the others.
std::vector<int> Numbers(const std::vector<Option>& opciones) {
  std::vector<int> numeros;
  for (const Option& opcion : opciones) {
    const bool empiezanTodas =
        std::all_of(opciones.begin(), opciones.end(),
                    [&opcion](const Option& otra) { return otra.Texto.starts_with(opcion.Texto); });
    if (empiezanTodas) return {opcion.Numero};
    numeros.push_back(opcion.Numero);
  }
  return numeros;
}

}  // namespace

std::u16string Fold(std::u16string_view texto) {
  std::u16string plegado;
  for (const char16_t letra : Trim(texto)) {
    if (!IsCombiningAccent(letra)) plegado += FoldLetter(letra);
  }
  return plegado;
}

std::optional<bool> ReadYesNo(std::u16string_view respuesta) {
  const std::u16string plegada = Fold(respuesta);
  for (const std::u16string_view si : {u"s", u"si", u"y", u"yes"}) {
    if (plegada == si) return true;
  }
  if (plegada == u"n" || plegada == u"no") return false;
  return std::nullopt;
}

std::vector<int> FindOptions(const std::vector<Option>& opciones, std::u16string_view respuesta) {
  const std::u16string plegada = Fold(respuesta);
  if (plegada.empty()) return {};
  std::vector<Option> plegadas;
  for (const Option& opcion : opciones) {
    if (ToText(opcion.Numero) == plegada) return {opcion.Numero};
    plegadas.push_back({opcion.Numero, Fold(opcion.Texto)});
  }
  const auto esIgual = [&plegada](std::u16string_view texto) { return texto == plegada; };
  const auto empieza = [&plegada](std::u16string_view texto) { return texto.starts_with(plegada); };
  const auto empiezaPalabra = [&plegada](std::u16string_view texto) {
    return AWordStarts(texto, plegada);
  };
  for (const Criterio& criterio :
       {Criterio{esIgual}, Criterio{empieza}, Criterio{empiezaPalabra}}) {
    const std::vector<Option> posibles = Those(plegadas, criterio);
    if (!posibles.empty()) return Numbers(posibles);
  }
  return {};
}

}  // namespace tasca
