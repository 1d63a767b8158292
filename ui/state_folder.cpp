// Reads the environment.
#include "ui/state_folder.h"

#include <cstdlib>

namespace tasca {
namespace {

// The absolute path in a variable of the environment, or an empty one.
std::filesystem::path AbsolutePathIn(const char* variable) {
  const char* const valor = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): at the start
  std::filesystem::path ruta = valor == nullptr ? "" : valor;
  return ruta.is_absolute() ? ruta : std::filesystem::path{};
}

}  // namespace

std::filesystem::path StateFolder() {
  const std::filesystem::path deEstados = AbsolutePathIn("XDG_STATE_HOME");
  if (!deEstados.empty()) return deEstados / "tasca";
  const std::filesystem::path personal = AbsolutePathIn("HOME");
  return personal.empty() ? personal : personal / ".local" / "state" / "tasca";
}

}  // namespace tasca
