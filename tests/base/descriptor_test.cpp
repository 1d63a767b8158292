// Files as the system numbers them.
#include "base/descriptor.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <optional>

#include "tests/base/file_facts.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

TEST(Descriptor, IsNotOpenWithoutAFile) {
  const TempFolder carpeta;
  const Descriptor ninguno{carpeta.Path() / "f.txt", O_RDONLY};
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
  const Descriptor archivo{carpeta.Path() / "f.txt", O_RDWR};
  EXPECT_EQ(archivo.Read(), "antes");
  EXPECT_TRUE(archivo.Write(", ahora") && archivo.Flush());
  EXPECT_EQ(carpeta.Read("f.txt"), "antes, ahora");
  EXPECT_EQ(archivo.Status()->st_size, 12);
}

TEST(Descriptor, MakesNewFilesThatTheUserAloneMayRead) {
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
  const Descriptor otro{carpeta.Path() / "f.txt", O_RDONLY};
  {
    const Descriptor uno{carpeta.Path() / "f.txt", O_RDONLY};
    EXPECT_TRUE(uno.Lock());
    EXPECT_FALSE(otro.Lock());
    EXPECT_EQ(errno, EWOULDBLOCK);
  }
  EXPECT_TRUE(otro.Lock());
}

TEST(Descriptor, SetsPermissionsAndOwner) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  const Descriptor archivo{carpeta.Path() / "f.txt", O_RDWR};
  EXPECT_TRUE(archivo.SetPermissions(0604));
  EXPECT_EQ(PermissionsOf(carpeta.Path() / "f.txt"), 0604U);
  const Owner antes = OwnerOf(carpeta.Path() / "f.txt");
  EXPECT_TRUE(archivo.SetOwner(antes.User, antes.Group));
  EXPECT_EQ(OwnerOf(carpeta.Path() / "f.txt"), antes);
}

}  // namespace
}  // namespace tasca::test
