// The palette. Text has a contrast of 4.5 to 1 at least, signs have 3 to 1.
#include "ui/qt/mesa_colors.h"

#include <algorithm>
#include <cmath>

namespace tasca {
namespace {

double Linear(double parte) {
  return parte <= 0.04045 ? parte / 12.92 : std::pow((parte + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
         0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& uno, const QColor& otro) {
  const auto [menor, mayor] = std::minmax({Luminance(uno), Luminance(otro)});
  return (mayor + 0.05) / (menor + 0.05);
}

QColor Rgb(QRgb rgb) { return QColor::fromRgb(rgb); }

MesaColors Common() {
  MesaColors c;
  c.Tiza = Rgb(0xF5F1E6);
  c.PizarraNuestra = Rgb(0x8FC1F5);
  c.PizarraSuya = Rgb(0xF5A77F);
  c.Marca = Rgb(0xF2C14E);
  c.Tinta = Rgb(0x20242E);
  c.Ordago = Rgb(0xB3261E);
  c.Si = Rgb(0xFFFFFF);
  c.No = Rgb(0xC8D6CE);
  c.PanoTexto = Rgb(0xE9F2EC);
  c.AmarracoTexto = Rgb(0xFFFFFF);
  return c;
}

MesaColors Light() {
  MesaColors c = Common();
  c.Suelo = Rgb(0xE7DAC1);
  c.Junta = Rgb(0xD9C8A8);
  c.Madera = Rgb(0xA8743F);
  c.Veta = Rgb(0x946233);
  c.Canto = Rgb(0x6E4522);
  c.Pano = Rgb(0x2B6650);
  c.PanoOscuro = Rgb(0x245745);
  c.PanoLinea = Rgb(0xDCC98F);
  c.Placa = Rgb(0xFFFBF0);
  c.PlacaTexto = Rgb(0x20242E);
  c.PlacaBorde = Rgb(0x565C66);
  c.Nuestra = Rgb(0x1D5C9E);
  c.Suya = Rgb(0xA8481F);
  c.Pizarra = Rgb(0x2A2F36);
  c.TizaTenue = Rgb(0xAEB5BC);
  c.Amarraco = Rgb(0x5E666F);
  c.Piedra = Rgb(0x8E959C);
  c.PiedraLuz = Rgb(0xC3C8CD);
  c.PiedraBorde = Rgb(0x2B2F35);
  return c;
}

MesaColors Dark() {
  MesaColors c = Common();
  c.Oscuro = true;
  c.Suelo = Rgb(0x1C1A18);
  c.Junta = Rgb(0x262320);
  c.Madera = Rgb(0x5B3D22);
  c.Veta = Rgb(0x4E331B);
  c.Canto = Rgb(0x2E1D0F);
  c.Pano = Rgb(0x1B4737);
  c.PanoOscuro = Rgb(0x163C2F);
  c.PanoLinea = Rgb(0xA08F57);
  c.Placa = Rgb(0x2C2822);
  c.PlacaTexto = Rgb(0xF3EADA);
  c.PlacaBorde = Rgb(0xB9AF9F);
  c.Nuestra = Rgb(0x8FC1F5);
  c.Suya = Rgb(0xF5A77F);
  c.Pizarra = Rgb(0x15181B);
  c.TizaTenue = Rgb(0xA7AEB5);
  c.Amarraco = Rgb(0x6E7780);
  c.Piedra = Rgb(0x9AA1A8);
  c.PiedraLuz = Rgb(0xC9CED3);
  c.PiedraBorde = Rgb(0x101215);
  return c;
}

void TakeWindowColours(MesaColors& c, const QColor& ventana, const QColor& texto) {
  c.Contraste = true;
  c.Suelo = c.Junta = c.Madera = c.Veta = c.Pano = c.PanoOscuro = ventana;
  c.Canto = c.PanoLinea = c.PanoTexto = c.Si = c.No = texto;
  c.Placa = ventana;
  c.PlacaTexto = c.PlacaBorde = texto;
}

}  // namespace

MesaColors ColorsFor(const QPalette& paleta) {
  const QColor ventana = paleta.color(QPalette::Window);
  const QColor texto = paleta.color(QPalette::WindowText);
  MesaColors c = Luminance(ventana) < Luminance(texto) ? Dark() : Light();
  constexpr double alto = 20;  // black on a usual grey has 18.3
  if (Contrast(ventana, texto) > alto) TakeWindowColours(c, ventana, texto);
  c.Texto = texto;
  c.TextoTenue = c.Contraste ? texto : QColor{c.Oscuro ? Rgb(0xA9AFB4) : Rgb(0x5A6066)};
  return c;
}

}  // namespace tasca
