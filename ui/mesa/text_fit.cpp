// Breaking and cutting lines.
#include "ui/mesa/text_fit.h"

#include <algorithm>

#include "base/text.h"

namespace tasca {
namespace {

std::u16string_view PrimeraPalabra(std::u16string_view texto) { return Before(texto, u' '); }

// As many words of `resto` as fit into a line, at least one; they leave `resto`.
std::u16string TomarLinea(std::u16string_view& resto, Letra letra, double ancho,
                          const AnchoDeTexto& mide) {
  std::u16string linea;
  while (!resto.empty()) {
    const std::u16string_view palabra = PrimeraPalabra(resto);
    const std::u16string conella =
        linea.empty() ? std::u16string{palabra} : Join(linea, u" ", palabra);
    if (!linea.empty() && mide(conella, letra) > ancho) break;
    linea = conella;
    resto.remove_prefix(std::min(palabra.size() + 1, resto.size()));
    while (resto.starts_with(u' ')) resto.remove_prefix(1);
  }
  return linea;
}

}  // namespace

std::u16string Abreviado(std::u16string_view texto, Letra letra, double ancho,
                         const AnchoDeTexto& mide) {
  if (mide(texto, letra) <= ancho) return std::u16string{texto};
  while (!texto.empty()) {
    texto.remove_suffix(1);
    std::u16string cortado = Join(TrimRight(texto), u"…");
    if (mide(cortado, letra) <= ancho) return cortado;
  }
  return {};
}

std::vector<std::u16string> EnLineas(std::u16string_view texto, Letra letra, double ancho,
                                     int maximo, const AnchoDeTexto& mide) {
  std::vector<std::u16string> lineas;
  std::u16string_view resto = Trim(texto);
  while (!resto.empty() && static_cast<int>(lineas.size()) < maximo) {
    const bool esLaUltima = static_cast<int>(lineas.size()) + 1 == maximo;
    const std::u16string_view todo = resto;
    const std::u16string linea = TomarLinea(resto, letra, ancho, mide);
    lineas.push_back(Abreviado(esLaUltima ? todo : linea, letra, ancho, mide));
  }
  return lineas;
}

double AnchoMayor(const std::vector<std::u16string>& lineas, Letra letra,
                  const AnchoDeTexto& mide) {
  double mayor = 0;
  for (const std::u16string& linea : lineas) mayor = std::max(mayor, mide(linea, letra));
  return mayor;
}

}  // namespace tasca
