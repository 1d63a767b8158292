// The messages of the errors that end the program.
#include "base/endings.h"

#include "base/code_page.h"
#include "base/text.h"

namespace tasca {
namespace {

constexpr std::u16string_view FinDelPrograma = u" El programa va a terminar su ejecución.";

std::u16string NameText(const std::filesystem::path& nombre) {
  try {
    return nombre.u16string();
  } catch (const std::exception&) {
    return Decode(nombre.native());
  }
}

}  // namespace

std::u16string PathText(const std::filesystem::path& archivo) {
  std::u16string texto;
  for (const std::filesystem::path& nombre : archivo) {
    if (!texto.empty() && !texto.ends_with(u'/')) texto += u'/';
    texto += NameText(nombre);
  }
  return texto;
}

std::u16string PlaceInFile(const std::filesystem::path& archivo, int linea) {
  return linea > 0 ? Join(PathText(archivo), u", línea ", linea, u": ")
                   : Join(PathText(archivo), u": ");
}

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

void ThrowOverflow() {
  throw RunTimeError{u"Desbordamiento: el número no está entre -32768 y 32767."};
}

void ThrowIndexOutOfRange() { throw RunTimeError{u"El índice está fuera del intervalo."}; }

void ThrowInvalidCall(std::u16string_view consejo) {
  throw RunTimeError{Join(u"Llamada a procedimiento o argumento no válidos. ", consejo)};
}

}  // namespace tasca
