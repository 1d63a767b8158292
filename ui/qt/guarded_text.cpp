// Filters insertions by keys, by input methods, and by paste or drop.
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
  // toPlainText() would replace every no-break space by a blank.
  return document()->toRawText().replace(QChar::ParagraphSeparator, QChar{u'\n'});
}

// Drops the U+FFFD that ToDisplay shows for invalid characters: they could not be told apart.
std::u16string GuardedText::Text() const {
  QString texto = Typed();
  if (texto == ToDisplay(mostrado_)) return mostrado_;
  return texto.remove(QChar{u'\n'}).remove(QChar::ReplacementCharacter).toStdU16String();
}

// A fixed-width text that was never set holds only NULs. It is shown as "", so that the NULs are
// not stored with another text of the character.
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
  // QPlainTextEdit would insert the tab of Ctrl+Alt+I or Alt+Tab.
  if (tecleado.contains(QChar{u'\t'})) return suceso->ignore();
  const bool escribe = esEnter || (!tecleado.isEmpty() && !IsControl(tecleado.front().unicode()));
  if (!escribe || Accepts(tecleado)) QPlainTextEdit::keyPressEvent(suceso);
}

// Refusing the commit string still ends the composition. A composition removes the selected text,
// which is restored if nothing is committed.
void GuardedText::inputMethodEvent(QInputMethodEvent* suceso) {
  const bool componia = componiendo_;
  if (!componia) antes_ = TakeSnapshot();
  const bool escribe = !suceso->commitString().isEmpty();
  const bool rechazado = escribe && !Accepts(suceso->commitString());
  QInputMethodEvent nada;
  QPlainTextEdit::inputMethodEvent(rechazado ? &nada : suceso);
  componiendo_ = !rechazado && !suceso->preeditString().isEmpty();
  const bool escrito = escribe && !rechazado;
  if (escrito) antes_ = TakeSnapshot();
  if (componia && !componiendo_ && !escrito) Restore();
}

GuardedText::Snapshot GuardedText::TakeSnapshot() const {
  return {.Texto = Typed(), .Ancla = textCursor().anchor(), .Cursor = textCursor().position()};
}

void GuardedText::Restore() {
  QTextCursor cursor{document()};
  if (Typed() != antes_.Texto) {
    cursor.select(QTextCursor::Document);
    cursor.insertText(antes_.Texto);
  }
  cursor.setPosition(antes_.Ancla);
  cursor.setPosition(antes_.Cursor, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

// QPlainTextEdit crashes on MIME data without text, such as an empty clipboard.
void GuardedText::insertFromMimeData(const QMimeData* datos) {
  if (datos->hasText() && Accepts(datos->text())) QPlainTextEdit::insertFromMimeData(datos);
}

// A click sets the cursor after focusInEvent, which clears the selection: it is selected later
// then.
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
