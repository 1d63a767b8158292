// The saves of the character file, the settings and the match, with a kill or an error at each of
// their system calls.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/save_faults/cases.h"
#include "tests/save_faults/tracer.h"
#include "tests/support/errors.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

// The exit status of save-once after a reported failure.
constexpr int GoesOn = 3;

class SaveFaults : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override { ASSERT_TRUE(MachineTraces()) << "strace is missing or may not trace"; }

  // Repeats the save with the fault at each call for which `seElige` is true, and checks the result
  // with `examinar` each time.
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

  // Each file is complete. The file is replaced only after its copy.
  void ExpectWholeFiles() const {
    const std::string antes = GetParam().Antes();
    const std::string archivo = File();
    EXPECT_TRUE(archivo == antes || archivo == GetParam().Nuevo()) << archivo;
    if (!GetParam().HasCopy()) return;
    const std::string copia = carpeta_.Read(GetParam().Save.Copy);
    EXPECT_TRUE(copia == antes || (copia == GetParam().MuchoAntes() && archivo == antes)) << copia;
  }

  // The save succeeded and left no temporary files.
  void ExpectACleanSave(const Outcome& fin) const {
    EXPECT_EQ(fin.Status, 0) << fin.Output;
    EXPECT_EQ(File(), GetParam().Nuevo());
    EXPECT_EQ(carpeta_.Names(), GetParam().Files());
  }

  // A later save succeeds and removes all leftovers.
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

  // The name of a file in messages.
  std::string PathOf(const std::string& nombre) const {
    return (carpeta_.Path() / nombre).string();
  }

  // The possible messages about a failed save after which the program continues.
  std::set<std::string> Notices(const std::string& motivo) const {
    if (GetParam().Save.Word == "match") {
      return {"Esta partida no se guarda para otro día: " + motivo + " Se juega igual."};
    }
    if (!GetParam().HasCopy()) {
      return {"No se ha podido guardar su nombre en mus.ini: " + motivo +
              " La partida se juega igual."};
    }
    const std::string inicio = "No se ha podido escribir el archivo ";
    const std::string final = " Los cambios siguen aquí: puede intentarlo otra vez.";
    const std::string archivo = PathOf(GetParam().Save.File);
    const std::string copia = PathOf(GetParam().Save.Copy);
    return {inicio + archivo + ": " + motivo + final, inicio + copia + ": " + motivo + final,
            inicio + copia + ": no se puede leer " + archivo + "." + final};
  }

  // The possible messages that end the program. The settings are read before they are written.
  std::set<std::string> Endings() const {
    if (GetParam().Save.Word != "settings") return {};
    const std::string motivo = std::string{": no se puede leer el archivo."} + FinDelPrograma;
    return {PathOf("mus.ini") + motivo, PathOf("mus.ini") + ", línea 1" + motivo};
  }

  // The save has either succeeded despite the error or reported it.
  void ExpectASaveOrAMessage(const Outcome& fin, const std::string& motivo) const {
    if (fin.Status == 0) {
      EXPECT_EQ(File(), GetParam().Nuevo());
      return;
    }
    const bool sigue = fin.Status == GoesOn;
    EXPECT_TRUE(sigue || fin.Status == 1) << fin.Status;
    EXPECT_TRUE((sigue ? Notices(motivo) : Endings()).contains(fin.Output)) << fin.Output;
  }

  void ExpectWholeFilesAfterErrors(const std::string& error, const std::string& motivo) {
    int contados = 0;
    SaveWithFaultAtEveryCall("error=" + error, IsAboutFiles, [&](const Outcome& fin) {
      contados += fin.Status == GoesOn ? 1 : 0;
      ExpectASaveOrAMessage(fin, motivo);
    });
    EXPECT_GE(contados, 8);
  }

  TempFolder carpeta_;
};

// A sanitizer's own calls differ from run to run, so that a chosen call may not occur.
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

TEST_P(SaveFaults, EioLeavesWholeFilesAndIsReported) {
  ExpectWholeFilesAfterErrors("EIO", "el disco falla.");
}
TEST_P(SaveFaults, EnospcLeavesWholeFilesAndIsReported) {
  ExpectWholeFilesAfterErrors("ENOSPC", "no queda sitio en el disco.");
}
TEST_P(SaveFaults, EaccesLeavesWholeFilesAndIsReported) {
  ExpectWholeFilesAfterErrors("EACCES", "no hay permiso para escribir.");
}

TEST_P(SaveFaults, EintrLeavesWholeFilesAndIsReported) {
  ExpectWholeFilesAfterErrors("EINTR", "error 4 del sistema.");
}

// Without fsync a power failure could lose the data.
TEST_P(SaveFaults, SyncsTheFileBeforeTheRenameAndTheFolderAfterIt) {
  std::string orden;
  for (const Call& llamada : GetParam().Calls()) orden += llamada.Name + " ";
  const std::string escrito = "write fsync rename openat fsync close ";
  const auto escritos = static_cast<int>(GetParam().Written().size());
  int vistos = 0;
  for (std::size_t en = 0; (en = orden.find(escrito, en)) != std::string::npos; ++en) ++vistos;
  EXPECT_EQ(vistos, escritos) << orden;
}

