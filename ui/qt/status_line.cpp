// The status line.
#include "ui/qt/status_line.h"

#include <QAccessible>

#include "ui/qt/qt_text.h"

namespace tasca {

StatusLine::StatusLine(QWidget* padre) : QLabel{padre} {
  setObjectName(QStringLiteral("Status"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
}

void StatusLine::ShowText(std::u16string_view texto) {
  setText(ToDisplay(texto));
  if (texto.empty()) return;
  QAccessibleEvent aviso{this, QAccessible::Alert};
  QAccessible::updateAccessibility(&aviso);
}

}  // namespace tasca
