// Replacing files whole, and the copy of what they were.
#include "base/replace_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/errors.h"
#include "tests/support/plain_user.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Nombres = std::vector<std::string>;

mode_t PermissionsOf(const fs::path& ruta) {
  struct stat datos {};
  EXPECT_EQ(::stat(ruta.c_str(), &datos), 0);
  return datos.st_mode & 07777U;
}

// The message for a file that could not be written.
std::string SinEscribir(const fs::path& ruta, const std::string& motivo) {
  return "No se ha podido escribir el archivo " + ruta.string() + ": " + motivo + FinDelPrograma;
}

// No file may grow past `bytes` while it lives, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &antes_), 0);
    rlimit ahora = antes_;
    ahora.rlim_cur = bytes;
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &ahora), 0);
    tratamiento_ = std::signal(SIGXFSZ, SIG_IGN);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &antes_), 0);
    static_cast<void>(std::signal(SIGXFSZ, tratamiento_));
  }

 private:
  rlimit antes_{};
  void (*tratamiento_)(int) = nullptr;
};

TEST(ReplaceFile, PutsTheNewContentInPlaceOfTheOld) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "lo de antes, más largo");
  const std::string nuevo{"nuevo\r\n\0\x80", 9};
  ReplaceFile(carpeta.Path() / "f.txt", nuevo);
  EXPECT_EQ(carpeta.Read("f.txt"), nuevo);
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(ReplaceFile, WritesAnEmptyFile) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  ReplaceFile(carpeta.Path() / "f.txt", "");
  EXPECT_EQ(carpeta.Read("f.txt"), "");
}

TEST(ReplaceFile, MakesAFileThatWasNotThere) {
  const TempFolder carpeta;
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(PermissionsOf(carpeta.Path() / "f.txt"), 0644U);
}

TEST(ReplaceFile, KeepsThePermissions) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  const fs::path ruta = carpeta.Path() / "f.txt";
  for (const mode_t permisos : {0600U, 0664U, 0666U, 0755U}) {
    ASSERT_EQ(::chmod(ruta.c_str(), permisos), 0);
    ReplaceFile(ruta, "nuevo");
    EXPECT_EQ(PermissionsOf(ruta), permisos);
  }
}

TEST(ReplaceFile, FollowsALinkToTheFile) {
  const TempFolder carpeta;
  fs::create_directory(carpeta.Path() / "dentro");
  carpeta.Write("dentro/f.txt", "antes");
  fs::create_symlink("dentro/f.txt", carpeta.Path() / "enlace");
  ReplaceFile(carpeta.Path() / "enlace", "nuevo");
  EXPECT_TRUE(fs::is_symlink(carpeta.Path() / "enlace"));
  EXPECT_EQ(carpeta.Read("dentro/f.txt"), "nuevo");
  EXPECT_FALSE(fs::exists(carpeta.Path() / "dentro" / "f.txt.tmp"));
  EXPECT_EQ(carpeta.Names(), (Nombres{"dentro", "enlace"}));
}

TEST(ReplaceFile, IsNotDisturbedByWhatACrashHasLeft) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.txt.tmp", "a medio escribir, y más largo que lo nuevo");
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(ReplaceFile, RefusesAReadOnlyFile) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  ASSERT_EQ(::chmod(ruta.c_str(), 0444), 0);
  const PlainUser usuario{carpeta};
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            SinEscribir(ruta, "no hay permiso para escribir."));
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(ReplaceFile, LeavesTheOldFileInAFolderThatCannotBeWritten) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  const PlainUser usuario{carpeta};
  ASSERT_EQ(::chmod(carpeta.Path().c_str(), 0555), 0);
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            SinEscribir(ruta, "no hay permiso para escribir."));
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
  ASSERT_EQ(::chmod(carpeta.Path().c_str(), 0755), 0);
}

TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskIsFull) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  std::string error;
  {
    const FullDisk lleno{10};
    error = ErrorOf([&] { ReplaceFile(ruta, std::string(100, 'x')); });
  }
  EXPECT_EQ(error, SinEscribir(ruta, "no queda sitio en el disco."));
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(ReplaceFile, LeavesAFolderOfThatNameAlone) {
  const TempFolder carpeta;
  fs::create_directory(carpeta.Path() / "f.txt");
  carpeta.Write("f.txt/dentro", "x");
  const fs::path ruta = carpeta.Path() / "f.txt";
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            SinEscribir(ruta, "hay otra cosa en su lugar."));
  EXPECT_EQ(carpeta.Read("f.txt/dentro"), "x");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(ReplaceFile, FailsWithoutAFolder) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "nada" / "f.txt";
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            SinEscribir(ruta, "no existe la carpeta."));
}

