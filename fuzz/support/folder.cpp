// The temporary folder and its files. Each run rewrites the same file, which takes few system
// calls.
#include "fuzz/support/folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "fuzz/support/require.h"

namespace tasca::fuzz {
namespace fs = std::filesystem;

Folder::Folder() {
  std::string name = (fs::temp_directory_path() / "tasca-fuzz-XXXXXX").string();
  Require(::mkdtemp(name.data()) != nullptr, "a folder can be made");
  path_ = name;
}

Folder::~Folder() {
  std::error_code error;
  fs::remove_all(path_, error);
}

void Folder::Write(std::string_view name, std::string_view bytes) const {
  std::ofstream file{path_ / name, std::ios::binary};
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  Require(file.good(), "a file can be written");
}

std::string Folder::Read(std::string_view name) const {
  std::ifstream file{path_ / name, std::ios::binary};
  Require(file.is_open(), "a file can be read");
  return {std::istreambuf_iterator<char>{file}, {}};
}

}  // namespace tasca::fuzz
