#pragma once
// A player at the windows: finds controls by their names, and answers boxes while they wait.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>

namespace tasca::test {

// A control by its name; the test fails when there is none.
template <class T>
T* Control(const QWidget* ventana, const char* nombre) {
  auto* const control = ventana->findChild<T*>(QString::fromUtf8(nombre));
  EXPECT_NE(control, nullptr) << nombre;
  return control;
}

// The window in view with that name; nullptr when there is none.
QWidget* VisibleWindow(const char* nombre);

// A key for the control that has the focus in `ventana`.
void Press(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);

// The keys that write `texto`, one character each, for a control.
void Type(QWidget* control, const char* texto);

// True while a button that was pressed by its access key has yet to be clicked.
bool ButtonIsDown(const QWidget* ventana);

// Waits for modal boxes and shows each of them to `alVer`, once or until it is gone. Boxes wait
// inside their question, so this looks from a timer.
class BoxAnswerer {
 public:
  explicit BoxAnswerer(std::function<void(QWidget*)> alVer);

 private:
  QTimer reloj_;
};

// Does `paso` in the event loop and gives the exit status once somebody ends it.
int RunInEventLoop(const std::function<void()>& paso);

// Plays in the event loop: `turno` is called over and over, also while a box waits, until the
// program ends. Gives the exit status; the test fails after too many turns.
int PlayUntilEnd(const std::function<void()>& turno, int maximo = 200000);

std::string Utf8(const QString& texto);

}  // namespace tasca::test
