#pragma once
// The test cases: combinations of a save and a kind of disk.
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "keep/partida_guardada.h"
#include "tests/save_faults/kept_match.h"
#include "tests/save_faults/tracer.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {

// A save: writes a name to a file that holds another one.
struct Saved {
  std::string Word;  // the first argument of save-once
  std::string File;
  std::string Copy;    // the backup copy; "" if there is none
  std::string Beside;  // another file that the program reads; "" if there is none
  // The file's content with `nombre`, if it held `anterior` before.
  std::string (*Content)(const std::string& nombre, const std::string& anterior);
};

inline std::string Cast(const std::string& nombre, const std::string& /*anterior*/) {
  Table t;
  t.Personajes[1].Nombre = Decode(nombre);
  return TextoPersonajes(t, 1);
}

inline std::string Settings(const std::string& nombre, const std::string& anterior) {
  const std::string rotulo = "> Nombre del \xFAltimo jugador\r\n";
  return "35 piedras\r\n3\r\n3\r\n" + nombre + rotulo + anterior + rotulo;
}

inline std::string Match(const std::string& nombre, const std::string& /*anterior*/) {
  return EscribirPartida(*MatchOf(Decode(nombre)), Rnd{});
}

inline const Saved Partida{"match", "partida", "", "en-uso", Match};
inline const Saved Personajes{"characters", "Jugadores.dat", "Jugadores.bak", "", Cast};
inline const Saved Ajustes{"settings", "mus.ini", "", "Jugadores.dat", Settings};

// A character file with three characters.
inline std::string ThreeCharacters() {
  Table t;
  for (int numero = 1; numero <= 3; ++numero) t.Personajes[numero].Nombre = ToText(numero);
  return TextoPersonajes(t, 3);
}

// A kind of disk, simulated by the tracer and by a variant of save-once.
struct Disk {
  std::string_view Name;
  std::string Tracer;        // strace options for every call
  std::string Program;       // the path of the variant
  bool AfterACrash = false;  // the folder contains leftovers of a killed save
};

inline const std::string Nada = "-e inject=getppid:delay_enter=0";
inline const Disk DiscoCorriente{"Ordinary", Nada, TASCA_SAVE_ONCE};
inline const Disk DiscoSinCerrojos{"WithoutLocks", "-e inject=flock:error=EOPNOTSUPP",
                                   TASCA_SAVE_ONCE};
// The match is saved by a thread of its own, or by the program's if there is none to spare.
inline const Disk DiscoSinHilos{"WithoutThreads", "-e inject=clone,clone3:error=EAGAIN",
                                TASCA_SAVE_ONCE};
inline const Disk DiscoSinHilosTrasUnFallo{"AfterACrash", DiscoSinHilos.Tracer, TASCA_SAVE_ONCE,
                                           true};
inline const Disk DiscoLento{"InBits", Nada, TASCA_SAVE_IN_BITS};
inline const Disk DiscoTrasUnFallo{"AfterACrash", Nada, TASCA_SAVE_ONCE, true};

// A save on a disk.
struct Case {
  Saved Save;
  Disk On;

  // The suffix of a temporary file.
  static constexpr auto Resto = ".guardando-a1B2c3.tmp";

  // The contents of the file before the save, of the copy before the save, and of the file after
  // it.
  std::string Antes() const { return Save.Content("antes", "mucho antes"); }
  std::string MuchoAntes() const { return Save.Content("mucho antes", ""); }
  std::string Nuevo() const { return Save.Content("nuevo", "antes"); }
  bool HasCopy() const { return !Save.Copy.empty(); }

  // The files that a save writes.
  std::vector<std::string> Written() const {
    if (!HasCopy()) return {Save.File};
    return {Save.Copy, Save.File};
  }
  // The entries of the folder if there are no leftovers.
  std::vector<std::string> Files() const {
    std::vector<std::string> nombres = Written();
    if (!Save.Beside.empty()) nombres.insert(nombres.begin(), Save.Beside);
    return nombres;
  }

  // Writes the files before the save.
  void Fill(const TempFolder& carpeta) const {
    carpeta.Write(Save.File, Antes());
    if (HasCopy()) carpeta.Write(Save.Copy, MuchoAntes());
    if (!Save.Beside.empty()) carpeta.Write(Save.Beside, ThreeCharacters());
    if (!On.AfterACrash) return;
    for (const std::string& nombre : Written()) {
      carpeta.Write(nombre + Resto, Nuevo().substr(0, 20));
    }
  }

  // The command that saves this name.
  std::string SaveIn(const TempFolder& carpeta, const std::string& nombre) const {
    return On.Program + " " + Save.Word + " " + carpeta.Path().string() + " " + nombre;
  }

  // The system calls of a save without faults.
  std::vector<Call> Calls() const {
    const TempFolder carpeta;
    Fill(carpeta);
    return CallsOf(On.Tracer, SaveIn(carpeta, "nuevo"));
  }
};

inline void PrintTo(const Case& caso, std::ostream* salida) {
  *salida << caso.Save.Word << " " << caso.On.Name;
}

}  // namespace tasca::test
