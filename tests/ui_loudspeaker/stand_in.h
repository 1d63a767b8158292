#pragma once
// Programs in the place of tasca-sound, and waiting for what they do.
#include <functional>
#include <string>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// Puts a shell script in the place of tasca-sound. It may call its folder "$here".
void StandIn(const TempFolder& carpeta, const std::string& guion);

// Puts a program there that plays nothing and never answers, and notes what it is ordered.
void StandInThatNotes(const TempFolder& carpeta);
// The orders noted so far, one after the other.
std::string OrdersNoted(const TempFolder& carpeta);

// Waits for it; false when it has not come true within half a minute.
bool Eventually(const std::function<bool()>& condicion);

}  // namespace tasca::test
