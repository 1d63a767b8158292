// Creates and removes the folder.
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tasca::test {
namespace fs = std::filesystem;

TempFolder::TempFolder() {
  std::string plantilla = (fs::temp_directory_path() / "tasca-XXXXXX").string();
  EXPECT_NE(::mkdtemp(plantilla.data()), nullptr);
  ruta_ = plantilla;
}

TempFolder::~TempFolder() {
  std::error_code error;
  fs::remove_all(ruta_, error);
}

void TempFolder::Write(const std::string& nombre, std::string_view bytes) const {
  std::ofstream archivo{ruta_ / nombre, std::ios::binary};
  archivo << bytes;
  archivo.close();
  EXPECT_TRUE(archivo) << nombre;
}

std::string TempFolder::Read(const std::string& nombre) const {
  std::ifstream archivo{ruta_ / nombre, std::ios::binary};
  EXPECT_TRUE(archivo) << nombre;
  return {std::istreambuf_iterator<char>{archivo}, {}};
}

std::vector<std::string> TempFolder::Names() const {
  std::vector<std::string> nombres;
  for (const auto& entrada : fs::directory_iterator{ruta_}) {
    nombres.push_back(entrada.path().filename().string());
  }
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

}  // namespace tasca::test
