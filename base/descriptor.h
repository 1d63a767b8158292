#pragma once
// Open files, and what the system knows about files. The platform's code is in one source,
// descriptor_posix.cpp. The calls retry on EINTR; on failure they set errno.
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tasca {

// What the system stores about a file.
struct FileStatus {
  std::uint64_t Inode = 0;
  std::uint64_t Size = 0;   // in bytes
  std::uint64_t Links = 0;  // 0 once the last name has been removed
  bool IsRegular = false;
  unsigned Permissions = 0;  // the twelve bits of the mode
  unsigned Owner = 0;
  unsigned Group = 0;
};

// How a file is opened.
enum class OpenMode {
  Read,
  // Fails for a symbolic link, and does not block on a FIFO.
  ReadItself,
  ReadWrite,
  // ReadWrite that creates a missing file with mode 0600.
  ReadWriteOrCreate,
  Folder,
};

// Owns the descriptor and closes it in the destructor. Errors of close() are ignored: Flush()
// reports write errors.
class Descriptor {
 public:
  // Opens a file, which must exist except for ReadWriteOrCreate. Check with IsOpen(). A program
  // started later does not inherit it.
  Descriptor(const std::filesystem::path& archivo, OpenMode modo);
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
  // Nothing on failure.
  std::optional<FileStatus> Status() const;
  bool SetPermissions(unsigned permisos) const;
  // Fails with EPERM if the user may not give the file away.
  bool SetOwner(unsigned dueno, unsigned grupo) const;
  // Fails with EPERM if the user does not belong to the group.
  bool SetGroup(unsigned grupo) const;
  // Reads from the current offset to the end of the file; nothing on failure.
  std::optional<std::string> Read() const;
  // Writes all of `contenido`; on failure a part of it may have been written.
  bool Write(std::string_view contenido) const;
  // Waits until the file or folder is on the disk.
  bool Flush() const;

 private:
  int numero_;
};

// The file at the end of all symbolic links; nothing on failure.
std::optional<FileStatus> StatusOf(const std::filesystem::path& archivo);
// The file itself, which may be a symbolic link; nothing on failure.
std::optional<FileStatus> StatusOfLink(const std::filesystem::path& archivo);
// Whether the user may write the file. False also if there is none.
bool MayWrite(const std::filesystem::path& archivo);
// Creates the folder and the missing folders above it, with mode 0700. True if it is there already.
// On failure errno is set.
bool MakeFolders(const std::filesystem::path& carpeta);
// Removes a name of a file. Ignores errors.
void Unlink(const std::filesystem::path& archivo);

}  // namespace tasca
