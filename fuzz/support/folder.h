#pragma once
// A folder of this process for the files that the game reads, made where TMPDIR says and removed at
// the end.
#include <filesystem>
#include <string>
#include <string_view>

namespace tasca::fuzz {

class Folder {
 public:
  Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder();

  const std::filesystem::path& Path() const { return path_; }

  // Writes a file of the folder, byte for byte; reads one whole.
  void Write(std::string_view name, std::string_view bytes) const;
  std::string Read(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace tasca::fuzz
