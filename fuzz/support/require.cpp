// Aborts, which the fuzzer reports as a crash.
#include "fuzz/support/require.h"

#include <cstdlib>
#include <iostream>

namespace tasca::fuzz {

void Require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "It does not hold: " << what << std::endl;
  std::abort();
}

}  // namespace tasca::fuzz
