#pragma once
// Encoding of finished clips: mono, 16 bits.
#include <string>

#include "tools/synth/clip.h"

namespace tasca::synth {

// The content of a file. Both require samples from -1 to 1, as Finish leaves them.
std::string ToWav(const Clip& clip);
// Throws std::runtime_error if the encoder fails.
std::string ToMp3(const Clip& clip);

}  // namespace tasca::synth
