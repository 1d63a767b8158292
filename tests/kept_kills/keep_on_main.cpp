// keep-on FOLDER STATE: goes on with the match that is kept in STATE, or starts one with the files
// of FOLDER, and plays it to its end. The answers depend on the table only. Prints a line for each
// state of the match: "from" or "new" for the first, then "step", with the checksums of the match
// and of its chronicle; and "end". Exit status: 0 at the end of the match, 1 after anything else.
#include <functional>
#include <iostream>
#include <memory>

#include "base/keys.h"
#include "keep/partida_guardada.h"
#include "match/session.h"
#include "tests/support/state_player.h"

namespace {

using tasca::Situacion;

// The checksum follows the format's name, which ends the first line.
std::string ChecksumOf(const tasca::Session& sesion) {
  const std::string bytes = tasca::EscribirPartida(sesion.Mesa(), sesion.Generador());
  constexpr std::string_view digits = "0123456789abcdef";
  std::string hex;
  for (const char byte : bytes.substr(bytes.find('\n') + 1, 8)) {
    const auto code = static_cast<unsigned char>(byte);
    hex += digits[code >> 4U];
    hex += digits[code & 15U];
  }
  return hex;
}

void Tell(const char* what, const tasca::Session& sesion) {
  const std::size_t cronica = std::hash<std::u16string>{}(sesion.Relato().Texto());
  std::cout << what << ' ' << ChecksumOf(sesion) << '/' << cronica << std::endl;
}

Situacion Start(tasca::Session& sesion) {
  Situacion situacion = sesion.Retomar();
  if (situacion == Situacion::EnLaMesa) {
    Tell("from", sesion);
    return situacion;
  }
  sesion.AbrirInicio();
  situacion = sesion.Aceptar();
  if (situacion == Situacion::EnLaMesa) Tell("new", sesion);
  return situacion;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 1;
  tasca::test::StatePlayer jugador;
  jugador.Hora = {.Hora = 21, .Minuto = 4, .Segundo = 37};
  const auto sesion = std::make_unique<tasca::Session>(argv[1], jugador, argv[2]);
  Situacion situacion = Start(*sesion);
  while (situacion == Situacion::EnLaMesa) {
    jugador.NewStep();
    tasca::Integer enter = tasca::TeclaEnter;
    situacion = sesion->Tecla(enter, 0);
    if (situacion == Situacion::EnLaMesa) Tell("step", *sesion);
  }
  if (!sesion->HaAcabado() || sesion->Final().Estado != 0) return 1;
  std::cout << "end" << std::endl;
  return 0;
}
