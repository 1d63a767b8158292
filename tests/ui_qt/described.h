#pragma once
// What a screen reader is told of a window and of its tab stops.
#include <QWidget>
#include <string>
#include <vector>

namespace tasca::test {

// The window and then the controls that Tab reaches, from the one with the focus on, each as
// "role: name" and its states, such as "check box: Usar los nombres, checked".
std::vector<std::string> Described(QWidget* ventana);

}  // namespace tasca::test