// A temporary file of another save must not be opened.
TEST_P(SaveFaults, DoesNotOpenTheTemporaryFileOfAnotherSave) {
  const std::vector<Call> llamadas = GetParam().Calls();
  const auto crea = [](const Call& llamada) {
    return llamada.Text.find("O_CREAT") != std::string::npos &&
           llamada.Text.find(".guardando-") != std::string::npos;
  };
  EXPECT_EQ(std::count_if(llamadas.begin(), llamadas.end(), crea),
            std::ssize(GetParam().Written()));
  for (const Call& llamada : llamadas) {
    if (!crea(llamada)) continue;
    EXPECT_NE(llamada.Text.find("O_EXCL"), std::string::npos) << llamada.Text;
    GetParam().Fill(carpeta_);
    const Outcome fin = SaveWith(llamada, "error=EEXIST");
    ExpectACleanSave(fin);
  }
}

// Retries on EINTR.
class SaveInterrupted : public SaveFaults {};

TEST_P(SaveInterrupted, RetriesOnEintr) {
  const std::set<std::string> deEscribir{"openat", "write", "fsync"};
  bool seLee = !GetParam().HasCopy();
  int interrumpidas = 0;
  for (const Call& llamada : GetParam().Calls()) {
    if (!deEscribir.contains(llamada.Name)) continue;
    if (std::exchange(seLee, false)) continue;  // the first openat opens a file for reading
    SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count));
    GetParam().Fill(carpeta_);
    EXPECT_EQ(SaveWith(llamada, "error=EINTR").Status, 0);
    EXPECT_EQ(File(), GetParam().Nuevo());
    ++interrumpidas;
  }
  // openat, write and fsync of the file, openat and fsync of the folder
  EXPECT_GE(interrumpidas, 5);
}

// The reason for a failed rename. ENOENT means that the temporary file is missing, not the folder.
class SaveRefused : public SaveFaults {};

TEST_P(SaveRefused, ReportsTheReason) {
  const std::map<std::string, std::string> motivos{
      {"EACCES", "no hay permiso para escribir."},
      {"EROFS", "el disco es de solo lectura."},
      {"EISDIR", "hay otra cosa en su lugar."},
      {"ENOENT", "ha desaparecido el archivo temporal."},
      {"EXDEV", "error 18 del sistema."},
  };
  GetParam().Fill(carpeta_);
  for (const auto& [error, motivo] : motivos) {
    const Outcome fin = SaveWith({.Name = "rename", .Count = 1}, "error=" + error);
    EXPECT_EQ(fin.Status, GoesOn);
    EXPECT_TRUE(Notices(motivo).contains(fin.Output)) << fin.Output;
    EXPECT_EQ(File(), GetParam().Antes());
    EXPECT_EQ(carpeta_.Names(), GetParam().Files());
  }
}

// Another save may remove a new file as a leftover before it is locked.
class SaveRobbed : public SaveFaults {};

TEST_P(SaveRobbed, LeavesAFileLockedByAnotherSave) {
  int cerrojos = 0;
  for (const Call& llamada : GetParam().Calls()) {
    if (llamada.Name != "flock") continue;
    GetParam().Fill(carpeta_);
    EXPECT_EQ(SaveWith(llamada, "error=EAGAIN").Status, 0);
    ExpectWholeFiles();
    EXPECT_EQ(File(), GetParam().Nuevo());
    EXPECT_EQ(carpeta_.Names().size(), GetParam().Files().size() + 1);
    ExpectTheNextSaveToSucceed();
    ++cerrojos;
  }
  EXPECT_EQ(cerrojos, std::ssize(GetParam().Written()));
}

TEST_P(SaveRobbed, CreatesAnotherFileIfTheFirstWasRemoved) {
  Case robado = GetParam();
  robado.On.Program = TASCA_SAVE_ROBBED;
  robado.Fill(carpeta_);
  const Outcome fin = RunCommand(robado.SaveIn(carpeta_, "nuevo"));
  EXPECT_EQ(fin.Status, 0) << fin.Output;
  ExpectWholeFiles();
  EXPECT_EQ(File(), GetParam().Nuevo());
  EXPECT_EQ(carpeta_.Names(), GetParam().Files());
}

// Before a leftover is locked, another save may have replaced it by its own file of the same name.
TEST_P(SaveRobbed, LeavesANewFileWithTheNameOfALeftover) {
  Case robado = GetParam();
  robado.On = DiscoTrasUnFallo;
  robado.On.Program = TASCA_SAVE_ROBBED;
  robado.Fill(carpeta_);
  EXPECT_EQ(RunCommand(robado.SaveIn(carpeta_, "nuevo")).Status, 0);
  EXPECT_EQ(File(), GetParam().Nuevo());
  for (const std::string& nombre : robado.Written()) {
    EXPECT_EQ(carpeta_.Read(nombre + Case::Resto), "de otro");
  }
  ExpectTheNextSaveToSucceed();
}

