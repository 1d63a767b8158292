#pragma once
// A folder of its own for a test's files, removed at its end.
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tasca::test {

class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  const std::filesystem::path& Path() const { return ruta_; }

  // Writes a file of the folder, byte for byte; reads one whole.
  void Write(const std::string& nombre, std::string_view bytes) const;
  std::string Read(const std::string& nombre) const;
  // The names of all that lies in the folder, sorted.
  std::vector<std::string> Names() const;

 private:
  std::filesystem::path ruta_;
};

}  // namespace tasca::test
