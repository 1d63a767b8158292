// The save of the character file, killed and failed at every one of its system calls.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
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

std::string SaveIn(const TempFolder& carpeta, const std::string& nombre) {
  return std::string{TASCA_SAVE_ONCE} + " " + carpeta.Path().string() + " " + nombre;
}

// The leak checker is a tracer of its own, and there can be but one.
std::string Traced(const std::string& opciones, const std::string& orden) {
  return "ASAN_OPTIONS=detect_leaks=0 strace " + opciones + " " + orden;
}

// A system call of the save: its name, and how many of that name the process has made by then.
struct Call {
  std::string Name;
  int Count;
};

// The calls between the two marks.
std::vector<Call> CallsOfASave(const TempFolder& carpeta) {
  const std::string traza = (carpeta.Path() / "trace").string();
  EXPECT_EQ(RunCommand(Traced("-o " + traza, SaveIn(carpeta, "nuevo"))).Status, 0);
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

class SaveFaults : public testing::Test {
 protected:
  void SetUp() override {
    if (RunCommand("strace -o /dev/null true").Status != 0)
      GTEST_SKIP() << "this machine traces nothing";
    Prepare();
  }

  void Prepare() {
    carpeta_.Write("Jugadores.dat", Antes);
    carpeta_.Write("Jugadores.bak", MuchoAntes);
  }

  Outcome SaveWith(const Call& llamada, const std::string& fallo) {
    const std::string cuando = ":when=" + std::to_string(llamada.Count);
    return RunCommand(Traced("-o /dev/null -e trace=" + llamada.Name +
                                 " -e inject=" + llamada.Name + ":" + fallo + cuando,
                             SaveIn(carpeta_, "nuevo")));
  }

  // Either file is whole, and no step was taken before the one that protects it.
  void ExpectWholeFiles() {
    const std::string archivo = carpeta_.Read("Jugadores.dat");
    const std::string copia = carpeta_.Read("Jugadores.bak");
    EXPECT_TRUE(archivo == Antes || archivo == Nuevo) << archivo;
    EXPECT_TRUE(copia == Antes || (copia == MuchoAntes && archivo == Antes)) << copia;
  }

  // A later save finds nothing in its way and leaves nothing behind.
  void ExpectTheNextSaveToSucceed() {
    const std::string antes = carpeta_.Read("Jugadores.dat");
    const Outcome fin = RunCommand(SaveIn(carpeta_, "despues"));
    EXPECT_EQ(fin.Status, 0) << fin.Output;
    EXPECT_EQ(carpeta_.Read("Jugadores.dat"), Despues);
    EXPECT_EQ(carpeta_.Read("Jugadores.bak"), antes);
    EXPECT_EQ(carpeta_.Names(), (std::vector<std::string>{"Jugadores.bak", "Jugadores.dat"}));
  }

  TempFolder carpeta_;
};

// Calls that only order memory know nothing of disks.
bool IsAboutFiles(const Call& llamada) {
  static const std::set<std::string> deMemoria{"brk", "mmap", "munmap", "madvise", "mprotect"};
  return deMemoria.count(llamada.Name) == 0;
}

TEST_F(SaveFaults, AKillAtAnyCallLeavesWholeFiles) {
  const TempFolder otra;
  otra.Write("Jugadores.dat", Antes);
  int muertes = 0;
  for (const Call& llamada : CallsOfASave(otra)) {
    SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count));
    Prepare();
    EXPECT_EQ(SaveWith(llamada, "signal=KILL").Status, 128 + SIGKILL);
    ++muertes;
    ExpectWholeFiles();
    ExpectTheNextSaveToSucceed();
  }
  EXPECT_GE(muertes, 15);
}

// What only the disk's memory holds is lost when the current goes.
TEST_F(SaveFaults, FlushesTheFileBeforeItTakesItsPlaceAndTheFolderAfter) {
  std::string orden;
  for (const Call& llamada : CallsOfASave(carpeta_)) orden += llamada.Name + " ";
  EXPECT_NE(orden.find("link rename openat fsync close "), std::string::npos) << orden;
  EXPECT_NE(orden.find("write fsync close rename openat fsync close "), std::string::npos) << orden;
}

class SaveErrors : public SaveFaults, public testing::WithParamInterface<const char*> {};

TEST_P(SaveErrors, AtAnyCallLeaveWholeFilesAndAreTold) {
  const TempFolder otra;
  otra.Write("Jugadores.dat", Antes);
  int contados = 0;
  for (const Call& llamada : CallsOfASave(otra)) {
    if (!IsAboutFiles(llamada)) continue;
    SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count));
    Prepare();
    const Outcome fin = SaveWith(llamada, std::string{"error="} + GetParam());
    if (fin.Status == 0) {
      EXPECT_EQ(carpeta_.Read("Jugadores.dat"), Nuevo);
    } else {
      EXPECT_EQ(fin.Status, 1);
      const std::string archivo = (carpeta_.Path() / "Jugadores.").string();
      EXPECT_TRUE(fin.Output.starts_with("No se ha podido escribir el archivo " + archivo))
          << fin.Output;
      EXPECT_TRUE(fin.Output.ends_with(FinDelPrograma)) << fin.Output;
      ++contados;
    }
    ExpectWholeFiles();
    ExpectTheNextSaveToSucceed();
  }
  EXPECT_GE(contados, 8);
}

INSTANTIATE_TEST_SUITE_P(SaveFaults, SaveErrors, testing::Values("EIO", "ENOSPC", "EACCES"));

}  // namespace
}  // namespace tasca::test
