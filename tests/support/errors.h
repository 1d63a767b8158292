#pragma once
// The messages of run-time errors.
#include <functional>
#include <string>

namespace tasca::test {

// The last sentence of every such message, with the blank before it.
inline constexpr auto FinDelPrograma = " El programa va a terminar su ejecución.";

// Runs `hacer` and returns the message of the RunTimeError that it throws, or "" if it throws none.
// Other exceptions pass through.
std::string ErrorOf(const std::function<void()>& hacer);

}  // namespace tasca::test
