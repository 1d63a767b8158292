// The fonts by fontconfig, which Qt uses too. It keeps what it has read for the whole process.
#include "ui/qt/early_fonts.h"

#include <fontconfig/fontconfig.h>

namespace tasca {

EarlyFonts::EarlyFonts() : hilo_{[] { static_cast<void>(FcInit()); }} {}

void EarlyFonts::Wait() {
  if (hilo_.joinable()) hilo_.join();
}

}  // namespace tasca
