#pragma once
// Whether the desktop's settings ask for a display without movements. Read from the settings files
// of GTK and KDE; nothing is asked over the message bus, which could block.
#include <filesystem>

namespace tasca {

// False if a settings file in `carpeta`, the user's folder of settings, switches movements off.
bool DesktopShowsMotion(const std::filesystem::path& carpeta);

// The same with this user's folder.
bool DesktopShowsMotion();

}  // namespace tasca
