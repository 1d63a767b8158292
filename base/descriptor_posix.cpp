// Open files by the system calls of POSIX.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

#include "base/descriptor.h"

namespace tasca {
namespace {

template <class Llamada>
auto RetryOnEintr(const Llamada& llamada) {
  auto resultado = llamada();
  while (resultado < 0 && errno == EINTR) resultado = llamada();
  return resultado;
}

int FlagsOf(OpenMode modo) {
  switch (modo) {
    case OpenMode::Read:
      return O_RDONLY;
    case OpenMode::ReadItself:
      return O_RDONLY | O_NOFOLLOW | O_NONBLOCK;
    case OpenMode::ReadWrite:
      return O_RDWR;
    case OpenMode::ReadWriteOrCreate:
      return O_RDWR | O_CREAT;
    case OpenMode::Folder:
      return O_RDONLY | O_DIRECTORY;
  }
  return O_RDONLY;
}

// `llamada` fills in what it is given and returns 0 on success.
template <class Llamada>
std::optional<FileStatus> StatusBy(const Llamada& llamada) {
  struct stat datos {};
  if (llamada(datos) != 0) return std::nullopt;
  return FileStatus{.Inode = datos.st_ino,
                    .Size = static_cast<std::uint64_t>(datos.st_size),
                    .Links = datos.st_nlink,
                    .IsRegular = S_ISREG(datos.st_mode),
                    .Permissions = datos.st_mode & 07777U,
                    .Owner = datos.st_uid,
                    .Group = datos.st_gid};
}

}  // namespace

Descriptor::Descriptor(const std::filesystem::path& archivo, OpenMode modo)
    : numero_{RetryOnEintr([&] {
        constexpr mode_t SoloDelUsuario = 0600;
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form.
        return ::open(archivo.c_str(), FlagsOf(modo) | O_CLOEXEC, SoloDelUsuario);
      })} {}

Descriptor::~Descriptor() {
  if (IsOpen()) ::close(numero_);
}

// mkostemps() opens with O_EXCL and retries with another name on EEXIST.
Descriptor::Descriptor(std::string_view principio, std::string_view final, std::string& ruta)
    : numero_{RetryOnEintr([&] {
        ruta = principio;
        ruta.append("XXXXXX").append(final);
        return ::mkostemps(ruta.data(), static_cast<int>(final.size()), O_CLOEXEC);
      })} {}

bool Descriptor::Lock() const {
  return RetryOnEintr([this] { return ::flock(numero_, LOCK_EX | LOCK_NB); }) == 0;
}

std::optional<FileStatus> Descriptor::Status() const {
  return StatusBy([this](struct stat& datos) { return ::fstat(numero_, &datos); });
}

bool Descriptor::SetPermissions(unsigned permisos) const {
  return ::fchmod(numero_, permisos) == 0;
}

bool Descriptor::SetOwner(unsigned dueno, unsigned grupo) const {
  return ::fchown(numero_, dueno, grupo) == 0;
}

bool Descriptor::SetGroup(unsigned grupo) const {
  constexpr auto ElMismo = static_cast<uid_t>(-1);
  return ::fchown(numero_, ElMismo, grupo) == 0;
}

std::optional<std::string> Descriptor::Read() const {
  std::string contenido;
  std::array<char, 4096> trozo{};
  for (;;) {
    const ssize_t leidos =
        RetryOnEintr([&] { return ::read(numero_, trozo.data(), trozo.size()); });
    if (leidos < 0) return std::nullopt;
    if (leidos == 0) return contenido;
    contenido.append(trozo.data(), static_cast<std::size_t>(leidos));
  }
}

bool Descriptor::Write(std::string_view contenido) const {
  while (!contenido.empty()) {
    const ssize_t escritos =
        RetryOnEintr([&] { return ::write(numero_, contenido.data(), contenido.size()); });
    if (escritos == 0) errno = ENOSPC;
    if (escritos <= 0) return false;
    contenido.remove_prefix(static_cast<std::size_t>(escritos));
  }
  return true;
}

bool Descriptor::Flush() const {
  return RetryOnEintr([this] { return ::fsync(numero_); }) == 0;
}

std::optional<FileStatus> StatusOf(const std::filesystem::path& archivo) {
  return StatusBy([&](struct stat& datos) { return ::stat(archivo.c_str(), &datos); });
}

std::optional<FileStatus> StatusOfLink(const std::filesystem::path& archivo) {
  return StatusBy([&](struct stat& datos) { return ::lstat(archivo.c_str(), &datos); });
}

bool MayWrite(const std::filesystem::path& archivo) { return ::access(archivo.c_str(), W_OK) == 0; }

bool MakeFolders(const std::filesystem::path& carpeta) {
  constexpr mode_t SoloDelUsuario = 0700;
  std::filesystem::path hecha;
  for (const std::filesystem::path& nombre : carpeta) {
    hecha /= nombre;
    if (::mkdir(hecha.c_str(), SoloDelUsuario) != 0 && errno != EEXIST) return false;
  }
  return Descriptor{carpeta, OpenMode::Folder}.IsOpen();
}

void Unlink(const std::filesystem::path& archivo) { ::unlink(archivo.c_str()); }

}  // namespace tasca
