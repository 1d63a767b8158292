// Copying, renewing and laying aside of the user's files.
#include "ui/own_files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <optional>

#include "base/descriptor.h"
#include "base/replace_file.h"
#include "base/write_error.h"

namespace tasca {
namespace fs = std::filesystem;

namespace {

constexpr std::array<const char*, 2> OwnFiles{"Jugadores.dat", "mus.ini"};
constexpr std::uint64_t Longest = std::uint64_t{1} << 24U;

// The file's content; nothing if it cannot be read.
std::optional<std::string> ContentOf(const fs::path& archivo) {
  const std::optional<FileStatus> datos = StatusOf(archivo);
  if (!datos || !datos->IsRegular || datos->Size > Longest) return std::nullopt;
  const Descriptor abierto{archivo, OpenMode::Read};
  return abierto.IsOpen() ? abierto.Read() : std::nullopt;
}

// Something that cannot be examined counts as there.
bool IsThere(const fs::path& archivo) { return StatusOfLink(archivo) || errno != ENOENT; }

fs::path Originals(const fs::path& propia) { return propia / ".original"; }

fs::path NewOf(fs::path archivo) { return archivo += ".nuevo"; }

// The mark that the user has not been told of a new file yet.
fs::path MarkOf(const fs::path& propia, const char* nombre) {
  return NewOf(Originals(propia) / nombre);
}

// The original is written last: after a failure the next start does the same again.
void Bring(const fs::path& shipped, const fs::path& propia, const char* nombre) {
  const std::optional<std::string> enviado = ContentOf(shipped / nombre);
  if (!enviado) return;
  const fs::path archivo = propia / nombre;
  const fs::path original = Originals(propia) / nombre;
  if (!IsThere(archivo)) {
    ReplaceFile(archivo, *enviado);
    return ReplaceFile(original, *enviado);
  }
  const std::optional<std::string> anterior = ContentOf(original);
  if (anterior == enviado) return;
  const std::optional<std::string> suyo = ContentOf(archivo);
  if (suyo && suyo == anterior) {
    ReplaceFile(archivo, *enviado);
  } else if (suyo != enviado) {
    ReplaceFile(NewOf(archivo), *enviado);
    ReplaceFile(MarkOf(propia, nombre), "");
  }
  ReplaceFile(original, *enviado);
}

// A file in a folder that may not be searched is none that the game can use.
bool HasAll(const fs::path& shipped, const fs::path& propia) {
  return std::ranges::all_of(OwnFiles, [&](const char* nombre) {
    return !StatusOf(shipped / nombre) || StatusOf(propia / nombre).has_value();
  });
}

void BringAll(const fs::path& shipped, const fs::path& propia) {
  CheckWritten(MakeFolders(Originals(propia)), propia);
  for (const char* const nombre : OwnFiles) Bring(shipped, propia, nombre);
}

}  // namespace

// An update that fails is no reason against the files that are there: saving them tells its own.
std::u16string BringOwnFiles(const fs::path& shipped, const fs::path& propia) {
  if (propia.empty()) return u"no se sabe cuál es su carpeta personal.";
  try {
    BringAll(shipped, propia);
  } catch (const WriteError& error) {
    if (!HasAll(shipped, propia)) return error.Reason();
  }
  return {};
}

std::vector<fs::path> TakeNewFiles(const fs::path& propia) {
  std::vector<fs::path> nuevos;
  for (const char* const nombre : OwnFiles) {
    const fs::path nuevo = NewOf(propia / nombre);
    if (!StatusOfLink(MarkOf(propia, nombre))) continue;
    Unlink(MarkOf(propia, nombre));
    if (IsThere(nuevo)) nuevos.push_back(nuevo);
  }
  return nuevos;
}

}  // namespace tasca
