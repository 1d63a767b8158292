// The tests run in the locale of their environment, as the windows do: where a number is written
// with a comma, or an "i" has no "I", the rules must not notice.
#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace {

// A locale that was made for the tests and is not found would test nothing.
const bool enSuSitio = [] {
  const bool puesto = std::setlocale(LC_ALL, "") != nullptr;  // NOLINT(concurrency-mt-unsafe)
  if (!puesto && std::getenv("LOCPATH") != nullptr) {         // NOLINT(concurrency-mt-unsafe)
    (void)std::fputs("the tests' locale is not there\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }
  return puesto;
}();

}  // namespace
