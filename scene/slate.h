#pragma once
// The slate with the lances of the hand.
#include <vector>

#include "scene/scene.h"

namespace tasca {

// The lances as they stand. Between two hands the slate tells of the last one only while its hands
// lie open: after that a new hand may have been dealt already.
std::vector<CeldaPizarra> PizarraDe(const Table& t, Momento momento);

// True when an accepted órdago has ended the hand before that lance.
bool AcaboAntesDe(const Table& t, NumeroLance lance);

}  // namespace tasca
