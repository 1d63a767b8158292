// The terminal by the system calls of POSIX.
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "ui/terminal/tty.h"

namespace tasca {

bool InputIsTerminal() { return ::isatty(STDIN_FILENO) != 0; }

bool OutputIsTerminal() { return ::isatty(STDOUT_FILENO) != 0; }

std::size_t TerminalWidth() {
  constexpr std::size_t corriente = 80;
  if (!OutputIsTerminal()) return 0;
  winsize medidas{};
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): ioctl() has no other form.
  if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &medidas) != 0) return corriente;
  return medidas.ws_col > 0 ? medidas.ws_col : corriente;
}

int InputDescriptor() { return STDIN_FILENO; }

void WaitForLine(int teclado, MediaPlayer& mp1, const std::function<void()>& alTerminar) {
  std::array<pollfd, 2> sucesos{{{.fd = teclado, .events = POLLIN, .revents = 0},
                                 {.fd = mp1.Descriptor(), .events = POLLIN, .revents = 0}}};
  do {
    if (::poll(sucesos.data(), sucesos.size(), -1) < 0 && errno != EINTR) return;
    if (mp1.TakeEnd()) alTerminar();
  } while (sucesos[0].revents == 0);
}

}  // namespace tasca
