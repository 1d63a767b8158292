// Reads the environment.
#include "ui/state_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <optional>

#include "base/descriptor.h"

namespace tasca {
namespace {

namespace fs = std::filesystem;

// Whether the folder, or the nearest existing folder above it, belongs to another user than root.
bool BelongsToUser(fs::path carpeta) {
  std::optional<FileStatus> datos = StatusOf(carpeta);
  while (!datos && carpeta.has_relative_path()) {
    carpeta = carpeta.parent_path();
    datos = StatusOf(carpeta);
  }
  return datos && datos->Owner != 0;
}

// The absolute path in a variable of the environment, or an empty one.
fs::path AbsolutePathIn(const char* variable) {
  const char* const valor = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): at the start
  const fs::path ruta = valor == nullptr ? "" : valor;
  const bool vale = ruta.is_absolute() && (::geteuid() != 0 || !BelongsToUser(ruta));
  return vale ? ruta : fs::path{};
}

// The game's folder in the one that a variable names, or else below the home folder.
fs::path FolderIn(const char* variable, const fs::path& enCasa) {
  const fs::path nombrada = AbsolutePathIn(variable);
  if (!nombrada.empty()) return nombrada / "tasca";
  const fs::path personal = AbsolutePathIn("HOME");
  return personal.empty() ? personal : personal / enCasa / "tasca";
}

}  // namespace

fs::path StateFolder() { return FolderIn("XDG_STATE_HOME", ".local/state"); }

fs::path DataFolder() { return FolderIn("XDG_DATA_HOME", ".local/share"); }

}  // namespace tasca
