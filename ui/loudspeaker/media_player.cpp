// The game's end of the connection to tasca-sound.
#include "ui/loudspeaker/media_player.h"

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

#include "ui/loudspeaker/order.h"

namespace tasca {
namespace {

constexpr const char* Programa = "tasca-sound";

void CloseIfOpen(int& descriptor) {
  if (descriptor >= 0) ::close(descriptor);
  descriptor = -1;
}

// Starts the program with `extremo` as its standard input. Returns 0 on failure. Its output goes to
// /dev/null, because the sound libraries print diagnostics.
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

MediaPlayer::MediaPlayer() : vigia_{::epoll_create1(EPOLL_CLOEXEC)} {}

MediaPlayer::~MediaPlayer() {
  Disconnect();
  CloseIfOpen(vigia_);
}

void MediaPlayer::Open(const std::filesystem::path& carpeta, std::u16string_view archivo,
                       const MediaPlayerSettings& ajustes) {
  ++numero_;
  pendiente_ = true;
  const std::string orden =
      ToPacket({.Numero = numero_, .Ajustes = ajustes, .Archivo = carpeta / archivo});
  if (encendido_ && (Send(orden) || (Start(carpeta / Programa) && Send(orden)))) return;
  EndSoon();
}

void MediaPlayer::Stop() {
  ++numero_;
  pendiente_ = false;
  Send(ToPacket({.Numero = numero_, .Ajustes = {.Veces = 0}, .Archivo = {}}));
}

void MediaPlayer::TurnOn(bool encendido) {
  if (std::exchange(encendido_, encendido) == encendido || encendido) return;
  if (pendiente_) return EndSoon();
  Disconnect();
}

bool MediaPlayer::TakeEnd() {
  const bool hubo = pendiente_;
  std::array<char, 32> paquete{};
  while (conexion_ >= 0) {
    const ssize_t bytes = ::recv(conexion_, paquete.data(), paquete.size(), MSG_DONTWAIT);
    if (bytes < 0 && (errno == EAGAIN || errno == EINTR)) break;
    Hear({paquete.data(), static_cast<std::size_t>(std::max<ssize_t>(bytes, 0))});
  }
  return hubo && !pendiente_;
}

// An empty packet means that the connection has been closed.
void MediaPlayer::Hear(std::string_view paquete) {
  if (paquete.empty() || paquete == std::to_string(numero_)) pendiente_ = false;
  if (paquete.empty() || (paquete == SonidoOcioso && !pendiente_)) Disconnect();
}

bool MediaPlayer::Start(const std::filesystem::path& programa) {
  const int extremo = Connect();
  proceso_ = Spawn(programa, extremo);
  ::close(extremo);
  return proceso_ != 0;
}

// A socket whose other end is closed becomes readable with an end of file.
void MediaPlayer::EndSoon() { ::close(Connect()); }

int MediaPlayer::Connect() {
  Disconnect();
  std::array<int, 2> extremos{-1, -1};
  if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, extremos.data()) != 0) return -1;
  conexion_ = extremos[0];
  epoll_event suceso{.events = EPOLLIN, .data = {}};
  ::epoll_ctl(vigia_, EPOLL_CTL_ADD, conexion_, &suceso);
  return extremos[1];
}

// Uses SIGKILL, because waiting for a program whose sound system hangs would block the game.
void MediaPlayer::Disconnect() {
  CloseIfOpen(conexion_);
  const pid_t proceso = std::exchange(proceso_, 0);
  if (proceso == 0) return;
  ::kill(proceso, SIGKILL);
  while (::waitpid(proceso, nullptr, 0) < 0 && errno == EINTR) continue;
}

bool MediaPlayer::Send(const std::string& paquete) const {
  return conexion_ >= 0 &&
         ::send(conexion_, paquete.data(), paquete.size(), MSG_NOSIGNAL | MSG_DONTWAIT) >= 0;
}

}  // namespace tasca
