// The messages of the errors that end the program.
#include "base/errors.h"

#include <gtest/gtest.h>

#include "tests/support/errors.h"
#include "tests/support/tables.h"

namespace tasca {
namespace {

using test::ErrorOf;
using test::Utf8;

TEST(RunTimeError, SaysWhatHappenedAndThatTheProgramEnds) {
  const RunTimeError error{u"Se ha roto la baraja."};
  EXPECT_EQ(Utf8(error.Message()), "Se ha roto la baraja. El programa va a terminar su ejecución.");
  EXPECT_FALSE(error.Shown());
}

TEST(RunTimeError, NamesTheFileAndTheLine) {
  const RunTimeError error = RunTimeError::InFile("/casa/mus.ini", 4, u"la línea está mal.");
  EXPECT_EQ(Utf8(error.Message()),
            "/casa/mus.ini, línea 4: la línea está mal. El programa va a terminar su ejecución.");
  EXPECT_FALSE(error.Shown());
}

TEST(RunTimeError, NamesTheFileAloneWithoutALine) {
  const RunTimeError error = RunTimeError::InFile("mus.ini", 0, u"no se encuentra el archivo.");
  EXPECT_EQ(Utf8(error.Message()),
            "mus.ini: no se encuentra el archivo. El programa va a terminar su ejecución.");
}

TEST(RunTimeError, NamesTheFirstLine) {
  const RunTimeError error = RunTimeError::InFile("mus.ini", 1, u"x.");
  EXPECT_EQ(Utf8(error.Message()), "mus.ini, línea 1: x. El programa va a terminar su ejecución.");
}

TEST(RunTimeError, NamesAFileWithAccents) {
  const RunTimeError error = RunTimeError::InFile("/tío/mus.ini", 0, u"x.");
  EXPECT_EQ(Utf8(error.Message()), "/tío/mus.ini: x. El programa va a terminar su ejecución.");
}

TEST(RunTimeError, KeepsItsMessageIfAlreadyShown) {
  const RunTimeError error = RunTimeError::AlreadyShown(u"No se encuentra. Adiós.");
  EXPECT_EQ(Utf8(error.Message()), "No se encuentra. Adiós.");
  EXPECT_TRUE(error.Shown());
}

TEST(RunTimeError, TellsWhatHappenedWithoutTheEndOfTheProgram) {
  const RunTimeError error = RunTimeError::InFile("mus.ini", 4, u"la línea está mal.");
  EXPECT_EQ(Utf8(error.WhatHappened()), "mus.ini, línea 4: la línea está mal.");
  EXPECT_EQ(Utf8(RunTimeError::AlreadyShown(u"Adiós.").WhatHappened()), "Adiós.");
}

TEST(ThrowOverflow, NamesTheRange) {
  EXPECT_EQ(ErrorOf(ThrowOverflow),
            "Desbordamiento: el número no está entre -32768 y 32767. El programa va a terminar su "
            "ejecución.");
}

TEST(ThrowIndexOutOfRange, HasItsMessage) {
  EXPECT_EQ(ErrorOf(ThrowIndexOutOfRange),
            "El índice está fuera del intervalo. El programa va a terminar su ejecución.");
}

TEST(ThrowInvalidCall, AddsTheAdvice) {
  EXPECT_EQ(ErrorOf([] { ThrowInvalidCall(u"Haga otra cosa."); }),
            "Llamada a procedimiento o argumento no válidos. Haga otra cosa. El programa va a "
            "terminar su ejecución.");
}

}  // namespace
}  // namespace tasca
