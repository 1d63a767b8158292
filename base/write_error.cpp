// Builds the messages of write errors from errno values.
#include "base/write_error.h"

#include <cerrno>

#include "base/path_text.h"
#include "base/text.h"

namespace tasca {
namespace {

std::u16string ReasonOf(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
      return u"no hay permiso para escribir.";
    case EROFS:
      return u"el disco es de solo lectura.";
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return u"no queda sitio en el disco.";
    case EISDIR:
      return u"hay otra cosa en su lugar.";
    case ENOENT:
    case ENOTDIR:
      return u"no existe la carpeta.";
    case ELOOP:
      return u"sus enlaces no llevan a un archivo propio.";
    case EIO:
      return u"el disco falla.";
    default:
      return Join(u"error ", error, u" del sistema.");
  }
}

std::u16string Described(std::u16string_view archivo, std::u16string_view motivo) {
  return Join(u"No se ha podido escribir el archivo ", archivo, u": ", motivo);
}

}  // namespace

WriteError::WriteError(const std::filesystem::path& archivo, std::u16string_view motivo)
    : RunTimeError{Described(PathText(archivo), motivo)},
      archivo_{PathText(archivo)},
      motivo_{motivo} {}

WriteError::WriteError(const std::filesystem::path& archivo, int error)
    : WriteError{archivo, ReasonOf(error)} {}

std::u16string WriteError::Sentence() const { return Described(archivo_, motivo_); }

void CheckWritten(bool hecho, const std::filesystem::path& archivo) {
  if (!hecho) throw WriteError{archivo, errno};
}

}  // namespace tasca
