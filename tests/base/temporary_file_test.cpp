// Temporary files: their owner, and the removal of leftovers.
#include "base/temporary_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "base/replace_file.h"
#include "tests/base/file_facts.h"
#include "tests/support/errors.h"
#include "tests/support/plain_user.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Nombres = std::vector<std::string>;

TEST(TemporaryFile, LeavesTheFileUntilItTakesItsPlace) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  {
    TemporaryFile nuevo{carpeta.Path() / "f.txt"};
    nuevo.Write("nuevo", std::nullopt);
    EXPECT_EQ(carpeta.Names().size(), 2U);
    EXPECT_EQ(carpeta.Read("f.txt"), "antes");
    nuevo.TakeItsPlace();
    EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  }
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(TemporaryFile, IsRemovedWhenItNeverTakesItsPlace) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  TemporaryFile{carpeta.Path() / "f.txt"}.Write("nuevo", std::nullopt);
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(TemporaryFile, HasAUniqueName) {
  const TempFolder carpeta;
  TemporaryFile uno{carpeta.Path() / "f.txt"};
  TemporaryFile otro{carpeta.Path() / "f.txt"};
  EXPECT_EQ(carpeta.Names().size(), 2U);
  otro.Write("otro", std::nullopt);
  uno.Write("uno", std::nullopt);
  otro.TakeItsPlace();
  EXPECT_EQ(carpeta.Read("f.txt"), "otro");
  uno.TakeItsPlace();
  EXPECT_EQ(carpeta.Read("f.txt"), "uno");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

// rename() gives ENOENT here too, but the folder exists.
TEST(TemporaryFile, ReportsThatItHasBeenRemoved) {
  const TempFolder carpeta;
  TemporaryFile nuevo{carpeta.Path() / "f.txt"};
  for (const std::string& nombre : carpeta.Names()) fs::remove(carpeta.Path() / nombre);
  EXPECT_EQ(ErrorOf([&] { nuevo.TakeItsPlace(); }),
            "No se ha podido escribir el archivo " + (carpeta.Path() / "f.txt").string() +
                ": ha desaparecido el archivo temporal." + FinDelPrograma);
}

TEST(Leftovers, OfTheSameFileAreRemoved) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.txt.guardando-a1B2c3.tmp", "a medio escribir, y más largo que lo nuevo");
  carpeta.Write("f.txt.guardando-zzzzzz.tmp", "");
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

TEST(Leftovers, OfARunningWriterAreKept) {
  const TempFolder carpeta;
  const std::string deOtro = "f.txt.guardando-a1B2c3.tmp";
  carpeta.Write(deOtro, "a medio escribir");
  {
    const Descriptor otro{carpeta.Path() / deOtro, OpenMode::ReadWrite};
    ASSERT_TRUE(otro.Lock());
    ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
    EXPECT_EQ(carpeta.Read(deOtro), "a medio escribir");
    EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt", deOtro}));
  }
  ReplaceFile(carpeta.Path() / "f.txt", "más nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "más nuevo");
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

// Names that are similar to a leftover's, and entries with such a name that are not regular files.
TEST(Leftovers, DoNotIncludeOtherNamesOrTypes) {
  const TempFolder carpeta;
  const Nombres ajenos{"f.txt.backup.tmp",
                       "f.txt.guardando-a1B2c.tmp",
                       "f.txt.guardando-a1B2c34.tmp",
                       "f.txt.guardando-a1B2c3.bak",
                       "f.txt.tmp",
                       "g.txt.guardando-a1B2c3.tmp"};
  for (const std::string& nombre : ajenos) carpeta.Write(nombre, "x");
  fs::create_directory(carpeta.Path() / "f.txt.guardando-folder.tmp");
  fs::create_symlink("f.txt.tmp", carpeta.Path() / "f.txt.guardando-linked.tmp");
  ASSERT_EQ(::mkfifo((carpeta.Path() / "f.txt.guardando-tubo00.tmp").c_str(), 0600), 0);
  Nombres antes = carpeta.Names();
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  antes.insert(antes.begin(), "f.txt");
  EXPECT_EQ(carpeta.Names(), antes);
  for (const std::string& nombre : ajenos) EXPECT_EQ(carpeta.Read(nombre), "x");
}

TEST(Leftovers, AreRemovedInTheCurrentFolder) {
  const TempFolder carpeta;
  carpeta.Write("f.txt.guardando-a1B2c3.tmp", "x");
  const fs::path antes = fs::current_path();
  fs::current_path(carpeta.Path());
  EXPECT_EQ(ErrorOf([] { ReplaceFile("f.txt", "nuevo"); }), "");
  fs::current_path(antes);
  EXPECT_EQ(carpeta.Names(), (Nombres{"f.txt"}));
}

// Root saves in a user's folder; the user must keep access to the file.
TEST(TemporaryFile, KeepsTheOwnerAndTheGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root gives files away";
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  ASSERT_EQ(::chown(ruta.c_str(), 1234, 4321), 0);
  ASSERT_EQ(::chmod(ruta.c_str(), 0640), 0);
  ReplaceFile(ruta, "nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(OwnerOf(ruta), (Owner{1234, 4321}));
  EXPECT_EQ(PermissionsOf(ruta), 0640U);
}

// A world-writable file of another user in a world-writable folder.
class FileOfAnother : public testing::Test {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "only root gives files away";
    fs::create_directory(carpeta_.Path() / "dentro");
    carpeta_.Write("dentro/f.txt", "antes");
    ASSERT_EQ(::chmod(ruta_.c_str(), 0666), 0);
  }
  // Saves without root privileges.
  void SaveAsSomebodyElse() {
    const PlainUser usuario{carpeta_};
    ReplaceFile(ruta_, "nuevo");
    quien_ = ::geteuid();
  }
  // Sets the setgid bit: new files in the folder get group 4321.
  void GiveFolderAGroup() const {
    const fs::path dentro = carpeta_.Path() / "dentro";
    ASSERT_EQ(::chown(dentro.c_str(), 0, 4321), 0);
    ASSERT_EQ(::chmod(dentro.c_str(), 02777), 0);
  }

  TempFolder carpeta_;
  fs::path ruta_ = carpeta_.Path() / "dentro" / "f.txt";
  uid_t quien_ = 0;
};

TEST_F(FileOfAnother, TakesTheUserAndKeepsAGroupOfTheUser) {
  GiveFolderAGroup();
  ASSERT_EQ(::chown(ruta_.c_str(), 1234, ::getegid()), 0);
  SaveAsSomebodyElse();
  EXPECT_EQ(carpeta_.Read("dentro/f.txt"), "nuevo");
  EXPECT_EQ(OwnerOf(ruta_), (Owner{quien_, ::getegid()}));
  EXPECT_EQ(PermissionsOf(ruta_), 0666U);
}

TEST_F(FileOfAnother, IsSavedAlsoWhenTheUserIsNotInItsGroup) {
  GiveFolderAGroup();
  ASSERT_EQ(::chown(ruta_.c_str(), 1234, 5678), 0);
  SaveAsSomebodyElse();
  EXPECT_EQ(carpeta_.Read("dentro/f.txt"), "nuevo");
  EXPECT_EQ(OwnerOf(ruta_).User, quien_);
  EXPECT_EQ(PermissionsOf(ruta_), 0666U);
}

}  // namespace
}  // namespace tasca::test
