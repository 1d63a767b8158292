// The messages about files that cannot be written.
#include "base/write_error.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "tests/support/errors.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

TEST(WriteError, GivesTheReasonWithAndWithoutTheClosingSentence) {
  const WriteError error{"una/f.txt", u"el disco falla."};
  EXPECT_EQ(Utf8(error.Reason()), "el disco falla.");
  EXPECT_EQ(Utf8(error.Sentence()),
            "No se ha podido escribir el archivo una/f.txt: el disco falla.");
  EXPECT_EQ(Utf8(error.Message()), Utf8(error.Sentence()) + FinDelPrograma);
  EXPECT_FALSE(error.Shown());
}

TEST(WriteError, DescribesErrno) {
  struct Caso {
    int Error;
    std::string Motivo;
  };
  const std::vector<Caso> casos{
      {EACCES, "no hay permiso para escribir."},
      {EPERM, "no hay permiso para escribir."},
      {EROFS, "el disco es de solo lectura."},
      {ENOSPC, "no queda sitio en el disco."},
      {EDQUOT, "no queda sitio en el disco."},
      {EFBIG, "no queda sitio en el disco."},
      {EISDIR, "hay otra cosa en su lugar."},
      {ENOENT, "no existe la carpeta."},
      {ENOTDIR, "no existe la carpeta."},
      {ELOOP, "sus enlaces no llevan a un archivo propio."},
      {EIO, "el disco falla."},
      {EXDEV, "error 18 del sistema."},
  };
  for (const Caso& caso : casos) {
    EXPECT_EQ(Utf8(WriteError("f.txt", caso.Error).Reason()), caso.Motivo);
  }
}

TEST(CheckWritten, ThrowsTheErrnoOfAFailedCall) {
  errno = EIO;
  EXPECT_EQ(ErrorOf([] { CheckWritten(true, "f.txt"); }), "");
  errno = EIO;
  EXPECT_EQ(
      ErrorOf([] { CheckWritten(false, "f.txt"); }),
      std::string{"No se ha podido escribir el archivo f.txt: el disco falla."} + FinDelPrograma);
}

}  // namespace
}  // namespace tasca::test
