// The system calls behind Descriptor.
#include "base/descriptor.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace tasca {
namespace {

template <class Llamada>
auto RetryOnEintr(const Llamada& llamada) {
  auto resultado = llamada();
  while (resultado < 0 && errno == EINTR) resultado = llamada();
  return resultado;
}

}  // namespace

Descriptor::Descriptor(const std::filesystem::path& archivo, int modo)
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open() has no other form.
    : numero_{RetryOnEintr([&] { return ::open(archivo.c_str(), modo | O_CLOEXEC); })} {}

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

std::optional<struct stat> Descriptor::Status() const {
  struct stat datos {};
  if (::fstat(numero_, &datos) != 0) return std::nullopt;
  return datos;
}

bool Descriptor::SetPermissions(mode_t permisos) const { return ::fchmod(numero_, permisos) == 0; }

bool Descriptor::SetOwner(uid_t dueno, gid_t grupo) const {
  return ::fchown(numero_, dueno, grupo) == 0;
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

}  // namespace tasca
