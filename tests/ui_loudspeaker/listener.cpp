// Waits with a limit.
#include "tests/ui_loudspeaker/listener.h"

#include <poll.h>

#include <algorithm>
#include <thread>

#include "tests/ui_loudspeaker/recording.h"

namespace tasca::test {

bool WaitUntil(std::chrono::seconds limite, const std::function<bool()>& condicion) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point fin = Clock::now() + limite;
  while (!condicion()) {
    if (Clock::now() > fin) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds{5});
  }
  return true;
}

int AttendEnds(MediaPlayer& mp1, std::chrono::milliseconds limite,
               const std::function<bool()>& alTerminar) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point fin = Clock::now() + limite;
  int finales = 0;
  for (;;) {
    const auto resto = std::chrono::duration_cast<std::chrono::milliseconds>(fin - Clock::now());
    pollfd suceso{.fd = mp1.Descriptor(), .events = POLLIN, .revents = 0};
    if (resto.count() <= 0 || ::poll(&suceso, 1, static_cast<int>(resto.count())) == 0) {
      return finales;
    }
    if (!mp1.TakeEnd()) continue;
    ++finales;
    if (alTerminar()) return finales;
  }
}

bool WaitForEnd(MediaPlayer& mp1) {
  return AttendEnds(mp1, std::chrono::seconds{10}, [] { return true; }) == 1;
}

bool WaitForNews(const MediaPlayer& mp1) {
  constexpr int medioMinuto = 30'000;
  pollfd suceso{.fd = mp1.Descriptor(), .events = POLLIN, .revents = 0};
  return ::poll(&suceso, 1, medioMinuto) == 1;
}

bool WaitForRecording(const std::filesystem::path& grabacion,
                      const std::vector<std::string>& archivos) {
  return WaitUntil(std::chrono::seconds{30}, [&] { return HasRecorded(grabacion, archivos); });
}

void WaitForSilence(const std::filesystem::path& grabacion) {
  if (!std::filesystem::exists(grabacion)) return;
  // More than the device's buffer. After five idle seconds the device is closed and the file
  // complete.
  constexpr std::uintmax_t deSobra = 1 << 16;
  const std::uintmax_t bytes = std::filesystem::file_size(grabacion) + deSobra;
  WaitUntil(std::chrono::seconds{6},
            [&] { return std::filesystem::file_size(grabacion) >= bytes; });
}

}  // namespace tasca::test
