#pragma once
// Functions that wait for the media player.
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "ui/loudspeaker/media_player.h"

namespace tasca::test {

// Polls the condition every few milliseconds; false if it is not true within the limit.
bool WaitUntil(std::chrono::seconds limite, const std::function<bool()>& condicion);

// Handles the player's events until the limit, or until `alTerminar`, called after each end of a
// sound, returns true. Returns the number of ends.
int AttendEnds(MediaPlayer& mp1, std::chrono::milliseconds limite,
               const std::function<bool()>& alTerminar);

// Waits for the end of a sound; false if there is none within ten seconds.
bool WaitForEnd(MediaPlayer& mp1);

// Waits until the player's descriptor is readable; false if it is not within 30 seconds.
bool WaitForNews(const MediaPlayer& mp1);

// Waits for HasRecorded; false if it is not true within 30 seconds.
bool WaitForRecording(const std::filesystem::path& grabacion,
                      const std::vector<std::string>& archivos);

// Waits until the whole of a finished sound has been written, with silence after it. Returns at
// once if there is no recording.
void WaitForSilence(const std::filesystem::path& grabacion);

}  // namespace tasca::test
