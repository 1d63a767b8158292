// A disk that takes a few bytes at a time: in a program that holds this, every write is short.
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>

// To the linker, this is the system's write().
extern "C" ssize_t ShortWrite(int descriptor, const void* desde,
                              std::size_t cuantos) __asm__("write");

extern "C" ssize_t ShortWrite(int descriptor, const void* desde, std::size_t cuantos) {
  constexpr std::size_t DeUnaVez = 5;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): syscall() has no other form.
  return ::syscall(SYS_write, descriptor, desde, std::min(cuantos, DeUnaVez));
}
