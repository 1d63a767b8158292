// The cards as pictures: their sizes, what tells them apart, and how long they are kept.
#include "ui/qt/card_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "tests/support/tables.h"
#include "tests/ui_qt/colours.h"

namespace tasca::test {
namespace {

constexpr int Oros = 0;
constexpr int Copas = 10;
constexpr int Espadas = 20;
constexpr int Bastos = 30;
constexpr int Reverso = 0;       // in place of a card's number
constexpr int AltoEntero = 308;  // one pixel for each unit of the drawings

QImage Picture(int carta, int alto, bool oscuro = false) {
  CardPainter pintor;
  const QPixmap dibujo =
      carta == Reverso ? pintor.Back(alto, 1, oscuro, false) : pintor.Card(carta, alto, 1, oscuro);
  return dibujo.toImage();
}

int PixelsApart(const QImage& una, const QImage& otra, const QRect& donde) {
  int cuenta = 0;
  for (int y = donde.top(); y <= donde.bottom(); ++y) {
    for (int x = donde.left(); x <= donde.right(); ++x) {
      const QRgb uno = una.pixel(x, y);
      const QRgb otro = otra.pixel(x, y);
      if (uno != otro && !Near(QColor::fromRgba(uno), QColor::fromRgba(otro), 60)) ++cuenta;
    }
  }
  return cuenta;
}

struct Medida {
  int Alto;
  double Dpr;
  QSize Esperado;
};
// The height times the ratio, and that times 200 / 308, each rounded.
const std::vector<Medida> Medidas{{.Alto = 56, .Dpr = 1, .Esperado = {36, 56}},
                                  {.Alto = 101, .Dpr = 1, .Esperado = {66, 101}},
                                  {.Alto = 101, .Dpr = 1.25, .Esperado = {82, 126}},
                                  {.Alto = 101, .Dpr = 1.5, .Esperado = {99, 152}},
                                  {.Alto = 101, .Dpr = 2, .Esperado = {131, 202}},
                                  {.Alto = 308, .Dpr = 2, .Esperado = {400, 616}}};

TEST(CardPainter, GivesWholeDevicePixels) {
  CardPainter pintor;
  for (const Medida& caso : Medidas) {
    const QPixmap carta = pintor.Card(1, caso.Alto, caso.Dpr, false);
    EXPECT_EQ(carta.size(), caso.Esperado) << caso.Alto << " x " << caso.Dpr;
    EXPECT_EQ(carta.devicePixelRatio(), caso.Dpr);
  }
}

TEST(CardPainter, GivesBacksOfTheSameSize) {
  CardPainter pintor;
  for (const Medida& caso : Medidas) {
    EXPECT_EQ(pintor.Back(caso.Alto, caso.Dpr, true, false).size(), caso.Esperado);
    const QPixmap girada = pintor.Back(caso.Alto, caso.Dpr, true, true);
    EXPECT_EQ(girada.size(), caso.Esperado.transposed());
    EXPECT_EQ(girada.devicePixelRatio(), caso.Dpr);
  }
}

TEST(CardPainter, DrawsEveryCardDifferently) {
  for (const int alto : {56, 79, 80, 120}) {
    std::vector<QImage> dibujos;
    for (int carta = 0; carta <= 40; ++carta) dibujos.push_back(Picture(carta, alto));
    for (std::size_t una = 0; una < dibujos.size(); ++una) {
      for (std::size_t otra = 0; otra < una; ++otra) {
        EXPECT_GE(PixelsApart(dibujos[una], dibujos[otra], dibujos[una].rect()), 10)
            << una << " and " << otra << " at " << alto;
      }
    }
  }
}

// Where the frame's upper line is broken, in units from the left.
TEST(CardPainter, TellsTheSuitByTheGapsOfTheFrame) {
  const std::map<std::string, std::vector<int>> huecosDelPalo{
      {"oros", {}}, {"copas", {100}}, {"espadas", {78, 122}}, {"bastos", {60, 100, 140}}};
  constexpr int alturaDelMarco = 11;
  const Table t = MesaDePrueba();
  for (int carta = 1; carta <= 40; ++carta) {
    const QImage dibujo = Picture(carta, AltoEntero);
    const std::vector<int>& huecos = huecosDelPalo.at(Utf8(t.Cartas[carta].Palo.Trimmed()));
    for (const int x : {30, 60, 78, 100, 122, 140, 170}) {
      const bool roto = std::find(huecos.begin(), huecos.end(), x) != huecos.end();
      EXPECT_TRUE(Near(dibujo.pixelColor(x, alturaDelMarco), roto ? Paper : Ink))
          << carta << " at " << x;
    }
  }
}

// The number's corner is the same for the four cards of a rank, and for no others; only the numbers
// of the figures, 10 to 12, have two digits.
TEST(CardPainter, TellsTheRankByTheNumber) {
  constexpr QRect rincon{20, 20, 25, 26};
  constexpr QRect segundaCifra{44, 20, 12, 26};
  const Table t = MesaDePrueba();
  QList<QImage> dibujos;
  for (int carta = 0; carta <= 40; ++carta) dibujos.push_back(Picture(carta, AltoEntero));
  QImage enBlanco = dibujos[0];
  enBlanco.fill(Paper);
  const auto figuraDe = [&t](int carta) { return Utf8(t.Cartas[carta].Figura.Trimmed()); };
  for (int carta = 1; carta <= 40; ++carta) {
    const std::string figura = figuraDe(carta);
    for (int deOros = 1; deOros <= 10; ++deOros) {
      const bool igual = PixelsApart(dibujos[carta], dibujos[deOros], rincon) == 0;
      EXPECT_EQ(igual, figura == figuraDe(deOros)) << carta << " and " << deOros;
    }
    const bool dosCifras = PixelsApart(dibujos[carta], enBlanco, segundaCifra) > 0;
    EXPECT_EQ(dosCifras, figura == "Sota" || figura == "Caballo" || figura == "Rey") << carta;
  }
}

// Points well inside one colour of the drawing.
TEST(CardPainter, PaintsTheColoursOfTheDrawings) {
  struct Case {
    int Carta;
    QPoint Donde;
    QColor Esperado;
  };
  const std::vector<Case> casos{
      {.Carta = Oros + 1, .Donde = {149, 164}, .Esperado = Red},    // between two rays of the sun
      {.Carta = Oros + 1, .Donde = {33, 145}, .Esperado = Gold},    // the rim, between two beads
      {.Carta = Oros + 1, .Donde = {20, 154}, .Esperado = Paper},   // beside the sun
      {.Carta = Oros + 2, .Donde = {100, 218}, .Esperado = Paper},  // a coin's middle
      {.Carta = Oros + 2, .Donde = {62, 218}, .Esperado = Gold},    // and its rim
      {.Carta = Oros + 2, .Donde = {138, 218}, .Esperado = {215, 160, 35}},  // a tenth of ink on it
      {.Carta = Espadas + 1, .Donde = {90, 45}, .Esperado = Ink},    // the point's left edge
      {.Carta = Copas + 1, .Donde = {70, 140}, .Esperado = Red},     // the bowl
      {.Carta = Espadas + 1, .Donde = {92, 80}, .Esperado = Paper},  // the blade's light half
      {.Carta = Espadas + 1, .Donde = {109, 80}, .Esperado = Blue},  // and its dark half
      {.Carta = Espadas + 1, .Donde = {100, 262}, .Esperado = Red},  // the pommel's middle
      {.Carta = Bastos + 8, .Donde = {159, 87}, .Esperado = Gold},   // the end of the leaning club
      {.Carta = Bastos + 8, .Donde = {128, 107}, .Esperado = Gold},  // a knot of it
      {.Carta = Bastos + 10, .Donde = {23, 40}, .Esperado = Paper},  // beside the 1 of 12
      {.Carta = Bastos + 10, .Donde = {29, 40}, .Esperado = Ink}};   // and on it
  for (const Case& caso : casos) {
    const QColor visto = Picture(caso.Carta, AltoEntero).pixelColor(caso.Donde);
    EXPECT_TRUE(Near(visto, caso.Esperado))
        << caso.Carta << " at " << caso.Donde.x() << ", " << caso.Donde.y() << ": "
        << visto.name().toStdString() << " for " << caso.Esperado.name().toStdString();
  }
}

TEST(CardPainter, RoundsTheCorners) {
  const QImage carta = Picture(1, AltoEntero);
  for (const QPoint esquina : {QPoint{0, 0}, {199, 0}, {0, 307}, {199, 307}}) {
    EXPECT_EQ(carta.pixelColor(esquina).alpha(), 0);
  }
  EXPECT_EQ(carta.pixelColor(5, 154).alpha(), 255);
  // Smoothly: the curve, of a radius of 13 pixels, runs through pixels that it covers in part.
  int cubiertosEnParte = 0;
  for (int x = 0; x < 13; ++x) {
    for (int y = 0; y < 13; ++y) {
      const int alfa = carta.pixelColor(x, y).alpha();
      if (alfa > 0 && alfa < 255) ++cubiertosEnParte;
    }
  }
  EXPECT_GE(cubiertosEnParte, 8);
}

TEST(CardPainter, HasAPaperAndABackForTheDarkTheme) {
  EXPECT_TRUE(Near(Picture(1, AltoEntero, true).pixelColor(20, 154), QColor{0xED, 0xE5, 0xD2}));
  // Calmer: its lightest and its darkest colours lie closer together.
  const auto margen = [](const QImage& dorso) {
    return std::abs(dorso.pixelColor(5, 154).lightness() - dorso.pixelColor(15, 11).lightness());
  };
  EXPECT_LT(margen(Picture(Reverso, AltoEntero, true)), margen(Picture(Reverso, AltoEntero)));
}

// Nobody can tell from a back which way up the card lies.
TEST(CardPainter, DrawsABackThatIsTheSameUpsideDown) {
  for (const int alto : {60, 200}) {
    const QImage dorso = Picture(Reverso, alto);
    const QImage alReves = dorso.transformed(QTransform{}.rotate(180));
    EXPECT_EQ(PixelsApart(dorso, alReves, dorso.rect()), 0) << alto;
  }
}

TEST(CardPainter, LaysTheBackOnItsSide) {
  CardPainter pintor;
  const QImage derecho = pintor.Back(200, 1, false, false).toImage();
  const QImage girado = pintor.Back(200, 1, false, true).toImage();
  EXPECT_EQ(girado, derecho.transformed(QTransform{}.rotate(90)));
}

// Below 80 pixels the cards of a suit differ by their number alone, which ends at 112 of 200 units
// across and 112 of 308 down.
TEST(CardPainter, ShowsANumberAndOneEmblemOnSmallCards) {
  constexpr int pequena = SmallCardHeight - 1;
  const auto debajoDelNumero = [](int alto) {
    const int desde = 112 * alto / AltoEntero;
    return QRect{0, desde, static_cast<int>(std::lround(alto * CardAspect)), alto - desde};
  };
  const auto distintos = [&](int carta, int alto) {
    return PixelsApart(Picture(carta, alto), Picture(carta - 1, alto), debajoDelNumero(alto));
  };
  for (const int palo : {Oros, Copas, Espadas, Bastos}) {
    for (int rango = 2; rango <= 10; ++rango) {
      EXPECT_EQ(distintos(palo + rango, pequena), 0) << palo + rango;
      EXPECT_GE(distintos(palo + rango, SmallCardHeight), 10) << palo + rango;
    }
  }
}

// The height counts in device-independent pixels, as the eye sees it.
TEST(CardPainter, ShowsSmallCardsOnFineScreensToo) {
  const QImage fina = CardPainter{}.Card(Oros + 2, 79, 2, false).toImage();
  const QPoint centroDeLaMoneda{QPoint{100, 90} * 158 / AltoEntero};
  EXPECT_FALSE(Near(fina.pixelColor(centroDeLaMoneda + QPoint{-15, 0}), Gold));
}

TEST(CardPainter, PaintsOnce) {
  CardPainter pintor;
  const qint64 primera = pintor.Card(7, 100, 1, false).cacheKey();
  EXPECT_EQ(pintor.Card(7, 100, 1, false).cacheKey(), primera);
  EXPECT_EQ(pintor.Kept(), 1);
  EXPECT_NE(pintor.Card(7, 100, 1, true).cacheKey(), primera);
  EXPECT_NE(pintor.Card(7, 100, 2, false).cacheKey(), primera);
  EXPECT_NE(pintor.Card(7, 101, 1, false).cacheKey(), primera);
  EXPECT_NE(pintor.Card(8, 100, 1, false).cacheKey(), primera);
  EXPECT_EQ(pintor.Kept(), 5);
}

TEST(CardPainter, ForgetsOtherHeights) {
  CardPainter pintor;
  const qint64 guardada = pintor.Card(7, 100, 1, false).cacheKey();
  const qint64 dorso = pintor.Back(60, 1, false, false).cacheKey();
  pintor.Card(7, 101, 1, false);
  pintor.Card(7, 100, 2, false);
  pintor.Card(7, 100, 1, true);
  pintor.ForgetOtherHeights({60, 100}, 1, false);
  EXPECT_EQ(pintor.Kept(), 2);
  EXPECT_EQ(pintor.Card(7, 100, 1, false).cacheKey(), guardada);
  EXPECT_EQ(pintor.Back(60, 1, false, false).cacheKey(), dorso);
  pintor.ForgetOtherHeights({}, 1, false);
  EXPECT_EQ(pintor.Kept(), 0);
}

// At every scale the card's pixels are the screen's, wherever a window lies.
TEST(DrawSharp, KeepsThePixelsOfThePicture) {
  CardPainter cartas;
  for (const double dpr : {1.0, 1.25, 1.5, 2.0}) {
    const QPixmap carta = cartas.Card(18, 97, dpr, false);
    QImage pantalla{300, 300, QImage::Format_ARGB32_Premultiplied};
    pantalla.setDevicePixelRatio(dpr);
    pantalla.fill(Qt::transparent);
    QPainter pintor{&pantalla};
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor.translate(3, 7);  // a widget inside its window
    DrawSharp(pintor, {10.3, 20.7}, carta);
    pintor.end();
    const QPoint esquina{static_cast<int>(std::lround(13.3 * dpr)),
                         static_cast<int>(std::lround(27.7 * dpr))};
    QImage esperada = carta.toImage();
    esperada.setDevicePixelRatio(1);
    QImage vista = pantalla.copy(QRect{esquina, carta.size()});
    vista.setDevicePixelRatio(1);
    EXPECT_EQ(vista, esperada.convertToFormat(vista.format())) << dpr;
  }
}

}  // namespace
}  // namespace tasca::test
