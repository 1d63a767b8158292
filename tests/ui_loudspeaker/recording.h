#pragma once
// What the loudspeaker was given to play, and the game's sounds found in it again.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// Samples of one side in a second.
inline constexpr double Frecuencia = 44100;

// A file of data/ as the loudspeaker would play it at full volume: one side's samples.
std::vector<double> Decoded(const std::filesystem::path& archivo);

// A sound found in a recording.
struct Heard {
  std::string Archivo;
  double Segundos = 0;   // how much of it, from its beginning
  double Izquierda = 0;  // decibels against the file
  double Derecha = 0;
};

// Everything heard, in order. What is none of the four sounds fails the test.
std::vector<Heard> Listen(const std::filesystem::path& grabacion);

// Whether these sounds and no other have been recorded so far, each to its end, and a second of
// silence after them.
bool HasRecorded(const std::filesystem::path& grabacion, const std::vector<std::string>& archivos);

// "Son_DaUnaCarta.wav -5.0 -5.0", one entry a sound: decibels of the left and the right side to the
// tenth. Fails when a sound was cut short.
std::vector<std::string> Described(const std::vector<Heard>& oidos);

// A folder with the game's sounds and tasca-sound, whose loudspeaker is the file "grabacion". It is
// for the one test that is running: the driver is chosen by the environment.
class SoundFolder : public TempFolder {
 public:
  SoundFolder();

  std::filesystem::path Recording() const { return Path() / "grabacion"; }
};

// From now on there is no device of any kind.
void TakeLoudspeakerAway();

}  // namespace tasca::test
