#pragma once
// Replacements for tasca-sound.
#include <cstddef>
#include <functional>
#include <string>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// Writes a shell script as tasca-sound into the folder. "$here" is the script's folder.
void StandIn(const TempFolder& carpeta, const std::string& guion);

// Writes a tasca-sound that plays nothing, never answers and records its orders.
void StandInThatRecords(const TempFolder& carpeta);
// The recorded orders, concatenated. Each is "NUMBER REPETITIONS BALANCE VOLUME FILE"; an order
// with 0 repetitions stops the sound.
std::string RecordedOrders(const TempFolder& carpeta);

// The number of shuffles in the orders.
std::ptrdiff_t ShufflesIn(const std::string& ordenes);
// Whether the order before the last shuffle stops the sound.
bool StopsBeforeTheLastShuffle(const std::string& ordenes);

// Waits for the condition; false if it is not true within 30 seconds.
bool Eventually(const std::function<bool()>& condicion);

}  // namespace tasca::test
