// tasca-sound: plays sounds for the game. Its standard input is a socket: orders arrive there and
// the ends of sounds are reported there. It exits when the game closes the connection.
#include <optional>
#include <string>

#include "ui/loudspeaker/game_link.h"
#include "ui/loudspeaker/loudspeaker.h"
#include "ui/loudspeaker/order.h"
#include "ui/options.h"

namespace {

class Player {
 public:
  // Handles one order or one timeout. False once the game has closed the connection.
  bool Step() {
    const tasca::Heard oido = tasca::WaitForGame(Wait());
    const tasca::Watchdog vigia;
    if (oido == tasca::Heard::Packet) return Attend();
    if (sonando_) {
      SayWhetherItHasEnded();
    } else if (oido == tasca::Heard::Nothing) {
      Rest();
    }
    return true;
  }

 private:
  // The timeout in milliseconds.
  int Wait() const {
    constexpr int comprobacion = 10;
    constexpr int ocio = 5000;
    constexpr int siempre = -1;
    if (sonando_) return comprobacion;
    return descansando_ ? siempre : ocio;
  }

  bool Attend() {
    const std::optional<std::string> paquete = tasca::ReceiveFromGame();
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
    if (!sonando_) tasca::SendToGame(std::to_string(numero_));
  }

  // Closes the device after five seconds without a sound: an open device uses processor time.
  void Rest() {
    altavoz_.Close();
    descansando_ = true;
    tasca::SendToGame(tasca::SonidoOcioso);
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
