#pragma once
// Reads the list of the system's fonts while the toolkit starts.
#include <thread>

namespace tasca {

// Starts a thread that has the fonts' settings and lists read, which takes several milliseconds.
// The toolkit would read them only when the first text is measured.
class EarlyFonts {
 public:
  EarlyFonts();

  // Waits until they have been read. Must be called before a text is measured, or they are read
  // twice.
  void Wait();

 private:
  std::jthread hilo_;
};

}  // namespace tasca
