// Catches the run-time error of an operation.
#include "tests/support/errors.h"

#include "base/errors.h"
#include "tests/support/tables.h"

namespace tasca::test {

std::string ErrorOf(const std::function<void()>& hacer) {
  try {
    hacer();
  } catch (const RunTimeError& error) {
    return Utf8(error.Message());
  }
  return {};
}

}  // namespace tasca::test
