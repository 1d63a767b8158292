// Preloaded into tasca-sound: replaces alarm() by one that is a hundred times faster.
#include <sys/time.h>

extern "C" unsigned int alarm(unsigned int segundos) noexcept {
  constexpr int centesima = 10'000;
  itimerval plazo{};
  plazo.it_value.tv_usec = static_cast<suseconds_t>(segundos) * centesima;
  ::setitimer(ITIMER_REAL, &plazo, nullptr);
  return 0;
}
