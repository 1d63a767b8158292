#pragma once
// The function that every fuzzing target defines.
#include <string_view>

namespace tasca::fuzz {

// Runs the target once with the fuzzer's bytes. Must not depend on earlier runs.
void Run(std::string_view input);

}  // namespace tasca::fuzz