// A write() that returns 0 must not be repeated for ever: it is reported as a full disk.
TEST_P(SaveInterrupted, ReportsAFullDiskIfAWriteReturnsZero) {
  int escrituras = 0;
  for (const Call& llamada : GetParam().Calls()) {
    if (llamada.Name != "write") continue;
    SCOPED_TRACE(llamada.Count);
    GetParam().Fill(carpeta_);
    const Outcome fin = SaveWith(llamada, "retval=0");
    EXPECT_EQ(fin.Status, GoesOn);
    EXPECT_TRUE(Notices("no queda sitio en el disco.").contains(fin.Output)) << fin.Output;
    ExpectTheNextSaveToSucceed();
    ++escrituras;
  }
  EXPECT_GE(escrituras, 1);
}

// Continues after a short write.
class SaveInBits : public SaveFaults {};

TEST_P(SaveInBits, WritesAFewBytesAtATime) {
  const std::vector<Call> llamadas = GetParam().Calls();
  const auto escrituras = std::count_if(llamadas.begin(), llamadas.end(), [](const Call& llamada) {
    return llamada.Name == "write";
  });
  std::ptrdiff_t veces = (std::ssize(GetParam().Nuevo()) + 4) / 5;
  if (GetParam().HasCopy()) veces += (std::ssize(GetParam().Antes()) + 4) / 5;
  EXPECT_EQ(escrituras, veces);
}

// Reading the kept match with faults: it is offered, or set aside, or left where it is.
class OfferFaults : public SaveFaults {
 protected:
  // Offers the match with a fault at that call. Returns whether it was set aside.
  static bool OfferWith(const Case& oferta, const Call& llamada, const std::string& fallo) {
    SCOPED_TRACE(llamada.Name + " " + std::to_string(llamada.Count) + " " + fallo);
    const TempFolder carpeta;
    oferta.Fill(carpeta);
    const Outcome fin =
        RunWithFault(oferta.On.Tracer, oferta.SaveIn(carpeta, "nadie"), llamada, fallo);
    EXPECT_TRUE(fin.Status == 0 || fin.Status == GoesOn || fin.Status == 128 + SIGKILL)
        << fin.Status << fin.Output;
    const auto nombres = carpeta.Names();
    const bool apartada = std::count(nombres.begin(), nombres.end(), "partida-apartada") == 1;
    EXPECT_TRUE(carpeta.Read(apartada ? "partida-apartada" : "partida") == oferta.Antes());
    return apartada;
  }
};

TEST_P(OfferFaults, LoseNoMatch) {
  Case oferta = GetParam();
  oferta.Save.Word = "offer";
  int fallos = 0;
  int apartadas = 0;
  for (const Call& llamada : oferta.Calls()) {
    if (!IsAboutFiles(llamada)) continue;
    for (const char* fallo : {"error=EIO", "error=EACCES", "signal=KILL"}) {
      apartadas += OfferWith(oferta, llamada, fallo) ? 1 : 0;
      ++fallos;
    }
  }
  EXPECT_GE(fallos, 20);
  EXPECT_GE(apartadas, 2);
}

INSTANTIATE_TEST_SUITE_P(Match, OfferFaults, testing::Values(Case{Partida, DiscoCorriente}),
                         [](const auto& caso) { return std::string{caso.param.On.Name}; });

const auto ByDisk = [](const testing::TestParamInfo<Case>& caso) {
  return std::string{caso.param.On.Name};
};

INSTANTIATE_TEST_SUITE_P(Characters, SaveFaults,
                         testing::Values(Case{Personajes, DiscoCorriente},
                                         Case{Personajes, DiscoSinCerrojos},
                                         Case{Personajes, DiscoLento},
                                         Case{Personajes, DiscoTrasUnFallo}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Settings, SaveFaults,
                         testing::Values(Case{Ajustes, DiscoCorriente}, Case{Ajustes, DiscoLento},
                                         Case{Ajustes, DiscoTrasUnFallo}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Match, SaveFaults,
                         testing::Values(Case{Partida, DiscoSinHilos},
                                         Case{Partida, DiscoSinHilosTrasUnFallo}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Match, SaveInterrupted, testing::Values(Case{Partida, DiscoSinHilos}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Match, SaveRefused, testing::Values(Case{Partida, DiscoSinHilos}), ByDisk);
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
INSTANTIATE_TEST_SUITE_P(Settings, SaveRefused, testing::Values(Case{Ajustes, DiscoCorriente}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Characters, SaveRobbed, testing::Values(Case{Personajes, DiscoCorriente}),
                         ByDisk);
INSTANTIATE_TEST_SUITE_P(Settings, SaveRobbed, testing::Values(Case{Ajustes, DiscoCorriente}),
                         ByDisk);

}  // namespace
}  // namespace tasca::test
