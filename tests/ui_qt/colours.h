#pragma once
// The colours of the drawings on the light theme, and colours that are nearly the same.
#include <QColor>
#include <algorithm>
#include <cstdlib>

namespace tasca::test {

inline const QColor Ink{0x20, 0x24, 0x2E};
inline const QColor Paper{0xFB, 0xF5, 0xE6};
inline const QColor Gold{0xEB, 0xAE, 0x22};
inline const QColor Red{0xBF, 0x2F, 0x2B};
inline const QColor Blue{0x2C, 0x6D, 0xB2};
inline const QColor Wood{0x94, 0x62, 0x3A};
inline const QColor Cloth{0x2B, 0x66, 0x50};

// True when no channel, opacity included, is further off than that.
inline bool Near(const QColor& uno, const QColor& otro, int tolerancia = 8) {
  return std::max({std::abs(uno.red() - otro.red()), std::abs(uno.green() - otro.green()),
                   std::abs(uno.blue() - otro.blue()), std::abs(uno.alpha() - otro.alpha())}) <=
         tolerancia;
}

}  // namespace tasca::test
