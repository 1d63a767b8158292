// The factory of the descriptions.
#include "ui/qt/accessible.h"

#include <QAccessibleWidget>

#include "ui/qt/beside_window.h"
#include "ui/qt/dialog1_form.h"
#include "ui/qt/form1.h"
#include "ui/qt/told_events.h"
#include "ui/qt/unpadded_text.h"

namespace tasca {
namespace {

bool ShowsGameText(const QObject* objeto) {
  return dynamic_cast<const Transcript*>(objeto) != nullptr ||
         dynamic_cast<const InputLine*>(objeto) != nullptr;
}

// A window that is no dialog.
bool IsOwnWindow(const QObject* objeto) {
  return dynamic_cast<const Form1*>(objeto) != nullptr ||
         dynamic_cast<const Dialog1Form*>(objeto) != nullptr ||
         dynamic_cast<const BesideWindow*>(objeto) != nullptr;
}

QAccessibleInterface* DescribeText(const QString& /*clase*/, QObject* objeto) {
  if (auto* const linea = qobject_cast<QLineEdit*>(objeto)) return new UnpaddedLine{*linea};
  auto* const caja = qobject_cast<QPlainTextEdit*>(objeto);
  if (ShowsGameText(objeto)) return new UnpaddedSheet{*caja};
  if (!IsOwnWindow(objeto)) return nullptr;
  return new QAccessibleWidget{qobject_cast<QWidget*>(objeto), QAccessible::Window};
}

}  // namespace

void DescribeTexts() {
  QAccessible::installFactory(DescribeText);
  FilterEvents();
}

}  // namespace tasca