TEST(ReplaceFile, MakesAFileInTheFolderOneIsIn) {
  const TempFolder carpeta;
  const fs::path antes = fs::current_path();
  fs::current_path(carpeta.Path());
  EXPECT_EQ(ErrorOf([] { ReplaceFile("f.txt", "nuevo"); }), "");
  fs::current_path(antes);
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
}

TEST(ReplaceFile, SaysThatALinkLeadsToItself) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  fs::create_symlink("f.txt", ruta);
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            SinEscribir(ruta, "sus enlaces no llevan a un archivo propio."));
}

TEST(BackUpFile, KeepsWhatTheFileIsBeforeItIsReplaced) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  BackUpFile(ruta, carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  ReplaceFile(ruta, "nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, TakesThePlaceOfTheLastCopyWhateverItsPermissions) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.bak", "mucho antes");
  ASSERT_EQ(::chmod((carpeta.Path() / "f.bak").c_str(), 0444), 0);
  const PlainUser usuario{carpeta};
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
}

// A save that was cut short between the two steps leaves one file under both names.
TEST(BackUpFile, DoesNothingWhenTheCopyIsTheFileItself) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  for (int vez = 0; vez < 2; ++vez) BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, IsNotDisturbedByWhatACrashHasLeft) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.bak.tmp", "resto");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, CopiesTheFileThatALinkLeadsTo) {
  const TempFolder carpeta;
  fs::create_directory(carpeta.Path() / "dentro");
  carpeta.Write("dentro/f.txt", "antes");
  fs::create_symlink("dentro/f.txt", carpeta.Path() / "f.txt");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_FALSE(fs::is_symlink(carpeta.Path() / "f.bak"));
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
}

// Shared memory is another disk than any folder of temporary files: no second name can be given.
TEST(BackUpFile, CopiesWhereNoSecondNameCanBeGiven) {
  const TempFolder carpeta;
  const fs::path otroDisco = fs::path{"/dev/shm"} / carpeta.Path().filename();
  std::error_code error;
  if (!fs::create_directory(otroDisco, error)) GTEST_SKIP() << "no second disk";
  std::ofstream{otroDisco / "f.txt"} << "antes";
  fs::permissions(otroDisco / "f.txt", fs::perms{0640});
  BackUpFile(otroDisco / "f.txt", carpeta.Path() / "f.bak");
  fs::remove_all(otroDisco);
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(PermissionsOf(carpeta.Path() / "f.bak"), 0640U);
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak"}));
}

TEST(BackUpFile, LeavesTheLastCopyWhereThereIsNoFile) {
  const TempFolder carpeta;
  carpeta.Write("f.bak", "mucho antes");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "mucho antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak"}));
}

TEST(BackUpFile, RefusesAFolderInTheFilesPlace) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  fs::create_directory(ruta);
  EXPECT_EQ(ErrorOf([&] { BackUpFile(ruta, carpeta.Path() / "f.bak"); }),
            SinEscribir(ruta, "hay otra cosa en su lugar."));
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

// Else the new file would take the copy's place, and the old one would be lost.
TEST(BackUpFile, RefusesAFileThatIsALinkToItsCopy) {
  const TempFolder carpeta;
  carpeta.Write("f.bak", "antes");
  fs::create_symlink("f.bak", carpeta.Path() / "f.txt");
  const fs::path copia = carpeta.Path() / "f.bak";
  EXPECT_EQ(ErrorOf([&] { BackUpFile(carpeta.Path() / "f.txt", copia); }),
            SinEscribir(copia, "sus enlaces no llevan a un archivo propio."));
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
}

TEST(BackUpFile, LeavesAFolderInTheCopysPlaceAlone) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  fs::create_directory(carpeta.Path() / "f.bak");
  carpeta.Write("f.bak/dentro", "x");
  const fs::path copia = carpeta.Path() / "f.bak";
  EXPECT_EQ(ErrorOf([&] { BackUpFile(carpeta.Path() / "f.txt", copia); }),
            SinEscribir(copia, "hay otra cosa en su lugar."));
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(carpeta.Read("f.bak/dentro"), "x");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, FailsInAFolderThatCannotBeWritten) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  const fs::path copia = carpeta.Path() / "f.bak";
  const PlainUser usuario{carpeta};
  ASSERT_EQ(::chmod(carpeta.Path().c_str(), 0555), 0);
  EXPECT_EQ(ErrorOf([&] { BackUpFile(carpeta.Path() / "f.txt", copia); }),
            SinEscribir(copia, "no hay permiso para escribir."));
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
  ASSERT_EQ(::chmod(carpeta.Path().c_str(), 0755), 0);
}

}  // namespace
}  // namespace tasca::test
