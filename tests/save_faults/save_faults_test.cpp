// The save of the character file, killed and failed at every one of its system calls.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/text.h"
#include "characters/character_file.h"
#include "tests/support/errors.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// How a command ended, and what it said.
struct Outcome {
  int Status = 0;  // exit status, or 128 + signal
  std::string Output;
};

Outcome RunCommand(const std::string& orden) {
  Outcome fin;
  // NOLINTNEXTLINE(cert-env33-c): a fixed command in a folder of the test's own.
  std::FILE* const tubo = ::popen((orden + " 2>/dev/null").c_str(), "re");
  if (tubo == nullptr) return {.Status = -1, .Output = {}};
  std::array<char, 256> trozo{};
  while (std::fgets(trozo.data(), trozo.size(), tubo) != nullptr) fin.Output += trozo.data();
  const int estado = ::pclose(tubo);
  fin.Status = WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
  return fin;
}

std::string CastOf(std::u16string_view nombre) {
  Table t;
  t.Personajes[1].Nombre = nombre;
  return TextoPersonajes(t, 1);
}

const std::string Antes = CastOf(u"antes");
const std::string MuchoAntes = CastOf(u"mucho antes");
const std::string Nuevo = CastOf(u"nuevo");
const std::string Despues = CastOf(u"despues");

// How the disk is that takes the save: what the tracer does to every call, and the program.
struct Disk {
  std::string_view Name;
  std::string Tracer;
  std::string Program;
  bool AfterACrash = false;  // with what a save leaves that is killed at the worst moments

  void Fill(const TempFolder& carpeta) const {
    carpeta.Write("Jugadores.dat", Antes);
    carpeta.Write("Jugadores.bak", MuchoAntes);
    if (!AfterACrash) return;
    carpeta.Write("Jugadores.dat.tmp", Nuevo.substr(0, 20));
    std::filesystem::create_hard_link(carpeta.Path() / "Jugadores.dat",
                                      carpeta.Path() / "Jugadores.bak.tmp");
  }

  std::string SaveIn(const TempFolder& carpeta, const std::string& nombre) const {
    return Program + " " + carpeta.Path().string() + " " + nombre;
  }
};

void PrintTo(const Disk& disco, std::ostream* salida) { *salida << disco.Name; }

const std::string Nada = "-e inject=getppid:delay_enter=0";
const Disk DiscoCorriente{"WithLinks", Nada, TASCA_SAVE_ONCE};
const Disk DiscoSinEnlaces{"WithoutLinks", "-e inject=link:error=EPERM", TASCA_SAVE_ONCE};
const Disk DiscoLento{"InBits", Nada, TASCA_SAVE_IN_BITS};
const Disk DiscoTrasUnFallo{"AfterACrash", Nada, TASCA_SAVE_ONCE, true};

// The leak checker is a tracer of its own, and there can be but one.
std::string Traced(const std::string& opciones, const std::string& orden) {
  return "ASAN_OPTIONS=detect_leaks=0 strace " + opciones + " " + orden;
}

// A system call of the save: its name, and how many of that name the process has made by then.
struct Call {
  std::string Name;
  int Count;
};

// The calls between the two marks, of a save that goes well.
std::vector<Call> CallsOfASave(const Disk& disco) {
  const TempFolder carpeta;
  disco.Fill(carpeta);
  const std::string traza = (carpeta.Path() / "trace").string();
  EXPECT_EQ(
      RunCommand(Traced(disco.Tracer + " -o " + traza, disco.SaveIn(carpeta, "nuevo"))).Status, 0);
  std::ifstream lineas{traza};
  std::map<std::string, int> cuenta;
  std::vector<Call> llamadas;
  int marcas = 0;
  for (std::string linea; std::getline(lineas, linea);) {
    const std::string nombre = linea.substr(0, linea.find('('));
    const int veces = ++cuenta[nombre];
    if (nombre == "getppid") {
      ++marcas;
    } else if (marcas == 1) {
      llamadas.push_back({nombre, veces});
    }
  }
  EXPECT_EQ(marcas, 2);
  return llamadas;
}

// Calls that only order memory know nothing of disks.
bool IsAboutFiles(const Call& llamada) {
  static const std::set<std::string> deMemoria{"brk", "mmap", "munmap", "madvise", "mprotect"};
  return !deMemoria.contains(llamada.Name);
}

class SaveFaults : public testing::TestWithParam<Disk> {
 protected:
  void SetUp() override {
    if (RunCommand("strace -o /dev/null true").Status != 0) {
      GTEST_SKIP() << "this machine traces nothing";
    }
  }

