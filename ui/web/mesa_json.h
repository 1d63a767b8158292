#pragma once
// The drawn table and the window's parts as JSON (docs/web.md).
#include <string>

#include "scene/scene.h"
#include "ui/mesa/box_place.h"
#include "ui/mesa/layout.h"
#include "ui/mesa/spoken.h"
#include "ui/mesa/window_layout.h"

namespace tasca {

std::string JsonDeLamina(const Lamina& lamina, Turno toca);
// The drawn score.
std::string JsonDePiezas(const std::vector<Pieza>& piezas);
std::string JsonDePartes(const PartesVentana& partes);
std::string JsonDeFrases(const std::vector<Frase>& frases);
std::string JsonDeRect(const Rect& donde);

}  // namespace tasca
