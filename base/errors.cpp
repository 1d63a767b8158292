// Builds the messages of the errors that end the program.
#include "base/errors.h"

#include "base/path_text.h"
#include "base/text.h"

namespace tasca {
namespace {

constexpr std::u16string_view FinDelPrograma = u" El programa va a terminar su ejecución.";

}  // namespace

RunTimeError::RunTimeError(std::u16string_view queHaPasado)
    : mensaje_{Join(queHaPasado, FinDelPrograma)} {}

RunTimeError RunTimeError::InFile(const std::filesystem::path& archivo, int linea,
                                  std::u16string_view queHaPasado) {
  return RunTimeError{Join(PlaceInFile(archivo, linea), queHaPasado)};
}

RunTimeError RunTimeError::AlreadyShown(std::u16string_view mensaje) {
  RunTimeError error{u""};
  error.mensaje_ = mensaje;
  error.mostrado_ = true;
  return error;
}

std::u16string_view RunTimeError::WhatHappened() const {
  std::u16string_view mensaje = mensaje_;
  if (mensaje.ends_with(FinDelPrograma)) mensaje.remove_suffix(FinDelPrograma.size());
  return mensaje;
}

void ThrowOverflow() {
  throw RunTimeError{u"Desbordamiento: el número no está entre -32768 y 32767."};
}

void ThrowIndexOutOfRange() { throw RunTimeError{u"El índice está fuera del intervalo."}; }

void ThrowInvalidCall(std::u16string_view consejo) {
  throw RunTimeError{Join(u"Llamada a procedimiento o argumento no válidos. ", consejo)};
}

}  // namespace tasca
