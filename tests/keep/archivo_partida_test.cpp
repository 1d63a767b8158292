// The file of the kept match: folder, lock, saves and removals.
#include "keep/archivo_partida.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/support/plain_user.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Nombres = std::vector<std::string>;

std::string Motivo(const ArchivoPartida& archivo) { return Utf8(archivo.PorQueNo()); }

TEST(ArchivoPartida, CreatesItsFolderForTheUserAlone) {
  const TempFolder casa;
  const ArchivoPartida archivo{casa.Path() / "state" / "tasca"};
  EXPECT_EQ(Motivo(archivo), "");
  EXPECT_FALSE(archivo.Hay());
  for (const char* carpeta : {"state", "state/tasca"}) {
    struct stat datos {};
    ASSERT_EQ(::stat((casa.Path() / carpeta).c_str(), &datos), 0);
    EXPECT_EQ(datos.st_mode & 07777U, 0700U) << carpeta;
  }
}

TEST(ArchivoPartida, SavesAndReadsAndRemoves) {
  const TempFolder casa;
  ArchivoPartida archivo{casa.Path()};
  archivo.Guardar("uno");
  archivo.Guardar("dos");
  EXPECT_EQ(Utf8(archivo.Esperar()), "");
  EXPECT_TRUE(archivo.Hay());
  EXPECT_EQ(archivo.Leer(), "dos");
  EXPECT_EQ(casa.Names(), (Nombres{"en-uso", "partida"}));
  archivo.Quitar();
  EXPECT_EQ(Utf8(archivo.Esperar()), "");
  EXPECT_FALSE(archivo.Hay());
  EXPECT_EQ(casa.Names(), Nombres{"en-uso"});
}

TEST(ArchivoPartida, FinishesTheLastSaveAtItsEnd) {
  const TempFolder casa;
  { ArchivoPartida{casa.Path()}.Guardar("uno"); }
  EXPECT_EQ(casa.Read("partida"), "uno");
}

TEST(ArchivoPartida, IsUsedByOneProgramAtATime) {
  const TempFolder casa;
  auto primero = std::make_unique<ArchivoPartida>(casa.Path());
  const ArchivoPartida segundo{casa.Path()};
  EXPECT_EQ(Motivo(*primero), "");
  EXPECT_EQ(Motivo(segundo), "hay otra tasca abierta, que guarda la suya.");
  primero.reset();
  const ArchivoPartida tercero{casa.Path()};
  EXPECT_EQ(Motivo(tercero), "");
}

TEST(ArchivoPartida, TellsThatThereIsNoFolder) {
  EXPECT_EQ(Motivo(ArchivoPartida{""}), "no se sabe cuál es su carpeta personal.");
}

TEST(ArchivoPartida, TellsThatTheFolderIsAFile) {
  const TempFolder casa;
  casa.Write("tasca", "");
  EXPECT_EQ(Motivo(ArchivoPartida{casa.Path() / "tasca"}), "no existe la carpeta.");
  EXPECT_EQ(Motivo(ArchivoPartida{casa.Path() / "tasca" / "tasca"}), "no existe la carpeta.");
}

TEST(ArchivoPartida, TellsThatTheFolderCannotBeWritten) {
  const TempFolder casa;
  const PlainUser usuario{casa};
  fs::permissions(casa.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Motivo(ArchivoPartida{casa.Path()}), "no hay permiso para escribir.");
  EXPECT_EQ(Motivo(ArchivoPartida{casa.Path() / "tasca"}), "no hay permiso para escribir.");
  fs::permissions(casa.Path(), fs::perms::owner_all);
}

TEST(ArchivoPartida, ReportsAFailedSaveOnce) {
  const TempFolder casa;
  ArchivoPartida archivo{casa.Path()};
  fs::create_directories(casa.Path() / "partida" / "llena");
  archivo.Guardar("uno");
  EXPECT_EQ(Utf8(archivo.Esperar()), "hay otra cosa en su lugar.");
  EXPECT_EQ(Utf8(archivo.Esperar()), "");
}

TEST(ArchivoPartida, RemembersAFailureUntilItIsAskedFor) {
  const TempFolder casa;
  ArchivoPartida archivo{casa.Path()};
  fs::create_directories(casa.Path() / "partida" / "llena");
  archivo.Guardar("uno");
  archivo.Quitar();
  EXPECT_EQ(Utf8(archivo.Esperar()), "hay otra cosa en su lugar.");
}

TEST(ArchivoPartida, ReadsNothingFromWhatIsNoFile) {
  const TempFolder casa;
  const ArchivoPartida archivo{casa.Path()};
  const fs::path ruta = casa.Path() / "partida";
  fs::create_directory(ruta);
  EXPECT_TRUE(archivo.Hay());
  EXPECT_EQ(archivo.Leer(), "");
  fs::remove(ruta);
  ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
  EXPECT_TRUE(archivo.Hay());
  EXPECT_EQ(archivo.Leer(), "") << "must not wait for a writer";
  fs::remove(ruta);
  fs::create_symlink("a ninguna parte", ruta);
  EXPECT_TRUE(archivo.Hay());
  EXPECT_EQ(archivo.Leer(), "");
}

TEST(ArchivoPartida, ReadsNothingFromAFileThatIsFarTooLarge) {
  const TempFolder casa;
  const ArchivoPartida archivo{casa.Path()};
  casa.Write("partida", "x");
  fs::resize_file(casa.Path() / "partida", std::uintmax_t{1} << 40U);
  EXPECT_EQ(archivo.Leer(), "");
}

TEST(ArchivoPartida, SetsFilesAsideWithoutReplacingEarlierOnes) {
  const TempFolder casa;
  ArchivoPartida archivo{casa.Path()};
  casa.Write("partida", "mala");
  EXPECT_EQ(archivo.Apartar(), casa.Path() / "partida-apartada");
  EXPECT_FALSE(archivo.Hay());
  casa.Write("partida", "otra");
  EXPECT_EQ(archivo.Apartar(), casa.Path() / "partida-apartada-2");
  EXPECT_EQ(casa.Read("partida-apartada"), "mala");
  EXPECT_EQ(casa.Read("partida-apartada-2"), "otra");
  EXPECT_EQ(Motivo(archivo), "");
}

// Otherwise the next save would replace it.
TEST(ArchivoPartida, KeepsNothingIfAFileCannotBeSetAside) {
  const TempFolder casa;
  const PlainUser usuario{casa};
  ArchivoPartida archivo{casa.Path()};
  casa.Write("partida", "mala");
  fs::permissions(casa.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(archivo.Apartar(), "");
  EXPECT_EQ(Motivo(archivo), "no hay permiso para escribir.");
  fs::permissions(casa.Path(), fs::perms::owner_all);
}

}  // namespace
}  // namespace tasca::test
