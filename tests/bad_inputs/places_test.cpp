// What may lie in a file's place: a folder, a pipe, a link that leads nowhere, a file that nobody
// may read.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"
#include "tests/support/plain_user.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

constexpr auto Missing = "No se encuentra el archivo con los datos de los personajes.";

// A folder with a good character file and good settings, one of which a test replaces.
struct Place {
  TempFolder Carpeta;

  Place() {
    Carpeta.Write("Jugadores.dat", Fichero{}.Bytes());
    Carpeta.Write("mus.ini", "7\r\n2\r\n1\r\nAna> x\r\n");
  }
  fs::path Vacant(const std::string& nombre) const {
    fs::remove(Carpeta.Path() / nombre);
    return Carpeta.Path() / nombre;
  }
  Outcomes All() const { return OutcomesIn(Carpeta.Path()); }
  std::string Program() const { return Play(Carpeta.Path()).Outcome; }
};

TEST(InTheCharacterFilesPlace, NothingIsToldInTheGamesOwnWords) {
  const Place lugar;
  lugar.Vacant("Jugadores.dat");
  const std::string noEsta = "Jugadores.dat: no se encuentra el archivo.";
  EXPECT_EQ(lugar.All(), (Outcomes{Missing, noEsta, noEsta, Missing}));
}

TEST(InTheCharacterFilesPlace, ADanglingLinkIsNothing) {
  const Place lugar;
  fs::create_symlink("nada", lugar.Vacant("Jugadores.dat"));
  const std::string noEsta = "Jugadores.dat: no se encuentra el archivo.";
  EXPECT_EQ(lugar.All(), (Outcomes{Missing, noEsta, noEsta, Missing}));
}

TEST(InTheCharacterFilesPlace, ALinkToItselfCannotBeRead) {
  const Place lugar;
  fs::create_symlink("Jugadores.dat", lugar.Vacant("Jugadores.dat"));
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no se puede leer el archivo."));
}

TEST(InTheCharacterFilesPlace, ALinkToAGoodFileIsRead) {
  const Place lugar;
  lugar.Carpeta.Write("otro", Fichero{}.Bytes());
  fs::create_symlink("otro", lugar.Vacant("Jugadores.dat"));
  EXPECT_EQ(lugar.All(), AllPlay(3, 5));
}

TEST(InTheCharacterFilesPlace, AFolderIsNoFile) {
  const Place lugar;
  fs::create_directory(lugar.Vacant("Jugadores.dat"));
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no es un archivo."));
}

TEST(InTheCharacterFilesPlace, APipeIsNotWaitedFor) {
  const Place lugar;
  ASSERT_EQ(::mkfifo(lugar.Vacant("Jugadores.dat").c_str(), 0600), 0);
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no es un archivo."));
}

TEST(InTheCharacterFilesPlace, AnEndlessDeviceIsNotRead) {
  const Place lugar;
  fs::create_symlink("/dev/zero", lugar.Vacant("Jugadores.dat"));
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no es un archivo."));
}

TEST(InTheCharacterFilesPlace, AFileThatMayNotBeReadSaysSo) {
  const Place lugar;
  fs::permissions(lugar.Carpeta.Path() / "Jugadores.dat", fs::perms::none);
  const PlainUser usuario{lugar.Carpeta};
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no se puede leer el archivo."));
}

void ExpectDefaults(const Place& lugar) {
  const Played partida = Play(lugar.Carpeta.Path());
  EXPECT_EQ(partida.Outcome, "plays");
  EXPECT_EQ(partida.State["PiedrasJuego"], 35);
  EXPECT_EQ(partida.State["JuegosVaca"], 3);
  EXPECT_EQ(partida.State["VacasPartida"], 3);
}

TEST(InTheSettingsPlace, NothingAndADanglingLinkLeaveTheDefaults) {
  const Place sinNada;
  sinNada.Vacant("mus.ini");
  ExpectDefaults(sinNada);
  EXPECT_EQ(sinNada.Carpeta.Names(), Textos{"Jugadores.dat"});
  const Place conEnlace;
  fs::create_symlink("nada", conEnlace.Vacant("mus.ini"));
  ExpectDefaults(conEnlace);
  EXPECT_EQ(conEnlace.Carpeta.Names(), (Textos{"Jugadores.dat", "mus.ini"}));
}

TEST(InTheSettingsPlace, ALinkToItselfCannotBeRead) {
  const Place lugar;
  fs::create_symlink("mus.ini", lugar.Vacant("mus.ini"));
  EXPECT_EQ(lugar.Program(), "mus.ini: no se puede leer el archivo.");
}

TEST(InTheSettingsPlace, AFolderIsNoFile) {
  const Place lugar;
  fs::create_directory(lugar.Vacant("mus.ini"));
  EXPECT_EQ(lugar.Program(), "mus.ini: no es un archivo.");
}

TEST(InTheSettingsPlace, APipeIsNotWaitedFor) {
  const Place lugar;
  ASSERT_EQ(::mkfifo(lugar.Vacant("mus.ini").c_str(), 0600), 0);
  EXPECT_EQ(lugar.Program(), "mus.ini: no es un archivo.");
}

TEST(InTheSettingsPlace, AFileThatMayNotBeReadSaysSo) {
  const Place lugar;
  fs::permissions(lugar.Carpeta.Path() / "mus.ini", fs::perms::none);
  const PlainUser usuario{lugar.Carpeta};
  EXPECT_EQ(lugar.Program(), "mus.ini: no se puede leer el archivo.");
}

}  // namespace
}  // namespace tasca::test
