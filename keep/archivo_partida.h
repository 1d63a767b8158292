#pragma once
// The file of the kept match, in the user's folder of states. Only one program uses it at a time:
// it holds an flock on a second file until it ends.
//
// Saves are written, flushed to the disk and renamed by a thread of their own, because a flush may
// take longer than a player may wait: tens of milliseconds on a slow disk. Each call first waits
// for the save before it, so a match in which a step waits for the save of the last step (Esperar)
// never loses more than one step.
#include <filesystem>
#include <future>
#include <optional>
#include <string>

#include "base/descriptor.h"

namespace tasca {

class ArchivoPartida {
 public:
  // Creates the folder if it is missing, and takes the lock. An empty path means that the user has
  // no such folder.
  explicit ArchivoPartida(std::filesystem::path carpeta);
  ArchivoPartida(const ArchivoPartida&) = delete;
  ArchivoPartida& operator=(const ArchivoPartida&) = delete;
  // Waits for the last save.
  ~ArchivoPartida() = default;

  // Why matches cannot be kept, as it follows a colon in a message; "" if they can. Then the
  // functions below may be called.
  const std::u16string& PorQueNo() const { return porQueNo_; }

  const std::filesystem::path& Ruta() const { return ruta_; }
  // Whether a match is kept.
  bool Hay() const;
  // The bytes of the kept match; "" if they cannot be read or are far too many.
  std::string Leer() const;
  // Renames the file to a free name and returns that. If this fails, sets PorQueNo and returns an
  // empty path.
  std::filesystem::path Apartar();

  // Starts to replace the file.
  void Guardar(std::string contenido);
  // Starts to remove the file.
  void Quitar();
  // Waits until the last Guardar or Quitar is done. Returns why it failed, as PorQueNo; "" if it
  // has not failed, or if that was already returned.
  std::u16string Esperar();

 private:
  std::filesystem::path carpeta_;
  std::filesystem::path ruta_;
  std::u16string porQueNo_;
  std::optional<Descriptor> cerrojo_;
  std::u16string fallo_;
  std::future<void> pendiente_;
};

}  // namespace tasca
