// Comparison without case and accents.
#include "ui/qt/text_search.h"

#include <QTextDocument>

namespace tasca {
namespace {

// One character for each of `texto`: in lower case and without its accent.
QString FoldForSearch(const QString& texto) {
  QString plegado = texto;
  for (QChar& letra : plegado) {
    const QString partes = letra.decomposition();
    if (!partes.isEmpty() && letra.decompositionTag() == QChar::Canonical) letra = partes.at(0);
    letra = letra.toLower();
  }
  return plegado;
}

}  // namespace

std::optional<QTextCursor> FindText(const QTextCursor& aqui, const QString& buscado,
                                    bool haciaAtras) {
  const QString texto = FoldForSearch(aqui.document()->toPlainText());
  const QString que = FoldForSearch(buscado);
  qsizetype donde = -1;
  if (haciaAtras) {
    if (aqui.selectionStart() > 0) donde = texto.lastIndexOf(que, aqui.selectionStart() - 1);
    if (donde < 0) donde = texto.lastIndexOf(que);
  } else {
    donde = texto.indexOf(que, aqui.selectionEnd());
    if (donde < 0) donde = texto.indexOf(que);
  }
  if (que.isEmpty() || donde < 0) return std::nullopt;
  QTextCursor hallado{aqui};
  hallado.setPosition(static_cast<int>(donde));
  hallado.setPosition(static_cast<int>(donde + que.size()), QTextCursor::KeepAnchor);
  return hallado;
}

}  // namespace tasca
