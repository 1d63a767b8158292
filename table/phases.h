#pragma once
// The lances of a hand by number, and the phases that a hand goes through from one Enter to the
// next.

namespace tasca {

// The lances, by the number under which Apuesta and Declaracion keep their records.
enum class NumeroLance { Grande = 1, Pequena, Pares, Juego, Punto };

// The step that the next Enter runs. An opening and its answer are two steps: a bet that the
// opening leaves standing is answered on the same Enter.
enum class Fase {
  EmpezarMano = -1,
  Mus = 0,
  Grande,
  RespuestaGrande,
  Pequena,
  RespuestaPequena,
  DeclaracionPares,
  Pares,
  RespuestaPares,
  DeclaracionJuego,
  Juego,
  RespuestaJuego,
  Punto,
  RespuestaPunto,
  Cuenta,
};

}  // namespace tasca
