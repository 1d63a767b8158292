// The key codes for the rules.
#include "ui/qt/keys.h"

#include <gtest/gtest.h>

#include "match/phase_machine.h"

namespace tasca::test {
namespace {

constexpr quint32 LugarDelCero = 19;
constexpr Qt::KeyboardModifiers CtrlMayus = Qt::ControlModifier | Qt::ShiftModifier;

Tecla Pulsar(int tecla, Qt::KeyboardModifiers con = Qt::NoModifier, quint32 lugar = 0) {
  return TeclaDe(QKeyEvent{QEvent::KeyPress, tecla, con, lugar, 0, 0});
}

TEST(TeclaDe, KnowsEnterOfBothKeyboardHalves) {
  EXPECT_EQ(Pulsar(Qt::Key_Return).KeyCode, TeclaEnter);
  EXPECT_EQ(Pulsar(Qt::Key_Enter, Qt::KeypadModifier).KeyCode, TeclaEnter);
}

TEST(TeclaDe, KnowsQInAnyShiftState) {
  EXPECT_EQ(Pulsar(Qt::Key_Q).KeyCode, TeclaQ);
  EXPECT_EQ(Pulsar(Qt::Key_Q, Qt::ShiftModifier).KeyCode, TeclaQ);
  EXPECT_EQ(Pulsar(Qt::Key_Q, Qt::ControlModifier).KeyCode, TeclaQ);
}

TEST(TeclaDe, KnowsF2) { EXPECT_EQ(Pulsar(Qt::Key_F2).KeyCode, 113); }

TEST(TeclaDe, RecognisesTheZeroKeyByItsCharacter) { EXPECT_EQ(Pulsar(Qt::Key_0).KeyCode, Tecla0); }

#ifndef Q_OS_WIN
TEST(TeclaDe, RecognisesTheZeroKeyByItsPositionOnSpanishAndUsKeyboards) {
  const Tecla espanola = Pulsar(Qt::Key_Equal, CtrlMayus, LugarDelCero);
  EXPECT_EQ(espanola.KeyCode, Tecla0);
  EXPECT_EQ(espanola.Shift, MayusculasYControl);
  const Tecla americana = Pulsar(Qt::Key_ParenRight, CtrlMayus, LugarDelCero);
  EXPECT_EQ(americana.KeyCode, Tecla0);
  EXPECT_EQ(americana.Shift, MayusculasYControl);
}
#endif

TEST(TeclaDe, DoesNotTakeTheSameCharactersOfOtherKeysForTheZeroKey) {
  EXPECT_NE(Pulsar(Qt::Key_Equal, CtrlMayus, LugarDelCero + 2).KeyCode, Tecla0);
  EXPECT_NE(Pulsar(Qt::Key_0, Qt::KeypadModifier, 90).KeyCode, Tecla0);
}

TEST(TeclaDe, CombinesTheModifiers) {
  EXPECT_EQ(Pulsar(Qt::Key_A).Shift, 0);
  EXPECT_EQ(Pulsar(Qt::Key_A, Qt::ShiftModifier).Shift, 1);
  EXPECT_EQ(Pulsar(Qt::Key_A, Qt::ControlModifier).Shift, 2);
  EXPECT_EQ(Pulsar(Qt::Key_A, CtrlMayus).Shift, 3);
  EXPECT_EQ(Pulsar(Qt::Key_A, CtrlMayus | Qt::AltModifier).Shift, 7);
}

TEST(TeclaDe, GivesOtherKeysAnUnusedCode) {
  for (const int tecla : {int{Qt::Key_A}, int{Qt::Key_1}, int{Qt::Key_Escape}, int{Qt::Key_F1},
                          int{Qt::Key_unknown}}) {
    const int codigo = Pulsar(tecla).KeyCode;
    EXPECT_NE(codigo, TeclaEnter) << tecla;
    EXPECT_NE(codigo, TeclaQ) << tecla;
    EXPECT_NE(codigo, Tecla0) << tecla;
    EXPECT_NE(codigo, 0) << tecla;
  }
}

}  // namespace
}  // namespace tasca::test
