#pragma once
// What a screen reader could not name in a window.
#include <QWidget>
#include <string>
#include <vector>

namespace tasca::test {

// The controls of a window that can have the focus and have neither a name nor a label: the object
// name of each, or of the control that it belongs to.
std::vector<std::string> Nameless(QWidget* ventana);

}  // namespace tasca::test
