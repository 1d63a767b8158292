#pragma once
// A simulated player: finds controls by their object names, sends keys and answers modal boxes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <string>

namespace tasca::test {

// A control by its object name. If there is none, fails the test and returns nullptr.
template <class T>
T* Control(const QWidget* ventana, const char* nombre) {
  auto* const control = ventana->findChild<T*>(QString::fromUtf8(nombre));
  EXPECT_NE(control, nullptr) << nombre;
  return control;
}

// The visible top-level window with that object name; nullptr if there is none.
QWidget* VisibleWindow(const char* nombre);

// True once the window is active and one of its controls has the focus.
bool TakesKeys(const QWidget* ventana);

// Sends a key to the control that has the focus in `ventana`.
void Press(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);

// Sends an auto-repeat key press, as the keyboard does while the key is held down.
void Repeat(QWidget* ventana, Qt::Key tecla, Qt::KeyboardModifiers con = Qt::NoModifier);

// Types `texto` into a control, one key per character.
void Type(QWidget* control, const char* texto);

// Sends an input-method event with a pre-edit text and a committed text.
void Compose(QWidget* control, const char* enCurso, const char* escrito);

// True while a button pressed by its access key has not been clicked yet.
bool ButtonIsDown(const QWidget* ventana);

// The default time limit of a test.
inline constexpr std::chrono::seconds Paciencia{60};

// Calls `alVer` from a timer with the active modal box, repeatedly while the box takes keys. If a
// box is still open after the limit, fails the test and closes it.
class BoxAnswerer {
 public:
  explicit BoxAnswerer(std::function<void(QWidget*)> alVer,
                       std::chrono::seconds limite = Paciencia);

 private:
  QTimer reloj_;
};

// Runs `paso` in the event loop and returns the loop's exit status.
int RunInEventLoop(const std::function<void()>& paso);

// Calls `turno` repeatedly in the event loop, also while a box is open, until the program ends.
// Returns the exit status. After the limit, fails the test and returns -1.
int PlayUntilEnd(const std::function<void()>& turno, std::chrono::seconds limite = Paciencia);

std::string Utf8(const QString& texto);

}  // namespace tasca::test
