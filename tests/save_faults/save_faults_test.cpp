// The saves of the character file and of the settings, killed and failed at every one of their
// system calls.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "characters/character_file.h"
#include "tests/save_faults/tracer.h"
#include "tests/support/errors.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// What is saved: a name, into a file that has held another.
struct Saved {
  std::string Word;  // for the program that saves
  std::string File;
  std::string Copy;  // of the file as it was; "" for a file without one
  bool IsReadFirst;  // what the file holds goes into the new one
  // The file with that name in it, when it held the other before.
  std::string (*Content)(const std::string& nombre, const std::string& anterior);
};

std::string Cast(const std::string& nombre, const std::string& /*anterior*/) {
  Table t;
  t.Personajes[1].Nombre = Decode(nombre);
  return TextoPersonajes(t, 1);
}

std::string Settings(const std::string& nombre, const std::string& anterior) {
  const std::string rotulo = "> Nombre del \xFAltimo jugador\r\n";
  return "35 piedras\r\n3\r\n3\r\n" + nombre + rotulo + anterior + rotulo;
}

const Saved Personajes{"characters", "Jugadores.dat", "Jugadores.bak", false, Cast};
const Saved Ajustes{"settings", "mus.ini", "", true, Settings};

// How the disk is that takes the save: what the tracer does to every call, and the program.
struct Disk {
  std::string_view Name;
  std::string Tracer;
  std::string Program;
  bool AfterACrash = false;  // with what a save leaves that is killed at the worst moments
};

const std::string Nada = "-e inject=getppid:delay_enter=0";
const Disk DiscoCorriente{"WithLinks", Nada, TASCA_SAVE_ONCE};
const Disk DiscoSinEnlaces{"WithoutLinks", "-e inject=link:error=EPERM", TASCA_SAVE_ONCE};
const Disk DiscoLento{"InBits", Nada, TASCA_SAVE_IN_BITS};
const Disk DiscoTrasUnFallo{"AfterACrash", Nada, TASCA_SAVE_ONCE, true};

// A save and its disk.
struct Case {
  Saved Save;
  Disk On;

  std::string Antes() const { return Save.Content("antes", "mucho antes"); }
  std::string MuchoAntes() const { return Save.Content("mucho antes", ""); }
  std::string Nuevo() const { return Save.Content("nuevo", "antes"); }
  bool HasCopy() const { return !Save.Copy.empty(); }

  std::vector<std::string> Files() const {
    if (!HasCopy()) return {Save.File};
    return {Save.Copy, Save.File};
  }

  void Fill(const TempFolder& carpeta) const {
    carpeta.Write(Save.File, Antes());
    if (HasCopy()) carpeta.Write(Save.Copy, MuchoAntes());
    if (!On.AfterACrash) return;
    carpeta.Write(Save.File + ".tmp", Nuevo().substr(0, 20));
    if (!HasCopy()) return;
    std::filesystem::create_hard_link(carpeta.Path() / Save.File,
                                      carpeta.Path() / (Save.Copy + ".tmp"));
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

void PrintTo(const Case& caso, std::ostream* salida) {
  *salida << caso.Save.Word << " " << caso.On.Name;
}

class SaveFaults : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    if (!MachineTraces()) GTEST_SKIP() << "this machine traces nothing";
  }

