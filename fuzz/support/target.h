#pragma once
// What every target defines: one run, with the bytes that the fuzzer has thought of. A run must not
// depend on the runs before it.
#include <string_view>

namespace tasca::fuzz {

void Run(std::string_view input);

}  // namespace tasca::fuzz
