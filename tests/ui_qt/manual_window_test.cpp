// The manual's window: its text, its links, its search, and its life beside modal boxes.
#include "ui/qt/manual_window.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QWheelEvent>
#include <set>

#include "tests/ui_qt/nameless.h"
#include "tests/ui_qt/player.h"
#include "ui/manual/asunto.h"
#include "ui/qt/manual_pictures.h"

namespace tasca::test {
namespace {

struct OpenManual {
  ManualWindow ventana;
  ManualText* texto = dynamic_cast<ManualText*>(Control<QWidget>(&ventana, "ManualText"));

  OpenManual() {
    ventana.resize(800, 600);
    ventana.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&ventana));
  }
};

QString AnchorOfSubject(Asunto asunto) {
  const std::string_view ancla = AnchorOf(asunto);
  return QString::fromUtf8(ancla.data(), static_cast<qsizetype>(ancla.size()));
}

TEST(ManualWindow, ShowsTheSectionOfEverySubject) {
  OpenManual a;
  for (int i = 0; i < Asuntos; ++i) {
    const QString ancla = AnchorOfSubject(static_cast<Asunto>(i));
    a.ventana.ShowSection(ancla);
    EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), Utf8(ancla));
  }
}

TEST(ManualWindow, ListsEveryHeadingInItsContents) {
  OpenManual a;
  auto* const indice = Control<QTreeWidget>(&a.ventana, "Indice");
  std::size_t entradas = 0;
  for (QTreeWidgetItemIterator i{indice}; *i != nullptr; ++i) {
    EXPECT_EQ((*i)->text(0), a.texto->Entries().at(entradas++).Title);
  }
  EXPECT_EQ(entradas, a.texto->Entries().size());
  EXPECT_GE(entradas, 40U);
}

TEST(ManualWindow, NamesAllItsControls) {
  OpenManual a;
  EXPECT_EQ(Nameless(&a.ventana), std::vector<std::string>{});
}

TEST(ManualWindow, GivesTheKeysToTheTextThatItShows) {
  OpenManual a;
  a.ventana.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&a.ventana));
  auto* const buscado = Control<QLineEdit>(&a.ventana, "Buscado");
  buscado->setFocus();
  EXPECT_TRUE(buscado->isClearButtonEnabled());
  a.ventana.ShowSection(QStringLiteral("la-baraja"));
  EXPECT_TRUE(a.texto->hasFocus());
}

TEST(ManualWindow, GoesToTheEntryThatIsChosenAndBack) {
  OpenManual a;
  a.ventana.ShowSection(QStringLiteral("la-baraja"));
  auto* const indice = Control<QTreeWidget>(&a.ventana, "Indice");
  const auto entradas =
      indice->findItems(QStringLiteral("El deje"), Qt::MatchExactly | Qt::MatchRecursive);
  ASSERT_EQ(entradas.size(), 1);
  indice->setCurrentItem(entradas.front());
  EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "el-deje");
  QTest::mouseClick(Control<QToolButton>(&a.ventana, "Atras"), Qt::LeftButton);
  EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "la-baraja");
  QTest::mouseClick(Control<QToolButton>(&a.ventana, "Adelante"), Qt::LeftButton);
  EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "el-deje");
}

TEST(ManualWindow, MarksInTheContentsWhereTheTextIsScrolledTo) {
  OpenManual a;
  a.ventana.ShowSection(QStringLiteral("el-órdago"));
  auto* const indice = Control<QTreeWidget>(&a.ventana, "Indice");
  ASSERT_NE(indice->currentItem(), nullptr);
  EXPECT_EQ(Utf8(indice->currentItem()->text(0)), "El órdago");
}

// Where the text finds `buscado` next; -1 for nowhere.
int NextPlace(ManualText& texto, const char* buscado) {
  const bool hallado = texto.Find(QString::fromUtf8(buscado), false);
  return hallado ? texto.textCursor().selectionStart() : -1;
}

TEST(ManualWindow, FindsWithoutCaseAndAccentsAndAroundTheEnd) {
  OpenManual a;
  const int primero = NextPlace(*a.texto, "ORDAGO querido");
  EXPECT_EQ(Utf8(a.texto->textCursor().selectedText().toLower()), "órdago querido");
  std::set<int> sitios{primero};
  while (sitios.insert(NextPlace(*a.texto, "ORDAGO querido")).second) continue;
  EXPECT_GE(sitios.size(), 2U);
  EXPECT_EQ(a.texto->textCursor().selectionStart(), primero) << "after the last the first again";
  ASSERT_TRUE(a.texto->Find(QStringLiteral("órdago querido"), true));
  EXPECT_EQ(a.texto->textCursor().selectionStart(), *sitios.rbegin());
}

TEST(ManualWindow, SaysWhenNothingIsFound) {
  OpenManual a;
  auto* const buscado = Control<QLineEdit>(&a.ventana, "Buscado");
  auto* const aviso = Control<QLabel>(&a.ventana, "Aviso");
  buscado->setText(QStringLiteral("ajedrez"));
  QTest::keyClick(buscado, Qt::Key_Return);
  EXPECT_EQ(Utf8(aviso->text()), "No se encuentra.");
  buscado->setText(QStringLiteral("amarraco"));
  QTest::keyClick(buscado, Qt::Key_Return);
  EXPECT_EQ(Utf8(aviso->text()), "");
  EXPECT_EQ(Utf8(a.texto->textCursor().selectedText()), "amarraco");
}

