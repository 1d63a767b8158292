#pragma once
// The slate: the state of each lance of the hand.
#include <vector>

#include "scene/scene.h"

namespace tasca {

// The lances in order of play. Between two hands they show the last hand as long as its cards are
// face up; otherwise all lances are PorJugar.
std::vector<CeldaPizarra> PizarraDe(const Table& t, Momento momento);

// True if an accepted órdago has ended the hand before `lance` was played.
bool AcaboAntesDe(const Table& t, NumeroLance lance);

}  // namespace tasca
