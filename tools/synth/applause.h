#pragma once
// A dozen people in a tavern who clap, each with hands, pace and distance of their own.
#include "tools/synth/clip.h"

namespace tasca::synth {

// 3.6 s. They begin one after the other, and stop one after the other.
Clip Applause();

}  // namespace tasca::synth
