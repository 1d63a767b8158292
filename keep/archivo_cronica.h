#pragma once
// The file of the chronicle of the kept match, beside it. Each step appends what it has added to
// the chronicle, and which match that leads to: so the file fits the match even if a program was
// killed between the two writes. It is not flushed to the disk: after a power cut the chronicle may
// begin anew, the match does not.
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/descriptor.h"

namespace tasca {

// What a step adds to the chronicle.
struct Apunte {
  bool Nuevo = false;  // a new chronicle begins with it
  std::u16string Texto;
};

class ArchivoCronica {
 public:
  // Opens nothing yet.
  explicit ArchivoCronica(std::filesystem::path ruta) : ruta_{std::move(ruta)} {}

  // Appends a step. `partida` is what tells the match after it from others. A file that cannot be
  // written is removed: then there is none until a new chronicle begins.
  void Anotar(const Apunte& apunte, std::string_view partida);
  // All texts up to the last step that led to `partida`; nothing if none did or there is no file.
  std::optional<std::u16string> Leer(std::string_view partida) const;
  // Removes the file.
  void Quitar();

 private:
  std::filesystem::path ruta_;
  std::optional<Descriptor> abierto_;
};

}  // namespace tasca
