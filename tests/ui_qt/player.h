#pragma once
// A player at the windows: finds controls by their names, and answers boxes while they wait.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <chrono>
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

// True once the window is active and one of its controls has the focus.
bool TakesKeys(const QWidget* ventana);

// A key for the control that has the focus in `ventana`.
void Press(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);

// The same key again, as the keyboard sends it while it is held down.
void Repeat(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);

// The keys that write `texto`, one character each, for a control.
void Type(QWidget* control, const char* texto);

// True while a button that was pressed by its access key has yet to be clicked.
bool ButtonIsDown(const QWidget* ventana);

// How long anything may take before its test fails.
inline constexpr std::chrono::seconds Paciencia{60};

// Waits for modal boxes and shows each of them, once it takes keys, to `alVer` until it is gone.
// Boxes wait inside their question, so this looks from a timer. A box that is still there when
// the time is over is closed, and the test fails.
class BoxAnswerer {
 public:
  explicit BoxAnswerer(std::function<void(QWidget*)> alVer,
                       std::chrono::seconds limite = Paciencia);

 private:
  QTimer reloj_;
};

// Does `paso` in the event loop and gives the exit status once somebody ends it.
int RunInEventLoop(const std::function<void()>& paso);

// Plays in the event loop: `turno` is called over and over, also while a box waits, until the
// program ends. Gives the exit status; the test fails when the time is over.
int PlayUntilEnd(const std::function<void()>& turno, std::chrono::seconds limite = Paciencia);

std::string Utf8(const QString& texto);

}  // namespace tasca::test
