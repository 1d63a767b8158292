#pragma once
// Waiting for sounds to end, as a face does.
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "ui/loudspeaker/media_player.h"

namespace tasca::test {

// Looks again and again until the condition holds; false when it does not within the limit.
bool WaitUntil(std::chrono::seconds limite, const std::function<bool()>& condicion);

// Watches the player for so long, or until `alTerminar`, called at every end, says that it is
// enough. Gives the number of ends.
int AttendEnds(MediaPlayer& mp1, std::chrono::milliseconds limite,
               const std::function<bool()>& alTerminar);

// One end; false when it does not come within ten seconds.
bool WaitForEnd(MediaPlayer& mp1);

// Something to take, be it an end or not; false when it does not come within half a minute.
bool WaitForNews(const MediaPlayer& mp1);

// Whether HasRecorded comes true within half a minute.
bool WaitForRecording(const std::filesystem::path& grabacion,
                      const std::vector<std::string>& archivos);

// Waits until silence has been recorded after a sound that has ended, so that nothing of it is
// still to be written. Without a device there is nothing to wait for.
void WaitForSilence(const std::filesystem::path& grabacion);

}  // namespace tasca::test
