// tasca-sound: plays what the game orders at its standard input, and says there when a sound has
// ended. The game starts it and lets it go; it ends by itself when the game is gone.
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <optional>
#include <string>

#include "ui/options.h"
#include "ui/loudspeaker/loudspeaker.h"
#include "ui/loudspeaker/order.h"

namespace {

void Say(std::string_view paquete) {
  ::send(STDIN_FILENO, paquete.data(), paquete.size(), MSG_NOSIGNAL);
}

// Nothing once the game is gone.
std::optional<std::string> Receive() {
  std::array<char, 8192> paquete{};
  const ssize_t bytes = ::recv(STDIN_FILENO, paquete.data(), paquete.size(), 0);
  if (bytes <= 0) return std::nullopt;
  return std::string{paquete.data(), static_cast<std::size_t>(bytes)};
}

// A sound system that does not answer ends this program, and with it the sound it was to play.
class Patience {
 public:
  Patience() { ::alarm(10); }
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;
  ~Patience() { ::alarm(0); }
};

class Player {
 public:
  // One order or one wait; false when the game is gone.
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
