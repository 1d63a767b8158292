// The menu "Ayuda".
#include "ui/qt/help_menu.h"

#include <QAction>
#include <QMenu>
#include <QtGlobal>

#include "base/text.h"
#include "ui/qt/qt_text.h"

namespace tasca {

// F1 itself is Manual's (ui/qt/manual.h), which has it in every window; the entry only tells it.
void AddHelpMenu(QMenuBar& menus, const std::function<void()>& alPedirManual,
                 const std::function<void()>& alPedirDatos) {
  auto* const ayuda = menus.addMenu(QStringLiteral("A&yuda"));
  auto* const manual = ayuda->addAction(QStringLiteral("&Manual\tF1"));
  manual->setObjectName(QStringLiteral("Manual"));
  QObject::connect(manual, &QAction::triggered, &menus, alPedirManual);
  auto* const datos = ayuda->addAction(QStringLiteral("&Acerca de"));
  datos->setObjectName(QStringLiteral("AcercaDe"));
  QObject::connect(datos, &QAction::triggered, &menus, alPedirDatos);
}

std::u16string AboutText() {
  return Join(TituloAplicacion, u", versión " TASCA_VERSION u"\r\n\r\n",
              u"El mus de cuatro, contado en prosa.\r\n\r\n", u"Las ventanas: Qt ",
              QString::fromLatin1(qVersion()).toStdU16String(),
              u"\r\nEl sonido: SDL " TASCA_SDL_VERSION u" y SDL_mixer " TASCA_SDL_MIXER_VERSION);
}

}  // namespace tasca
