// The three ways into a text box: keys, input methods, and the clipboard or the mouse.
#include "ui/qt/guarded_text.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QtMath>
#include <utility>

#include "base/text.h"
#include "characters/editor.h"
#include "ui/qt/qt_text.h"

namespace tasca {

GuardedText::GuardedText(QWidget* padre, int maximo, int filas, Refusal alRechazar)
    : QPlainTextEdit{padre}, maximo_{maximo}, filas_{filas}, alRechazar_{std::move(alRechazar)} {
  setTabChangesFocus(true);
  const int alto = qCeil(filas * fontMetrics().lineSpacing() + 2 * document()->documentMargin());
  setFixedHeight(alto + 2 * frameWidth() + 1);
  if (filas > 1) return;
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QString GuardedText::Typed() const {
  // toPlainText() would make a blank of every no-break space.
  return document()->toRawText().replace(QChar::ParagraphSeparator, QChar{u'\n'});
}

// What only stands for a character of a damaged file would be wrong once it is edited.
std::u16string GuardedText::Text() const {
  QString texto = Typed();
  if (texto == ToDisplay(mostrado_)) return mostrado_;
  return texto.remove(QChar{u'\n'}).remove(QChar::ReplacementCharacter).toStdU16String();
}

// A text never filled, nothing but NULs, is no text: it must not get into the file by another's
// name or story.
void GuardedText::ShowText(std::u16string_view texto) {
  if (texto.find_first_not_of(u'\0') == std::u16string_view::npos) texto = {};
  if (texto == Text()) return;
  mostrado_ = texto;
  setPlainText(ToDisplay(texto));
}

bool GuardedText::Accepts(const QString& insertado) {
  const auto escogido = textCursor().selectedText().size();
  const auto largo = Typed().size() - escogido + insertado.size();
  const std::u16string_view reparo =
      ReparoAlTexto(insertado.toStdU16String(), static_cast<int>(largo), maximo_);
  alRechazar_(reparo);
  return reparo.empty();
}

void GuardedText::keyPressEvent(QKeyEvent* suceso) {
  const bool esEnter = suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter;
  if (esEnter && filas_ == 1) return suceso->ignore();
  const QString tecleado = esEnter ? QStringLiteral("\n") : suceso->text();
  // The one control character that the toolkit takes as text, from Ctrl+Alt+I or Alt+Tab.
  if (tecleado.contains(QChar{u'\t'})) return suceso->ignore();
  const bool escribe = esEnter || (!tecleado.isEmpty() && !IsControl(tecleado.front().unicode()));
  if (!escribe || Accepts(tecleado)) QPlainTextEdit::keyPressEvent(suceso);
}

// A refused text still ends the composing that led to it. Composing takes the selection away: it
// comes back unless something is written in its place.
void GuardedText::inputMethodEvent(QInputMethodEvent* suceso) {
  const bool componia = componiendo_;
  if (!componia) antes_ = Now();
  const bool escribe = !suceso->commitString().isEmpty();
  const bool rechazado = escribe && !Accepts(suceso->commitString());
  QInputMethodEvent nada;
  QPlainTextEdit::inputMethodEvent(rechazado ? &nada : suceso);
  componiendo_ = !rechazado && !suceso->preeditString().isEmpty();
  const bool escrito = escribe && !rechazado;
  if (escrito) antes_ = Now();
  if (componia && !componiendo_ && !escrito) GoBack();
}

GuardedText::Stand GuardedText::Now() const {
  return {.Texto = Typed(), .Ancla = textCursor().anchor(), .Cursor = textCursor().position()};
}

void GuardedText::GoBack() {
  QTextCursor cursor{document()};
  if (Typed() != antes_.Texto) {
    cursor.select(QTextCursor::Document);
    cursor.insertText(antes_.Texto);
  }
  cursor.setPosition(antes_.Ancla);
  cursor.setPosition(antes_.Cursor, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

// What holds no text, as an empty clipboard does, would crash the toolkit.
void GuardedText::insertFromMimeData(const QMimeData* datos) {
  if (datos->hasText() && Accepts(datos->text())) QPlainTextEdit::insertFromMimeData(datos);
}

// A click sets the cursor after the focus has come, and would undo the selection.
void GuardedText::focusInEvent(QFocusEvent* suceso) {
  QPlainTextEdit::focusInEvent(suceso);
  if (suceso->reason() == Qt::PopupFocusReason || suceso->reason() == Qt::ActiveWindowFocusReason) {
    return;
  }
  const bool porClic = suceso->reason() == Qt::MouseFocusReason;
  QMetaObject::invokeMethod(this, "selectAll",
                            porClic ? Qt::QueuedConnection : Qt::DirectConnection);
}

}  // namespace tasca
