// Consumption of the fuzzer's bytes.
#include "fuzz/support/bytes.h"

#include <algorithm>

namespace tasca::fuzz {

unsigned Bytes::Byte() {
  if (rest_.empty()) return 0;
  const auto byte = static_cast<unsigned char>(rest_.front());
  rest_.remove_prefix(1);
  return byte;
}

int Bytes::Below(int n) {
  constexpr int OneByte = 256;
  unsigned number = Byte();
  if (n > OneByte) number = number * OneByte + Byte();
  return static_cast<int>(number % static_cast<unsigned>(n));
}

std::string_view Bytes::Line() {
  const std::size_t length = std::min(rest_.find('\n'), rest_.size());
  const std::string_view line = rest_.substr(0, length);
  rest_.remove_prefix(std::min(length + 1, rest_.size()));
  return line;
}

std::u16string AnyText(std::string_view bytes) {
  std::u16string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    text += static_cast<char16_t>(low | static_cast<unsigned>(high) << 8U);
  }
  return text;
}

}  // namespace tasca::fuzz
