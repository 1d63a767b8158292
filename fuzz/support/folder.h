#pragma once
// A temporary folder for the files that the game reads.
#include <filesystem>
#include <string>
#include <string_view>

namespace tasca::fuzz {

// Creates a folder below TMPDIR and removes it with its files at the end. Every operation ends the
// program if it fails.
class Folder {
 public:
  Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder();

  const std::filesystem::path& Path() const { return path_; }

  // Writes or reads a whole file of the folder.
  void Write(std::string_view name, std::string_view bytes) const;
  std::string Read(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace tasca::fuzz
