#pragma once
// The menu "Juego".
#include <QMenuBar>
#include <functional>

namespace tasca {

// Adds the menu with its entries "Crónica" and "Salir del juego".
void AddGameMenu(QMenuBar& menus, const std::function<void()>& alVerCronica,
                 const std::function<void()>& alSalir);

}  // namespace tasca
