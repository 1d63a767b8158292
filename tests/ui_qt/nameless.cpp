// Walking through a window as a screen reader does.
#include "tests/ui_qt/nameless.h"

#include <QAccessible>
#include <QComboBox>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

bool HasLabel(const QAccessibleInterface& control) {
  for (const auto& [rotulo, relacion] : control.relations(QAccessible::Label)) {
    if (!rotulo->text(QAccessible::Name).trimmed().isEmpty()) return true;
  }
  return false;
}

// A list to choose from is called after what is chosen in it: only its label tells what it is.
bool HasName(const QAccessibleInterface& control) {
  if (HasLabel(control)) return true;
  if (qobject_cast<QComboBox*>(control.object()) != nullptr) return false;
  return !control.text(QAccessible::Name).trimmed().isEmpty();
}

void Collect(const QAccessibleInterface& control, const std::string& de,
             std::vector<std::string>& sinNombre) {
  const QObject* const objeto = control.object();
  const std::string propio = objeto == nullptr ? "" : Utf8(objeto->objectName());
  const std::string nombre = propio.empty() ? de : propio;
  if (control.state().focusable && !HasName(control)) sinNombre.push_back(nombre);
  for (int i = 0; i < control.childCount(); ++i) Collect(*control.child(i), nombre, sinNombre);
}

}  // namespace

std::vector<std::string> Nameless(QWidget* ventana) {
  std::vector<std::string> sinNombre;
  Collect(*QAccessible::queryAccessibleInterface(ventana), "", sinNombre);
  return sinNombre;
}

}  // namespace tasca::test
