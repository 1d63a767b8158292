#pragma once
// The menu "Ayuda".
#include <QMenuBar>
#include <functional>
#include <string>

namespace tasca {

// Adds the menu with its entries "Manual" and "Acerca de".
void AddHelpMenu(QMenuBar& menus, const std::function<void()>& alPedirManual,
                 const std::function<void()>& alPedirDatos);

// The program's name and version, and the libraries with theirs.
std::u16string AboutText();

}  // namespace tasca
