// The manual's document in a text browser.
#include "ui/qt/manual_text.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ui/manual/markup.h"
#include "ui/manual/pieces.h"
#include "ui/qt/mesa_colors.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/text_search.h"

namespace tasca {
namespace {

// Without a path: otherwise QTextBrowser reads a document again that has been changed, for every
// link that is followed.
const QUrl& ManualUrl() {
  static const QUrl direccion{QStringLiteral("manual:")};
  return direccion;
}

// The size of the letters after so many steps of the zoom, compared with those of the menus.
double LetterScale(int aumento) { return 1.15 * std::pow(1.1, aumento); }

// Room above a heading, and a box around the section in short.
QTextBlockFormat DressedBlock(QTextBlockFormat formato, const QPalette& colores) {
  if (formato.headingLevel() > 0) formato.setTopMargin(formato.headingLevel() == 1 ? 28 : 16);
  if (formato.hasProperty(QTextFormat::BlockQuoteLevel)) {
    formato.setBackground(colores.alternateBase());
    formato.setLeftMargin(12);
    formato.setRightMargin(12);
  }
  return formato;
}

// Room in the cells, and thin lines in the colour of the text.
void DressTable(QTextTable& tabla, const QColor& linea) {
  QTextTableFormat formato = tabla.format();
  formato.setCellPadding(5);
  formato.setCellSpacing(0);
  formato.setBorderCollapse(true);
  formato.setBorder(1);
  formato.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  formato.setBorderBrush(linea);
  formato.setTopMargin(6);
  formato.setBottomMargin(10);
  tabla.setFormat(formato);
}

}  // namespace

ManualText::ManualText(QWidget* padre) : QTextBrowser{padre}, dibujos_{new ManualPictures{this}} {
  setObjectName(QStringLiteral("ManualText"));
  setAccessibleName(QStringLiteral("El manual"));
  setOpenExternalLinks(false);
  setUndoRedoEnabled(false);
  document()->setDocumentMargin(14);
  document()->documentLayout()->registerHandler(QTextFormat::ImageObject, dibujos_);
  FitFont();
  Load();
}

void ManualText::Load() {
  const QScopedValueRollback<bool> aqui{cargando_, true};
  dibujos_->SetDark(ColorsFor(palette()).Oscuro);
  if (source().isEmpty()) {
    setSource(ManualUrl(), QTextDocument::MarkdownResource);
  } else {
    reload();
  }
  NameHeadings();
  for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next()) {
    QTextCursor{bloque}.setBlockFormat(DressedBlock(bloque.blockFormat(), palette()));
  }
  QColor linea = palette().color(QPalette::Text);
  linea.setAlphaF(0.35F);
  for (QTextFrame* const marco : document()->rootFrame()->childFrames()) {
    if (auto* const tabla = qobject_cast<QTextTable*>(marco)) DressTable(*tabla, linea);
  }
}

// Markdown gives the headings no names by which links could find them.
void ManualText::NameHeadings() {
  titulos_.clear();
  for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next()) {
    const int nivel = bloque.blockFormat().headingLevel();
    if (nivel == 0) continue;
    const QString titulo = bloque.text();
    const QString ancla = QString::fromStdString(AnchorOfTitle(titulo.toStdString()));
    titulos_.push_back({nivel, titulo, ancla});
    QTextCursor cursor{bloque};
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat formato;
    formato.setAnchor(true);
    formato.setAnchorNames({ancla});
    cursor.mergeCharFormat(formato);
  }
}

QVariant ManualText::loadResource(int tipo, const QUrl& direccion) {
  if (tipo != QTextDocument::MarkdownResource || direccion.scheme() != ManualUrl().scheme()) {
    return {};
  }
  return QString::fromStdString(ManualMarkdown(PicturesOfCards));
}

void ManualText::doSetSource(const QUrl& direccion, QTextDocument::ResourceType tipo) {
  const bool esDeAqui = direccion.scheme() == ManualUrl().scheme() ||
                        (direccion.isRelative() && direccion.path().isEmpty());
  if (esDeAqui) QTextBrowser::doSetSource(direccion, tipo);
}

void ManualText::GoTo(const QString& ancla) {
  QUrl direccion = ManualUrl();
  direccion.setFragment(ancla);
  setSource(direccion, QTextDocument::MarkdownResource);
}

QString ManualText::CurrentAnchor() const {
  const int posicion = FirstVisible();
  QString ancla;
  auto titulo = titulos_.begin();
  for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next()) {
    if (bloque.position() > posicion) break;
    if (bloque.blockFormat().headingLevel() > 0) ancla = (titulo++)->Anchor;
  }
  return ancla;
}

bool ManualText::Find(const QString& buscado, bool haciaAtras) {
  const std::optional<QTextCursor> hallado = FindText(textCursor(), buscado, haciaAtras);
  if (!hallado) return false;
  setTextCursor(*hallado);
  ensureCursorVisible();
  return true;
}

int ManualText::FirstVisible() const {
  return cursorForPosition(QPoint{viewport()->width() / 2, fontMetrics().height()}).position();
}

void ManualText::ScrollTo(int posicion) {
  QTextCursor cursor{document()};
  cursor.setPosition(posicion);
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
}

void ManualText::FitFont() { setFont(Scaled(QApplication::font(), LetterScale(aumento_))); }

void ManualText::Zoom(int pasos) {
  constexpr int menor = -4;
  constexpr int mayor = 14;
  const int antes = std::exchange(aumento_, std::clamp(aumento_ + pasos, menor, mayor));
  if (antes == aumento_) return;
  const int posicion = FirstVisible();
  FitFont();
  ScrollTo(posicion);
}

void ManualText::changeEvent(QEvent* suceso) {
  QTextBrowser::changeEvent(suceso);
  if (suceso->type() != QEvent::PaletteChange || cargando_ || titulos_.empty()) return;
  const int posicion = FirstVisible();
  Load();
  ScrollTo(posicion);
}

void ManualText::wheelEvent(QWheelEvent* suceso) {
  if (!suceso->modifiers().testFlag(Qt::ControlModifier)) return QTextBrowser::wheelEvent(suceso);
  suceso->accept();
  if (suceso->angleDelta().y() != 0) Zoom(suceso->angleDelta().y() > 0 ? 1 : -1);
}

}  // namespace tasca
