// The toolkit's own words.
#include "ui/qt/spanish.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <memory>

#include "tests/ui_qt/player.h"

namespace tasca::test {
namespace {

TEST(Spanish, WritesTheTextBoxesMenus) {
  Spanish castellano;
  QCoreApplication::installTranslator(&castellano);
  QLineEdit linea;
  const std::unique_ptr<QMenu> menu{linea.createStandardContextMenu()};
  std::string entradas;
  for (const QAction* const entrada : menu->actions()) {
    if (!entrada->isSeparator()) entradas += Utf8(entrada->text().section(u'\t', 0, 0)) + "|";
  }
  EXPECT_EQ(entradas, "&Deshacer|&Rehacer|Cor&tar|&Copiar|&Pegar|Eliminar|Seleccionar todo|");
  QCoreApplication::removeTranslator(&castellano);
}

TEST(Spanish, LeavesOtherTextsAlone) {
  EXPECT_TRUE(Spanish{}.translate("QLineEdit", "La tasca", nullptr, -1).isNull());
}

}  // namespace
}  // namespace tasca::test
