// make-sounds: writes the four sounds of the game into a folder. Its output is reproducible.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tools/synth/applause.h"
#include "tools/synth/cards.h"
#include "tools/synth/files.h"

namespace {

void Write(const std::filesystem::path& archivo, const std::string& bytes) {
  std::ofstream salida{archivo, std::ios::binary};
  salida.exceptions(std::ios::failbit | std::ios::badbit);
  salida.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void WriteAll(const std::filesystem::path& carpeta) {
  using namespace tasca::synth;
  Write(carpeta / "Son_BarajaCartas.mp3", ToMp3(Shuffle()));
  Write(carpeta / "Son_ReparteCartas.mp3", ToMp3(Deal()));
  Write(carpeta / "Son_DaUnaCarta.wav", ToWav(OneCard()));
  Write(carpeta / "Son_aplauso.wav", ToWav(Applause()));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "make-sounds FOLDER\n";
    return 2;
  }
  try {
    WriteAll(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
