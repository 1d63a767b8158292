// The main window's layout as a list of items.
#include "ui/qt/form1_layout.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QWidget>
#include <memory>

#include "ui/qt/input_line.h"

namespace tasca::test {
namespace {

TEST(Form1LayoutItems, AreTakenOneByOne) {
  QWidget ventana;
  InputLine texto1{&ventana, {}};
  QPlainTextEdit texto2;
  QLineEdit texto3;
  QLabel rotulo1;
  QLabel rotulo3;
  QLabel ayuda;
  QWidget mesa;
  QWidget tanteo;
  Form1Layout colocacion{&ventana,
                         {&mesa, &tanteo, &rotulo3, &texto3, &texto2, &rotulo1, &texto1, &ayuda}};
  ASSERT_EQ(colocacion.count(), 8);
  EXPECT_EQ(colocacion.takeAt(-1), nullptr);
  EXPECT_EQ(colocacion.takeAt(8), nullptr);
  QWidget* const primera = colocacion.itemAt(0)->widget();
  const std::unique_ptr<QLayoutItem> tomada{colocacion.takeAt(0)};
  ASSERT_NE(tomada, nullptr);
  EXPECT_EQ(tomada->widget(), primera);
  EXPECT_EQ(colocacion.count(), 7);
}

}  // namespace
}  // namespace tasca::test
