// Something other than a readable file in a file's place: a folder, a pipe, a dangling link, a file
// without read permission.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/bad_inputs/outcomes.h"
#include "tests/characters/fichero.h"
#include "tests/support/full_disk.h"
#include "tests/support/plain_user.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

constexpr auto Missing = "No se encuentra el archivo con los datos de los personajes.";

// A folder with a valid character file and valid settings.
struct Place {
  TempFolder Carpeta;

  Place() {
    Carpeta.Write("Jugadores.dat", Fichero{}.Bytes());
    Carpeta.Write("mus.ini", "7\r\n2\r\n1\r\nAna> x\r\n");
  }
  // Removes the file and returns its path.
  fs::path Vacant(const std::string& nombre) const {
    fs::remove(Carpeta.Path() / nombre);
    return Carpeta.Path() / nombre;
  }
  Outcomes All() const { return OutcomesIn(Carpeta.Path()); }
  std::string Program() const { return Play(Carpeta.Path()).Outcome; }
};

TEST(InTheCharacterFilesPlace, AMissingFileHasItsOwnMessage) {
  const Place lugar;
  lugar.Vacant("Jugadores.dat");
  const std::string noEsta = "Jugadores.dat: no se encuentra el archivo.";
  EXPECT_EQ(lugar.All(), (Outcomes{Missing, noEsta, noEsta, Missing}));
}

TEST(InTheCharacterFilesPlace, ADanglingLinkIsAMissingFile) {
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

TEST(InTheCharacterFilesPlace, AFolderIsRefused) {
  const Place lugar;
  fs::create_directory(lugar.Vacant("Jugadores.dat"));
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no es un archivo."));
}

TEST(InTheCharacterFilesPlace, APipeIsRefusedWithoutWaiting) {
  const Place lugar;
  ASSERT_EQ(::mkfifo(lugar.Vacant("Jugadores.dat").c_str(), 0600), 0);
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no es un archivo."));
}

TEST(InTheCharacterFilesPlace, ADeviceIsRefused) {
  const Place lugar;
  fs::create_symlink("/dev/zero", lugar.Vacant("Jugadores.dat"));
  EXPECT_EQ(lugar.All(), AllEndWith("Jugadores.dat: no es un archivo."));
}

TEST(InTheCharacterFilesPlace, AFileWithoutReadPermissionIsReported) {
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

// The game plays, reports that the name could not be saved, and does not change the settings.
void ExpectPlaysWithANotice(const Place& lugar, const std::string& motivo) {
  const std::string antes = lugar.Carpeta.Read("mus.ini");
  const Played partida = Play(lugar.Carpeta.Path());
  EXPECT_EQ(partida.Outcome, "plays");
  EXPECT_EQ(partida.State["PiedrasJuego"], 7);
  EXPECT_NE(partida.Lines.find("No se ha podido guardar su nombre en mus.ini: " + motivo +
                               " La partida se juega igual."),
            std::string::npos);
  EXPECT_EQ(lugar.Carpeta.Read("mus.ini"), antes);
  EXPECT_EQ(lugar.Carpeta.Names(), (Textos{"Jugadores.dat", "mus.ini"}));
}

TEST(InTheSettingsPlace, AMissingFileOrADanglingLinkLeavesTheDefaults) {
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

TEST(InTheSettingsPlace, AFolderIsRefused) {
  const Place lugar;
  fs::create_directory(lugar.Vacant("mus.ini"));
  EXPECT_EQ(lugar.Program(), "mus.ini: no es un archivo.");
}

TEST(InTheSettingsPlace, APipeIsRefusedWithoutWaiting) {
  const Place lugar;
  ASSERT_EQ(::mkfifo(lugar.Vacant("mus.ini").c_str(), 0600), 0);
  EXPECT_EQ(lugar.Program(), "mus.ini: no es un archivo.");
}

TEST(InTheSettingsPlace, AFileWithoutReadPermissionIsReported) {
  const Place lugar;
  fs::permissions(lugar.Carpeta.Path() / "mus.ini", fs::perms::none);
  const PlainUser usuario{lugar.Carpeta};
  EXPECT_EQ(lugar.Program(), "mus.ini: no se puede leer el archivo.");
}

// A settings file that can only be read does not prevent the game.
TEST(InTheSettingsPlace, AReadOnlyFileLetsTheGamePlay) {
  const Place lugar;
  fs::permissions(lugar.Carpeta.Path() / "mus.ini", fs::perms{0444});
  const PlainUser usuario{lugar.Carpeta};
  ExpectPlaysWithANotice(lugar, "no hay permiso para escribir.");
}

TEST(InTheSettingsPlace, AReadOnlyFolderLetsTheGamePlay) {
  const Place lugar;
  const PlainUser usuario{lugar.Carpeta};
  fs::permissions(lugar.Carpeta.Path(), fs::perms{0555});
  ExpectPlaysWithANotice(lugar, "no hay permiso para escribir.");
  fs::permissions(lugar.Carpeta.Path(), fs::perms{0755});
}

TEST(InTheSettingsPlace, AFullDiskLetsTheGamePlay) {
  const Place lugar;
  const FullDisk lleno{10};
  ExpectPlaysWithANotice(lugar, "no queda sitio en el disco.");
}

}  // namespace
}  // namespace tasca::test
