// The translation of key events.
#include "ui/qt/keys.h"

#include "base/keys.h"

namespace tasca {
namespace {

constexpr int TeclaSinSignificado = 255;

// The 0 key of the upper row; that of the keypad does not count.
bool EsTecla0(const QKeyEvent& suceso) {
  if (suceso.modifiers().testFlag(Qt::KeypadModifier)) return false;
  if (suceso.key() == Qt::Key_0) return true;
  constexpr quint32 lugarDelCero = 19;  // the X11 key code, also under Wayland
  return suceso.nativeScanCode() == lugarDelCero;
}

int CodigoDe(const QKeyEvent& suceso) {
  if (suceso.key() == Qt::Key_Return || suceso.key() == Qt::Key_Enter) return TeclaEnter;
  if (suceso.key() == Qt::Key_Q) return TeclaQ;
  if (suceso.key() == Qt::Key_F2) return TeclaF2;
  return EsTecla0(suceso) ? Tecla0 : TeclaSinSignificado;
}

}  // namespace

Tecla TeclaDe(const QKeyEvent& suceso) {
  const Qt::KeyboardModifiers pulsadas = suceso.modifiers();
  return {.KeyCode = CodigoDe(suceso),
          .Shift = (pulsadas.testFlag(Qt::ShiftModifier) ? 1 : 0) +
                   (pulsadas.testFlag(Qt::ControlModifier) ? 2 : 0) +
                   (pulsadas.testFlag(Qt::AltModifier) ? 4 : 0)};
}

}  // namespace tasca
