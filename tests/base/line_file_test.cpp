// Reading files line by line and replacing them whole.
#include "base/line_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <vector>

#include "base/endings.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca {
namespace {

namespace fs = std::filesystem;
using test::TempFolder;
using test::Utf8;

// The message of the error that `hacer` throws; "" when it throws none.
std::string ErrorOf(const std::function<void()>& hacer) {
  try {
    hacer();
  } catch (const RunTimeError& error) {
    return Utf8(error.Message());
  }
  return {};
}

constexpr auto Fin = " El programa va a terminar su ejecución.";

std::vector<std::string> LinesOf(std::string_view bytes) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", bytes);
  LineReader archivo{carpeta.Path() / "f.txt"};
  std::vector<std::string> lineas;
  std::u16string linea;
  while (archivo.Next(linea)) lineas.push_back(Utf8(linea));
  return lineas;
}

using Lineas = std::vector<std::string>;

TEST(FileExists, SeesFilesAndFolders) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  EXPECT_TRUE(FileExists(carpeta.Path() / "f.txt"));
  EXPECT_TRUE(FileExists(carpeta.Path()));
  EXPECT_FALSE(FileExists(carpeta.Path() / "g.txt"));
  EXPECT_FALSE(FileExists(carpeta.Path() / "f.txt" / "g.txt"));
}

TEST(FileExists, FollowsLinks) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "");
  fs::create_symlink("f.txt", carpeta.Path() / "a_f");
  fs::create_symlink("nada", carpeta.Path() / "a_nada");
  EXPECT_TRUE(FileExists(carpeta.Path() / "a_f"));
  EXPECT_FALSE(FileExists(carpeta.Path() / "a_nada"));
}

TEST(LineReader, ReadsLinesThatEndInCrLf) {
  EXPECT_EQ(LinesOf("uno\r\ndos\r\n"), (Lineas{"uno", "dos"}));
}

TEST(LineReader, ReadsLinesThatEndInLf) {
  EXPECT_EQ(LinesOf("uno\ndos\n"), (Lineas{"uno", "dos"}));
}

TEST(LineReader, ReadsMixedLineEnds) {
  EXPECT_EQ(LinesOf("uno\r\ndos\ntres\r\n"), (Lineas{"uno", "dos", "tres"}));
}

TEST(LineReader, ReadsALastLineWithoutAnEnd) {
  EXPECT_EQ(LinesOf("uno\r\ndos"), (Lineas{"uno", "dos"}));
  EXPECT_EQ(LinesOf("uno"), (Lineas{"uno"}));
}

TEST(LineReader, ReadsEmptyLines) {
  EXPECT_EQ(LinesOf("\r\n\n\r\nx\n\n"), (Lineas{"", "", "", "x", ""}));
}

TEST(LineReader, ReadsNothingFromAnEmptyFile) { EXPECT_EQ(LinesOf(""), Lineas{}); }

TEST(LineReader, KeepsALoneCarriageReturnInsideALine) {
  EXPECT_EQ(LinesOf("a\rb\r\nc\r\r\n"), (Lineas{"a\rb", "c\r"}));
}

TEST(LineReader, KeepsNuls) {
  const std::string_view bytes{"a\0b\r\n\0\n", 7};
  EXPECT_EQ(LinesOf(bytes), (Lineas{std::string{"a\0b", 3}, std::string{"\0", 1}}));
}

TEST(LineReader, ReadsTheCodePage) { EXPECT_EQ(LinesOf("t\xEDo \x80\r\n"), (Lineas{"tío €"})); }

TEST(LineReader, KeepsBlanks) { EXPECT_EQ(LinesOf("  a \t\r\n"), (Lineas{"  a \t"})); }

TEST(LineReader, GivesBytesWithTheirLineEnds) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "35\r\n\n\x80");
  LineReader archivo{carpeta.Path() / "f.txt"};
  std::string bytes;
  ASSERT_TRUE(archivo.NextBytes(bytes));
  EXPECT_EQ(bytes, "35\r\n");
  EXPECT_EQ(archivo.RequireBytes(u"nada"), "\n");
  ASSERT_TRUE(archivo.NextBytes(bytes));
  EXPECT_EQ(bytes, "\x80");
  EXPECT_FALSE(archivo.NextBytes(bytes));
  EXPECT_FALSE(archivo.NextBytes(bytes));
}

