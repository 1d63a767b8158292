// The accessible roles, names and states in the order of the tab stops.
#include "tests/ui_qt/described.h"

#include <QAccessible>
#include <algorithm>
#include <array>
#include <utility>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

std::string RoleName(QAccessible::Role clase) {
  constexpr std::array<std::pair<QAccessible::Role, const char*>, 12> nombres{
      {{QAccessible::Window, "window"},
       {QAccessible::Dialog, "dialog"},
       {QAccessible::AlertMessage, "alert"},
       {QAccessible::EditableText, "text"},
       {QAccessible::PushButton, "button"},
       {QAccessible::Button, "button"},
       {QAccessible::CheckBox, "check box"},
       {QAccessible::RadioButton, "radio button"},
       {QAccessible::ComboBox, "combo box"},
       {QAccessible::List, "list"},
       {QAccessible::Tree, "tree"},
       {QAccessible::StaticText, "static text"}}};
  const auto* const nombre = std::find_if(nombres.begin(), nombres.end(),
                                          [clase](const auto& uno) { return uno.first == clase; });
  return nombre == nombres.end() ? "role " + std::to_string(clase) : nombre->second;
}

// Texts and lists have no name but their label.
std::string NameOf(const QAccessibleInterface& control) {
  const bool esBoton = control.role() == QAccessible::RadioButton;
  if (esBoton) return Utf8(control.text(QAccessible::Name));
  for (const auto& [rotulo, relacion] : control.relations(QAccessible::Label)) {
    return Utf8(rotulo->text(QAccessible::Name));
  }
  return Utf8(control.text(QAccessible::Name));
}

std::string Tell(QWidget* widget) {
  const QAccessibleInterface& control = *QAccessible::queryAccessibleInterface(widget);
  const QAccessible::State estado = control.state();
  std::string dicho = RoleName(control.role()) + ": " + NameOf(control);
  const std::array<std::pair<bool, const char*>, 6> estados{
      {{estado.focused, "focused"},
       {estado.checked, "checked"},
       {estado.readOnly, "read-only"},
       {estado.editable, "editable"},
       {estado.defaultButton, "default"},
       {estado.invisible || estado.disabled, "unreachable"}}};
  for (const auto& [esta, nombre] : estados) {
    if (esta) dicho += std::string{", "} + nombre;
  }
  return dicho;
}

bool IsTabStop(const QWidget& control) {
  return control.isVisible() && control.isEnabled() && (control.focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

std::vector<std::string> Described(QWidget* ventana) {
  std::vector<std::string> dichos{Tell(ventana)};
  QWidget* const primero = ventana->focusWidget();
  QWidget* control = primero;
  do {
    const bool suyo = control->window() == ventana && control->focusProxy() == nullptr;
    if (suyo && control != ventana && IsTabStop(*control)) dichos.push_back(Tell(control));
    control = control->nextInFocusChain();
  } while (control != primero);
  return dichos;
}

}  // namespace tasca::test
