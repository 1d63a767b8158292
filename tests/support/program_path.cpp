// The folder of changed programs.
#include "tests/support/program_path.h"

#include <cstdlib>

namespace tasca::test {

std::filesystem::path ProgramPath(const std::filesystem::path& construido) {
  const char* const carpeta = std::getenv("TASCA_PROGRAMS");  // NOLINT(concurrency-mt-unsafe)
  if (carpeta == nullptr) return construido;
  const std::filesystem::path cambiado = std::filesystem::path{carpeta} / construido.filename();
  return std::filesystem::exists(cambiado) ? cambiado : construido;
}

}  // namespace tasca::test
