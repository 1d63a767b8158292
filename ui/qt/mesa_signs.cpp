// The strokes of the small drawings.
#include "ui/qt/mesa_signs.h"

#include <QPainterPath>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <string_view>
#include <vector>

namespace tasca {
namespace {

constexpr QRgb Piel = 0xFFF3CBA5;
constexpr QRgb Castano = 0xFF94623A;

// Reads the numbers up to the next letter.
std::vector<double> Numbers(std::string_view& resto) {
  std::vector<double> numeros;
  while (!resto.empty()) {
    if (resto.front() == ' ') {
      resto.remove_prefix(1);
      continue;
    }
    double numero = 0;
    const auto leido = std::from_chars(resto.data(), resto.data() + resto.size(), numero);
    if (leido.ec != std::errc{}) break;
    resto.remove_prefix(static_cast<std::size_t>(leido.ptr - resto.data()));
    numeros.push_back(numero);
  }
  return numeros;
}

// A path from its letters: M, L and C with absolute coordinates, and Z.
QPainterPath PathOf(std::string_view trazo) {
  QPainterPath camino;
  while (!trazo.empty()) {
    const char orden = trazo.front();
    trazo.remove_prefix(1);
    const std::vector<double> n = Numbers(trazo);
    if (orden == 'Z') camino.closeSubpath();
    if (orden == 'M') camino.moveTo(n.at(0), n.at(1));
    for (std::size_t i = 0; orden == 'L' && i + 1 < n.size(); i += 2) camino.lineTo(n[i], n[i + 1]);
    for (std::size_t i = 0; orden == 'C' && i + 5 < n.size(); i += 6) {
      camino.cubicTo(n[i], n[i + 1], n[i + 2], n[i + 3], n[i + 4], n[i + 5]);
    }
  }
  return camino;
}

QPen LineOf(const QColor& color, double grueso) {
  return {color, grueso, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

// The painter with its origin in the middle of a drawing that is so many units high.
class Inside {
 public:
  Inside(QPainter& p, QPointF centro, double escala, double giro = 0) : p_{p} {
    p_.save();
    p_.translate(centro);
    p_.scale(escala, escala);
    p_.rotate(giro);
  }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;
  ~Inside() { p_.restore(); }

  void Draw(std::string_view trazo, const QBrush& relleno, const QPen& linea) {
    p_.setBrush(relleno);
    p_.setPen(linea);
    p_.drawPath(PathOf(trazo));
  }
  void Disc(QPointF centro, double radio, const QColor& color) {
    p_.setPen(Qt::NoPen);
    p_.setBrush(color);
    p_.drawEllipse(centro, radio, radio);
  }

 private:
  QPainter& p_;
};

void Ring(QPainter& p, QPointF centro, double radio, const QBrush& relleno, const QPen& linea) {
  p.setBrush(relleno);
  p.setPen(linea);
  p.drawEllipse(centro, radio, radio);
}

QPolygonF StarOf(double radio, double hueco) {
  constexpr int puntas = 8;
  QPolygonF estrella;
  for (int i = 0; i < 2 * puntas; ++i) {
    const double r = i % 2 == 0 ? radio : hueco;
    const double giro = i * std::numbers::pi / puntas;
    estrella << QPointF{r * std::sin(giro), -r * std::cos(giro)};
  }
  return estrella;
}

}  // namespace

void DrawPareja(QPainter& p, QPointF centro, double radio, int pareja, const QColor& color) {
  p.setPen(Qt::NoPen);
  p.setBrush(color);
  if (pareja == 1) {
    p.drawEllipse(centro, radio, radio);
    return;
  }
  const double r = radio * 1.2;
  p.drawPolygon(QPolygonF{{centro + QPointF{0, -r}, centro + QPointF{r, 0}, centro + QPointF{0, r},
                           centro + QPointF{-r, 0}}});
}

void DrawHand(QPainter& p, QPointF centro, double alto, const MesaColors& c) {
  constexpr std::string_view palma = "M-7.6 0L7.8 0L7 7C6.4 10.6 3 12 0 12C-3.6 12 -6 10.4 -7 7Z";
  struct Finger {
    std::string_view Trazo;
    double Grueso;
  };
  constexpr std::array<Finger, 5> dedos{{{"M-5.6 1L-7 -7.4", 3.6},
                                         {"M-1.6 1L-2.2 -10", 3.7},
                                         {"M2.4 1L2.8 -9.4", 3.6},
                                         {"M6 1L7.2 -6", 3.2},
                                         {"M-6 6L-10.6 0.6", 3.5}}};
  constexpr double borde = 1.5;
  Inside dentro{p, centro, alto / 24};
  dentro.Draw(palma, Qt::NoBrush, LineOf(c.Tinta, 2 * borde));
  for (const Finger& dedo : dedos) {
    dentro.Draw(dedo.Trazo, Qt::NoBrush, LineOf(c.Tinta, dedo.Grueso + 2 * borde));
  }
  dentro.Draw(palma, QColor{Piel}, Qt::NoPen);
  for (const Finger& dedo : dedos) {
    dentro.Draw(dedo.Trazo, Qt::NoBrush, LineOf(QColor{Piel}, dedo.Grueso));
  }
}

void DrawStone(QPainter& p, const QRectF& donde, int forma, const MesaColors& c) {
  constexpr std::array<std::string_view, 2> formas{
      "M-7 1C-7.4 -4 -3 -6.4 1 -6C5.4 -5.6 7.6 -2 7 2C6.4 5.4 2 6.4 -2 6C-5 5.6 -6.8 3.6 -7 1Z",
      "M-6.6 2C-7.4 -2 -4.4 -5.6 -0.4 -6.2C4 -6.8 7.4 -3 7 0.8C6.6 4.6 3 6.2 -0.6 6.2C-4 6.2 -6.2 "
      "4.4 -6.6 2Z"};
  Inside dentro{p, donde.center(), donde.width() / 16, forma * 47 % 60 - 30.0};
  dentro.Draw(formas.at(static_cast<std::size_t>(forma % 2)), c.Piedra, LineOf(c.PiedraBorde, 1.5));
  dentro.Draw("M-3.6 -2.4C-2 -4 0.6 -4.4 2.4 -3.8", Qt::NoBrush, LineOf(c.PiedraLuz, 1.6));
}

void DrawFive(QPainter& p, const QRectF& donde, const MesaColors& c) {
  Inside dentro{p, donde.center(), donde.width() / 24};
  dentro.Draw(
      "M-11 1.6C-11.4 -5.6 -6 -9.6 1 -9.4C7.6 -9.2 11.6 -5 11 1.2C10.4 7 5 9.4 -1 9.2C-7 9 "
      "-10.8 6.6 -11 1.6Z",
      c.Amarraco, LineOf(c.PiedraBorde, 1.6));
  dentro.Draw(
      "M3.6 -5L-2.4 -5L-3 -0.6C-2 -1.4 -1 -1.6 0 -1.6C2.4 -1.6 4 0 4 2.2C4 4.6 2.2 6 -0.2 "
      "6C-1.8 6 -3 5.4 -3.6 4.2",
      Qt::NoBrush, LineOf(c.AmarracoTexto, 1.9));
}

void DrawCow(QPainter& p, const QRectF& donde, bool ganada, const MesaColors& c) {
  constexpr std::string_view cara =
      "M-6.6 -5.4C-6.6 -8.4 6.6 -8.4 6.6 -5.4L5.4 4C5 8.6 -5 8.6 -5.4 4Z";
  constexpr std::string_view orejas =
      "M-6.4 -4.6C-9 -6.4 -11.4 -5.6 -12 -3.6C-10.2 -1.8 -8 -2 -6 -2.6ZM6.4 -4.6C9 -6.4 11.4 -5.6 "
      "12 "
      "-3.6C10.2 -1.8 8 -2 6 -2.6Z";
  constexpr std::string_view cuernos =
      "M-5 -7C-6.6 -8 -7 -10 -6.4 -11.4M5 -7C6.6 -8 7 -10 6.4 -11.4";
  Inside dentro{p, donde.center() + QPointF{0, donde.width() / 18}, donde.width() / 26};
  if (!ganada) {
    dentro.Draw(orejas, Qt::NoBrush, LineOf(c.TextoTenue, 1.3));
    dentro.Draw(cara, Qt::NoBrush, LineOf(c.TextoTenue, 1.3));
    return dentro.Draw(cuernos, Qt::NoBrush, LineOf(c.TextoTenue, 1.5));
  }
  dentro.Draw(cuernos, Qt::NoBrush, LineOf(c.Texto, 2));
  dentro.Draw(orejas, QColor{Castano}, LineOf(c.PiedraBorde, 1.4));
  dentro.Draw(cara, QColor{0xFBF5E6}, LineOf(c.PiedraBorde, 1.5));
  dentro.Draw("M0 -7.4C4 -7.6 6.4 -7 6.5 -5.4L6 -1C3 -1 0.6 -3 0 -7.4Z", QColor{Castano},
              Qt::NoPen);
  dentro.Draw("M-5.4 2.6C-3 0.8 3 0.8 5.4 2.6L5.3 4C5 8.4 -5 8.4 -5.3 4Z", QColor{Piel},
              LineOf(c.PiedraBorde, 1.2));
  for (const QPointF punto : {QPointF{-2.9, -2.4}, QPointF{2.9, -2.4}}) {
    dentro.Disc(punto, 1.1, c.PiedraBorde);
  }
  for (const QPointF punto : {QPointF{-2, 4.4}, QPointF{2, 4.4}})
    dentro.Disc(punto, 0.8, c.PiedraBorde);
}

void DrawTally(QPainter& p, const QRectF& donde, bool ganado, const MesaColors& c) {
  const double k = donde.width() / 15;
  const QRectF caja{donde.center() - QPointF{6.8 * k, 9 * k}, QSizeF{13.6 * k, 18 * k}};
  p.setPen(LineOf(c.TextoTenue, 1.3));
  p.setBrush(ganado ? QBrush{c.Pizarra} : Qt::NoBrush);
  p.drawRoundedRect(caja, 3 * k, 3 * k);
  if (!ganado) return;
  p.setPen(LineOf(c.Tiza, 2.6 * k));
  p.drawLine(donde.center() + QPointF{1.6 * k, -5.6 * k},
             donde.center() + QPointF{-1.6 * k, 5.6 * k});
}

void DrawReturn(QPainter& p, QPointF centro, double alto, const QColor& color) {
  Inside dentro{p, centro, alto};
  dentro.Draw("M0.2 -0.22L0.2 0.08L-0.2 0.08M-0.05 -0.08L-0.22 0.08L-0.05 0.24", Qt::NoBrush,
              LineOf(color, 0.075));
}

void DrawGlass(QPainter& p, const QRectF& donde, const MesaColors& c) {
  const double r = donde.width() / 2;
  const QPointF centro = donde.center();
  Ring(p, centro + QPointF{r * 0.08, r * 0.12}, r, QColor{0, 0, 0, 56}, Qt::NoPen);
  Ring(p, centro, r, QColor{0xCFE0DA}, LineOf(c.PiedraBorde, r * 0.09));
  Ring(p, centro, r * 0.76, QColor{0x7A1F2B}, LineOf(c.PiedraBorde, r * 0.07));
  p.setBrush(Qt::NoBrush);
  p.setPen(LineOf(QColor{0xD98A93}, r * 0.1));
  constexpr int grado = 16;
  p.drawArc(QRectF{centro - QPointF{r, r} * 0.52, QSizeF{r, r} * 1.04}, 95 * grado, 65 * grado);
}

void DrawOlives(QPainter& p, const QRectF& donde, const MesaColors& c) {
  struct Olive {
    double X, Y, Giro;
  };
  constexpr std::array<Olive, 6> aceitunas{{{-0.3, -0.28, 20},
                                            {0.2, -0.36, -30},
                                            {0.38, 0.1, 60},
                                            {-0.02, 0.06, 0},
                                            {-0.38, 0.22, -50},
                                            {0.12, 0.42, 15}}};
  const double r = donde.width() / 2;
  const QPointF centro = donde.center();
  Ring(p, centro + QPointF{r * 0.06, r * 0.1}, r, QColor{0, 0, 0, 56}, Qt::NoPen);
  Ring(p, centro, r, QColor{c.Oscuro ? 0xEDE5D2U : 0xFBF5E6U}, LineOf(c.PiedraBorde, r * 0.07));
  Ring(p, centro, r * 0.76, Qt::NoBrush, LineOf(QColor{0x2C6DB2}, r * 0.06));
  for (const Olive& una : aceitunas) {
    Inside dentro{p, centro + QPointF{una.X, una.Y} * r, r / 30, una.Giro};
    p.setBrush(QColor{0x7E9A3B});
    p.setPen(LineOf(c.PiedraBorde, 1.6));
    p.drawEllipse(QPointF{}, 6.4, 4.8);
    dentro.Disc({4, 0}, 1.5, QColor{0xBF2F2B});
  }
}

void DrawStar(QPainter& p, const QRectF& donde, const MesaColors& c) {
  const double k = donde.width() / 208;
  Inside dentro{p, donde.center(), k};
  p.setPen(Qt::NoPen);
  p.setBrush(c.PanoOscuro);
  p.drawPolygon(StarOf(92, 70));
  p.setBrush(c.Pano);
  p.drawPolygon(StarOf(52, 22));
  QColor linea = c.PanoLinea;
  linea.setAlphaF(0.3F);
  p.setPen(LineOf(linea, 1.3 / k));
  p.setBrush(Qt::NoBrush);
  p.drawPolygon(StarOf(103, 78.8));
}

}  // namespace tasca
