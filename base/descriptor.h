#pragma once
// A POSIX file descriptor. The calls retry on EINTR; on failure they set errno.
#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tasca {

// Owns the descriptor and closes it in the destructor. Errors of close() are ignored: Flush()
// reports write errors.
class Descriptor {
 public:
  // Opens `archivo` with the flags of open(); O_CLOEXEC is added. Check with IsOpen().
  Descriptor(const std::filesystem::path& archivo, int modo);
  // Creates a new file with mode 0600 for reading and writing. Its path is `principio`, six random
  // letters or digits and `final`; it is stored in `ruta`.
  Descriptor(std::string_view principio, std::string_view final, std::string& ruta);
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  // False if opening or creating the file failed.
  bool IsOpen() const { return numero_ >= 0; }
  // Takes an exclusive flock without blocking; fails with EWOULDBLOCK if another descriptor holds
  // it. Closing the descriptor releases the lock, also when the process dies.
  bool Lock() const;
  // fstat(); nothing on failure.
  std::optional<struct stat> Status() const;
  // fchmod().
  bool SetPermissions(mode_t permisos) const;
  // fchown(); -1 leaves the owner or the group as it is.
  bool SetOwner(uid_t dueno, gid_t grupo) const;
  // Reads from the current offset to the end of the file; nothing on failure.
  std::optional<std::string> Read() const;
  // Writes all of `contenido`; on failure a part of it may have been written.
  bool Write(std::string_view contenido) const;
  // fsync() of the file or folder.
  bool Flush() const;

 private:
  int numero_;
};

}  // namespace tasca
