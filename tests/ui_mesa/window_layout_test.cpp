// How the main window is shared out. The letter is 10 pixels high.
#include "ui/mesa/window_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace tasca::test {
namespace {

MedidasVentana Ventana(double ancho, double alto) {
  MedidasVentana v;
  v.Ancho = ancho;
  v.Menu = 20;
  v.Alto = alto - v.Menu;
  v.Letra = 10;
  v.AltoTanteo = 24;
  v.AnchoRotulo = 180;
  v.AltoRotulo = 14;
  v.AltoAyuda = 16;
  v.AltoLinea = 18;
  v.MargenTexto = 12;
  return v;
}

Reparto Modo(double ancho, double alto) { return RepartoDe(Ventana(ancho, alto)); }

TEST(RepartoDe, PutsThePictureBesideTheTextsInWideWindows) {
  EXPECT_EQ(Modo(740, 640), Reparto::AlLado);
  EXPECT_EQ(Modo(739, 640), Reparto::Apilado);
  EXPECT_EQ(Modo(740, 650), Reparto::Apilado);
}

TEST(RepartoDe, LeavesThePictureOutOfSmallWindows) {
  EXPECT_EQ(Modo(480, 600), Reparto::Apilado);
  EXPECT_EQ(Modo(479, 600), Reparto::SoloTexto);
  EXPECT_EQ(Modo(800, 360), Reparto::AlLado);
  EXPECT_EQ(Modo(800, 359), Reparto::SoloTexto);
  EXPECT_EQ(Modo(600, 380), Reparto::SoloTexto) << "too low under the texts";
}

TEST(RepartoDe, LeavesThePictureOutWhenItIsNotWanted) {
  MedidasVentana v = Ventana(1280, 800);
  v.QuiereMesa = false;
  EXPECT_EQ(RepartoDe(v), Reparto::SoloTexto);
}

std::vector<Rect> Todas(const PartesVentana& p) {
  std::vector<Rect> llenas;
  for (const Rect& r :
       {p.Mesa, p.Tanteo, p.RotuloTexto3, p.Texto3, p.Texto2, p.RotuloTexto1, p.Texto1, p.Ayuda}) {
    if (!r.Vacio()) llenas.push_back(r);
  }
  return llenas;
}

void ExpectApartAndInside(const std::vector<Rect>& partes, const Rect& dentro) {
  for (std::size_t i = 0; i < partes.size(); ++i) {
    EXPECT_EQ(Union(dentro, partes[i]), dentro) << "part " << i;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(SeCruzan(partes[i], partes[j])) << i << ", " << j;
    }
  }
}

TEST(PartesDe, CoverNeitherEachOtherNorTheMenu) {
  for (const auto& [ancho, alto, cuantas] : {std::tuple{1280, 800, 8U},
                                             {740, 640, 8U},
                                             {600, 800, 7U},
                                             {480, 480, 7U},
                                             {300, 300, 6U}}) {
    const std::vector<Rect> partes = Todas(PartesDe(Ventana(ancho, alto), 30));
    SCOPED_TRACE(std::to_string(ancho) + "x" + std::to_string(alto));
    EXPECT_EQ(partes.size(), cuantas);
    ExpectApartAndInside(partes, Entre(0, 20, ancho, alto));
  }
}

TEST(PartesDe, LetText1GrowOnlySoFar) {
  EXPECT_EQ(PartesDe(Ventana(1280, 820), 9999).Texto1.Alto, 320);         // 40 % of 800
  EXPECT_EQ(PartesDe(Ventana(600, 800), 9999).Texto1.Alto, 3 * 18 + 12);  // three lines
  EXPECT_EQ(PartesDe(Ventana(300, 300), 9999).Texto1.Alto, 150);          // half the window
  EXPECT_EQ(PartesDe(Ventana(1280, 820), 30).Texto1.Alto, 30);
}

TEST(PartesDe, GiveThePictureMostOfAStackedWindow) {
  const PartesVentana p = PartesDe(Ventana(600, 800), 30);
  EXPECT_EQ(p.Mesa.Ancho, 600);
  EXPECT_GE(p.Mesa.Alto, 0.6 * (p.Texto1.Abajo() - p.Mesa.Y - p.Tanteo.Alto));
}

}  // namespace
}  // namespace tasca::test
