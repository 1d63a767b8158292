#pragma once
// Finds controls that a screen reader cannot name.
#include <QWidget>
#include <string>
#include <vector>

namespace tasca::test {

// The controls of a window that can have the focus but have neither an accessible name nor a label:
// the object name of each, or of its nearest ancestor with one.
std::vector<std::string> Nameless(QWidget* ventana);

}  // namespace tasca::test
