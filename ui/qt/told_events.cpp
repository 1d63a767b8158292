// The filter of the events for screen readers.
#include "ui/qt/told_events.h"

#include <QLineEdit>
#include <QTextCursor>

#include "ui/qt/input_line.h"

namespace tasca {
namespace {

bool IsAboutText(QAccessible::Event clase) {
  switch (clase) {
    case QAccessible::TextCaretMoved:
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextSelectionChanged:
    case QAccessible::TextUpdated:
      return true;
    default:
      return false;
  }
}

void Tell(QAccessibleEvent* suceso) {
  QAccessible::installUpdateHandler(nullptr);
  const Telling como = TellingOf(*suceso);
  if (como == Telling::AsItIs) QAccessible::updateAccessibility(suceso);
  // A screen reader follows the cursor to the line without reading it.
  if (como == Telling::Silently) {
    const auto* const linea = dynamic_cast<InputLine*>(suceso->object());
    QAccessibleTextCursorEvent cursor{suceso->object(), linea->textCursor().position()};
    QAccessible::updateAccessibility(&cursor);
  }
  QAccessible::installUpdateHandler(Tell);
}

}  // namespace

Telling TellingOf(const QAccessibleEvent& suceso) {
  if (suceso.type() == QAccessible::Focus) {
    const auto* const linea = dynamic_cast<InputLine*>(suceso.object());
    return linea != nullptr && linea->FocusIsKnown() ? Telling::Silently : Telling::AsItIs;
  }
  if (!IsAboutText(suceso.type())) return Telling::AsItIs;
  const auto* const campo = qobject_cast<QLineEdit*>(suceso.object());
  return campo != nullptr && !campo->isActiveWindow() ? Telling::Not : Telling::AsItIs;
}

void FilterEvents() { QAccessible::installUpdateHandler(Tell); }

}  // namespace tasca
