// The folders of a portable and of an installed game.
#include "ui/game_folder.h"

#include <gtest/gtest.h>

#include "tests/support/plain_user.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

// Programs in "games", a home in "casa".
class Folders : public testing::Test {
 protected:
  Folders() {
    for (const char* const carpeta : {"games", "share/tasca", "casa"}) {
      fs::create_directories(raiz_.Path() / carpeta);
    }
  }
  void Fill(const std::string& carpeta) const {
    raiz_.Write(carpeta + "/Jugadores.dat", "personajes");
    raiz_.Write(carpeta + "/mus.ini", "ajustes");
  }
  fs::path In(const std::string& nombre) const { return raiz_.Path() / nombre; }
  GameFolder Find(const std::optional<fs::path>& elegida = std::nullopt) const {
    return FindGameFolder(In("games"), elegida, In("casa/tasca"));
  }

  TempFolder raiz_;
};

TEST_F(Folders, AreAllThatOfThePortablePrograms) {
  Fill("games");
  Fill("share/tasca");
  const GameFolder carpeta = Find();
  EXPECT_EQ(carpeta.Files, In("games"));
  EXPECT_EQ(carpeta.Shipped, In("games"));
  EXPECT_EQ(carpeta.SoundProgram, In("games/tasca-sound"));
  EXPECT_EQ(carpeta.NotSaved, u"");
  EXPECT_FALSE(fs::exists(In("casa/tasca")));
}

TEST_F(Folders, AreSharedAndTheUsersOnceInstalled) {
  Fill("share/tasca");
  const GameFolder carpeta = Find();
  EXPECT_EQ(carpeta.Files, In("casa/tasca"));
  EXPECT_EQ(carpeta.Shipped, In("share/tasca"));
  EXPECT_EQ(carpeta.SoundProgram, In("libexec/tasca/tasca-sound"));
  EXPECT_EQ(carpeta.NotSaved, u"");
  EXPECT_EQ(raiz_.Read("casa/tasca/Jugadores.dat"), "personajes");
}

TEST_F(Folders, AreTheUsersBesideProgramsThatAreOnlyRead) {
  Fill("games");
  const PlainUser usuario{raiz_};
  fs::permissions(In("games"), fs::perms{0555});
  const GameFolder carpeta = FindGameFolder(In("games"), std::nullopt, In("tasca"));
  EXPECT_EQ(carpeta.Files, In("tasca"));
  EXPECT_EQ(carpeta.Shipped, In("games"));
  EXPECT_EQ(carpeta.SoundProgram, In("games/tasca-sound"));
  fs::permissions(In("games"), fs::perms{0755});
}

TEST_F(Folders, CanBeChosen) {
  Fill("games");
  const GameFolder carpeta = Find(In("torneo"));
  EXPECT_EQ(carpeta.Files, In("torneo"));
  EXPECT_EQ(carpeta.Shipped, In("games"));
  EXPECT_EQ(raiz_.Read("torneo/Jugadores.dat"), "personajes");
  raiz_.Write("torneo/Jugadores.dat", "los de Ana");
  EXPECT_EQ(Find(In("torneo")).Files, In("torneo"));
  EXPECT_EQ(raiz_.Read("torneo/Jugadores.dat"), "los de Ana");
}

TEST_F(Folders, AreTheSharedOnesWithoutAHome) {
  Fill("share/tasca");
  const GameFolder carpeta = FindGameFolder(In("games"), std::nullopt, {});
  EXPECT_EQ(carpeta.Files, In("share/tasca"));
  EXPECT_EQ(carpeta.NotSaved, u"no se sabe cuál es su carpeta personal.");
}

TEST_F(Folders, AreTheSharedOnesIfTheUsersCannotBeMade) {
  Fill("share/tasca");
  raiz_.Write("casa/tasca", "no es una carpeta");
  const GameFolder carpeta = Find();
  EXPECT_EQ(carpeta.Files, In("share/tasca"));
  EXPECT_NE(carpeta.NotSaved, u"");
}

TEST_F(Folders, AreTheSharedOnesIfTheUsersCannotBeSearched) {
  Fill("share/tasca");
  fs::create_directory(In("tasca"));
  raiz_.Write("tasca/Jugadores.dat", "los de Ana");
  const PlainUser usuario{raiz_};
  fs::permissions(In("tasca"), fs::perms{0000});
  const GameFolder carpeta = FindGameFolder(In("games"), std::nullopt, In("tasca"));
  EXPECT_EQ(carpeta.Files, In("share/tasca"));
  EXPECT_EQ(carpeta.NotSaved, u"no hay permiso para escribir.");
  fs::permissions(In("tasca"), fs::perms{0755});
}

TEST_F(Folders, AreTheUsersIfOnlyTheSettingsCannotBeCopied) {
  Fill("share/tasca");
  fs::create_directory(In("tasca"));
  raiz_.Write("tasca/Jugadores.dat", "los de Ana");
  const PlainUser usuario{raiz_};
  fs::permissions(In("tasca"), fs::perms{0555});
  const GameFolder carpeta = FindGameFolder(In("games"), std::nullopt, In("tasca"));
  EXPECT_EQ(carpeta.Files, In("tasca"));
  EXPECT_EQ(carpeta.NotSaved, u"no hay permiso para escribir.");
  fs::permissions(In("tasca"), fs::perms{0755});
}

TEST_F(Folders, AreThoseOfTheProgramsIfNothingIsThere) {
  const GameFolder carpeta = Find();
  EXPECT_EQ(carpeta.Files, In("games"));
  EXPECT_EQ(carpeta.NotSaved, u"");
}

}  // namespace
}  // namespace tasca::test
