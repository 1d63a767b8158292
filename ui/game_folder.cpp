// Choice of the folders.
#include "ui/game_folder.h"

#include "base/descriptor.h"
#include "base/line_file.h"
#include "ui/own_files.h"

namespace tasca {
namespace fs = std::filesystem;

namespace {

// With nothing in either place, the game reports the file that is missing beside the programs.
GameFolder ShippedFor(const fs::path& programas) {
  const fs::path raiz = programas.parent_path();
  const fs::path datos = raiz / "share" / "tasca";
  if (FileExists(programas / "Jugadores.dat") || !FileExists(datos / "Jugadores.dat")) {
    return {.Files = programas,
            .Shipped = programas,
            .SoundProgram = programas / "tasca-sound",
            .NotSaved = {}};
  }
  return {.Files = datos,
          .Shipped = datos,
          .SoundProgram = raiz / "libexec" / "tasca" / "tasca-sound",
          .NotSaved = {}};
}

bool IsPortable(const GameFolder& carpeta, const fs::path& programas) {
  return carpeta.Shipped == programas &&
         (MayWrite(programas) || !FileExists(programas / "Jugadores.dat"));
}

}  // namespace

GameFolder FindGameFolder(const fs::path& programas, const std::optional<fs::path>& elegida,
                          const fs::path& propia) {
  GameFolder carpeta = ShippedFor(programas);
  if (!elegida && IsPortable(carpeta, programas)) return carpeta;
  const fs::path suya = elegida.value_or(propia);
  carpeta.NotSaved = BringOwnFiles(carpeta.Shipped, suya);
  const bool tieneLosSuyos = !suya.empty() && StatusOf(suya / "Jugadores.dat").has_value();
  if (carpeta.NotSaved.empty() || tieneLosSuyos) carpeta.Files = suya;
  return carpeta;
}

}  // namespace tasca
