#pragma once
// The assertion of the fuzzing targets.
#include <string_view>

namespace tasca::fuzz {

// Prints `what` and aborts if `holds` is false, so that the fuzzer reports the input as a finding.
void Require(bool holds, std::string_view what);

}  // namespace tasca::fuzz
