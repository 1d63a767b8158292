#pragma once
// The applause of a dozen people in a tavern. Pitch, tempo and distance differ for each.
#include "tools/synth/clip.h"

namespace tasca::synth {

// 3.6 seconds. The people start and stop at different moments.
Clip Applause();

}  // namespace tasca::synth
