// tasca: the game in windows.
#include <QApplication>
#include <QFile>
#include <QScreen>
#include <QStyleHints>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "ui/qt/program.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/spanish.h"

namespace {

// Without a screen the toolkit would abort with a page of its own advice.
void AlArrancar(QtMsgType tipo, const QMessageLogContext& /*lugar*/, const QString& /*mensaje*/) {
  if (tipo != QtFatalMsg) return;
  (void)std::fputs("tasca: no hay pantalla en la que abrir las ventanas.\n", stderr);
  std::_Exit(EXIT_FAILURE);
}

std::filesystem::path Carpeta() {
  return QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
}

// A very tall screen that is not scaled shows the system's letters too small for a whole evening.
void EnlargeOnTallScreens() {
  constexpr double altoCorriente = 1200;
  const double alto = QGuiApplication::primaryScreen()->availableSize().height();
  if (alto <= altoCorriente) return;
  QApplication::setFont(tasca::Scaled(QApplication::font(), std::min(alto / altoCorriente, 2.0)));
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(AlArrancar);
  const QApplication aplicacion{argc, argv};
  qInstallMessageHandler(nullptr);
  tasca::Spanish castellano;
  QCoreApplication::installTranslator(&castellano);
  QApplication::setQuitOnLastWindowClosed(false);
  // The game waits for minutes at a time; a steady cursor lets the machine sleep meanwhile.
  QGuiApplication::styleHints()->setCursorFlashTime(0);
  EnlargeOnTallScreens();
  tasca::Program programa{Carpeta()};
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [&programa] { programa.OpenDlgInicio(); },
      Qt::QueuedConnection);
  return QApplication::exec();
}
