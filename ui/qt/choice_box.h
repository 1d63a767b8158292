#pragma once
// The editor's box in which characters of another file are chosen.
#include <QWidget>
#include <vector>

#include "characters/editor.h"

namespace tasca {

// Shows the characters with their stories. A click and the space bar choose one or undo the choice.
// At first the positions `elegidos` are chosen. Blocks until it is answered. Returns the chosen
// positions in ascending order; none if cancelled.
std::vector<int> ChooseCharacters(QWidget* padre, const std::vector<Candidato>& candidatos,
                                  const std::vector<int>& elegidos);

}  // namespace tasca
