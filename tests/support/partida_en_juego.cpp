// Starts the matches.
#include "tests/support/partida_en_juego.h"

#include <filesystem>

#include "base/keys.h"

namespace tasca::test {

PartidaEnJuego::PartidaEnJuego(unsigned semilla) : Jugador{semilla} {
  std::filesystem::copy(TASCA_SOURCE_DIR "/tests/traces/folder/Jugadores.dat",
                        Carpeta.Path() / "Jugadores.dat");
  const int numero = static_cast<int>(semilla);
  Jugador.Hora = {.Hora = numero % 24, .Minuto = numero % 60, .Segundo = numero % 59};
  Jugador.OtraPartida = true;
  Mesa->Carpeta = Carpeta.Path();
  Mesa->NombreJugador = u"Ana";
  Mesa->Personajes[0].Nombre = Mesa->NombreJugador;
  Mesa->PersonajeAsiento = {0, 3, 4, 5};
  Mesa->EstiloDirecto = semilla % 2 == 0;
  Mesa->UsarNombres = semilla % 3 != 0;
  Mesa->UsarExpresiones = true;
  Form_Load(Juego);
}

void PartidaEnJuego::Paso() {
  Jugador.NewStep();
  Integer enter = TeclaEnter;
  Text1_KeyDown(Juego, enter, 0);
}

std::unique_ptr<Table> SoloLosSentados(const Table& t) {
  auto copia = std::make_unique<Table>(t);
  for (int numero = 3; numero <= MaximoPersonajes; ++numero) {
    const auto& asientos = t.PersonajeAsiento;
    if (numero == asientos[1] || numero == asientos[2] || numero == asientos[3]) continue;
    copia->Personajes[numero] = {};
    copia->Mensajes[numero] = {};
  }
  return copia;
}

}  // namespace tasca::test
