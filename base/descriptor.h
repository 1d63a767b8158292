#pragma once
// An open file as the system numbers it. The calls retry on EINTR; where they fail, errno tells
// why.
#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tasca {

// Closed at the end of its scope. A close() that fails loses nothing that was flushed before.
class Descriptor {
 public:
  // As open() takes them.
  Descriptor(const std::filesystem::path& archivo, int modo);
  // Creates a file that nobody else has created, readable by the user alone: `principio`, six
  // letters or digits at random, `final`. `ruta` becomes its path.
  Descriptor(std::string_view principio, std::string_view final, std::string& ruta);
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  bool IsOpen() const { return numero_ >= 0; }
  // Locks the file against every other Lock() until this descriptor is closed, also by the end of
  // the program. Does not wait for another's lock: that is EWOULDBLOCK.
  bool Lock() const;
  std::optional<struct stat> Status() const;
  bool SetPermissions(mode_t permisos) const;
  bool SetOwner(uid_t dueno, gid_t grupo) const;
  // The whole content, from where the descriptor stands.
  std::optional<std::string> Read() const;
  bool Write(std::string_view contenido) const;
  // Waits until the file, or the folder, is on the disk.
  bool Flush() const;

 private:
  int numero_;
};

}  // namespace tasca
