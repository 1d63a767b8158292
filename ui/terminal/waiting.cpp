// Polls the keyboard and the media player.
#include "ui/terminal/waiting.h"

#include <poll.h>

#include <array>
#include <cerrno>

namespace tasca {

void WaitForLine(int teclado, MediaPlayer& mp1, const std::function<void()>& alTerminar) {
  std::array<pollfd, 2> sucesos{{{.fd = teclado, .events = POLLIN, .revents = 0},
                                 {.fd = mp1.Descriptor(), .events = POLLIN, .revents = 0}}};
  do {
    if (::poll(sucesos.data(), sucesos.size(), -1) < 0 && errno != EINTR) return;
    if (mp1.TakeEnd()) alTerminar();
  } while (sucesos[0].revents == 0);
}

}  // namespace tasca