  // Saves once for every call of a save, with a fault at that call; then looks at what it left.
  void SaveWithFaultAtEveryCall(const std::string& fallo, bool (*seElige)(const Call&),
                                const std::function<void(const Outcome&)>& examinar) {
    int fallos = 0;
    for (const Call& llamada : GetParam().Calls()) {
      if (!seElige(llamada)) continue;
      SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count));
      GetParam().Fill(carpeta_);
      examinar(SaveWith(llamada, fallo));
      ExpectWholeFiles();
      ExpectTheNextSaveToSucceed();
      ++fallos;
    }
    EXPECT_GE(fallos, 20);
  }

  Outcome SaveWith(const Call& llamada, const std::string& fallo) const {
    return RunWithFault(GetParam().On.Tracer, GetParam().SaveIn(carpeta_, "nuevo"), llamada, fallo);
  }

  std::string File() const { return carpeta_.Read(GetParam().Save.File); }

  // Every file is whole, and no step was taken before the one that protects it.
  void ExpectWholeFiles() const {
    const std::string antes = GetParam().Antes();
    const std::string archivo = File();
    EXPECT_TRUE(archivo == antes || archivo == GetParam().Nuevo()) << archivo;
    if (!GetParam().HasCopy()) return;
    const std::string copia = carpeta_.Read(GetParam().Save.Copy);
    EXPECT_TRUE(copia == antes || (copia == GetParam().MuchoAntes() && archivo == antes)) << copia;
  }

  // A later save finds nothing in its way and leaves nothing behind.
  void ExpectTheNextSaveToSucceed() const {
    const std::string antes = File();
    const Outcome fin = RunCommand(GetParam().SaveIn(carpeta_, "despues"));
    EXPECT_EQ(fin.Status, 0) << fin.Output;
    const std::string nombre = antes == GetParam().Nuevo() ? "nuevo" : "antes";
    EXPECT_EQ(File(), GetParam().Save.Content("despues", nombre));
    EXPECT_EQ(carpeta_.Names(), GetParam().Files());
    if (!GetParam().HasCopy()) return;
    EXPECT_EQ(carpeta_.Read(GetParam().Save.Copy), antes);
  }

  // What may be said when a call has failed for that reason.
  std::vector<std::string> Messages(const std::string& motivo) const {
    std::vector<std::string> mensajes;
    const auto add = [&mensajes](std::initializer_list<std::string_view> partes) {
      mensajes.emplace_back();
      for (const std::string_view parte : partes) mensajes.back() += parte;
      mensajes.back() += FinDelPrograma;
    };
    for (const std::string& nombre : GetParam().Files()) {
      const std::string archivo = (carpeta_.Path() / nombre).string();
      add({"No se ha podido escribir el archivo ", archivo, ": ", motivo});
      if (!GetParam().Save.IsReadFirst) continue;
      add({archivo, ": no se puede leer el archivo."});
      add({archivo, ", línea 1: no se puede leer el archivo."});
    }
    return mensajes;
  }

  // A save that went well although a call failed has saved; any other has said what it could not
  // do and, of a writing, why.
  void ExpectASaveOrAMessage(const Outcome& fin, const std::string& motivo) const {
    if (fin.Status == 0) {
      EXPECT_EQ(File(), GetParam().Nuevo());
      return;
    }
    EXPECT_EQ(fin.Status, 1);
    const std::vector<std::string> mensajes = Messages(motivo);
    EXPECT_EQ(std::count(mensajes.begin(), mensajes.end(), fin.Output), 1) << fin.Output;
  }

  void ExpectWholeFilesAfterErrors(const std::string& error, const std::string& motivo) {
    int contados = 0;
    SaveWithFaultAtEveryCall("error=" + error, IsAboutFiles, [&](const Outcome& fin) {
      contados += fin.Status;
      ExpectASaveOrAMessage(fin, motivo);
    });
    EXPECT_GE(contados, 8);
  }

  TempFolder carpeta_;
};

// A sanitizer makes calls of its own, not in every run the same: what is not reached does not kill.
TEST_P(SaveFaults, AKillLeavesWholeFiles) {
  const auto todas = [](const Call& /*llamada*/) { return true; };
  int muertes = 0;
  SaveWithFaultAtEveryCall("signal=KILL", todas, [&](const Outcome& fin) {
    if (fin.Status == 0) {
      EXPECT_EQ(File(), GetParam().Nuevo());
    } else {
      EXPECT_EQ(fin.Status, 128 + SIGKILL);
      ++muertes;
    }
  });
  EXPECT_GE(muertes, 20);
}

TEST_P(SaveFaults, ABrokenDiskLeavesWholeFilesAndIsTold) {
  ExpectWholeFilesAfterErrors("EIO", "el disco falla.");
}
TEST_P(SaveFaults, AFullDiskLeavesWholeFilesAndIsTold) {
  ExpectWholeFilesAfterErrors("ENOSPC", "no queda sitio en el disco.");
}
TEST_P(SaveFaults, AForbiddenCallLeavesWholeFilesAndIsTold) {
  ExpectWholeFilesAfterErrors("EACCES", "no hay permiso para escribir.");
}

TEST_P(SaveFaults, AnInterruptedCallLeavesWholeFilesAndIsTold) {
  ExpectWholeFilesAfterErrors("EINTR", "error 4 del sistema.");
}

// What only the machine's memory holds is lost when the current goes.
TEST_P(SaveFaults, FlushesAFileBeforeItTakesItsPlaceAndTheFolderAfter) {
  std::string orden;
  for (const Call& llamada : GetParam().Calls()) orden += llamada.Name + " ";
  EXPECT_NE(orden.find("write fsync close rename openat fsync close "), std::string::npos) << orden;
  if (!GetParam().HasCopy()) return;
  const bool conEnlaces = GetParam().On.Name != DiscoSinEnlaces.Name;
  const std::string copia = conEnlaces ? "link rename " : "openat fsync close rename ";
  EXPECT_NE(orden.find(copia + "openat fsync close "), std::string::npos) << orden;
}

// A signal that comes in between is nothing to give up a writing for.
class SaveInterrupted : public SaveFaults {};

