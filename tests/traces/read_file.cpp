// Byte for byte.
#include "tests/traces/read_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tasca::test {

std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream stream{file, std::ios::binary};
  if (!stream) throw std::runtime_error{"cannot read " + file.string()};
  return {std::istreambuf_iterator<char>{stream}, {}};
}

}  // namespace tasca::test
