#pragma once
// A question that is open on the page, and what can come from the page while a step runs.
#include <optional>
#include <string>
#include <vector>

#include "table/dialog.h"
#include "table/port.h"
#include "ui/web/json.h"

namespace tasca {

enum class ClasePregunta { Aviso, SiNo, Texto, Envite };

// A question as values.
struct PreguntaAbierta {
  ClasePregunta Clase = ClasePregunta::Aviso;
  std::optional<Pregunta> Sobre = std::nullopt;  // set for SiNo and Texto
  std::u16string Titulo{};
  std::u16string Texto{};
  std::u16string PorDefecto{};       // for Texto
  bool Si = true;                    // for SiNo: the default button is Yes
  bool ConIcono = false;             // for SiNo
  Dialog Dialogo{};                  // for Envite
  Array<Integer, 1, 4> SusCartas{};  // the player's hand
};

enum class ClaseEntrada { Aceptado, Si, No, Texto, Cancelado, Boton, FinDeSonido };

// An answer to a question, or the end of a sound.
struct Entrada {
  ClaseEntrada Clase = ClaseEntrada::Aceptado;
  Integer Numero{};        // of the button, or the play state at the end of a sound
  std::u16string Texto{};  // for Texto
  TimeOfDay Hora{};        // when it came
};

// True if the answer is one that the question offers.
bool Vale(const PreguntaAbierta& pregunta, const Entrada& respuesta);

// Writes the question (docs/web.md).
void EscribirPregunta(Json& json, const PreguntaAbierta& pregunta);

}  // namespace tasca
