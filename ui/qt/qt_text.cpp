// Conversion between the game's text and the toolkit's.
#include "ui/qt/qt_text.h"

#include "base/text.h"

namespace tasca {
QString ToDisplay(std::u16string_view texto) {
  QString mostrado;
  mostrado.reserve(static_cast<qsizetype>(texto.size()));
  for (std::size_t i = 0; i < texto.size(); ++i) {
    const char16_t letra = texto[i];
    if (letra == u'\0') continue;
    if (letra == u'\r' && i + 1 < texto.size() && texto[i + 1] == u'\n') continue;
    if (letra == u'\r' || letra == u'\n') {
      mostrado += u'\n';
    } else if (IsControl(letra) && letra != u'\t') {
      mostrado += QChar{QChar::ReplacementCharacter};
    } else {
      mostrado += QChar{letra};
    }
  }
  return mostrado;
}

QString ToLabel(std::u16string_view texto) {
  return ToDisplay(texto).replace(QStringLiteral("&"), QStringLiteral("&&"));
}

std::u16string FromInput(const QString& texto) {
  std::u16string tecleado = texto.toStdU16String();
  for (char16_t& letra : tecleado) {
    const bool separador = letra == QChar::LineSeparator || letra == QChar::ParagraphSeparator;
    // The five codes that Windows-1252 leaves undefined are valid in the files.
    const bool indefinida = letra >= 0x80;
    if (separador || (IsControl(letra) && !indefinida)) letra = u' ';
  }
  return tecleado;
}

QFont Scaled(QFont fuente, double factor) {
  if (fuente.pointSizeF() > 0) {
    fuente.setPointSizeF(fuente.pointSizeF() * factor);
  } else {
    fuente.setPixelSize(qRound(fuente.pixelSize() * factor));
  }
  return fuente;
}

}  // namespace tasca
