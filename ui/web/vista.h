#pragma once
// What a page shows after a step, as JSON (docs/web.md).
#include <string>
#include <string_view>
#include <vector>

#include "match/session.h"
#include "ui/web/web_port.h"

namespace tasca {

// What a step has left for the page beside the state of the session.
struct Novedades {
  std::vector<Suceso> Sucesos{};
  std::vector<std::u16string> Dichos{};  // new lines of the transcript
  std::u16string Aviso{};
  std::vector<std::string_view> Archivos{};  // that were written
};

std::string JsonDeVista(const Session& sesion, const PreguntaAbierta* pregunta,
                        const Novedades& novedades);

}  // namespace tasca
