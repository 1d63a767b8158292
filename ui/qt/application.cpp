// The toolkit's settings, and the exceptions of the rules.
#include "ui/qt/application.h"

#include <QLibraryInfo>
#include <QScreen>
#include <QSessionManager>
#include <QStyleHints>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "base/errors.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/window_icon.h"

namespace tasca {
namespace {

QString PorQueNoHayVentanas() {
  const QString elegida = qEnvironmentVariable("QT_QPA_PLATFORM");
  if (elegida.isEmpty()) return QStringLiteral("no hay pantalla en la que abrir las ventanas.");
  return QStringLiteral("no se pueden abrir ventanas con QT_QPA_PLATFORM=") +
         ToDisplay(FromInput(elegida));
}

// Message handler during start-up: replaces the fatal error about a missing display by one line and
// drops the toolkit's other messages.
void AlArrancar(QtMsgType tipo, const QMessageLogContext& /*lugar*/, const QString& /*mensaje*/) {
  if (tipo != QtFatalMsg) return;
  const QString linea =
      QStringLiteral("%1: %2\n").arg(QCoreApplication::applicationName(), PorQueNoHayVentanas());
  (void)std::fputs(linea.toUtf8().constData(), stderr);
  std::_Exit(EXIT_FAILURE);
}

// Installs the handler before QApplication is constructed, which reports the missing display.
int& Quietly(int& argc) {
  qInstallMessageHandler(AlArrancar);
  return argc;
}

// On a very tall screen without scaling the system's font is too small to read comfortably.
void EnlargeOnTallScreens() {
  constexpr double altoCorriente = 1200;
  const double alto = QGuiApplication::primaryScreen()->availableSize().height();
  if (alto <= altoCorriente) return;
  QApplication::setFont(Scaled(QApplication::font(), std::min(alto / altoCorriente, 2.0)));
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication{Quietly(argc), argv} {
  qInstallMessageHandler(nullptr);
  // Only the toolkit's own menus need the translations: without them they are in English.
  if (castellano_.load(QStringLiteral("qtbase_es"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&castellano_);
  }
  QApplication::setQuitOnLastWindowClosed(false);
  // A blinking cursor would wake the processor while the program waits for a key.
  QGuiApplication::styleHints()->setCursorFlashTime(0);
  EnlargeOnTallScreens();
  icono_.setSingleShot(true);
  connect(&icono_, &QTimer::timeout, this, &Application::SetIconOnce);
  connect(this, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& gestor) {
    if (fin_.MayCome) AnswerSessionManager(gestor, fin_);
  });
}

int Application::Run(const std::function<void()>& abrir, SessionEnd fin) {
  fin_ = std::move(fin);
  QTimer comienzo;
  comienzo.setSingleShot(true);
  QObject::connect(&comienzo, &QTimer::timeout, &comienzo, abrir);
  comienzo.start();
  Wait();
  return QApplication::exec();
}

// The first window is on the screen when the application becomes active: it does not wait for the
// icon to be painted.
void Application::SetIconOnce() {
  if (windowIcon().isNull()) setWindowIcon(WindowIcon());
}

// The toolkit would close the windows one by one, and stay when a question refuses that.
bool Application::event(QEvent* suceso) {
  if (suceso->type() == QEvent::ApplicationActivate) {
    icono_.start();
  }
  if (suceso->type() != QEvent::Quit || !fin_.Comes) return QApplication::event(suceso);
  fin_.Comes();
  return true;
}

std::optional<Ending> EndingOf(const std::function<void()>& paso) {
  try {
    paso();
    return std::nullopt;
  } catch (const LeaveProgram&) {
    return Ending{.Estado = EXIT_SUCCESS, .Mensaje = {}};
  } catch (const RunTimeError& error) {
    return Ending{.Estado = EXIT_FAILURE, .Mensaje = error.Shown() ? u"" : error.Message()};
  } catch (const std::exception&) {
    return Ending{
        .Estado = EXIT_FAILURE,
        .Mensaje = u"Se ha producido un error inesperado. El programa va a terminar su ejecución."};
  }
}

}  // namespace tasca
