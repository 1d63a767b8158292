// tasca-sound: plays sounds for the game. Its standard input is a socket: orders arrive there and
// the ends of sounds are reported there. It exits when the game closes the connection.
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <string>

#include "ui/loudspeaker/loudspeaker.h"
#include "ui/loudspeaker/order.h"
#include "ui/options.h"

namespace {

void Say(std::string_view paquete) {
  ::send(STDIN_FILENO, paquete.data(), paquete.size(), MSG_NOSIGNAL);
}

// Nothing once the game has closed the connection.
std::optional<std::string> Receive() {
  std::array<char, 8192> paquete{};
  const ssize_t bytes = ::recv(STDIN_FILENO, paquete.data(), paquete.size(), 0);
  if (bytes <= 0) return std::nullopt;
  return std::string{paquete.data(), static_cast<std::size_t>(bytes)};
}

// Watchdog: SIGALRM ends the program if a call into the sound system hangs for ten seconds.
class Patience {
 public:
  Patience() { ::alarm(10); }
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;
  ~Patience() { ::alarm(0); }
};

class Player {
 public:
  // Handles one order or one timeout. False once the game has closed the connection.
  bool Step() {
    pollfd entrada{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    const int sucesos = ::poll(&entrada, 1, Wait());
    const Patience paciencia;
    if (sucesos > 0) return Attend();
    if (sonando_) {
      SayWhetherItHasEnded();
    } else if (sucesos == 0) {
      Rest();
    }
    return true;
  }

 private:
  // The poll timeout in milliseconds.
  int Wait() const {
    constexpr int comprobacion = 10;
    constexpr int ocio = 5000;
    constexpr int siempre = -1;
    if (sonando_) return comprobacion;
    return descansando_ ? siempre : ocio;
  }

  bool Attend() {
    const std::optional<std::string> paquete = Receive();
    if (!paquete) return false;
    const std::optional<tasca::SoundOrder> orden = tasca::FromPacket(*paquete);
    if (!orden) return true;
    numero_ = orden->Numero;
    descansando_ = false;
    const auto& [veces, balance, volumen] = orden->Ajustes;
    altavoz_.Play(orden->Archivo, veces, tasca::GainsFor(balance, volumen));
    SayWhetherItHasEnded();
    return true;
  }

  void SayWhetherItHasEnded() {
    sonando_ = altavoz_.Playing();
    if (!sonando_) Say(std::to_string(numero_));
  }

  // Closes the device after five seconds without a sound: an open device uses processor time.
  void Rest() {
    altavoz_.Close();
    descansando_ = true;
    Say(tasca::SonidoOcioso);
  }

  tasca::Loudspeaker altavoz_;
  int numero_ = 0;
  bool sonando_ = false;
  bool descansando_ = true;
};

constexpr tasca::ProgramOptions Programa{
    .Name = "tasca-sound",
    .Usage = "",
    .About = "Plays what the game orders at its standard input; the game starts it by itself.\n",
    .Speaks = tasca::Language::English};

}  // namespace

int main(int argc, char** argv) {
  if (const auto estado = tasca::TakeOptions(Programa, argc, argv)) return *estado;
  Player reproductor;
  while (reproductor.Step()) continue;
}
