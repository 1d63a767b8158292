// Boxes whose text is read without its padding, from the box on every query.
#include "ui/qt/unpadded_text.h"

#include <QFontMetrics>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <numeric>

#include "ui/spoken/sentences.h"

namespace tasca {

void* UnpaddedText::interface_cast(QAccessible::InterfaceType clase) {
  if (clase == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(clase);
}

QString UnpaddedText::text(QAccessible::Text clase) const {
  return clase == QAccessible::Value ? text(0, characterCount()) : QAccessibleWidget::text(clase);
}

QAccessible::State UnpaddedText::state() const {
  QAccessible::State estado = QAccessibleWidget::state();
  estado.selectableText = true;
  estado.readOnly = IsReadOnly();
  estado.editable = !IsReadOnly();
  return estado;
}

QString UnpaddedText::text(int desde, int hasta) const {
  const QString mostrado = Shown();
  const std::vector<int> sitios = Places();
  QString dicho;
  for (int i = std::max(desde, 0); i < std::min(hasta, static_cast<int>(sitios.size())); ++i) {
    dicho += mostrado.at(sitios.at(static_cast<std::size_t>(i)));
  }
  return dicho;
}

int UnpaddedText::characterCount() const { return static_cast<int>(Places().size()); }

int UnpaddedText::cursorPosition() const { return ToSpoken(Cursor()); }

void UnpaddedText::setCursorPosition(int sitio) { Select(ToShown(sitio), ToShown(sitio)); }

int UnpaddedText::selectionCount() const {
  const auto [desde, hasta] = Selected();
  return desde == hasta ? 0 : 1;
}

void UnpaddedText::selection(int indice, int* desde, int* hasta) const {
  const auto [primero, ultimo] = Selected();
  *desde = indice == 0 ? ToSpoken(primero) : 0;
  *hasta = indice == 0 ? ToSpoken(ultimo) : 0;
}

void UnpaddedText::addSelection(int desde, int hasta) {
  Select(ToShown(desde), EndInShown(desde, hasta));
}

void UnpaddedText::removeSelection(int indice) {
  if (indice == 0) Select(Cursor(), Cursor());
}

void UnpaddedText::setSelection(int indice, int desde, int hasta) {
  if (indice == 0) addSelection(desde, hasta);
}

QRect UnpaddedText::characterRect(int sitio) const { return PlaceOf(ToShown(sitio)); }

int UnpaddedText::offsetAtPoint(const QPoint& punto) const { return ToSpoken(PositionAt(punto)); }

void UnpaddedText::scrollToSubstring(int desde, int /*hasta*/) { setCursorPosition(desde); }

QString UnpaddedText::attributes(int /*sitio*/, int* desde, int* hasta) const {
  *desde = 0;
  *hasta = characterCount();
  return {};
}

std::vector<int> UnpaddedText::Places() const {
  const QString mostrado = Shown();
  if (HasPadding()) return SitiosSinRelleno(mostrado.toStdU16String());
  std::vector<int> todos(static_cast<std::size_t>(mostrado.size()));
  std::iota(todos.begin(), todos.end(), 0);
  return todos;
}

int UnpaddedText::ToSpoken(int sitio) const {
  const std::vector<int> sitios = Places();
  return static_cast<int>(std::lower_bound(sitios.begin(), sitios.end(), sitio) - sitios.begin());
}

int UnpaddedText::ToShown(int sitio) const {
  const std::vector<int> sitios = Places();
  const bool alFinal = sitio < 0 || sitio >= static_cast<int>(sitios.size());
  return alFinal ? static_cast<int>(Shown().size()) : sitios.at(static_cast<std::size_t>(sitio));
}

int UnpaddedText::EndInShown(int desde, int hasta) const {
  const bool hayUltimo = hasta > desde && hasta <= characterCount();
  return hayUltimo ? ToShown(hasta - 1) + 1 : ToShown(hasta);
}

QAccessible::State UnpaddedSheet::state() const {
  QAccessible::State estado = UnpaddedText::state();
  estado.multiLine = true;
  return estado;
}

std::pair<int, int> UnpaddedSheet::Selected() const {
  const QTextCursor cursor = caja_.textCursor();
  return {cursor.selectionStart(), cursor.selectionEnd()};
}

void UnpaddedSheet::Select(int ancla, int cursor) {
  QTextCursor elegido{caja_.document()};
  elegido.setPosition(ancla);
  elegido.setPosition(cursor, QTextCursor::KeepAnchor);
  caja_.setTextCursor(elegido);
}

QRect UnpaddedSheet::PlaceOf(int sitio) const {
  QTextCursor cursor{caja_.document()};
  cursor.setPosition(sitio);
  const QRect antes = caja_.cursorRect(cursor);
  cursor.movePosition(QTextCursor::NextCharacter);
  const QRect letra = antes.united(caja_.cursorRect(cursor));
  return letra.translated(caja_.viewport()->mapToGlobal(QPoint{}));
}

int UnpaddedSheet::PositionAt(const QPoint& punto) const {
  return caja_.cursorForPosition(caja_.viewport()->mapFromGlobal(punto)).position();
}

void* UnpaddedLine::interface_cast(QAccessible::InterfaceType clase) {
  if (clase == QAccessible::EditableTextInterface) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return UnpaddedText::interface_cast(clase);
}

void UnpaddedLine::setText(QAccessible::Text clase, const QString& texto) {
  if (clase != QAccessible::Value) return UnpaddedText::setText(clase, texto);
  replaceText(0, characterCount(), texto);
}

void UnpaddedLine::replaceText(int desde, int hasta, const QString& texto) {
  if (caja_.isReadOnly()) return;
  addSelection(desde, hasta);
  caja_.insert(texto);
}

std::pair<int, int> UnpaddedLine::Selected() const {
  if (!caja_.hasSelectedText()) return {Cursor(), Cursor()};
  return {caja_.selectionStart(), caja_.selectionEnd()};
}

void UnpaddedLine::Select(int ancla, int cursor) {
  if (ancla == cursor) return caja_.setCursorPosition(cursor);
  caja_.setSelection(ancla, cursor - ancla);
}

// The toolkit tells only the place of the cursor.
QRect UnpaddedLine::PlaceOf(int sitio) const {
  const QFontMetrics medidas = caja_.fontMetrics();
  const QString mostrado = caja_.text();
  const auto ancho = [&](int hasta) { return medidas.horizontalAdvance(mostrado.left(hasta)); };
  QRect letra = caja_.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  letra.moveLeft(letra.center().x() + ancho(sitio) - ancho(caja_.cursorPosition()));
  letra.setWidth(ancho(sitio + 1) - ancho(sitio));
  return letra.translated(caja_.mapToGlobal(QPoint{}));
}

int UnpaddedLine::PositionAt(const QPoint& punto) const {
  return caja_.cursorPositionAt(caja_.mapFromGlobal(punto));
}

}  // namespace tasca