TEST_P(SaveInterrupted, GoesOnWriting) {
  const std::set<std::string> deEscribir{"openat", "write", "fsync"};
  bool seLee = GetParam().Save.IsReadFirst;
  int interrumpidas = 0;
  for (const Call& llamada : GetParam().Calls()) {
    if (!deEscribir.contains(llamada.Name)) continue;
    if (std::exchange(seLee, false)) continue;  // the first file to be opened is only read
    SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count));
    GetParam().Fill(carpeta_);
    EXPECT_EQ(SaveWith(llamada, "error=EINTR").Status, 0);
    EXPECT_EQ(File(), GetParam().Nuevo());
    ++interrumpidas;
  }
  EXPECT_GE(interrumpidas,
            5);  // opening, writing and flushing the file; opening, flushing the folder
}

// What the disk says is told in words.
class SaveRefused : public SaveFaults {};

TEST_P(SaveRefused, TellsTheReason) {
  const std::map<std::string, std::string> motivos{
      {"EACCES", "no hay permiso para escribir."},
      {"EPERM", "no hay permiso para escribir."},
      {"EROFS", "el disco es de solo lectura."},
      {"ENOSPC", "no queda sitio en el disco."},
      {"EDQUOT", "no queda sitio en el disco."},
      {"EFBIG", "no queda sitio en el disco."},
      {"EISDIR", "hay otra cosa en su lugar."},
      {"ENOENT", "no existe la carpeta."},
      {"ENOTDIR", "no existe la carpeta."},
      {"ELOOP", "sus enlaces no llevan a un archivo propio."},
      {"EIO", "el disco falla."},
      {"EXDEV", "error 18 del sistema."},
  };
  const std::string copia = (carpeta_.Path() / "Jugadores.bak").string();
  const std::string inicio = "No se ha podido escribir el archivo " + copia + ": ";
  GetParam().Fill(carpeta_);
  for (const auto& [error, motivo] : motivos) {
    std::string mensaje = inicio;
    mensaje += motivo;
    mensaje += FinDelPrograma;
    const Outcome fin = SaveWith({.Name = "rename", .Count = 1}, "error=" + error);
    EXPECT_EQ(fin.Output, mensaje) << error;
  }
}

// A disk that takes nothing at all is full: to go on would be to go on for ever.
TEST_P(SaveInterrupted, GivesUpADiskThatTakesNothing) {
  int escrituras = 0;
  for (const Call& llamada : GetParam().Calls()) {
    if (llamada.Name != "write") continue;
    SCOPED_TRACE(llamada.Count);
    GetParam().Fill(carpeta_);
    const Outcome fin = SaveWith(llamada, "retval=0");
    EXPECT_EQ(fin.Status, 1);
    EXPECT_NE(fin.Output.find(": no queda sitio en el disco."), std::string::npos) << fin.Output;
    ExpectTheNextSaveToSucceed();
    ++escrituras;
  }
  EXPECT_GE(escrituras, 1);
}

// A disk that takes less than it is given is given the rest.
class SaveInBits : public SaveFaults {};

TEST_P(SaveInBits, WritesAFewBytesAtATime) {
  const std::vector<Call> llamadas = GetParam().Calls();
  const auto escrituras = std::count_if(llamadas.begin(), llamadas.end(), [](const Call& llamada) {
    return llamada.Name == "write";
  });
  EXPECT_EQ(escrituras, (std::ssize(GetParam().Nuevo()) + 4) / 5);
}

const auto ByDisk = [](const testing::TestParamInfo<Case>& caso) {
  return std::string{caso.param.On.Name};
};

INSTANTIATE_TEST_SUITE_P(Characters, SaveFaults,
                         testing::Values(Case{Personajes, DiscoCorriente},
                                         Case{Personajes, DiscoSinEnlaces},
                                         Case{Personajes, DiscoLento},
                                         Case{Personajes, DiscoTrasUnFallo}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Settings, SaveFaults,
                         testing::Values(Case{Ajustes, DiscoCorriente}, Case{Ajustes, DiscoLento},
                                         Case{Ajustes, DiscoTrasUnFallo}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Characters, SaveInterrupted,
                         testing::Values(Case{Personajes, DiscoCorriente},
                                         Case{Personajes, DiscoLento}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Settings, SaveInterrupted,
                         testing::Values(Case{Ajustes, DiscoCorriente}, Case{Ajustes, DiscoLento}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Characters, SaveInBits, testing::Values(Case{Personajes, DiscoLento}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Settings, SaveInBits, testing::Values(Case{Ajustes, DiscoLento}), ByDisk);
INSTANTIATE_TEST_SUITE_P(Characters, SaveRefused, testing::Values(Case{Personajes, DiscoCorriente}),
                         ByDisk);

}  // namespace
}  // namespace tasca::test
