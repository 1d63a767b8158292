// The atomic replacement of a file, and its backup copy.
#include "base/replace_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <iterator>
#include <string>
#include <vector>

#include "tests/base/file_facts.h"
#include "tests/support/errors.h"
#include "tests/support/full_disk.h"
#include "tests/support/plain_user.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Nombres = std::vector<std::string>;

std::ptrdiff_t FilesIn(const fs::path& carpeta) {
  return std::distance(fs::directory_iterator{carpeta}, fs::directory_iterator{});
}

// The message for a file that could not be written.
std::string SinEscribir(const fs::path& ruta, const std::string& motivo) {
  return "No se ha podido escribir el archivo " + ruta.string() + ": " + motivo + FinDelPrograma;
}

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

TEST(ReplaceFile, CreatesAMissingFile) {
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
  EXPECT_EQ(FilesIn(carpeta.Path() / "dentro"), 1);
  EXPECT_EQ(carpeta.Names(), (Nombres{"dentro", "enlace"}));
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

TEST(ReplaceFile, CreatesAFileInTheCurrentFolder) {
  const TempFolder carpeta;
  const fs::path antes = fs::current_path();
  fs::current_path(carpeta.Path());
  EXPECT_EQ(ErrorOf([] { ReplaceFile("f.txt", "nuevo"); }), "");
  fs::current_path(antes);
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
}

TEST(ReplaceFile, ReportsALinkToItself) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  fs::create_symlink("f.txt", ruta);
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            SinEscribir(ruta, "sus enlaces no llevan a un archivo propio."));
}

TEST(BackUpFile, CopiesTheFileBeforeItIsReplaced) {
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

TEST(BackUpFile, ReplacesTheLastCopyWhateverItsPermissions) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.bak", "mucho antes");
  ASSERT_EQ(::chmod((carpeta.Path() / "f.bak").c_str(), 0444), 0);
  const PlainUser usuario{carpeta};
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
}

// An older version of the program made the copy a hard link to the file.
TEST(BackUpFile, BreaksAHardLinkToTheFile) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  fs::create_hard_link(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(fs::hard_link_count(carpeta.Path() / "f.txt"), 1U);
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, RemovesLeftoversOfKilledSaves) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.bak.guardando-a1B2c3.tmp", "resto");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, IgnoresAFolderBesideTheCopy) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  fs::create_directory(carpeta.Path() / "f.bak.tmp");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.bak.tmp", "f.txt"}));
}

// Longer than the read buffer, with a NUL inside and no CR LF.
TEST(BackUpFile, CopiesALongFileByteForByte) {
  const TempFolder carpeta;
  std::string largo(100000, 'x');
  largo[4095] = '\0';
  largo.back() = '\n';
  carpeta.Write("f.txt", largo);
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_EQ(carpeta.Read("f.bak"), largo);
}

TEST(BackUpFile, KeepsThePermissionsAndTheOwner) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown(ruta.c_str(), 1234, 4321), 0);
  }
  ASSERT_EQ(::chmod(ruta.c_str(), 0440), 0);
  BackUpFile(ruta, carpeta.Path() / "f.bak");
  EXPECT_EQ(PermissionsOf(carpeta.Path() / "f.bak"), 0440U);
  EXPECT_EQ(OwnerOf(carpeta.Path() / "f.bak"), OwnerOf(ruta));
}

TEST(BackUpFile, ReportsMissingReadPermission) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  const fs::path copia = carpeta.Path() / "f.bak";
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.bak", "mucho antes");
  ASSERT_EQ(::chmod(ruta.c_str(), 0200), 0);
  const PlainUser usuario{carpeta};
  EXPECT_EQ(ErrorOf([&] { BackUpFile(ruta, copia); }),
            SinEscribir(copia, "no se puede leer " + ruta.string() + "."));
  EXPECT_EQ(carpeta.Read("f.bak"), "mucho antes");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.bak", "f.txt"}));
}

TEST(BackUpFile, CopiesTheTargetOfALink) {
  const TempFolder carpeta;
  fs::create_directory(carpeta.Path() / "dentro");
  carpeta.Write("dentro/f.txt", "antes");
  fs::create_symlink("dentro/f.txt", carpeta.Path() / "f.txt");
  BackUpFile(carpeta.Path() / "f.txt", carpeta.Path() / "f.bak");
  EXPECT_FALSE(fs::is_symlink(carpeta.Path() / "f.bak"));
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  EXPECT_EQ(carpeta.Read("f.bak"), "antes");
}

TEST(BackUpFile, KeepsTheLastCopyIfThereIsNoFile) {
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

// Otherwise the new file would replace the copy, and the old content would be lost.
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