TEST(ManualWindow, ZoomsLettersAndCardsAndKeepsThePlace) {
  OpenManual a;
  a.ventana.ShowSection(QStringLiteral("los-pares"));
  const double antes = a.texto->document()->defaultFont().pointSizeF();
  const double alto = a.texto->document()->size().height();
  const auto rueda = [&a](int cuanto) {
    QWheelEvent giro{QPointF{20, 20},
                     a.texto->viewport()->mapToGlobal(QPointF{20, 20}),
                     {},
                     {0, cuanto},
                     Qt::NoButton,
                     Qt::ControlModifier,
                     Qt::NoScrollPhase,
                     false};
    QApplication::sendEvent(a.texto->viewport(), &giro);
  };
  rueda(120);
  EXPECT_GT(a.texto->document()->defaultFont().pointSizeF(), antes);
  EXPECT_GT(a.texto->document()->size().height(), alto);
  EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "los-pares");
  rueda(-120);
  EXPECT_DOUBLE_EQ(a.texto->document()->defaultFont().pointSizeF(), antes);
  for (int i = 0; i < 40; ++i) a.texto->Zoom(-1);
  EXPECT_GT(a.texto->document()->defaultFont().pointSizeF(), antes / 2);
}

TEST(ManualWindow, FollowsNoLinkToTheOutside) {
  OpenManual a;
  a.ventana.ShowSection(QStringLiteral("la-grande"));
  const QString texto = a.texto->toPlainText();
  for (const QString& fuera : {QStringLiteral("https://example.org/"),
                               QStringLiteral("file:///etc/passwd"), QStringLiteral("otro.md")}) {
    a.texto->setSource(QUrl{fuera});
    EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "la-grande") << Utf8(fuera);
    EXPECT_EQ(a.texto->toPlainText(), texto);
  }
  a.texto->setSource(QUrl{QStringLiteral("#la-mesa")});
  EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "la-mesa");
}

TEST(ManualWindow, KeepsItsPlaceWhenTheColoursChange) {
  OpenManual a;
  a.ventana.ShowSection(QStringLiteral("el-juego"));
  QPalette oscuro;
  oscuro.setColor(QPalette::Window, Qt::black);
  oscuro.setColor(QPalette::Base, Qt::black);
  oscuro.setColor(QPalette::WindowText, Qt::white);
  oscuro.setColor(QPalette::Text, Qt::white);
  a.ventana.setPalette(oscuro);
  EXPECT_EQ(Utf8(a.texto->CurrentAnchor()), "el-juego");
}

QTextImageFormat ImageNamed(const char* nombre) {
  QTextImageFormat formato;
  formato.setName(QString::fromLatin1(nombre));
  return formato;
}

TEST(ManualPictures, TakeRoomForACardOnly) {
  ManualPictures dibujos{nullptr};
  QTextDocument documento;
  EXPECT_EQ(dibujos.intrinsicSize(&documento, 0, ImageNamed("foto.png")), QSizeF(0, 0));
  const QSizeF carta = dibujos.intrinsicSize(&documento, 0, ImageNamed("carta:rey-oros"));
  EXPECT_GT(carta.width(), 20);
  QFont grande = documento.defaultFont();
  grande.setPointSizeF(2 * grande.pointSizeF());
  documento.setDefaultFont(grande);
  EXPECT_GT(dibujos.intrinsicSize(&documento, 0, ImageNamed("carta:rey-oros")).width(),
            1.5 * carta.width());
}

TEST(ManualPictures, PaintTheCard) {
  ManualPictures dibujos{nullptr};
  QTextDocument documento;
  const QTextImageFormat formato = ImageNamed("carta:rey-oros");
  const QSizeF tamano = dibujos.intrinsicSize(&documento, 0, formato);
  QImage hoja{tamano.toSize(), QImage::Format_ARGB32};
  hoja.fill(Qt::transparent);
  QPainter pintor{&hoja};
  dibujos.drawObject(&pintor, QRectF{{}, tamano}, &documento, 0, formato);
  pintor.end();
  EXPECT_GT(qAlpha(hoja.pixel(hoja.width() / 2, hoja.height() / 2)), 0);
}

// The manual is opened first, then the box.
TEST(ManualWindow, CanBeUsedWhileABoxIsOpen) {
  OpenManual a;
  QDialog caja;
  caja.setModal(true);
  caja.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&caja));
  ASSERT_EQ(QApplication::activeModalWidget(), &caja);
  auto* const siguiente = Control<QToolButton>(&a.ventana, "Siguiente");
  Control<QLineEdit>(&a.ventana, "Buscado")->setText(QStringLiteral("vaca"));
  QTest::mouseClick(a.ventana.windowHandle(), Qt::LeftButton, {},
                    siguiente->mapTo(&a.ventana, siguiente->rect().center()));
  EXPECT_EQ(Utf8(a.texto->textCursor().selectedText().toLower()), "vaca");
}

}  // namespace
}  // namespace tasca::test
