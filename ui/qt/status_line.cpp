// The status line.
#include "ui/qt/status_line.h"

#include "ui/qt/qt_text.h"

namespace tasca {

StatusLine::StatusLine(QWidget* padre) : QLabel{padre} {
  setObjectName(QStringLiteral("Status"));
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
}

void StatusLine::ShowText(std::u16string_view texto) {
  setText(ToDisplay(texto));
  voz_.Say(text());
}

}  // namespace tasca
