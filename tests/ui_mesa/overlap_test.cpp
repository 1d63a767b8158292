// Nothing that has to be read covers anything else, however large the window or the letters are.
// TASCA_SCENES is how many scenes are laid out in every window and letter: 10 unless it is set.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

#include "tests/support/tables.h"
#include "tests/ui_mesa/scenes.h"
#include "ui/mesa/layout.h"
#include "ui/mesa/window_layout.h"

namespace tasca::test {
namespace {

struct Cosa {
  std::string Que;
  Rect Donde;
};

// The hand of a seat is one thing: its cards may lie on one another.
void AnadirMano(std::vector<Cosa>& cosas, const CartaPuesta& carta) {
  const std::string que = "hand " + std::to_string(carta.De);
  for (Cosa& cosa : cosas) {
    if (cosa.Que == que) {
      cosa.Donde = Union(cosa.Donde, carta.Donde);
      return;
    }
  }
  cosas.push_back({que, carta.Donde});
}

struct Recoger {
  std::vector<Cosa>& cosas;

  void operator()(const CartaPuesta& carta) const { AnadirMano(cosas, carta); }
  void operator()(const Placa& p) const {
    cosas.push_back({"plate " + std::to_string(p.De), p.Donde});
  }
  void operator()(const Bocadillo& b) const {
    cosas.push_back({"bubble " + std::to_string(b.De), b.Donde});
  }
  void operator()(const Distintivo& d) const {
    cosas.push_back({"badge " + Utf8(d.Texto), d.Donde});
  }
  void operator()(const PizarraPuesta& p) const { cosas.push_back({"slate", p.Donde}); }
  void operator()(const AvisoTurno& a) const { cosas.push_back({"turn", a.Donde}); }
  template <class Otra>
  void operator()(const Otra& /*pieza*/) const {}
};

std::vector<Cosa> CosasDe(const Lamina& hoja) {
  std::vector<Cosa> cosas;
  for (const Pieza& pieza : hoja.Piezas) std::visit(Recoger{cosas}, pieza);
  if (!hoja.Libre.Vacio()) cosas.push_back({"box", hoja.Libre});
  return cosas;
}

std::string Escrito(const Rect& r) {
  return std::to_string(r.X) + "," + std::to_string(r.Y) + " " + std::to_string(r.Ancho) + "x" +
         std::to_string(r.Alto);
}

// What is wrong with the sheet; "" when nothing is. A hair's breadth does not count.
std::string Tropiezo(const Lamina& hoja) {
  constexpr double pelo = 0.01;
  std::vector<Cosa> cosas = CosasDe(hoja);
  bool hayTurno = false;
  for (const Cosa& cosa : cosas) hayTurno = hayTurno || cosa.Que == "turn";
  if (!hayTurno) cosas.push_back({"Enter", hoja.Enter});
  const Rect pano = Dentro(hoja.Pano, -pelo);
  for (std::size_t i = 0; i < cosas.size(); ++i) {
    const Rect una = Dentro(cosas[i].Donde, pelo);
    if (Union(pano, una) != pano) return cosas[i].Que + " leaves the cloth: " + Escrito(una);
    for (std::size_t j = 0; j < i; ++j) {
      if (!SeCruzan(una, cosas[j].Donde)) continue;
      return cosas[i].Que + " on " + cosas[j].Que + ": " + Escrito(una) + " on " +
             Escrito(cosas[j].Donde);
    }
  }
  return {};
}

MedidasVentana Ventana(double ancho, double alto, double letra) {
  MedidasVentana v;
  v.Ancho = ancho;
  v.Menu = 2 * letra;
  v.Alto = alto - v.Menu;
  v.Letra = letra;
  v.AltoTanteo = 2.4 * letra;
  v.AnchoRotulo = 18 * letra;
  v.AltoRotulo = 1.4 * letra;
  v.AltoAyuda = 1.6 * letra;
  v.AltoLinea = 1.8 * letra;
  v.MargenTexto = 1.2 * letra;
  return v;
}

int EscenasPorVentana() {
  const char* const pedidas = std::getenv("TASCA_SCENES");  // NOLINT(concurrency-mt-unsafe)
  return pedidas == nullptr ? 10 : std::atoi(pedidas);      // NOLINT(cert-err34-c)
}

constexpr std::array<double, 8> Anchos{640, 800, 1024, 1280, 1366, 1920, 2560, 3840};
constexpr std::array<double, 9> Altos{480, 600, 700, 768, 800, 1080, 1440, 1800, 2160};

// Every window with a picture, in letters of 8 to 28 points.
template <class Cosa>
void EnTodaVentana(const Cosa& mirar) {
  for (const double ancho : Anchos) {
    for (const double alto : Altos) {
      for (int puntos = 8; puntos <= 28; ++puntos) {
        const double letra = std::round(puntos * 96.0 / 72);
        const MedidasVentana v = Ventana(ancho, alto, letra);
        const PartesVentana partes = PartesDe(v, 2 * v.AltoLinea);
        if (partes.Modo == Reparto::SoloTexto) continue;
        mirar(partes, letra,
              std::to_string(static_cast<int>(ancho)) + "x" +
                  std::to_string(static_cast<int>(alto)) + " in " + std::to_string(puntos) +
                  " points");
      }
    }
  }
}

TEST(LaminaDe, LaysNothingOnAnythingElse) {
  std::mt19937 azar{1};
  int vistas = 0;
  int fallos = 0;
  EnTodaVentana([&](const PartesVentana& partes, double letra, const std::string& ventana) {
    for (int i = 0; i < EscenasPorVentana() && fallos < 10; ++i) {
      const Lamina hoja = LaminaDe(EscenaAlAzar(azar), partes.Mesa, letra, LetrasCorrientes(letra));
      const std::string mal = Tropiezo(hoja);
      EXPECT_EQ(mal, "") << ventana << (partes.Modo == Reparto::AlLado ? " beside" : " stacked");
      fallos += mal.empty() ? 0 : 1;
      ++vistas;
    }
  });
  EXPECT_GE(vistas, 300 * EscenasPorVentana());
}

TEST(LaminaDe, KeepsTheEnterKeyInItsPlace) {
  std::mt19937 azar{2};
  EnTodaVentana([&](const PartesVentana& partes, double letra, const std::string& ventana) {
    const AnchoDeTexto mide = LetrasCorrientes(letra);
    const Rect una = LaminaDe(EscenaInicial(), partes.Mesa, letra, mide).Enter;
    const Rect otra = LaminaDe(EscenaAlAzar(azar), partes.Mesa, letra, mide).Enter;
    EXPECT_EQ(Escrito(una), Escrito(otra)) << ventana;
    EXPECT_GE(una.Ancho, 5 * letra) << ventana;
    EXPECT_GE(una.Alto, 2.5 * letra) << ventana;
  });
}

TEST(LaminaDe, DrawsNoCardTooSmallToTell) {
  std::mt19937 azar{3};
  EnTodaVentana([&](const PartesVentana& partes, double letra, const std::string& ventana) {
    const Lamina hoja = LaminaDe(EscenaAlAzar(azar), partes.Mesa, letra, LetrasCorrientes(letra));
    for (const Pieza& pieza : hoja.Piezas) {
      const auto* const carta = std::get_if<CartaPuesta>(&pieza);
      if (carta == nullptr || carta->Carta == 0) continue;
      EXPECT_GE(carta->Donde.Alto, 44) << ventana << ", seat " << carta->De;
    }
  });
}

TEST(MarcadorDe, StaysInItsPlaceWithoutOverlaps) {
  std::mt19937 azar{4};
  EnTodaVentana([&](const PartesVentana& partes, double letra, const std::string& ventana) {
    const std::vector<Pieza> piezas =
        MarcadorDe(EscenaAlAzar(azar), partes.Tanteo, letra, LetrasCorrientes(letra));
    const Rect sitio = Dentro(partes.Tanteo, -0.01);
    for (std::size_t i = 0; i < piezas.size(); ++i) {
      const Rect una = Dentro(Lugar(piezas[i]), 0.01);
      EXPECT_EQ(Union(sitio, una), sitio) << ventana << ": " << Escrito(una);
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(SeCruzan(una, Lugar(piezas[j])))
            << ventana << ": " << Escrito(una) << " on " << Escrito(Lugar(piezas[j]));
      }
    }
  });
}

}  // namespace
}  // namespace tasca::test
