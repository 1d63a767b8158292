// Fuzzes the round trip of the character file: read, write, read, write. Both written files must be
// equal and preserve the characters read first. The game must read the written file as the editor
// does.
#include <algorithm>
#include <optional>
#include <vector>

#include "base/errors.h"
#include "characters/character_file.h"
#include "fuzz/support/folder.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"

namespace tasca::fuzz {
namespace {

// A table, and the number of its characters that may not be blank.
struct Reader {
  Table t;
  int used = 0;
};

// Kept: a propensity is written with its sign and at least three digits, but only three characters
// of it are read, so that a negative one loses a digit at every reading.
void LeaveOutNegatives(Table& t, int count) {
  for (int number = 1; number <= count; ++number) {
    Integer& ordaguero = t.Personajes[number].Ordaguero;
    if (ordaguero < 0) ordaguero = 0;
  }
}

// The phrases of a category that are not blank and contain no NUL, in order.
std::vector<std::u16string_view> PhrasesOf(const Table& t, int number, int category) {
  std::vector<std::u16string_view> phrases;
  for (const auto& phrase : t.Mensajes[number][category]) {
    const std::u16string_view text = phrase.Trimmed();
    if (!text.empty() && text.find(u'\0') == std::u16string_view::npos) phrases.push_back(text);
  }
  return phrases;
}

void CompareCharacter(const Table& t, const Table& again, int number) {
  const Personaje& one = t.Personajes[number];
  const Personaje& other = again.Personajes[number];
  Require(one.Nombre == other.Nombre && one.Ordaguero == other.Ordaguero &&
              one.Historia == other.Historia,
          "the head of a record comes back");
  for (int category = 1; category <= std::ssize(EtiquetasMensaje); ++category) {
    Require(PhrasesOf(t, number, category) == PhrasesOf(again, number, category),
            "the phrases come back");
  }
}

// Blanks the characters in use. Blanking all hundred would take half of the running time.
void Reset(Reader& reader) {
  static const Module1State nobody;
  for (int number = 1; number <= reader.used; ++number) {
    reader.t.Personajes[number] = nobody.Personajes[number];
    reader.t.Mensajes[number] = nobody.Mensajes[number];
  }
}

int Read(Reader& reader, const Folder& folder, std::string_view bytes) {
  Reset(reader);
  // Every character starts with a marker.
  const auto marks = static_cast<int>(std::count(bytes.begin(), bytes.end(), '>'));
  reader.used = std::min(marks, MaximoPersonajes);
  folder.Write("Jugadores.dat", bytes);
  reader.t.Carpeta = folder.Path();
  return LeerPersonajesSinMayusculas(reader.t);
}

// Nothing if reading throws RunTimeError.
std::optional<int> TryToRead(Reader& reader, const Folder& folder, std::string_view bytes) {
  try {
    return Read(reader, folder, bytes);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace

void Run(std::string_view input) {
  static const Folder folder;
  static Reader first;
  static Reader second;
  const std::optional<int> count = TryToRead(first, folder, input);
  if (!count) return;
  LeaveOutNegatives(first.t, *count);
  const std::string written = TextoPersonajes(first.t, *count);
  Require(Read(second, folder, written) == *count, "as many characters come back");
  for (int number = 1; number <= *count; ++number) CompareCharacter(first.t, second.t, number);
  Require(TextoPersonajes(second.t, *count) == written, "the second writing is the first");
  // The game matches fewer spellings of the tags than the editor, but all that are written.
  Reset(second);
  LeerPersonajes(second.t);
  Require(TextoPersonajes(second.t, *count) == written,
          "the game reads what the editor has written");
}

}  // namespace tasca::fuzz
