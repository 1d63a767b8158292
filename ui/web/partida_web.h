#pragma once
// The kept match of a page as bytes: the match before its last step, its chronicle, and the step
// with the answers given so far if a question of it is open.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/web/pregunta.h"

namespace tasca {

// A key that was pressed at the table.
struct PasoAbierto {
  Integer KeyCode{};
  Integer Shift{};
  TimeOfDay Hora{};
  std::vector<Entrada> Guion{};
};

struct PartidaWeb {
  std::string Partida{};     // as keep/partida_guardada.h writes it
  std::u16string Cronica{};  // as Cronica::Escrito
  std::optional<PasoAbierto> Paso = std::nullopt;
};

std::string EscribirPartidaWeb(const PartidaWeb& partida);
// Nothing if the bytes are damaged or of another format. Does not look into Partida.
std::optional<PartidaWeb> LeerPartidaWeb(std::string_view bytes);

}  // namespace tasca
