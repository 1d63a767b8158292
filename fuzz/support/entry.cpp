// The entry point that libFuzzer calls.
#include <cstddef>
#include <cstdint>

#include "fuzz/support/target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): unsigned to signed bytes.
  tasca::fuzz::Run({reinterpret_cast<const char*>(data), size});
  return 0;
}
