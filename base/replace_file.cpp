// Atomic replacement: a temporary file in the same folder, flushed, then renamed over the old one.
#include "base/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>

#include "base/endings.h"
#include "base/text.h"

namespace tasca {
namespace fs = std::filesystem;

namespace {

std::u16string Reason(int error) {
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

[[noreturn]] void Fail(const fs::path& archivo, int error) {
  throw RunTimeError{
      Join(u"No se ha podido escribir el archivo ", PathText(archivo), u": ", Reason(error))};
}

void Check(bool hecho, const fs::path& archivo) {
  if (!hecho) Fail(archivo, errno);
}

// Calls until no signal has come in between.
template <class Llamada>
auto Again(const Llamada& llamada) {
  auto resultado = llamada();
  while (resultado < 0 && errno == EINTR) resultado = llamada();
  return resultado;
}

// An open file descriptor, closed at the end of its scope.
class Descriptor {
 public:
  Descriptor(const fs::path& archivo, int modo, mode_t permisos = 0)
      // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form.
      : numero_{Again([&] { return ::open(archivo.c_str(), modo | O_CLOEXEC, permisos); })} {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  bool IsOpen() const { return numero_ >= 0; }
  bool SetPermissions(mode_t permisos) const { return ::fchmod(numero_, permisos) == 0; }
  bool Write(std::string_view contenido) const {
    while (!contenido.empty()) {
      const ssize_t escritos =
          Again([&] { return ::write(numero_, contenido.data(), contenido.size()); });
      if (escritos == 0) errno = ENOSPC;
      if (escritos <= 0) return false;
      contenido.remove_prefix(static_cast<std::size_t>(escritos));
    }
    return true;
  }
  bool Flush() const {
    return Again([this] { return ::fsync(numero_); }) == 0;
  }
  bool Close() { return numero_ < 0 || ::close(std::exchange(numero_, -1)) == 0; }

 private:
  int numero_;
};

// The file that a path stands for once its links have been followed; nothing where there is none.
std::optional<fs::path> TrueFile(const fs::path& archivo) {
  std::error_code error;
  fs::path verdadero = fs::canonical(archivo, error);
  if (!error) return verdadero;
  if (error != std::errc::no_such_file_or_directory) Fail(archivo, error.value());
  return std::nullopt;
}

// What is to become the file `destino`: it stands beside it until it takes its place, and is
// removed when it never does.
class Temporary {
 public:
  explicit Temporary(const fs::path& destino) : destino_{destino}, ruta_{destino} {
    ruta_ += ".tmp";
    // One that a kill has left.
    Check(::unlink(ruta_.c_str()) == 0 || errno == ENOENT, destino_);
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  // Also after the rename: renaming one name of a file over another name of the same file, as a
  // save that was cut short leaves them, does nothing and leaves both.
  ~Temporary() { ::unlink(ruta_.c_str()); }

  bool Link(const fs::path& origen) const { return ::link(origen.c_str(), ruta_.c_str()) == 0; }

  void Copy(const fs::path& origen) const {
    std::error_code error;
    if (!fs::copy_file(origen, ruta_, error)) Fail(destino_, error.value());
    const Descriptor archivo{ruta_, O_RDONLY};
    Check(archivo.IsOpen() && archivo.Flush(), destino_);
  }

  void Write(std::string_view contenido, mode_t permisos) const {
    Descriptor archivo{ruta_, O_WRONLY | O_CREAT | O_EXCL, permisos};
    Check(archivo.IsOpen() && archivo.SetPermissions(permisos) && archivo.Write(contenido) &&
              archivo.Flush() && archivo.Close(),
          destino_);
  }

  void TakeItsPlace() const {
    Check(std::rename(ruta_.c_str(), destino_.c_str()) == 0, destino_);
    const fs::path madre = destino_.parent_path();
    const Descriptor carpeta{madre.empty() ? "." : madre, O_RDONLY | O_DIRECTORY};
    Check(carpeta.IsOpen() && carpeta.Flush(), destino_);
  }

 private:
  fs::path destino_;
  fs::path ruta_;
};

mode_t PermissionsOf(const fs::path& archivo) {
  constexpr mode_t PermisosNormales = 0644;
  struct stat datos {};
  if (::stat(archivo.c_str(), &datos) == 0) return datos.st_mode & 07777U;
  Check(errno == ENOENT, archivo);
  return PermisosNormales;
}

}  // namespace

void ReplaceFile(const fs::path& archivo, std::string_view contenido) {
  const fs::path destino = TrueFile(archivo).value_or(archivo);
  const mode_t permisos = PermissionsOf(destino);
  Check(::access(destino.c_str(), W_OK) == 0 || errno == ENOENT, archivo);
  const Temporary nuevo{destino};
  nuevo.Write(contenido, permisos);
  nuevo.TakeItsPlace();
}

void BackUpFile(const fs::path& archivo, const fs::path& copia) {
  const std::optional<fs::path> origen = TrueFile(archivo);
  if (!origen) return;
  std::error_code error;
  const bool esArchivo = fs::is_regular_file(*origen, error);
  if (!esArchivo) Fail(archivo, error ? error.value() : EISDIR);
  if (origen == TrueFile(copia)) Fail(copia, ELOOP);
  const Temporary nueva{copia};
  if (!nueva.Link(*origen)) nueva.Copy(*origen);
  nueva.TakeItsPlace();
}

}  // namespace tasca
