// The input line.
#include "ui/qt/input_line.h"

#include <QAbstractTextDocumentLayout>
#include <QAccessible>
#include <QApplication>
#include <QFocusEvent>
#include <QMimeData>
#include <QPointer>
#include <QTextBlock>
#include <QTextDocument>
#include <QtMath>
#include <algorithm>
#include <utility>

namespace tasca {

InputLine::InputLine(QWidget* padre, KeyHandler alPulsar)
    : QPlainTextEdit{padre}, alPulsar_{std::move(alPulsar)} {
  setTabChangesFocus(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(this, &QPlainTextEdit::textChanged, this, [this] { FitHeight(); });
  FitHeight();
}

void InputLine::ShowText(const QString& texto) {
  if (toPlainText() == texto) return;
  QAccessible::isActive() ? ExchangeDocument(texto) : setPlainText(texto);
}

// An insertion after Enter would be spoken as it stands, with the padding of the cards.
void InputLine::ExchangeDocument(const QString& texto) {
  auto* const nuevo = new QTextDocument{this};
  nuevo->setDocumentLayout(new QPlainTextDocumentLayout{nuevo});
  nuevo->setDefaultFont(document()->defaultFont());
  nuevo->setDocumentMargin(document()->documentMargin());
  nuevo->setPlainText(texto);
  const QPointer<QTextDocument> anterior{document()};
  setDocument(nuevo);
  if (anterior != nullptr && anterior->parent() == this) anterior->deleteLater();
  FitHeight();
}

void InputLine::keyPressEvent(QKeyEvent* suceso) {
  if (!alPulsar_(*suceso)) QPlainTextEdit::keyPressEvent(suceso);
}

// QPlainTextEdit crashes on MIME data without text, such as an empty clipboard.
void InputLine::insertFromMimeData(const QMimeData* datos) {
  if (datos->hasText()) QPlainTextEdit::insertFromMimeData(datos);
}

void InputLine::resizeEvent(QResizeEvent* suceso) {
  QPlainTextEdit::resizeEvent(suceso);
  FitHeight();
}

void InputLine::changeEvent(QEvent* suceso) {
  QPlainTextEdit::changeEvent(suceso);
  if (suceso->type() == QEvent::FontChange) FitHeight();
}

void InputLine::focusInEvent(QFocusEvent* suceso) {
  const bool vuelve = std::exchange(enUnaCaja_, false);
  focoSabido_ = vuelve && suceso->reason() == Qt::ActiveWindowFocusReason;
  QPlainTextEdit::focusInEvent(suceso);
}

void InputLine::focusOutEvent(QFocusEvent* suceso) {
  enUnaCaja_ = suceso->reason() == Qt::ActiveWindowFocusReason &&
               QApplication::activeModalWidget() != nullptr;
  QPlainTextEdit::focusOutEvent(suceso);
}

void InputLine::LimitHeight(int maximo) {
  maximo_ = maximo;
  FitHeight();
}

// The extra pixel keeps QPlainTextEdit from scrolling when the text fits exactly.
void InputLine::FitHeight() {
  double texto = document()->documentMargin();
  for (QTextBlock linea = document()->begin(); linea.isValid(); linea = linea.next()) {
    texto += document()->documentLayout()->blockBoundingRect(linea).height();
  }
  const int alto = qCeil(texto) + 2 * frameWidth() + 1;
  const int maximo = maximo_ > 0 ? maximo_ : alto;
  setVerticalScrollBarPolicy(alto <= maximo ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  setFixedHeight(std::min(alto, maximo));
}

}  // namespace tasca
