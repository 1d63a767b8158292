#pragma once
// The menu "Juego".
#include <QMenuBar>
#include <functional>

#include "ui/qt/listening_keys.h"

namespace tasca {

// Adds the menu with its entries "Crónica", those for listening, and "Salir del juego".
void AddGameMenu(QMenuBar& menus, const std::function<void()>& alVerCronica,
                 const std::function<void(Escucha)>& alEscuchar,
                 const std::function<void()>& alSalir);

}  // namespace tasca
