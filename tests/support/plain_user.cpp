// Changes the user id and restores it.
#include "tests/support/plain_user.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <vector>

namespace tasca::test {
namespace fs = std::filesystem;

namespace {

constexpr uid_t Nadie = 65534;

}  // namespace

PlainUser::PlainUser(const TempFolder& carpeta) : eraRoot_{::geteuid() == 0} {
  if (!eraRoot_) return;
  std::vector<fs::path> rutas{carpeta.Path()};
  for (const auto& entrada : fs::directory_iterator{carpeta.Path()}) rutas.push_back(entrada);
  bool hecho = true;
  for (const fs::path& ruta : rutas) hecho = ::lchown(ruta.c_str(), Nadie, Nadie) == 0 && hecho;
  hecho = ::setresuid(Nadie, Nadie, 0) == 0 && hecho;
  EXPECT_TRUE(hecho);
}

PlainUser::~PlainUser() {
  const bool hecho = !eraRoot_ || ::setresuid(0, 0, 0) == 0;
  EXPECT_TRUE(hecho);
}

}  // namespace tasca::test
