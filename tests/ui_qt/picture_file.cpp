// The palette and the comparison.
#include "tests/ui_qt/picture_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

#include "tests/ui_qt/colours.h"

namespace tasca::test {
namespace {

constexpr int Redondeo = 12;    // how far a channel at an edge may be off in a picture on file
constexpr int Tolerancia = 20;  // and how far off one that is compared with it
constexpr int EnSuperficie = 4;

// True if the pixels around it have the same colour.
bool IsInSurface(const QImage& dibujo, int x, int y) {
  const QRgb suyo = dibujo.pixel(x, y);
  for (int j = std::max(y - 1, 0); j <= std::min(y + 1, dibujo.height() - 1); ++j) {
    for (int i = std::max(x - 1, 0); i <= std::min(x + 1, dibujo.width() - 1); ++i) {
      if (dibujo.pixel(i, j) != suyo) return false;
    }
  }
  return true;
}

// The colours of a picture. The most important come first: they fill surfaces, or many pixels.
struct Colour {
  int Surface = 0;
  int Pixels = 0;
  QRgb Rgb = 0;
};

std::vector<Colour> ColoursOf(const QImage& dibujo) {
  std::map<QRgb, Colour> halladas;
  for (int y = 0; y < dibujo.height(); ++y) {
    for (int x = 0; x < dibujo.width(); ++x) {
      Colour& color = halladas[dibujo.pixel(x, y)];
      color.Rgb = dibujo.pixel(x, y);
      color.Pixels += 1;
      color.Surface += IsInSurface(dibujo, x, y) ? 1 : 0;
    }
  }
  std::vector<Colour> colores;
  colores.reserve(halladas.size());
  for (const auto& hallada : halladas) colores.push_back(hallada.second);
  std::ranges::sort(colores, [](const Colour& una, const Colour& otra) {
    return std::tie(una.Surface, una.Pixels, una.Rgb) >
           std::tie(otra.Surface, otra.Pixels, otra.Rgb);
  });
  return colores;
}

}  // namespace

QImage WithFewColours(const QImage& dibujo) {
  QList<QRgb> paleta;
  std::map<QRgb, unsigned> lugar;
  qsizetype superficies = 0;
  for (const Colour& color : ColoursOf(dibujo)) {
    if (color.Surface > 0) ++superficies;
    const auto parecido =
        std::find_if(paleta.begin() + std::min(superficies, paleta.size()), paleta.end(),
                     [&](QRgb otro) { return Near(QColor{color.Rgb}, QColor{otro}, Redondeo); });
    lugar[color.Rgb] = static_cast<unsigned>(parecido - paleta.begin());
    if (parecido == paleta.end()) paleta.append(color.Rgb);
  }
  EXPECT_LE(paleta.size(), 256);
  QImage copia{dibujo.size(), QImage::Format_Indexed8};
  copia.setColorTable(paleta);
  for (int y = 0; y < dibujo.height(); ++y) {
    for (int x = 0; x < dibujo.width(); ++x) copia.setPixel(x, y, lugar[dibujo.pixel(x, y)]);
  }
  return copia;
}

Comparison Compare(const QImage& vista, const QImage& esperada) {
  Comparison c;
  c.Dibujo = vista.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < vista.height(); ++y) {
    for (int x = 0; x < vista.width(); ++x) {
      const QRgb una = vista.pixel(x, y);
      const QRgb otra = esperada.pixel(x, y);
      if (una == otra) continue;
      const int tolerancia = IsInSurface(esperada, x, y) ? EnSuperficie : Tolerancia;
      if (Near(QColor{una}, QColor{otra}, tolerancia)) continue;
      c.Dibujo.setPixel(x, y, 0xFFFF0000U);
      ++c.Distintos;
    }
  }
  return c;
}

}  // namespace tasca::test
