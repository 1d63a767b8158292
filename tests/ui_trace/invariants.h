#pragma once
// What holds at the table whenever the game waits for a key.
#include <nlohmann/json_fwd.hpp>
#include <string>

namespace tasca::test {

// What is wrong with a state; "" when nothing is.
std::string FaultIn(const nlohmann::ordered_json& state);

// What cannot have come of one move; "" when all can.
std::string FaultBetween(const nlohmann::ordered_json& before, const nlohmann::ordered_json& after);

}  // namespace tasca::test
