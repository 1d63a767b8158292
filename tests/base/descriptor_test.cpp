// File descriptors.
#include "base/descriptor.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>

#include "tests/base/file_facts.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

TEST(Descriptor, IsNotOpenWithoutAFile) {
  const TempFolder carpeta;
  const Descriptor ninguno{carpeta.Path() / "f.txt", OpenMode::Read};
  EXPECT_FALSE(ninguno.IsOpen());
  EXPECT_EQ(errno, ENOENT);
  EXPECT_FALSE(ninguno.Lock());
  EXPECT_FALSE(ninguno.Status());
  EXPECT_FALSE(ninguno.Read());
  EXPECT_FALSE(ninguno.Write("x"));
  EXPECT_FALSE(ninguno.Flush());
}

TEST(Descriptor, ReadsAndWrites) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  const Descriptor archivo{carpeta.Path() / "f.txt", OpenMode::ReadWrite};
  EXPECT_EQ(archivo.Read(), "antes");
  EXPECT_TRUE(archivo.Write(", ahora") && archivo.Flush());
  EXPECT_EQ(carpeta.Read("f.txt"), "antes, ahora");
}

TEST(Descriptor, CreatesUniqueFilesWithMode0600) {
  const TempFolder carpeta;
  const std::string principio = (carpeta.Path() / "f.").string();
  std::string uno;
  std::string otro;
  const Descriptor archivo{principio, ".tmp", uno};
  const Descriptor siguiente{principio, ".tmp", otro};
  EXPECT_TRUE(archivo.IsOpen() && siguiente.IsOpen());
  EXPECT_NE(uno, otro);
  EXPECT_TRUE(uno.starts_with(principio) && uno.ends_with(".tmp"));
  EXPECT_EQ(uno.size(), principio.size() + 6 + 4);
  EXPECT_EQ(PermissionsOf(uno), 0600U);
  EXPECT_EQ(carpeta.Names().size(), 2U);
}

TEST(Descriptor, HoldsALockUntilItIsClosed) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const Descriptor otro{carpeta.Path() / "f.txt", OpenMode::Read};
  {
    const Descriptor uno{carpeta.Path() / "f.txt", OpenMode::Read};
    EXPECT_TRUE(uno.Lock());
    EXPECT_FALSE(otro.Lock());
    EXPECT_EQ(errno, EWOULDBLOCK);
  }
  EXPECT_TRUE(otro.Lock());
}

TEST(Descriptor, SetsPermissions) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const Descriptor archivo{carpeta.Path() / "f.txt", OpenMode::ReadWrite};
  EXPECT_TRUE(archivo.SetPermissions(0604));
  EXPECT_EQ(PermissionsOf(carpeta.Path() / "f.txt"), 0604U);
  EXPECT_EQ(archivo.Status()->Permissions, 0604U);
}

TEST(Descriptor, SetsOwnerAndGroup) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const Descriptor archivo{carpeta.Path() / "f.txt", OpenMode::ReadWrite};
  // Only root can give files away.
  const Owner antes = OwnerOf(carpeta.Path() / "f.txt");
  const Owner nuevo = ::geteuid() == 0 ? Owner{1234, 4321} : antes;
  EXPECT_TRUE(archivo.SetOwner(nuevo.User, nuevo.Group));
  EXPECT_EQ(OwnerOf(carpeta.Path() / "f.txt"), nuevo);
  EXPECT_EQ(archivo.Status()->Owner, nuevo.User);
  EXPECT_EQ(archivo.Status()->Group, nuevo.Group);
  EXPECT_TRUE(archivo.SetGroup(antes.Group));
  EXPECT_EQ(OwnerOf(carpeta.Path() / "f.txt"), (Owner{nuevo.User, antes.Group}));
}

TEST(Descriptor, ReadItselfTakesNoLinkAndDoesNotBlockOnAPipe) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const std::filesystem::path enlace = carpeta.Path() / "enlace";
  std::filesystem::create_symlink("f.txt", enlace);
  const Descriptor deEnlace{enlace, OpenMode::ReadItself};
  EXPECT_FALSE(deEnlace.IsOpen());
  EXPECT_EQ(errno, ELOOP);
  ASSERT_EQ(::mkfifo((carpeta.Path() / "tubo").c_str(), 0600), 0);
  EXPECT_TRUE((Descriptor{carpeta.Path() / "tubo", OpenMode::ReadItself}.IsOpen()));
}

