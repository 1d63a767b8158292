// Locking, reading, replacing and removing the file.
#include "keep/archivo_partida.h"

#include <cerrno>
#include <utility>

#include "base/replace_file.h"
#include "base/write_error.h"

namespace tasca {
namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t LargoMaximoPartida = std::uint64_t{1} << 24U;

std::u16string MotivoDeErrno(const fs::path& archivo) {
  return WriteError{archivo, errno}.Reason();
}

void QuitarDelDisco(const fs::path& archivo) {
  Unlink(archivo);
  const Descriptor carpeta{archivo.parent_path(), OpenMode::Folder};
  if (carpeta.IsOpen()) (void)carpeta.Flush();
}

// Runs `tarea` in a new thread. Without a thread to spare it runs when it is waited for; therefore
// it is not moved into the thread that could not be started.
template <class Tarea>
std::future<void> Empezar(const Tarea& tarea) {
  return std::async(std::launch::async | std::launch::deferred, tarea);
}

}  // namespace

// On a file system without flock the match is kept all the same.
ArchivoPartida::ArchivoPartida(fs::path carpeta)
    : carpeta_{std::move(carpeta)}, ruta_{carpeta_ / "partida"} {
  if (carpeta_.empty()) {
    porQueNo_ = u"no se sabe cuál es su carpeta personal.";
    return;
  }
  if (MakeFolders(carpeta_)) cerrojo_.emplace(carpeta_ / "en-uso", OpenMode::ReadWriteOrCreate);
  if (!cerrojo_ || !cerrojo_->IsOpen()) {
    porQueNo_ = MotivoDeErrno(carpeta_);
  } else if (!cerrojo_->Lock() && errno == EWOULDBLOCK) {
    porQueNo_ = u"hay otra tasca abierta, que guarda la suya.";
  }
}

// A file that cannot be examined is there: it must be set aside, not replaced.
bool ArchivoPartida::Hay() const { return StatusOfLink(ruta_) || errno != ENOENT; }

std::string ArchivoPartida::Leer() const {
  const std::optional<FileStatus> datos = StatusOf(ruta_);
  if (!datos || !datos->IsRegular || datos->Size > LargoMaximoPartida) return {};
  const Descriptor archivo{ruta_, OpenMode::Read};
  return archivo.IsOpen() ? archivo.Read().value_or("") : "";
}

fs::path ArchivoPartida::Apartar() {
  fs::path apartada = carpeta_ / "partida-apartada";
  for (int n = 2; StatusOfLink(apartada); ++n) {
    apartada = carpeta_ / ("partida-apartada-" + std::to_string(n));
  }
  std::error_code error;
  fs::rename(ruta_, apartada, error);
  if (!error) return apartada;
  porQueNo_ = WriteError{ruta_, error.value()}.Reason();
  return {};
}

void ArchivoPartida::Guardar(std::string contenido) {
  fallo_ = Esperar();
  pendiente_ = Empezar([ruta = ruta_, bytes = std::move(contenido)] { ReplaceFile(ruta, bytes); });
}

void ArchivoPartida::Quitar() {
  fallo_ = Esperar();
  pendiente_ = Empezar([ruta = ruta_] { QuitarDelDisco(ruta); });
}

std::u16string ArchivoPartida::Esperar() {
  try {
    if (pendiente_.valid()) pendiente_.get();
  } catch (const WriteError& error) {
    return error.Reason();
  }
  return std::exchange(fallo_, {});
}

}  // namespace tasca
