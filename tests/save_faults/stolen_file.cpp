// Replaces flock() by one that simulates a concurrent save: at every second call the file has been
// removed, and a leftover has been replaced by another file of the same name.
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

// Links as flock().
extern "C" int LockTooLate(int descriptor, int operacion) __asm__("flock");

extern "C" int LockTooLate(int descriptor, int operacion) {
  static int veces = 0;
  if (++veces % 2 == 1) {
    std::error_code error;
    const std::filesystem::path ruta =
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), error);
    const bool eraNuevo = std::filesystem::file_size(ruta, error) == 0;
    std::filesystem::remove(ruta, error);
    if (!eraNuevo) std::ofstream{ruta} << "de otro";
  }
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): syscall() has no other form.
  return static_cast<int>(::syscall(SYS_flock, descriptor, operacion));
}