TEST(Descriptor, ReadWriteOrCreateCreatesAMissingFileForTheUserAlone) {
  const TempFolder carpeta;
  const std::filesystem::path ruta = carpeta.Path() / "f.txt";
  EXPECT_TRUE((Descriptor{ruta, OpenMode::ReadWriteOrCreate}.Write("algo")));
  EXPECT_EQ(PermissionsOf(ruta), 0600U);
  EXPECT_EQ((Descriptor{ruta, OpenMode::ReadWriteOrCreate}.Read()), "algo");
}

TEST(Descriptor, FolderTakesNoFile) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  EXPECT_TRUE((Descriptor{carpeta.Path(), OpenMode::Folder}.IsOpen()));
  EXPECT_FALSE((Descriptor{carpeta.Path() / "f.txt", OpenMode::Folder}.IsOpen()));
  EXPECT_EQ(errno, ENOTDIR);
}

TEST(Descriptor, CountsTheNamesOfItsFile) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const std::filesystem::path uno = carpeta.Path() / "f.txt";
  const std::filesystem::path otro = carpeta.Path() / "g.txt";
  const Descriptor archivo{uno, OpenMode::Read};
  EXPECT_EQ(archivo.Status()->Links, 1U);
  std::filesystem::create_hard_link(uno, otro);
  EXPECT_EQ(archivo.Status()->Links, 2U);
  Unlink(uno);
  Unlink(otro);
  EXPECT_EQ(archivo.Status()->Links, 0U);
  EXPECT_EQ(carpeta.Names().size(), 0U);
}

TEST(MakeFolders, CreatesAllMissingOnesForTheUserAlone) {
  const TempFolder carpeta;
  EXPECT_TRUE(MakeFolders(carpeta.Path() / "a" / "b" / "c"));
  for (const char* nueva : {"a", "a/b", "a/b/c"}) {
    EXPECT_EQ(PermissionsOf(carpeta.Path() / nueva), 0700U) << nueva;
  }
  EXPECT_TRUE(MakeFolders(carpeta.Path() / "a" / "b" / "c")) << "already there";
}

TEST(MakeFolders, FailsBelowAFile) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  EXPECT_FALSE(MakeFolders(carpeta.Path() / "f.txt"));
  EXPECT_EQ(errno, ENOTDIR);
  EXPECT_FALSE(MakeFolders(carpeta.Path() / "f.txt" / "a" / "b"));
  EXPECT_EQ(errno, ENOTDIR);
}

TEST(MakeFolders, FollowsALinkToAFolder) {
  const TempFolder carpeta;
  std::filesystem::create_directory(carpeta.Path() / "a");
  std::filesystem::create_symlink("a", carpeta.Path() / "enlace");
  EXPECT_TRUE(MakeFolders(carpeta.Path() / "enlace" / "b"));
  EXPECT_TRUE(std::filesystem::is_directory(carpeta.Path() / "a" / "b"));
}

TEST(StatusOf, TellsTheSize) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "12345");
  EXPECT_EQ(tasca::StatusOf(carpeta.Path() / "f.txt")->Size, 5U);
}

TEST(StatusOf, FollowsLinksAndStatusOfLinkDoesNot) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const std::filesystem::path archivo = carpeta.Path() / "f.txt";
  const std::filesystem::path enlace = carpeta.Path() / "enlace";
  std::filesystem::create_symlink("f.txt", enlace);
  EXPECT_EQ(tasca::StatusOf(enlace)->Inode, tasca::StatusOf(archivo)->Inode);
  EXPECT_TRUE(tasca::StatusOf(enlace)->IsRegular);
  EXPECT_NE(StatusOfLink(enlace)->Inode, tasca::StatusOf(archivo)->Inode);
  EXPECT_FALSE(StatusOfLink(enlace)->IsRegular);
  EXPECT_FALSE(tasca::StatusOf(carpeta.Path() / "ninguno"));
  EXPECT_EQ(errno, ENOENT);
}

TEST(MayWrite, IsNoWhereNoFileIs) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  EXPECT_TRUE(MayWrite(carpeta.Path() / "f.txt"));
  EXPECT_FALSE(MayWrite(carpeta.Path() / "g.txt"));
  EXPECT_EQ(errno, ENOENT);
}

}  // namespace
}  // namespace tasca::test
