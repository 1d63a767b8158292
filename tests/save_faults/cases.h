#pragma once
// The saves and the disks that are put together.
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "tests/save_faults/tracer.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {

// What is saved: a name, into a file that has held another.
struct Saved {
  std::string Word;  // for the program that saves
  std::string File;
  std::string Copy;    // of the file as it was; "" for a file without one
  std::string Beside;  // what else the program reads; "" for nothing
  // The file with that name in it, when it held the other before.
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

inline const Saved Personajes{"characters", "Jugadores.dat", "Jugadores.bak", "", Cast};
inline const Saved Ajustes{"settings", "mus.ini", "", "Jugadores.dat", Settings};

inline std::string ThreeToSitWith() {
  Table t;
  for (int numero = 1; numero <= 3; ++numero) t.Personajes[numero].Nombre = ToText(numero);
  return TextoPersonajes(t, 3);
}

// How the disk is that takes the save: what the tracer does to every call, and the program.
struct Disk {
  std::string_view Name;
  std::string Tracer;
  std::string Program;
  bool AfterACrash = false;  // with what a save leaves that is killed at the worst moments
};

inline const std::string Nada = "-e inject=getppid:delay_enter=0";
inline const Disk DiscoCorriente{"Ordinary", Nada, TASCA_SAVE_ONCE};
inline const Disk DiscoSinCerrojos{"WithoutLocks", "-e inject=flock:error=EOPNOTSUPP",
                                   TASCA_SAVE_ONCE};
inline const Disk DiscoLento{"InBits", Nada, TASCA_SAVE_IN_BITS};
inline const Disk DiscoTrasUnFallo{"AfterACrash", Nada, TASCA_SAVE_ONCE, true};

// A save and its disk.
struct Case {
  Saved Save;
  Disk On;

  // What a killed save's file has behind the name of the one that it was to be.
  static constexpr auto Resto = ".guardando-a1B2c3.tmp";

  std::string Antes() const { return Save.Content("antes", "mucho antes"); }
  std::string MuchoAntes() const { return Save.Content("mucho antes", ""); }
  std::string Nuevo() const { return Save.Content("nuevo", "antes"); }
  bool HasCopy() const { return !Save.Copy.empty(); }

  std::vector<std::string> Written() const {
    if (!HasCopy()) return {Save.File};
    return {Save.Copy, Save.File};
  }
  // All that lies in the folder when nothing is left over.
  std::vector<std::string> Files() const {
    std::vector<std::string> nombres = Written();
    if (!Save.Beside.empty()) nombres.insert(nombres.begin(), Save.Beside);
    return nombres;
  }

  void Fill(const TempFolder& carpeta) const {
    carpeta.Write(Save.File, Antes());
    if (HasCopy()) carpeta.Write(Save.Copy, MuchoAntes());
    if (!Save.Beside.empty()) carpeta.Write(Save.Beside, ThreeToSitWith());
    if (!On.AfterACrash) return;
    for (const std::string& nombre : Written()) {
      carpeta.Write(nombre + Resto, Nuevo().substr(0, 20));
    }
  }

  std::string SaveIn(const TempFolder& carpeta, const std::string& nombre) const {
    return On.Program + " " + Save.Word + " " + carpeta.Path().string() + " " + nombre;
  }

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
