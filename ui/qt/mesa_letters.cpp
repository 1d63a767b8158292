// A cache of fonts and their metrics by size.
#include "ui/qt/mesa_letters.h"

#include <QFontInfo>

#include "ui/qt/qt_text.h"

namespace tasca {

MesaLetters::MesaLetters(const QFont& sistema)
    : sistema_{sistema}, pixeles_{static_cast<double>(QFontInfo{sistema}.pixelSize())} {}

const QFont& MesaLetters::Font(Letra letra) { return CutFor(letra).Fuente; }

AnchoDeTexto MesaLetters::Measure() {
  return [this](std::u16string_view texto, Letra letra) {
    return CutFor(letra).Medidas.horizontalAdvance(OneLine(texto));
  };
}

MesaLetters::Cut& MesaLetters::CutFor(Letra letra) {
  const std::pair clave{letra.Factor, letra.Negrita};
  const auto conocida = cortes_.find(clave);
  if (conocida != cortes_.end()) return conocida->second;
  QFont fuente = Scaled(sistema_, letra.Factor);
  fuente.setBold(letra.Negrita);
  return cortes_.emplace(clave, Cut{fuente, QFontMetricsF{fuente}}).first->second;
}

QString OneLine(std::u16string_view texto) {
  return ToDisplay(texto).replace(QLatin1Char{'\n'}, QLatin1Char{' '});
}

}  // namespace tasca
