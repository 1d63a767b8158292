#pragma once
// The fonts of the drawn table: the system's font in the sizes of the layout.
#include <QFont>
#include <QFontMetricsF>
#include <map>
#include <string>
#include <utility>

#include "ui/mesa/text_fit.h"

namespace tasca {

// Fonts are made when they are first asked for, and kept.
class MesaLetters {
 public:
  explicit MesaLetters(const QFont& sistema);

  // The size of the system's font in pixels.
  double Pixels() const { return pixeles_; }
  // The font of these letters; valid as long as this lives.
  const QFont& Font(Letra letra);
  // Measures for the layout; valid as long as this lives.
  AnchoDeTexto Measure();

 private:
  struct Cut {
    QFont Fuente;
    QFontMetricsF Medidas;
  };

  Cut& CutFor(Letra letra);

  QFont sistema_;
  double pixeles_;
  std::map<std::pair<double, bool>, Cut> cortes_;
};

// One line of a text of the table.
QString OneLine(std::u16string_view texto);

}  // namespace tasca