TEST(LineReader, SaysWhatIsMissingAtTheEnd) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "uno\r\n");
  LineReader archivo{ruta};
  EXPECT_EQ(Utf8(archivo.Require(u"el nombre")), "uno");
  EXPECT_EQ(ErrorOf([&] { archivo.Require(u"la historia"); }),
            ruta.string() + ", línea 2: el archivo se acaba y falta la historia." + Fin);
}

TEST(LineReader, SaysWhatBytesAreMissingAtTheEnd) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "");
  LineReader archivo{ruta};
  EXPECT_EQ(ErrorOf([&] { archivo.RequireBytes(u"todo"); }),
            ruta.string() + ", línea 1: el archivo se acaba y falta todo." + Fin);
}

TEST(LineReader, NamesTheLineLastReadWhenItFails) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "uno\r\ndos\ntres");
  LineReader archivo{ruta};
  EXPECT_EQ(ErrorOf([&] { archivo.Fail(u"mal."); }), ruta.string() + ": mal." + Fin);
  std::u16string linea;
  archivo.Next(linea);
  archivo.Next(linea);
  EXPECT_EQ(ErrorOf([&] { archivo.Fail(u"mal."); }), ruta.string() + ", línea 2: mal." + Fin);
}

TEST(LineReader, SaysThatAFileIsMissing) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "nada.txt";
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se encuentra el archivo." + Fin);
}

TEST(LineReader, SaysThatADanglingLinkLeadsNowhere) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "enlace";
  fs::create_symlink("nada", ruta);
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se encuentra el archivo." + Fin);
}

TEST(LineReader, RefusesAFolder) {
  const TempFolder carpeta;
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{carpeta.Path()}; }),
            carpeta.Path().string() + ": no es un archivo." + Fin);
}

TEST(LineReader, RefusesAPipeInsteadOfWaitingForIt) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "tubo";
  ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no es un archivo." + Fin);
}

TEST(LineReader, TakesALineOfTheGreatestLength) {
  const std::string larga(LineReader::LargoMaximo - 1, 'x');
  EXPECT_EQ(LinesOf(larga + "\nfin"), (Lineas{larga, "fin"}));
  EXPECT_EQ(LinesOf(larga + "y"), (Lineas{larga + "y"}));
}

TEST(LineReader, RefusesALineOneByteLonger) {
  const std::string larga(LineReader::LargoMaximo, 'x');
  for (const auto* const final : {"\n", "y"}) {
    const TempFolder carpeta;
    const fs::path ruta = carpeta.Path() / "f.txt";
    carpeta.Write("f.txt", "uno\n" + larga + final);
    LineReader archivo{ruta};
    std::u16string linea;
    ASSERT_TRUE(archivo.Next(linea));
    EXPECT_EQ(ErrorOf([&] { archivo.Next(linea); }),
              ruta.string() + ", línea 2: la línea es demasiado larga." + Fin);
  }
}

TEST(WithoutLineEnd, TakesOneLineEnd) {
  EXPECT_EQ(WithoutLineEnd("a\r\n"), "a");
  EXPECT_EQ(WithoutLineEnd("a\n"), "a");
  EXPECT_EQ(WithoutLineEnd("a"), "a");
  EXPECT_EQ(WithoutLineEnd("a\n\n"), "a\n");
  EXPECT_EQ(WithoutLineEnd(""), "");
}

// Works as a user whom permissions bind, also when the tests are run by root. The folder is handed
// over to that user.
class PlainUser {
 public:
  explicit PlainUser(const TempFolder& carpeta) : eraRoot_{::geteuid() == 0} {
    if (!eraRoot_) return;
    std::vector<fs::path> rutas{carpeta.Path()};
    for (const auto& entrada : fs::directory_iterator{carpeta.Path()}) rutas.push_back(entrada);
    bool hecho = true;
    for (const fs::path& ruta : rutas) hecho = ::lchown(ruta.c_str(), Nadie, Nadie) == 0 && hecho;
    hecho = ::setresuid(Nadie, Nadie, 0) == 0 && hecho;
    EXPECT_TRUE(hecho);
  }
  PlainUser(const PlainUser&) = delete;
  PlainUser& operator=(const PlainUser&) = delete;
  ~PlainUser() {
    const bool hecho = !eraRoot_ || ::setresuid(0, 0, 0) == 0;
    EXPECT_TRUE(hecho);
  }

