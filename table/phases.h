#pragma once
// The numbers of the lances, and the phases of a hand. Every Enter runs one phase.

namespace tasca {

// The lances in the order of play. The numbers are the indexes of Apuesta and Declaracion.
enum class NumeroLance { Grande = 1, Pequena, Pares, Juego, Punto };

// The step that the next Enter runs, -1 to 13. The opening of a lance and its answer (Respuesta...)
// are two steps; the same Enter runs the answer if the opening has left an unanswered bet.
enum class Fase {
  EmpezarMano = -1,  // also the phase between two hands
  Mus = 0,           // repeated until a seat refuses mus
  Grande,
  RespuestaGrande,
  Pequena,
  RespuestaPequena,
  DeclaracionPares,  // every seat says whether it has pares
  Pares,
  RespuestaPares,
  DeclaracionJuego,  // every seat says whether it has juego
  Juego,
  RespuestaJuego,
  Punto,  // in place of Juego if nobody has juego
  RespuestaPunto,
  Cuenta,  // the count of the hand
};

}  // namespace tasca
