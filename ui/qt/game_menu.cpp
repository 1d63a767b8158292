// The menu "Juego".
#include "ui/qt/game_menu.h"

#include <QAction>
#include <QMenu>

namespace tasca {
namespace {

// The keys themselves are filtered, which works in boxes too; the entries only tell them.
void AddEntry(QMenu& menu, const char* nombre, const char* texto,
              const std::function<void()>& alElegir) {
  auto* const entrada = menu.addAction(QString::fromUtf8(texto));
  entrada->setObjectName(QString::fromUtf8(nombre));
  QObject::connect(entrada, &QAction::triggered, &menu, alElegir);
}

}  // namespace

void AddGameMenu(QMenuBar& menus, const std::function<void()>& alVerCronica,
                 const std::function<void(Escucha)>& alEscuchar,
                 const std::function<void()>& alSalir) {
  QMenu& juego = *menus.addMenu(QStringLiteral("&Juego"));
  AddEntry(juego, "VerCronica", "&Crónica\tF6", alVerCronica);
  for (const ListeningEntry& entrada : ListeningEntries) {
    AddEntry(juego, entrada.Nombre, entrada.Texto,
             [alEscuchar, que = entrada.Que] { alEscuchar(que); });
  }
  AddEntry(juego, "Salir", "&Salir del juego\tCtrl+Alt+Q", alSalir);
}

}  // namespace tasca
