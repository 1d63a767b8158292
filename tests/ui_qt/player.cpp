// The simulated player.
#include "tests/ui_qt/player.h"

#include <QAbstractButton>
#include <QDeadlineTimer>
#include <QDialog>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <utility>

namespace tasca::test {

QWidget* VisibleWindow(const char* nombre) {
  for (QWidget* const ventana : QApplication::topLevelWidgets()) {
    if (ventana->objectName() == QLatin1String{nombre} && ventana->isVisible()) return ventana;
  }
  return nullptr;
}

bool TakesKeys(const QWidget* ventana) {
  const QWidget* const control = ventana->focusWidget();
  return control != nullptr && control->hasFocus();
}

void Press(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con) {
  QWidget* const control = ventana->focusWidget();
  QTest::keyClick(control != nullptr ? control : ventana, tecla, con);
}

// A key event for a letter has a text, as from a keyboard.
void Repeat(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con) {
  QWidget* const control = ventana->focusWidget() != nullptr ? ventana->focusWidget() : ventana;
  const bool esLetra = tecla >= Qt::Key_A && tecla <= Qt::Key_Z;
  const QString texto =
      esLetra ? QString{QChar{static_cast<char16_t>(tecla)}}.toLower() : QString{};
  QKeyEvent atajo{QEvent::ShortcutOverride, tecla, con, texto, true};
  atajo.ignore();
  QApplication::sendEvent(control, &atajo);
  QKeyEvent pulsada{QEvent::KeyPress, tecla, con, texto, true};
  QApplication::sendEvent(control, &pulsada);
}

void Type(QWidget* control, const char* texto) {
  for (const QChar letra : QString::fromUtf8(texto)) {
    QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString{letra}, Qt::NoModifier);
  }
}

void Compose(QWidget* control, const char* enCurso, const char* escrito) {
  QInputMethodEvent suceso{QString::fromUtf8(enCurso), {}};
  suceso.setCommitString(QString::fromUtf8(escrito));
  QApplication::sendEvent(control, &suceso);
}

// A tool button of QFileDialog stays down while its view is the current one.
bool ButtonIsDown(const QWidget* ventana) {
  const auto botones = ventana->findChildren<QAbstractButton*>();
  return std::any_of(botones.begin(), botones.end(), [](const QAbstractButton* boton) {
    return boton->isDown() && qobject_cast<const QToolButton*>(boton) == nullptr;
  });
}

BoxAnswerer::BoxAnswerer(std::function<void(QWidget*)> alVer, std::chrono::seconds limite) {
  reloj_.setInterval(1);
  const QDeadlineTimer plazo{limite};
  QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [plazo, alVer = std::move(alVer)] {
    auto* const caja = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (caja == nullptr) return;
    if (plazo.hasExpired()) {
      ADD_FAILURE() << "the box was not answered";
      return caja->done(QDialog::Rejected);
    }
    if (TakesKeys(caja)) alVer(caja);
  });
  reloj_.start();
}

int RunInEventLoop(const std::function<void()>& paso) {
  QTimer comienzo;
  comienzo.setSingleShot(true);
  QObject::connect(&comienzo, &QTimer::timeout, &comienzo, paso);
  comienzo.start();
  return QApplication::exec();
}

namespace {

// Calls the turns from a timer. The timer is restarted before each turn: a turn may open a box,
// whose event loop needs the next one.
class Turns {
 public:
  Turns(const std::function<void()>& turno, std::chrono::seconds limite)
      : turno_{turno}, plazo_{limite} {
    siguiente_.setSingleShot(true);
    QObject::connect(&siguiente_, &QTimer::timeout, &siguiente_, [this] { Take(); });
  }

  void Take() {
    if (plazo_.hasExpired()) {
      ADD_FAILURE() << "the program does not end";
      return QCoreApplication::exit(-1);
    }
    siguiente_.start();
    turno_();
  }

 private:
  const std::function<void()>& turno_;
  QDeadlineTimer plazo_;
  QTimer siguiente_;
};

}  // namespace

int PlayUntilEnd(const std::function<void()>& turno, std::chrono::seconds limite) {
  Turns turnos{turno, limite};
  return RunInEventLoop([&turnos] { turnos.Take(); });
}

std::string Utf8(const QString& texto) { return texto.toStdString(); }

}  // namespace tasca::test
