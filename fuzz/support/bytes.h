#pragma once
// The fuzzer's bytes, taken from the front.
#include <string>
#include <string_view>

namespace tasca::fuzz {

class Bytes {
 public:
  explicit Bytes(std::string_view bytes) : rest_{bytes} {}

  bool Empty() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  // A whole number from 0 to n - 1, of one byte or of two for n above 256; 0 when none are left.
  int Below(int n);
  // The bytes up to a line feed, which is taken too.
  std::string_view Line();

 private:
  unsigned Byte();

  std::string_view rest_;
};

// Two bytes a character: any text at all, halves of pairs included.
std::u16string AnyText(std::string_view bytes);

}  // namespace tasca::fuzz
