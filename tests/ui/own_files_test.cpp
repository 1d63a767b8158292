// The user's own copies of the shipped files: first start, updates, and what cannot be written.
#include "ui/own_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <vector>

#include "tests/support/full_disk.h"
#include "tests/support/plain_user.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;
using Rutas = std::vector<fs::path>;

class OwnFiles : public testing::Test {
 protected:
  OwnFiles() {
    Ship("personajes", "ajustes");
    fs::permissions(shipped_.Path(), fs::perms{0755});  // for PlainUser
  }

  void Ship(const std::string& personajes, const std::string& ajustes) const {
    shipped_.Write("Jugadores.dat", personajes);
    shipped_.Write("mus.ini", ajustes);
  }
  fs::path Own() const { return casa_.Path() / "datos" / "tasca"; }
  std::u16string Bring() const { return BringOwnFiles(shipped_.Path(), Own()); }
  std::string Read(const std::string& nombre) const { return casa_.Read("datos/tasca/" + nombre); }
  void Change(const std::string& nombre, const std::string& bytes) const {
    casa_.Write("datos/tasca/" + nombre, bytes);
  }
  bool HasNew(const std::string& nombre) const { return fs::exists(Own() / (nombre + ".nuevo")); }

  TempFolder shipped_;
  TempFolder casa_;
};

TEST_F(OwnFiles, AreCopiedAtTheFirstStart) {
  EXPECT_EQ(Bring(), u"");
  EXPECT_EQ(Read("Jugadores.dat"), "personajes");
  EXPECT_EQ(Read("mus.ini"), "ajustes");
  EXPECT_EQ(TakeNewFiles(Own()), Rutas{});
}

TEST_F(OwnFiles, AreOnlyCopiedWhereTheyAreMissing) {
  Bring();
  Change("mus.ini", "los de Ana");
  fs::remove(Own() / "Jugadores.dat");
  EXPECT_EQ(Bring(), u"");
  EXPECT_EQ(Read("Jugadores.dat"), "personajes");
  EXPECT_EQ(Read("mus.ini"), "los de Ana");
}

TEST_F(OwnFiles, AreRenewedByAnUpdateIfUnchanged) {
  Bring();
  Ship("otros personajes", "ajustes");
  EXPECT_EQ(Bring(), u"");
  EXPECT_EQ(Read("Jugadores.dat"), "otros personajes");
  EXPECT_FALSE(HasNew("Jugadores.dat"));
  EXPECT_EQ(TakeNewFiles(Own()), Rutas{});
}

TEST_F(OwnFiles, StayIfChangedAndTheNewOnesLieBesideThem) {
  Bring();
  Change("Jugadores.dat", "los de Ana");
  Ship("otros personajes", "ajustes");
  EXPECT_EQ(Bring(), u"");
  EXPECT_EQ(Read("Jugadores.dat"), "los de Ana");
  EXPECT_EQ(Read("Jugadores.dat.nuevo"), "otros personajes");
  EXPECT_FALSE(HasNew("mus.ini"));
}

TEST_F(OwnFiles, AreToldOnceWhenNewOnesLieBesideThem) {
  Bring();
  Change("Jugadores.dat", "los de Ana");
  Ship("otros personajes", "ajustes");
  Bring();
  Bring();
  EXPECT_EQ(TakeNewFiles(Own()), Rutas{Own() / "Jugadores.dat.nuevo"});
  EXPECT_EQ(TakeNewFiles(Own()), Rutas{});
  Bring();
  EXPECT_EQ(TakeNewFiles(Own()), Rutas{});
}

TEST_F(OwnFiles, AreNotToldOfANewOneThatTheUserHasTaken) {
  Bring();
  Change("Jugadores.dat", "los de Ana");
  Ship("otros personajes", "ajustes");
  Bring();
  fs::rename(Own() / "Jugadores.dat.nuevo", Own() / "Jugadores.dat");
  EXPECT_EQ(TakeNewFiles(Own()), Rutas{});
  Ship("terceros personajes", "ajustes");
  Bring();
  EXPECT_EQ(Read("Jugadores.dat"), "terceros personajes") << "it equalled the one last shipped";
}

TEST_F(OwnFiles, ThatTheUserRemovedTheNewOneOfAreLeftInPeace) {
  Bring();
  Change("Jugadores.dat", "los de Ana");
  Ship("otros personajes", "ajustes");
  Bring();
  fs::remove(Own() / "Jugadores.dat.nuevo");
  Bring();
  EXPECT_FALSE(HasNew("Jugadores.dat"));
}

TEST_F(OwnFiles, ThatWereThereBeforeTheGameCountAsChanged) {
  fs::create_directories(Own());
  Change("Jugadores.dat", "los de Ana");
  EXPECT_EQ(Bring(), u"");
  EXPECT_EQ(Read("Jugadores.dat"), "los de Ana");
  EXPECT_EQ(Read("Jugadores.dat.nuevo"), "personajes");
}

// A kill between the copy and the note of what was shipped.
TEST_F(OwnFiles, ThatEqualTheShippedOnesNeedNoNewOnes) {
  fs::create_directories(Own());
  Change("Jugadores.dat", "personajes");
  Bring();
  EXPECT_FALSE(HasNew("Jugadores.dat"));
  Ship("otros personajes", "ajustes");
  Bring();
  EXPECT_EQ(Read("Jugadores.dat"), "otros personajes");
}

TEST_F(OwnFiles, ThatAreNoFilesAreLeftAlone) {
  Bring();
  fs::remove(Own() / "Jugadores.dat");
  ASSERT_EQ(::mkfifo((Own() / "Jugadores.dat").c_str(), 0600), 0);
  Ship("otros personajes", "ajustes");
  EXPECT_EQ(Bring(), u"");
  EXPECT_TRUE(fs::is_fifo(Own() / "Jugadores.dat"));
  EXPECT_EQ(Read("Jugadores.dat.nuevo"), "otros personajes");
}

TEST_F(OwnFiles, NeedAFolder) {
  EXPECT_EQ(BringOwnFiles(shipped_.Path(), {}), u"no se sabe cuál es su carpeta personal.");
}

TEST_F(OwnFiles, AreNotCopiedToAFullDisk) {
  const FullDisk lleno{2};
  EXPECT_EQ(Bring(), u"no queda sitio en el disco.");
  EXPECT_FALSE(fs::exists(Own() / "Jugadores.dat"));
}

TEST_F(OwnFiles, AreNotCopiedToAReadOnlyHome) {
  const PlainUser usuario{casa_};
  fs::permissions(casa_.Path(), fs::perms{0555});
  EXPECT_EQ(Bring(), u"no hay permiso para escribir.");
  fs::permissions(casa_.Path(), fs::perms{0755});
}

// Nothing is missing, so that only a save may fail, which tells its own reason.
TEST_F(OwnFiles, ThatAreThereNeedNoUpdateOnAFullDisk) {
  Bring();
  Change("mus.ini", "los de Ana");
  Ship("otros personajes", "otros ajustes");
  {
    const FullDisk lleno{2};
    EXPECT_EQ(Bring(), u"");
  }
  EXPECT_EQ(Read("Jugadores.dat"), "personajes");
  EXPECT_EQ(Bring(), u"");
  EXPECT_EQ(Read("Jugadores.dat"), "otros personajes") << "the next start follows the update";
  EXPECT_EQ(Read("mus.ini.nuevo"), "otros ajustes");
}

}  // namespace
}  // namespace tasca::test
