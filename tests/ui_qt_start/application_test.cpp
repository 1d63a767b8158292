// The set-up of Qt by the programs with windows.
#include "ui/qt/application.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFont>
#include <QLineEdit>
#include <QMenu>
#include <QSessionManager>
#include <QStyleHints>
#include <QTimer>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>

#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// Creates the application with an offscreen screen of a given height.
class Started : public testing::Test {
 protected:
  Application& Start(int alto = 800) {
    carpeta_.Write("screen.json",
                   R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": true,
                       "screens": [{"name": "alta", "x": 0, "y": 0, "width": 1000, "height": )" +
                       std::to_string(alto) +
                       R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" +
                QByteArray::fromStdString((carpeta_.Path() / "screen.json").string()));
    aplicacion_.reset();
    return *(aplicacion_ = std::make_unique<Application>(argc_, argv_.data()));
  }

  // The font size on a screen of that height.
  double Letra(int alto) {
    Start(alto);
    return QApplication::font().pointSizeF();
  }

  TempFolder carpeta_;
  std::string orden_ = "tasca";
  int argc_ = 1;
  std::array<char*, 2> argv_{orden_.data(), nullptr};
  std::unique_ptr<Application> aplicacion_;
};

TEST_F(Started, KeepsTheCursorFromBlinking) {
  Start();
  EXPECT_EQ(QGuiApplication::styleHints()->cursorFlashTime(), 0);
}

TEST_F(Started, RunsOnWithoutAnOpenWindow) {
  Start();
  EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

TEST_F(Started, OffersTheTextBoxesMenusInSpanish) {
  Start();
  QLineEdit linea;
  const std::unique_ptr<QMenu> menu{linea.createStandardContextMenu()};
  std::string entradas;
  for (const QAction* const entrada : menu->actions()) {
    if (!entrada->isSeparator())
      entradas += entrada->text().section(u'\t', 0, 0).toStdString() + "|";
  }
  EXPECT_EQ(entradas, "&Deshacer|&Rehacer|Cor&tar|&Copiar|&Pegar|Borrar|Seleccionar todo|");
}

TEST_F(Started, ScalesTheFontOnATallScreenUpToTwice) {
  const double corriente = Letra(800);
  EXPECT_GT(corriente, 0);
  EXPECT_EQ(Letra(1200), corriente);
  EXPECT_NEAR(Letra(1500), 1.25 * corriente, 0.01);
  EXPECT_NEAR(Letra(2400), 2 * corriente, 0.01);
  EXPECT_NEAR(Letra(4320), 2 * corriente, 0.01);
}

TEST_F(Started, RunsUntilTheProgramEnds) {
  EXPECT_EQ(Start().Run([] { QCoreApplication::exit(7); }, {}), 7);
}

// The icon is painted after the first window has come, not before.
TEST_F(Started, HasAnIconOnceAWindowIsOpen) {
  Application& aplicacion = Start();
  std::optional<QWidget> ventana;
  QTimer mirada;
  QElapsedTimer espera;
  QObject::connect(&mirada, &QTimer::timeout, &mirada, [&] {
    if (!QApplication::windowIcon().isNull() || espera.hasExpired(60'000)) QCoreApplication::quit();
  });
  const auto abrir = [&] {
    EXPECT_TRUE(QApplication::windowIcon().isNull());
    ventana.emplace().show();
    espera.start();
    mirada.start(1);
  };
  aplicacion.Run(abrir, {});
  EXPECT_FALSE(QApplication::windowIcon().isNull());
  EXPECT_FALSE(ventana->windowIcon().isNull());
}

TEST_F(Started, ForwardsTheEndOfTheSession) {
  std::string dicho;
  Application& aplicacion = Start();
  const auto acabarSesion = [] {
    emit qApp->commitDataRequest(*qApp->findChild<QSessionManager*>());
    QCoreApplication::quit();
  };
  const SessionEnd fin{.MayCome =
                           [&dicho](const auto& dejanPreguntar) {
                             dicho += dejanPreguntar() ? "may ask, " : "may not ask, ";
                             return true;
                           },
                       .Comes =
                           [&dicho] {
                             dicho += "ends";
                             QCoreApplication::exit(3);
                           }};
  EXPECT_EQ(aplicacion.Run(acabarSesion, fin), 3);
  EXPECT_EQ(dicho, "may not ask, ends") << "the offscreen platform has no session manager";
}

TEST_F(Started, HandlesTheEndOfTheSessionItself) {
  Application& aplicacion = Start();
  const auto acabarSesion = [] {
    QEvent final{QEvent::Quit};
    EXPECT_TRUE(QCoreApplication::sendEvent(qApp, &final));
    QCoreApplication::exit(5);
  };
  int veces = 0;
  EXPECT_EQ(aplicacion.Run(acabarSesion, {.MayCome = {}, .Comes = [&veces] { ++veces; }}), 5);
  EXPECT_EQ(veces, 1);
}

// A session manager that records its calls.
struct Manager {
  bool allowsInteraction() {
    dicho += "asked ";
    return deja;
  }
  void cancel() { dicho += "cancel"; }
  void release() { dicho += "release"; }

  bool deja;
  std::string dicho;
};

std::string Answered(bool deja, bool puedeAcabar) {
  Manager gestor{.deja = deja, .dicho = {}};
  bool dejaban = !deja;
  AnswerSessionManager(gestor, {.MayCome =
                                    [&](const auto& dejanPreguntar) {
                                      dejaban = dejanPreguntar();
                                      return puedeAcabar;
                                    },
                                .Comes = {}});
  EXPECT_EQ(dejaban, deja);
  return gestor.dicho;
}

TEST(AnswerSessionManager, CancelsTheEndOfTheSessionWhenTheProgramMustStay) {
  EXPECT_EQ(Answered(true, true), "asked release");
  EXPECT_EQ(Answered(true, false), "asked cancel");
  EXPECT_EQ(Answered(false, true), "asked release");
}

TEST(AnswerSessionManager, RequestsInteractionOnlyWhenNeeded) {
  Manager gestor{.deja = true, .dicho = {}};
  AnswerSessionManager(gestor, {.MayCome = [](const auto&) { return true; }, .Comes = {}});
  EXPECT_EQ(gestor.dicho, "release");
}

}  // namespace
}  // namespace tasca::test
