// The desktop's settings about movements.
#include "ui/qt/desktop_motion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

bool ShowsMotionWith(const char* archivo, const char* contenido) {
  const TempFolder carpeta;
  const std::filesystem::path completo = carpeta.Path() / archivo;
  std::filesystem::create_directories(completo.parent_path());
  std::ofstream{completo} << contenido;
  return DesktopShowsMotion(carpeta.Path());
}

TEST(DesktopShowsMotion, WithoutSettings) {
  const TempFolder carpeta;
  EXPECT_TRUE(DesktopShowsMotion(carpeta.Path()));
}

TEST(DesktopShowsMotion, UnlessGtkSwitchesItOff) {
  EXPECT_FALSE(ShowsMotionWith("gtk-3.0/settings.ini",
                               "[Settings]\ngtk-theme-name=Adwaita\ngtk-enable-animations=0\n"));
  EXPECT_FALSE(ShowsMotionWith("gtk-4.0/settings.ini", "gtk-enable-animations = false\r\n"));
  EXPECT_TRUE(ShowsMotionWith("gtk-3.0/settings.ini", "gtk-enable-animations=1\n"));
  EXPECT_TRUE(ShowsMotionWith("gtk-3.0/settings.ini", "#gtk-enable-animations=0\n"));
}

TEST(DesktopShowsMotion, UnlessKdeSwitchesItOff) {
  EXPECT_FALSE(ShowsMotionWith("kdeglobals", "[KDE]\nAnimationDurationFactor=0"));
  EXPECT_TRUE(ShowsMotionWith("kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n"));
}

TEST(DesktopShowsMotion, IsNotStoppedByAFolder) {
  const TempFolder carpeta;
  std::filesystem::create_directories(carpeta.Path() / "kdeglobals");
  EXPECT_TRUE(DesktopShowsMotion(carpeta.Path()));
}

}  // namespace
}  // namespace tasca::test
