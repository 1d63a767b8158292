#pragma once
// A temporary folder.
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tasca::test {

// Creates a folder with a unique name. The destructor removes it with all its contents.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  const std::filesystem::path& Path() const { return ruta_; }

  // Writes or reads a whole file, byte for byte. `nombre` is relative to the folder. Fails the test
  // on an error.
  void Write(const std::string& nombre, std::string_view bytes) const;
  std::string Read(const std::string& nombre) const;
  // The names of the folder's entries, sorted.
  std::vector<std::string> Names() const;

 private:
  std::filesystem::path ruta_;
};

}  // namespace tasca::test
