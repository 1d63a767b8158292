// The entries about movements in the settings files.
#include "ui/qt/desktop_motion.h"

#include <QFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tasca {
namespace {

// A line of a settings file that switches movements off, without its blanks.
struct SwitchedOff {
  const char* Archivo;
  std::string_view Clave;
  std::initializer_list<std::string_view> Valores;
};

std::string WithoutBlanks(std::string linea) {
  std::erase_if(linea, [](char letra) { return letra == ' ' || letra == '\t' || letra == '\r'; });
  return linea;
}

bool HasLine(const std::filesystem::path& carpeta, const SwitchedOff& buscada) {
  std::ifstream archivo{carpeta / buscada.Archivo};
  for (std::string linea; std::getline(archivo, linea);) {
    const std::string limpia = WithoutBlanks(linea);
    if (!limpia.starts_with(buscada.Clave)) continue;
    for (const std::string_view valor : buscada.Valores) {
      if (std::string_view{limpia}.substr(buscada.Clave.size()) == valor) return true;
    }
  }
  return false;
}

}  // namespace

bool DesktopShowsMotion(const std::filesystem::path& carpeta) {
  const std::array<SwitchedOff, 3> entradas{
      {{"gtk-3.0/settings.ini", "gtk-enable-animations=", {"0", "false"}},
       {"gtk-4.0/settings.ini", "gtk-enable-animations=", {"0", "false"}},
       {"kdeglobals", "AnimationDurationFactor=", {"0", "0.0"}}}};
  return std::none_of(entradas.begin(), entradas.end(),
                      [&carpeta](const SwitchedOff& entrada) { return HasLine(carpeta, entrada); });
}

bool DesktopShowsMotion() {
  const QString carpeta = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return DesktopShowsMotion(QFile::encodeName(carpeta).toStdString());
}

}  // namespace tasca
