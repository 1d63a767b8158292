// Line reading with a bound on the line, and atomic replacement through a temporary file.
#include "base/line_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

#include "base/code_page.h"
#include "base/endings.h"
#include "base/text.h"

namespace tasca {
namespace fs = std::filesystem;

bool FileExists(const fs::path& archivo) {
  std::error_code error;
  return fs::exists(archivo, error);
}

LineReader::LineReader(fs::path archivo) : ruta_{std::move(archivo)} {
  std::error_code error;
  const fs::file_status estado = fs::status(ruta_, error);
  if (!fs::exists(estado)) throw RunTimeError::InFile(ruta_, 0, u"no se encuentra el archivo.");
  if (!fs::is_regular_file(estado)) throw RunTimeError::InFile(ruta_, 0, u"no es un archivo.");
  flujo_.open(ruta_, std::ios::binary);
  if (!flujo_) throw RunTimeError::InFile(ruta_, 0, u"no se puede leer el archivo.");
}

bool LineReader::NextBytes(std::string& bytes) {
  bytes.clear();
  int letra = flujo_.get();
  if (letra == std::ifstream::traits_type::eof() && !flujo_.bad()) return false;
  ++linea_;
  for (; letra != std::ifstream::traits_type::eof(); letra = flujo_.get()) {
    if (bytes.size() == LargoMaximo) Fail(u"la línea es demasiado larga.");
    bytes += static_cast<char>(letra);
    if (letra == '\n') break;
  }
  if (flujo_.bad()) Fail(u"no se puede leer el archivo.");
  return true;
}

bool LineReader::Next(std::u16string& linea) {
  std::string bytes;
  if (!NextBytes(bytes)) return false;
  linea = Decode(WithoutLineEnd(bytes));
  return true;
}

std::string LineReader::RequireBytes(std::u16string_view queEs) {
  std::string bytes;
  if (!NextBytes(bytes)) {
    ++linea_;
    Fail(Join(u"el archivo se acaba y falta ", queEs, u"."));
  }
  return bytes;
}

std::u16string LineReader::Require(std::u16string_view queEs) {
  return Decode(WithoutLineEnd(RequireBytes(queEs)));
}

void LineReader::Fail(std::u16string_view queHaPasado) const {
  throw RunTimeError::InFile(ruta_, linea_, queHaPasado);
}

std::string_view WithoutLineEnd(std::string_view bytes) {
  if (bytes.ends_with('\n')) bytes.remove_suffix(1);
  if (bytes.ends_with('\r')) bytes.remove_suffix(1);
  return bytes;
}

namespace {

// An open file descriptor, closed at the end of its scope.
class Descriptor {
 public:
  explicit Descriptor(int numero) : numero_{numero} {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  bool IsOpen() const { return numero_ >= 0; }
  int Number() const { return numero_; }
  bool Close() { return numero_ < 0 || ::close(std::exchange(numero_, -1)) == 0; }

 private:
  int numero_;
};

int OpenFile(const fs::path& archivo, int modo, mode_t permisos) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form.
  return ::open(archivo.c_str(), modo | O_CLOEXEC, permisos);
}

bool WriteAll(const Descriptor& destino, std::string_view contenido) {
  while (!contenido.empty()) {
    const ssize_t escritos = ::write(destino.Number(), contenido.data(), contenido.size());
    if (escritos < 0 && errno == EINTR) continue;
    if (escritos <= 0) return false;
    contenido.remove_prefix(static_cast<std::size_t>(escritos));
  }
  return true;
}

bool FlushToDisk(const Descriptor& destino) {
  while (::fsync(destino.Number()) != 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

// Writes, flushes and closes the temporary file, with the permissions of the file it will replace.
bool WriteTemporary(const fs::path& temporal, const fs::path& modelo, std::string_view contenido) {
  constexpr mode_t PermisosNormales = 0644;
  struct stat datos {};
  const mode_t permisos =
      ::stat(modelo.c_str(), &datos) == 0 ? (datos.st_mode & 07777U) : PermisosNormales;
  Descriptor destino{OpenFile(temporal, O_WRONLY | O_CREAT | O_TRUNC, permisos)};
  if (!destino.IsOpen()) return false;
  return ::fchmod(destino.Number(), permisos) == 0 && WriteAll(destino, contenido) &&
         FlushToDisk(destino) && destino.Close();
}

}  // namespace

void ReplaceFile(const fs::path& archivo, std::string_view contenido) {
  std::error_code error;
  const fs::path verdadero = fs::canonical(archivo, error);
  const fs::path destino = error ? archivo : verdadero;
  fs::path temporal = destino;
  temporal += ".tmp";
  const bool protegido = ::access(destino.c_str(), W_OK) != 0 && errno != ENOENT;
  if (protegido || !WriteTemporary(temporal, destino, contenido) ||
      std::rename(temporal.c_str(), destino.c_str()) != 0) {
    ::unlink(temporal.c_str());
    throw RunTimeError::InFile(archivo, 0, u"no se ha podido escribir el archivo.");
  }
  const Descriptor carpeta{OpenFile(destino.parent_path(), O_RDONLY | O_DIRECTORY, 0)};
  if (carpeta.IsOpen()) FlushToDisk(carpeta);
}

}  // namespace tasca
