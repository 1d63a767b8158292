#pragma once
// Consumes the fuzzer's bytes from the front.
#include <string>
#include <string_view>

namespace tasca::fuzz {

class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : rest_{bytes} {}

  bool Empty() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  // An integer from 0 to n - 1. Consumes one byte, or two if n is above 256. Missing bytes count as
  // 0.
  int Below(int n);
  // The bytes up to a line feed. Consumes the line feed too.
  std::string_view Line();

 private:
  unsigned Byte();

  std::string_view rest_;
};

// Decodes UTF-16LE without validation: the text may contain unpaired surrogates.
std::u16string AnyText(std::string_view bytes);

}  // namespace tasca::fuzz
