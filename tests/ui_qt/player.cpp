// The player at the windows.
#include "tests/ui_qt/player.h"

#include <QAbstractButton>
#include <QTest>
#include <algorithm>
#include <utility>

namespace tasca::test {

QWidget* VisibleWindow(const char* nombre) {
  for (QWidget* const ventana : QApplication::topLevelWidgets()) {
    if (ventana->objectName() == QLatin1String{nombre} && ventana->isVisible()) return ventana;
  }
  return nullptr;
}

void Press(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con) {
  QWidget* const control = ventana->focusWidget();
  QTest::keyClick(control != nullptr ? control : ventana, tecla, con);
}

void Type(QWidget* control, const char* texto) {
  for (const QChar letra : QString::fromUtf8(texto)) {
    QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString{letra}, Qt::NoModifier);
  }
}

bool ButtonIsDown(const QWidget* ventana) {
  const auto botones = ventana->findChildren<QAbstractButton*>();
  return std::any_of(botones.begin(), botones.end(),
                     [](const QAbstractButton* boton) { return boton->isDown(); });
}

BoxAnswerer::BoxAnswerer(std::function<void(QWidget*)> alVer) {
  reloj_.setInterval(1);
  QObject::connect(&reloj_, &QTimer::timeout, &reloj_, [alVer = std::move(alVer)] {
    if (QWidget* const caja = QApplication::activeModalWidget()) alVer(caja);
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

// A turn may open a box, whose loop needs the next turn: that one is arranged first.
class Turns {
 public:
  Turns(const std::function<void()>& turno, int maximo) : turno_{turno}, quedan_{maximo} {
    siguiente_.setSingleShot(true);
    QObject::connect(&siguiente_, &QTimer::timeout, &siguiente_, [this] { Take(); });
  }

  void Take() {
    if (--quedan_ < 0) {
      ADD_FAILURE() << "the program does not end";
      return QCoreApplication::exit(-1);
    }
    siguiente_.start();
    turno_();
  }

 private:
  const std::function<void()>& turno_;
  int quedan_;
  QTimer siguiente_;
};

}  // namespace

int PlayUntilEnd(const std::function<void()>& turno, int maximo) {
  Turns turnos{turno, maximo};
  return RunInEventLoop([&turnos] { turnos.Take(); });
}

std::string Utf8(const QString& texto) { return texto.toStdString(); }

}  // namespace tasca::test
