// tasca-signature MATCHES [FILE [FROM]]: prints a hash of the traces of this many random matches.
// It must not depend on the compiler or the level of optimisation. With FILE it is compared with
// the signature stored there. With FROM the hash continues from the stored signature of FROM
// matches, which are not played. Exit status: 0, 1 for another signature, 2 for an error.
#include <charconv>
#include <cstdint>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "tests/ui_trace/random_game.h"

namespace tasca::test {
namespace {

// FNV-1a, 64 bits.
class Hash {
 public:
  Hash() = default;
  // Continues from the hash with this text.
  explicit Hash(const std::string& text) {
    std::from_chars(text.data(), text.data() + text.size(), valor_, 16);
  }
  void Add(const std::string& bytes) {
    constexpr std::uint64_t Primo = 1099511628211U;
    for (const char byte : bytes) valor_ = (valor_ ^ static_cast<unsigned char>(byte)) * Primo;
  }
  std::string Text() const {
    std::ostringstream texto;
    texto << std::hex << valor_;
    return texto.str();
  }

 private:
  std::uint64_t valor_ = 14695981039346656037U;
};

Provocation ProvocationOf(std::uint32_t seed) {
  return seed % 10 == 0 ? Provocation::HugeAmounts : Provocation::None;
}

// Plays the matches from + 1 to `matches` and adds them to the hash.
std::string SignatureOf(Hash hash, std::uint32_t from, std::uint32_t matches) {
  const std::filesystem::path characters = TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat";
  for (std::uint32_t seed = from + 1; seed <= matches; ++seed) {
    const RandomGame game = PlayRandomGame(characters, seed, {.Matches = 1}, ProvocationOf(seed));
    if (!game.Fault.empty())
      throw std::runtime_error{"seed " + std::to_string(seed) + ": " + game.Fault};
    hash.Add(game.In);
    hash.Add(game.Out);
  }
  return hash.Text();
}

// The stored signature. The file has lines "MATCHES SIGNATURE".
std::string KeptSignature(const char* path, std::uint32_t matches) {
  std::ifstream lines{path};
  std::uint32_t ofMatches = 0;
  std::string signature;
  while (lines >> ofMatches >> signature) {
    if (ofMatches == matches) return signature;
  }
  throw std::runtime_error{"no signature is stored for this number of matches"};
}

std::uint32_t Number(const char* text) {
  std::uint32_t number = 0;
  const char* const end = text + std::strlen(text);
  if (std::from_chars(text, end, number).ptr != end) throw std::runtime_error{"no number"};
  return number;
}

int Compare(const std::string& found, const std::string& kept) {
  if (found == kept) return 0;
  std::cout << "but " << kept << " is stored\n";
  return 1;
}

}  // namespace
}  // namespace tasca::test

int main(int argc, char** argv) {
  using namespace tasca::test;
  try {
    if (argc < 2 || argc > 4) throw std::runtime_error{"MATCHES [FILE [FROM]]"};
    const std::uint32_t matches = Number(argv[1]);
    const std::uint32_t from = argc > 3 ? Number(argv[3]) : 0;
    const Hash before = from == 0 ? Hash{} : Hash{KeptSignature(argv[2], from)};
    const std::string found = SignatureOf(before, from, matches);
    std::cout << matches << ' ' << found << '\n';
    return argc == 2 ? 0 : Compare(found, KeptSignature(argv[2], matches));
  } catch (const std::exception& error) {
    std::cerr << "tasca-signature: " << error.what() << '\n';
    return 2;
  }
}
