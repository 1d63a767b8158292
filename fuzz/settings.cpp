// Fuzzes the settings file: the first line of the bytes is a name, the rest the file. The file is
// read for the match and for the name, then saved with the name.
#include "startup/settings.h"

#include <vector>

#include "base/code_page.h"
#include "base/errors.h"
#include "base/text.h"
#include "fuzz/support/bytes.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"

namespace tasca::fuzz {
namespace {

constexpr std::size_t Parameters = 3;  // lines before that of the name

// The lines, including their line ends.
std::vector<std::string_view> LinesOf(std::string_view bytes) {
  std::vector<std::string_view> lines;
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    lines.push_back(bytes.substr(0, end == std::string_view::npos ? end : end + 1));
    bytes.remove_prefix(lines.back().size());
  }
  return lines;
}

// Whether an operation returns without a RunTimeError.
template <class Operation>
bool Ends(const Operation& operation) {
  try {
    operation();
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void CheckMatch(Table& t, std::size_t lines) {
  t.PiedrasJuego = 35;
  t.JuegosVaca = 3;
  t.VacasPartida = 3;
  Require(Ends([&] { LeerParametrosPartida(t); }) == (lines >= Parameters),
          "three lines are enough for the match, and no fewer");
  for (const Integer parameter : {t.PiedrasJuego, t.JuegosVaca, t.VacasPartida}) {
    Require(parameter >= 1 && parameter <= 999, "a match parameter is 1 to 999");
  }
}

std::string WithoutEnd(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return std::string{line};
}

std::string Saved(const std::vector<std::string_view>& lines, std::string_view name) {
  std::string bytes;
  for (std::size_t i = 0; i < Parameters; ++i) bytes += lines.at(i);
  return bytes + std::string{name} + "> Nombre del \xFAltimo jugador\r\n" +
         WithoutEnd(lines.at(Parameters)) + "\r\n";
}

}  // namespace

void Run(std::string_view input) {
  static const Folder folder;
  static Table t;
  t.Carpeta = folder.Path();
  Bytes bytes{input};
  const std::u16string name{Trim(Decode(bytes.Line()))};
  folder.Write("mus.ini", bytes.Rest());
  const std::vector<std::string_view> lines = LinesOf(bytes.Rest());
  const bool hasName = lines.size() > Parameters;

  CheckMatch(t, lines.size());
  Require(Ends([&] { LeerIni(t); }) == hasName, "four lines are enough for the name");
  Require(Ends([&] { GuardarIni(t, name); }) == hasName, "four lines are enough to save it");
  if (!hasName) return Require(folder.Read("mus.ini") == bytes.Rest(), "the file is left alone");
  Require(folder.Read("mus.ini") == Saved(lines, Encode(name)), "the other lines are untouched");
  Require(LeerIni(t) == Trim(Before(name, u'>')), "the name comes back");
}

}  // namespace tasca::fuzz
