// The transcript.
#include "ui/qt/transcript.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

namespace tasca {

void ReplaceDifference(QTextDocument& documento, const QString& texto) {
  const QString anterior = documento.toPlainText();
  const QChar* const distinto =
      std::mismatch(anterior.begin(), anterior.end(), texto.begin(), texto.end()).first;
  QTextCursor cambio{&documento};
  cambio.setPosition(static_cast<int>(distinto - anterior.begin()));
  cambio.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
  cambio.insertText(texto.mid(distinto - anterior.begin()));
}

Transcript::Transcript(QWidget* padre) : QPlainTextEdit{padre} {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void Transcript::ShowText(const QString& texto) {
  ReplaceDifference(*document(), texto);
  moveCursor(QTextCursor::End);
  ScrollToEnd();
}

void Transcript::ScrollPages(int paginas) {
  verticalScrollBar()->triggerAction(paginas < 0 ? QScrollBar::SliderPageStepSub
                                                 : QScrollBar::SliderPageStepAdd);
}

QRect Transcript::LastLine() const {
  QTextBlock bloque = document()->lastBlock();
  while (bloque.previous().isValid() && bloque.text().trimmed().isEmpty())
    bloque = bloque.previous();
  QTextCursor cursor{bloque};
  cursor.movePosition(QTextCursor::EndOfBlock);
  const QRect final = cursorRect(cursor);
  cursor.movePosition(QTextCursor::StartOfLine);
  return final.united(cursorRect(cursor)).translated(viewport()->pos());
}

void Transcript::resizeEvent(QResizeEvent* suceso) {
  QPlainTextEdit::resizeEvent(suceso);
  ScrollToEnd();
}

void Transcript::ScrollToEnd() { verticalScrollBar()->setValue(verticalScrollBar()->maximum()); }

}  // namespace tasca
