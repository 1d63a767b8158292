// The table of well-formed UTF-8 byte sequences, by lead byte.
#include "base/utf8_check.h"

#include <algorithm>
#include <array>

namespace tasca {
namespace {

struct ByteRange {
  unsigned char First;
  unsigned char Last;

  bool Holds(char byte) const {
    const auto code = static_cast<unsigned char>(byte);
    return code >= First && code <= Last;
  }
};

// The lead bytes and the length of a kind of sequence. The second byte has its own range; the third
// and fourth are 80 to BF.
struct Sequence {
  ByteRange Lead;
  ByteRange Second;
  std::size_t Length;
};

constexpr ByteRange Continuation{0x80, 0xBF};
constexpr std::array<Sequence, 8> Sequences{{{{0xC2, 0xDF}, Continuation, 2},
                                             {{0xE0, 0xE0}, {0xA0, 0xBF}, 3},
                                             {{0xE1, 0xEC}, Continuation, 3},
                                             {{0xED, 0xED}, {0x80, 0x9F}, 3},
                                             {{0xEE, 0xEF}, Continuation, 3},
                                             {{0xF0, 0xF0}, {0x90, 0xBF}, 4},
                                             {{0xF1, 0xF3}, Continuation, 4},
                                             {{0xF4, 0xF4}, {0x80, 0x8F}, 4}}};

// The length of the multi-byte sequence at the start of `bytes`; 0 if it is malformed.
std::size_t SequenceLength(std::string_view bytes) {
  for (const Sequence& sequence : Sequences) {
    if (!sequence.Lead.Holds(bytes.front())) continue;
    if (bytes.size() < sequence.Length || !sequence.Second.Holds(bytes[1])) return 0;
    const std::string_view rest = bytes.substr(2, sequence.Length - 2);
    const bool complete =
        std::all_of(rest.begin(), rest.end(), [](char byte) { return Continuation.Holds(byte); });
    return complete ? sequence.Length : 0;
  }
  return 0;
}

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

}  // namespace

Utf8Check CheckUtf8(std::string_view bytes) {
  Utf8Check found = Utf8Check::Ascii;
  while (!bytes.empty()) {
    std::size_t length = 1;
    if (!IsAscii(bytes.front())) {
      length = SequenceLength(bytes);
      if (length == 0) return Utf8Check::Invalid;
      found = Utf8Check::MultiByte;
    }
    bytes.remove_prefix(length);
  }
  return found;
}

void Utf8Detector::AddLine(int linea, std::string_view bytes) {
  const Utf8Check son = CheckUtf8(bytes);
  if (son == Utf8Check::Invalid) valido_ = false;
  if (son == Utf8Check::MultiByte && primera_ == 0) primera_ = linea;
}

}  // namespace tasca
