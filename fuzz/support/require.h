#pragma once
// What a target demands of the game.
#include <string_view>

namespace tasca::fuzz {

// Tells `what` and ends the program when something does not hold: the input is a finding.
void Require(bool holds, std::string_view what);

}  // namespace tasca::fuzz
