// The link to the game by a socket, which is standard input, and the time limit by SIGALRM.
#include "ui/loudspeaker/game_link.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace tasca {

Heard WaitForGame(int milisegundos) {
  pollfd entrada{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
  const int sucesos = ::poll(&entrada, 1, milisegundos);
  if (sucesos > 0) return Heard::Packet;
  return sucesos == 0 ? Heard::Nothing : Heard::Interrupted;
}

std::optional<std::string> ReceiveFromGame() {
  std::array<char, 8192> paquete{};
  const ssize_t bytes = ::recv(STDIN_FILENO, paquete.data(), paquete.size(), 0);
  if (bytes <= 0) return std::nullopt;
  return std::string{paquete.data(), static_cast<std::size_t>(bytes)};
}

void SendToGame(std::string_view paquete) {
  ::send(STDIN_FILENO, paquete.data(), paquete.size(), MSG_NOSIGNAL);
}

Watchdog::Watchdog() { ::alarm(10); }

Watchdog::~Watchdog() { ::alarm(0); }

}  // namespace tasca
