// Atomic replacement: writes a temporary file in the same folder, flushes it and renames it over
// the old file.
#include "base/replace_file.h"

#include <cerrno>
#include <optional>
#include <string>

#include "base/descriptor.h"
#include "base/path_text.h"
#include "base/temporary_file.h"
#include "base/text.h"

namespace tasca {
namespace fs = std::filesystem;

namespace {

// The path with all symbolic links resolved; nothing if no file exists there. Throws WriteError on
// any other failure.
std::optional<fs::path> TrueFile(const fs::path& archivo) {
  std::error_code error;
  fs::path verdadero = fs::canonical(archivo, error);
  if (!error) return verdadero;
  if (error != std::errc::no_such_file_or_directory) throw WriteError{archivo, error.value()};
  return std::nullopt;
}

// The existing file; nothing if there is none. Throws WriteError on any other failure.
std::optional<FileStatus> Existing(const fs::path& archivo) {
  std::optional<FileStatus> datos = StatusOf(archivo);
  CheckWritten(datos || errno == ENOENT, archivo);
  return datos;
}

}  // namespace

void ReplaceFile(const fs::path& archivo, std::string_view contenido) {
  const fs::path destino = TrueFile(archivo).value_or(archivo);
  const std::optional<FileStatus> anterior = Existing(destino);
  CheckWritten(MayWrite(destino) || errno == ENOENT, archivo);
  TemporaryFile nuevo{destino};
  nuevo.Write(contenido, anterior);
  nuevo.TakeItsPlace();
}

void BackUpFile(const fs::path& archivo, const fs::path& copia) {
  const std::optional<fs::path> origen = TrueFile(archivo);
  if (!origen) return;
  std::error_code error;
  const bool esArchivo = fs::is_regular_file(*origen, error);
  if (!esArchivo) throw WriteError{archivo, error ? error.value() : EISDIR};
  if (origen == TrueFile(copia)) throw WriteError{copia, ELOOP};
  const Descriptor abierto{*origen, OpenMode::Read};
  const std::optional<FileStatus> datos = abierto.Status();
  const std::optional<std::string> contenido = abierto.Read();
  if (!datos || !contenido)
    throw WriteError{copia, Join(u"no se puede leer ", PathText(archivo), u".")};
  TemporaryFile nueva{copia};
  nueva.Write(*contenido, datos);
  nueva.TakeItsPlace();
}

}  // namespace tasca
