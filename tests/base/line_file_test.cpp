// Reading files line by line.
#include "base/line_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <vector>

#include "tests/support/errors.h"
#include "tests/support/plain_user.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca {
namespace {

namespace fs = std::filesystem;
using test::ErrorOf;
using test::FinDelPrograma;
using test::PlainUser;
using test::TempFolder;
using test::Utf8;

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

// The status of a link to itself is ELOOP.
TEST(FileExists, IsTrueWhenItCannotBeDetermined) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "rueda";
  fs::create_symlink("rueda", ruta);
  EXPECT_TRUE(FileExists(ruta));
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se puede leer el archivo." + FinDelPrograma);
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

TEST(LineReader, DecodesWindows1252) { EXPECT_EQ(LinesOf("t\xEDo \x80\r\n"), (Lineas{"tío €"})); }

TEST(LineReader, KeepsBlanks) { EXPECT_EQ(LinesOf("  a \t\r\n"), (Lineas{"  a \t"})); }

// A line or its end may span two blocks of the stream's buffer.
TEST(LineReader, ReadsLinesThatEndAroundTheEndOfABlock) {
  constexpr std::size_t Bloque = 8192;
  for (std::size_t largo = Bloque - 8; largo <= Bloque + 8; ++largo) {
    const std::string larga(largo, 'x');
    std::string dos = larga + "\r\n";
    dos += larga;
    dos += "\n\r\nfin";
    EXPECT_EQ(LinesOf(dos), (Lineas{larga, larga, "", "fin"}));
    EXPECT_EQ(LinesOf(larga), Lineas{larga});
  }
}

TEST(LineReader, ReadsBytesWithTheirLineEnds) {
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

TEST(LineReader, ReportsWhatIsMissingAtTheEnd) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "uno\r\n");
  LineReader archivo{ruta};
  EXPECT_EQ(Utf8(archivo.Require(u"el nombre")), "uno");
  EXPECT_EQ(ErrorOf([&] { archivo.Require(u"la historia"); }),
            ruta.string() + ", línea 2: el archivo se acaba y falta la historia." + FinDelPrograma);
}

TEST(LineReader, ReportsWhichBytesAreMissingAtTheEnd) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "");
  LineReader archivo{ruta};
  EXPECT_EQ(ErrorOf([&] { archivo.RequireBytes(u"todo"); }),
            ruta.string() + ", línea 1: el archivo se acaba y falta todo." + FinDelPrograma);
}

TEST(LineReader, NamesTheLineLastReadWhenItFails) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "uno\r\ndos\ntres");
  LineReader archivo{ruta};
  EXPECT_EQ(ErrorOf([&] { archivo.Fail(u"mal."); }), ruta.string() + ": mal." + FinDelPrograma);
  std::u16string linea;
  archivo.Next(linea);
  archivo.Next(linea);
  EXPECT_EQ(ErrorOf([&] { archivo.Fail(u"mal."); }),
            ruta.string() + ", línea 2: mal." + FinDelPrograma);
}

TEST(LineReader, ReportsAMissingFile) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "nada.txt";
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se encuentra el archivo." + FinDelPrograma);
}

TEST(LineReader, ReportsADanglingLinkAsAMissingFile) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "enlace";
  fs::create_symlink("nada", ruta);
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se encuentra el archivo." + FinDelPrograma);
}

TEST(LineReader, RefusesAFolder) {
  const TempFolder carpeta;
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{carpeta.Path()}; }),
            carpeta.Path().string() + ": no es un archivo." + FinDelPrograma);
}

TEST(LineReader, RefusesAPipeInsteadOfWaitingForIt) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "tubo";
  ASSERT_EQ(::mkfifo(ruta.c_str(), 0600), 0);
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no es un archivo." + FinDelPrograma);
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
              ruta.string() + ", línea 2: la línea es demasiado larga." + FinDelPrograma);
  }
}

TEST(WithoutLineEnd, TakesOneLineEnd) {
  EXPECT_EQ(WithoutLineEnd("a\r\n"), "a");
  EXPECT_EQ(WithoutLineEnd("a\n"), "a");
  EXPECT_EQ(WithoutLineEnd("a"), "a");
  EXPECT_EQ(WithoutLineEnd("a\n\n"), "a\n");
  EXPECT_EQ(WithoutLineEnd(""), "");
}

TEST(LineReader, ReportsMissingReadPermission) {
  const TempFolder carpeta;
  const fs::path ruta = carpeta.Path() / "f.txt";
  carpeta.Write("f.txt", "uno");
  ASSERT_EQ(::chmod(ruta.c_str(), 0), 0);
  const PlainUser usuario{carpeta};
  EXPECT_EQ(ErrorOf([&] { const LineReader archivo{ruta}; }),
            ruta.string() + ": no se puede leer el archivo." + FinDelPrograma);
}

// /proc/self/mem can be opened, but reading address 0 fails with EIO, as on a defective disk.
TEST(LineReader, ReportsTheLineOfAReadError) {
  LineReader archivo{"/proc/self/mem"};
  std::u16string linea;
  EXPECT_EQ(ErrorOf([&] { archivo.Next(linea); }),
            std::string{"/proc/self/mem, línea 1: no se puede leer el archivo."} + FinDelPrograma);
}

}  // namespace
}  // namespace tasca
