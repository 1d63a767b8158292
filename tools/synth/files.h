#pragma once
// Finished sounds as files, one side, 16 bits.
#include <string>

#include "tools/synth/clip.h"

namespace tasca::synth {

// The bytes of the files.
std::string ToWav(const Clip& clip);
std::string ToMp3(const Clip& clip);

}  // namespace tasca::synth
