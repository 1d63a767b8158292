// Sets the locale of the environment, as Qt does. The rules must not depend on it.
#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

// If LOCPATH is set but the locale is not found, the tests must not run silently in the C locale.
const bool enSuSitio = [] {
  const bool puesto = std::setlocale(LC_ALL, "") != nullptr;  // NOLINT(concurrency-mt-unsafe)
  if (!puesto && std::getenv("LOCPATH") != nullptr) {         // NOLINT(concurrency-mt-unsafe)
    (void)std::fputs("the tests' locale is not there\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }
  return puesto;
}();

}  // namespace
