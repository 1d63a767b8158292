// Another save that takes every second new file for a leftover: in a program that holds this, the
// file is gone when its lock is had.
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <string>

// To the linker, this is the system's flock().
extern "C" int LockTooLate(int descriptor, int operacion) __asm__("flock");

extern "C" int LockTooLate(int descriptor, int operacion) {
  static int veces = 0;
  if (++veces % 2 == 1) {
    std::error_code error;
    const std::filesystem::path ruta =
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), error);
    ::unlink(ruta.c_str());
  }
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): syscall() has no other form.
  return static_cast<int>(::syscall(SYS_flock, descriptor, operacion));
}