 private:
  static constexpr uid_t Nadie = 65534;
  bool eraRoot_;
};

Lineas NamesIn(const fs::path& carpeta) {
  Lineas nombres;
  for (const auto& entrada : fs::directory_iterator{carpeta}) {
    nombres.push_back(entrada.path().filename().string());
  }
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

mode_t PermissionsOf(const fs::path& ruta) {
  struct stat datos {};
  EXPECT_EQ(::stat(ruta.c_str(), &datos), 0);
  return datos.st_mode & 07777U;
}

TEST(LineReader, SaysThatAFileCannotBeRead) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "uno");
  ASSERT_EQ(::chmod(ruta.c_str(), 0), 0);
  const PlainUser usuario{carpeta};
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se puede leer el archivo." + Fin);
}

TEST(ReplaceFile, PutsTheNewContentInPlaceOfTheOld) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "lo de antes, más largo");
  const std::string nuevo{"nuevo\r\n\0\x80", 9};
  ReplaceFile(carpeta.Path() / "f.txt", nuevo);
  EXPECT_EQ(carpeta.Read("f.txt"), nuevo);
  EXPECT_EQ(NamesIn(carpeta.Path()), (Lineas{"f.txt"}));
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
  EXPECT_EQ(NamesIn(carpeta.Path() / "dentro"), (Lineas{"f.txt"}));
}

TEST(ReplaceFile, IsNotDisturbedByWhatACrashHasLeft) {
  const TempFolder carpeta;
  carpeta.Write("f.txt", "antes");
  carpeta.Write("f.txt.tmp", "a medio escribir, y más largo que lo nuevo");
  ReplaceFile(carpeta.Path() / "f.txt", "nuevo");
  EXPECT_EQ(carpeta.Read("f.txt"), "nuevo");
  EXPECT_EQ(NamesIn(carpeta.Path()), (Lineas{"f.txt"}));
}

TEST(ReplaceFile, RefusesAReadOnlyFile) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  ASSERT_EQ(::chmod(ruta.c_str(), 0444), 0);
  const PlainUser usuario{carpeta};
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            ruta.string() + ": no se ha podido escribir el archivo." + Fin);
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(NamesIn(carpeta.Path()), (Lineas{"f.txt"}));
}

TEST(ReplaceFile, LeavesTheOldFileInAFolderThatCannotBeWritten) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  const PlainUser usuario{carpeta};
  ASSERT_EQ(::chmod(carpeta.Path().c_str(), 0555), 0);
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            ruta.string() + ": no se ha podido escribir el archivo." + Fin);
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(NamesIn(carpeta.Path()), (Lineas{"f.txt"}));
  ASSERT_EQ(::chmod(carpeta.Path().c_str(), 0755), 0);
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

TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskIsFull) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "antes");
  std::string error;
  {
    const FullDisk lleno{10};
    error = ErrorOf([&] { ReplaceFile(ruta, std::string(100, 'x')); });
  }
  EXPECT_EQ(error, ruta.string() + ": no se ha podido escribir el archivo." + Fin);
  EXPECT_EQ(carpeta.Read("f.txt"), "antes");
  EXPECT_EQ(NamesIn(carpeta.Path()), (Lineas{"f.txt"}));
}

TEST(ReplaceFile, LeavesAFolderOfThatNameAlone) {
  const TempFolder carpeta;
  fs::create_directory(carpeta.Path() / "f.txt");
  carpeta.Write("f.txt/dentro", "x");
  const fs::path ruta = carpeta.Path() / "f.txt";
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            ruta.string() + ": no se ha podido escribir el archivo." + Fin);
  EXPECT_EQ(carpeta.Read("f.txt/dentro"), "x");
  EXPECT_EQ(NamesIn(carpeta.Path()), (Lineas{"f.txt"}));
}

TEST(ReplaceFile, FailsWithoutAFolder) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "nada" / "f.txt";
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(ruta, "nuevo"); }),
            ruta.string() + ": no se ha podido escribir el archivo." + Fin);
}

}  // namespace
}  // namespace tasca
