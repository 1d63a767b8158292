#pragma once
// Finds the game's sounds in a recording of the loudspeaker.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// The sample rate in Hz.
inline constexpr double Frecuencia = 44100;

// Decodes a file of data/ at full volume and returns the samples of one channel. Fails the test if
// the channels differ.
std::vector<double> Decoded(const std::filesystem::path& archivo);

// A sound found in a recording.
struct Heard {
  std::string Archivo;
  double Segundos = 0;   // the length that was played
  double Izquierda = 0;  // the gain in dB, relative to the file
  double Derecha = 0;
};

// The sounds of a recording, in order. Anything other than the game's four sounds fails the test.
std::vector<Heard> Listen(const std::filesystem::path& grabacion);

// Whether the recording consists of exactly these sounds, each complete, and a second of silence.
bool HasRecorded(const std::filesystem::path& grabacion, const std::vector<std::string>& archivos);

// Each sound as "Son_DaUnaCarta.wav -5.0 -5.0": the gains of the left and the right channel in dB.
// Fails the test if a sound is incomplete.
std::vector<std::string> Described(const std::vector<Heard>& oidos);

// A folder with the game's sounds and tasca-sound. Sets SDL's environment variables so that the
// sound is written to the file "grabacion" in it; the last SoundFolder created is the one in use.
class SoundFolder : public TempFolder {
 public:
  SoundFolder();

  std::filesystem::path Recording() const { return Path() / "grabacion"; }
};

// Selects an SDL driver that does not exist, so that opening a device fails.
void TakeLoudspeakerAway();

}  // namespace tasca::test
