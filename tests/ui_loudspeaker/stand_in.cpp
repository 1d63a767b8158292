// Writes the replacement programs.
#include "tests/ui_loudspeaker/stand_in.h"

#include <chrono>
#include <string_view>

#include "tests/ui_loudspeaker/listener.h"

namespace tasca::test {
namespace fs = std::filesystem;

constexpr std::string_view Baraja = "/Son_BarajaCartas.mp3";

void StandIn(const TempFolder& carpeta, const std::string& guion) {
  const fs::path programa = carpeta.Path() / "tasca-sound";
  fs::remove(programa);
  carpeta.Write("tasca-sound", "#!/bin/sh\nhere=${0%/*}\n" + guion + "\n");
  fs::permissions(programa, fs::perms::owner_all);
}

void StandInThatRecords(const TempFolder& carpeta) {
  StandIn(carpeta, R"(exec cat >>"$here/orders")");
}

std::string RecordedOrders(const TempFolder& carpeta) {
  return fs::exists(carpeta.Path() / "orders") ? carpeta.Read("orders") : "";
}

std::ptrdiff_t ShufflesIn(const std::string& ordenes) {
  std::ptrdiff_t veces = 0;
  std::size_t en = ordenes.find(Baraja);
  for (; en != std::string::npos; en = ordenes.find(Baraja, en + 1)) ++veces;
  return veces;
}

bool StopsBeforeTheLastShuffle(const std::string& ordenes) {
  const std::size_t ultima = ordenes.rfind(Baraja);
  if (ultima == std::string::npos || ultima == 0) return false;
  const std::size_t anterior = ordenes.rfind("/Son_", ultima - 1);
  if (anterior == std::string::npos) return false;
  return ordenes.substr(anterior, ultima - anterior).find(" 0 0 0 ") != std::string::npos;
}

bool Eventually(const std::function<bool()>& condicion) {
  return WaitUntil(std::chrono::seconds{30}, condicion);
}

}  // namespace tasca::test
