// Traverses the accessibility tree of a window.
#include "tests/ui_qt/nameless.h"

#include <QAccessible>
#include <QComboBox>
#include <algorithm>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

bool HasLabel(const QAccessibleInterface& control) {
  const auto rotulos = control.relations(QAccessible::Label);
  return std::any_of(rotulos.begin(), rotulos.end(), [](const auto& rotulo) {
    return !rotulo.first->text(QAccessible::Name).trimmed().isEmpty();
  });
}

// The accessible name of a combo box is its current entry, so that it needs a label.
bool HasName(const QAccessibleInterface& control) {
  if (HasLabel(control)) return true;
  if (qobject_cast<QComboBox*>(control.object()) != nullptr) return false;
  return !control.text(QAccessible::Name).trimmed().isEmpty();
}

// The object name of the control or of its nearest ancestor with one.
std::string ObjectName(const QAccessibleInterface* control) {
  for (; control != nullptr; control = control->parent()) {
    const QObject* const objeto = control->object();
    if (objeto != nullptr && !objeto->objectName().isEmpty()) return Utf8(objeto->objectName());
  }
  return {};
}

}  // namespace

std::vector<std::string> Nameless(QWidget* ventana) {
  std::vector<std::string> sinNombre;
  std::vector<const QAccessibleInterface*> porVer{QAccessible::queryAccessibleInterface(ventana)};
  while (!porVer.empty()) {
    const QAccessibleInterface* const control = porVer.back();
    porVer.pop_back();
    if (control->state().focusable && !HasName(*control)) sinNombre.push_back(ObjectName(control));
    for (int i = 0; i < control->childCount(); ++i) porVer.push_back(control->child(i));
  }
  return sinNombre;
}

}  // namespace tasca::test
