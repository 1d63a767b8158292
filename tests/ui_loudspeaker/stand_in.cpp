// Writes the replacement programs.
#include "tests/ui_loudspeaker/stand_in.h"

#include <chrono>
#include <thread>

namespace tasca::test {
namespace fs = std::filesystem;

void StandIn(const TempFolder& carpeta, const std::string& guion) {
  const fs::path programa = carpeta.Path() / "tasca-sound";
  fs::remove(programa);
  carpeta.Write("tasca-sound", "#!/bin/sh\nhere=${0%/*}\n" + guion + "\n");
  fs::permissions(programa, fs::perms::owner_all);
}

void StandInThatNotes(const TempFolder& carpeta) {
  StandIn(carpeta, R"(exec cat >>"$here/orders")");
}

std::string OrdersNoted(const TempFolder& carpeta) {
  return fs::exists(carpeta.Path() / "orders") ? carpeta.Read("orders") : "";
}

bool Eventually(const std::function<bool()>& condicion) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point fin = Clock::now() + std::chrono::seconds{30};
  while (!condicion()) {
    if (Clock::now() > fin) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds{5});
  }
  return true;
}

}  // namespace tasca::test
