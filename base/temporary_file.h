#pragma once
// The temporary file of a save. It is created in the folder of the destination file and renamed
// over it when it is complete.
//
// Several programs may save in one folder at once. Each save creates its own temporary file with
// O_EXCL and holds an flock on it until it has renamed or removed it. Only the holder of the lock
// renames or removes a temporary file, so the file of a running save is safe. The kernel releases
// the lock when the process dies: an unlocked temporary file is a leftover, and the next save of
// the same destination removes it.
// Between creation and flock another save may take the new file for a leftover. A writer that fails
// to get the lock, or whose file is already unlinked, creates another file.
// On a file system without flock saves work, but leftovers stay.
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/descriptor.h"

namespace tasca {

class TemporaryFile {
 public:
  // Removes the leftovers of `destino` and creates an empty, locked temporary file for it. Throws
  // WriteError on failure.
  explicit TemporaryFile(std::filesystem::path destino);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  // Removes the file unless TakeItsPlace() has renamed it.
  ~TemporaryFile();

  // Writes and flushes the file. It gets the permissions of the file described by `anterior`, and
  // its owner and group as far as the user may change them; without `anterior`, mode 0644. Throws
  // WriteError on failure.
  void Write(std::string_view contenido, const std::optional<FileStatus>& anterior) const;

  // Renames the file over `destino` and flushes the folder. Throws WriteError on failure.
  void TakeItsPlace();

 private:
  bool IsMine() const;
  bool GiveTo(const FileStatus& anterior) const;

  std::filesystem::path destino_;
  std::string ruta_;
  std::optional<Descriptor> archivo_;
  bool colocado_ = false;
};

}  // namespace tasca
