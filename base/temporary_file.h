#pragma once
// The temporary file of a save: what is to become another file, beside it until then.
//
// Any number of programs may save in one folder at once. Each save creates a temporary file of its
// own with O_EXCL, and holds an flock on it until it has renamed or removed it. Whoever renames or
// removes a temporary file holds its lock, so nobody touches a living writer's file. The kernel
// releases the lock when its holder dies: a temporary file whose lock is free is a leftover, and
// the next save of the same file removes it.
// A new file has no lock for a moment, in which another save may take it for a leftover. A writer
// that does not get the lock, or gets it when the name is already gone, creates another file.
// Where the disk has no locks, nobody gets one: saves go on, and leftovers stay.
#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/descriptor.h"

namespace tasca {

class TemporaryFile {
 public:
  // Removes the leftovers of `destino`, and creates a new file beside it. Throws WriteError.
  explicit TemporaryFile(std::filesystem::path destino);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  // Removes the file unless it has taken its place.
  ~TemporaryFile();

  // Writes and flushes the file. It gets the permissions of the one that was there before, and its
  // owner and group as far as the user may give files away. Throws WriteError.
  void Write(std::string_view contenido, const std::optional<struct stat>& anterior) const;

  // Puts the file in the place of `destino`, and flushes the folder. Throws WriteError.
  void TakeItsPlace();

 private:
  bool IsMine() const;
  bool GiveTo(const struct stat& anterior) const;

  std::filesystem::path destino_;
  std::string ruta_;
  std::optional<Descriptor> archivo_;
  bool colocado_ = false;
};

}  // namespace tasca
