// The connection to tasca-sound by a socket pair.
#include "ui/loudspeaker/connection.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace tasca {
namespace {

void CloseIfOpen(int& descriptor) {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

// Starts the program with `extremo` as its standard input. Returns 0 on failure.
pid_t Spawn(const std::filesystem::path& programa, int extremo) {
  posix_spawn_file_actions_t acciones;
  ::posix_spawn_file_actions_init(&acciones);
  ::posix_spawn_file_actions_adddup2(&acciones, extremo, STDIN_FILENO);
  for (const int salida : {STDOUT_FILENO, STDERR_FILENO}) {
    ::posix_spawn_file_actions_addopen(&acciones, salida, "/dev/null", O_WRONLY, 0);
  }
  ::posix_spawn_file_actions_addclosefrom_np(&acciones, STDERR_FILENO + 1);
  std::string nombre = programa.native();
  const std::array<char*, 2> argumentos{nombre.data(), nullptr};
  pid_t proceso = 0;
  const int error =
      ::posix_spawn(&proceso, nombre.c_str(), &acciones, nullptr, argumentos.data(), ::environ);
  ::posix_spawn_file_actions_destroy(&acciones);
  return error == 0 ? proceso : 0;
}

}  // namespace

Connection::Connection() : vigia_{::epoll_create1(EPOLL_CLOEXEC)} {}

Connection::~Connection() {
  Close();
  CloseIfOpen(vigia_);
}

bool Connection::Start(const std::filesystem::path& programa) {
  const int extremo = Open();
  proceso_ = Spawn(programa, extremo);
  ::close(extremo);
  return proceso_ != 0;
}

// A socket whose other end is closed becomes readable with an end of file.
void Connection::HangUp() { ::close(Open()); }

// Uses SIGKILL, because waiting for a program whose sound system hangs would block the game.
void Connection::Close() {
  CloseIfOpen(conexion_);
  const pid_t proceso = std::exchange(proceso_, 0);
  if (proceso == 0) return;
  ::kill(proceso, SIGKILL);
  while (::waitpid(proceso, nullptr, 0) < 0 && errno == EINTR) continue;
}

bool Connection::Send(const std::string& paquete) const {
  return IsOpen() &&
         ::send(conexion_, paquete.data(), paquete.size(), MSG_NOSIGNAL | MSG_DONTWAIT) >= 0;
}

// Any error but EAGAIN and EINTR counts as an end of file.
std::optional<std::string> Connection::Receive() const {
  if (!IsOpen()) return std::nullopt;
  std::array<char, 32> paquete{};
  const ssize_t bytes = ::recv(conexion_, paquete.data(), paquete.size(), MSG_DONTWAIT);
  if (bytes < 0 && (errno == EAGAIN || errno == EINTR)) return std::nullopt;
  return std::string{paquete.data(), static_cast<std::size_t>(std::max<ssize_t>(bytes, 0))};
}

int Connection::Open() {
  Close();
  std::array<int, 2> extremos{-1, -1};
  if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, extremos.data()) != 0) return -1;
  conexion_ = extremos[0];
  epoll_event suceso{.events = EPOLLIN, .data = {}};
  ::epoll_ctl(vigia_, EPOLL_CTL_ADD, conexion_, &suceso);
  return extremos[1];
}

}  // namespace tasca