  // Saves once for every call of a save, with a fault at that call; then looks at what it left.
  void SaveWithFaultAtEveryCall(const std::string& fallo, bool (*seElige)(const Call&),
                                const std::function<void(const Outcome&)>& examinar) {
    int fallos = 0;
    for (const Call& llamada : CallsOfASave(GetParam())) {
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
    const std::string inyeccion = " -e inject=" + llamada.Name + ":" + fallo +
                                  ":when=" + std::to_string(llamada.Count) + " -o /dev/null";
    return RunCommand(Traced(GetParam().Tracer + inyeccion, GetParam().SaveIn(carpeta_, "nuevo")));
  }

  // Either file is whole, and no step was taken before the one that protects it.
  void ExpectWholeFiles() const {
    const std::string archivo = carpeta_.Read("Jugadores.dat");
    const std::string copia = carpeta_.Read("Jugadores.bak");
    EXPECT_TRUE(archivo == Antes || archivo == Nuevo) << archivo;
    EXPECT_TRUE(copia == Antes || (copia == MuchoAntes && archivo == Antes)) << copia;
  }

  // A later save finds nothing in its way and leaves nothing behind.
  void ExpectTheNextSaveToSucceed() const {
    const std::string antes = carpeta_.Read("Jugadores.dat");
    const Outcome fin = RunCommand(GetParam().SaveIn(carpeta_, "despues"));
    EXPECT_EQ(fin.Status, 0) << fin.Output;
    EXPECT_EQ(carpeta_.Read("Jugadores.dat"), Despues);
    EXPECT_EQ(carpeta_.Read("Jugadores.bak"), antes);
    EXPECT_EQ(carpeta_.Names(), (std::vector<std::string>{"Jugadores.bak", "Jugadores.dat"}));
  }

  // A save that went well although a call failed has saved; any other has said what it could not
  // do, and why.
  void ExpectASaveOrAMessage(const Outcome& fin, const std::string& motivo) const {
    if (fin.Status == 0) {
      EXPECT_EQ(carpeta_.Read("Jugadores.dat"), Nuevo);
      return;
    }
    EXPECT_EQ(fin.Status, 1);
    const std::string archivo = (carpeta_.Path() / "Jugadores.").string();
    EXPECT_TRUE(fin.Output.starts_with("No se ha podido escribir el archivo " + archivo))
        << fin.Output;
    EXPECT_TRUE(fin.Output.ends_with(": " + motivo + FinDelPrograma)) << fin.Output;
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
      EXPECT_EQ(carpeta_.Read("Jugadores.dat"), Nuevo);
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
  SaveWithFaultAtEveryCall("error=EINTR", IsAboutFiles, [this](const Outcome& fin) {
    ExpectASaveOrAMessage(fin, "error 4 del sistema.");
  });
}

// What only the machine's memory holds is lost when the current goes.
TEST_P(SaveFaults, FlushesAFileBeforeItTakesItsPlaceAndTheFolderAfter) {
  std::string orden;
  for (const Call& llamada : CallsOfASave(GetParam())) orden += llamada.Name + " ";
  const std::string copia =
      GetParam().Name == DiscoSinEnlaces.Name ? "openat fsync close rename " : "link rename ";
  EXPECT_NE(orden.find(copia + "openat fsync close "), std::string::npos) << orden;
  EXPECT_NE(orden.find("write fsync close rename openat fsync close "), std::string::npos) << orden;
}

// A signal that comes in between is nothing to give up for.
class SaveInterrupted : public SaveFaults {};

TEST_P(SaveInterrupted, GoesOnWriting) {
  const std::set<std::string> deEscribir{"openat", "write", "fsync"};
  for (const Call& llamada : CallsOfASave(GetParam())) {
    if (!deEscribir.contains(llamada.Name)) continue;
    SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count));
    EXPECT_EQ(SaveWith(llamada, "error=EINTR").Status, 0);
  }
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
  carpeta_.Write("Jugadores.dat", Antes);
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
  for (const Call& llamada : CallsOfASave(GetParam())) {
    if (llamada.Name != "write") continue;
    SCOPED_TRACE(llamada.Count);
    GetParam().Fill(carpeta_);
    const Outcome fin = SaveWith(llamada, "retval=0");
    EXPECT_EQ(fin.Status, 1);
    EXPECT_NE(fin.Output.find(": no queda sitio en el disco."), std::string::npos) << fin.Output;
    ExpectTheNextSaveToSucceed();
  }
}

// A disk that takes less than it is given is given the rest.
TEST(SaveInBits, WritesAFewBytesAtATime) {
  const std::vector<Call> llamadas = CallsOfASave(DiscoLento);
  const auto escrituras = std::count_if(llamadas.begin(), llamadas.end(), [](const Call& llamada) {
    return llamada.Name == "write";
  });
  EXPECT_EQ(escrituras, (std::ssize(Nuevo) + 4) / 5);
}

const auto ByDisk = [](const testing::TestParamInfo<Disk>& disco) {
  return std::string{disco.param.Name};
};
INSTANTIATE_TEST_SUITE_P(, SaveRefused, testing::Values(DiscoCorriente), ByDisk);
INSTANTIATE_TEST_SUITE_P(, SaveInterrupted, testing::Values(DiscoCorriente, DiscoLento), ByDisk);
INSTANTIATE_TEST_SUITE_P(, SaveFaults,
                         testing::Values(DiscoCorriente, DiscoSinEnlaces, DiscoLento,
                                         DiscoTrasUnFallo),
                         ByDisk);

}  // namespace
}  // namespace tasca::test
