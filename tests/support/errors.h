#pragma once
// What a piece of the program says when it ends the program.
#include <functional>
#include <string>

namespace tasca::test {

// The sentence that every such message ends with.
inline constexpr auto FinDelPrograma = " El programa va a terminar su ejecución.";

// The message of the RunTimeError that `hacer` throws; "" when it throws none.
std::string ErrorOf(const std::function<void()>& hacer);

}  // namespace tasca::test
