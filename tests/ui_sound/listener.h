#pragma once
// Waiting for sounds to end, as a face does.
#include <chrono>
#include <functional>

#include "ui/sound/media_player.h"

namespace tasca::test {

// Watches the player for so long, or until `alTerminar`, called at every end, says that it is
// enough. Gives the number of ends.
int AttendEnds(MediaPlayer& mp1, std::chrono::milliseconds limite,
               const std::function<bool()>& alTerminar);

// One end; false when it does not come within ten seconds.
bool WaitForEnd(MediaPlayer& mp1);

// Something to take, be it an end or not; false when it does not come within half a minute.
bool WaitForNews(const MediaPlayer& mp1);

// Lets the recording be written on.
void LetTheSilencePass();

}  // namespace tasca::test
