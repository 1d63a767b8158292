// Nothing that has to be read covers anything else, however large the window or the letters are.
// TASCA_SCENES is how many scenes are laid out in every window and letter: 10 unless it is set. A
// tenth of them is for boxes, whose place is searched.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "tests/support/tables.h"
#include "tests/ui_mesa/scenes.h"
#include "ui/mesa/box_place.h"
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

// Less than this does not count.
constexpr double Pelo = 0.01;

// What is wrong with the sheet; "" when nothing is.
std::string Tropiezo(const Lamina& hoja) {
  std::vector<Cosa> cosas = CosasDe(hoja);
  bool hayTurno = false;
  for (const Cosa& cosa : cosas) hayTurno = hayTurno || cosa.Que == "turn";
  if (!hayTurno) cosas.push_back({"Enter", hoja.Enter});
  const Rect pano = Dentro(hoja.Pano, -Pelo);
  for (std::size_t i = 0; i < cosas.size(); ++i) {
    const Rect una = Dentro(cosas[i].Donde, Pelo);
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
  return pedidas == nullptr ? 10 : std::max(1, std::atoi(pedidas));  // NOLINT(cert-err34-c)
}

// A window with a picture.
struct Ocasion {
  Rect Ventana;  // below the menu bar
  PartesVentana Partes;
  double Letra = 0;
  double AltoLinea = 0;
  std::string Nombre;
};

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
        const auto* const modo =
            partes.Modo == Reparto::AlLado ? u" points, beside" : u" points, stacked";
        const std::u16string nombre =
            Join(static_cast<int>(ancho), u"x", static_cast<int>(alto), u" in ", puntos, modo);
        mirar(Ocasion{{0, 0, v.Ancho, v.Alto}, partes, letra, v.AltoLinea, Utf8(nombre)});
      }
    }
  }
}

TEST(LaminaDe, LaysNothingOnAnythingElse) {
  std::mt19937 azar{1};
  int vistas = 0;
  int fallos = 0;
  EnTodaVentana([&](const Ocasion& o) {
    for (int i = 0; i < EscenasPorVentana() && fallos < 10; ++i) {
      const Lamina hoja =
          LaminaDe(EscenaAlAzar(azar), o.Partes.Mesa, o.Letra, LetrasCorrientes(o.Letra));
      const std::string mal = Tropiezo(hoja);
      EXPECT_EQ(mal, "") << o.Nombre;
      fallos += mal.empty() ? 0 : 1;
      ++vistas;
    }
  });
  EXPECT_GE(vistas, 300 * EscenasPorVentana());
}

// Where a box finds the things of a picture, and the last line of what happens at the table.
Alrededores AlrededoresDe(const Ocasion& o, const Lamina& hoja) {
  const auto enLaVentana = [&o](Rect r) {
    r.X += o.Partes.Mesa.X;
    r.Y += o.Partes.Mesa.Y;
    return r;
  };
  const Rect& texto2 = o.Partes.Texto2;
  Alrededores a{o.Ventana, enLaVentana(hoja.Libre), {}, {}};
  a.Nunca = {{texto2.X, texto2.Abajo() - o.AltoLinea, texto2.Ancho, o.AltoLinea}};
  for (const Cosa& cosa : CosasDe(hoja)) {
    const bool nunca = cosa.Que == "slate" || cosa.Que == "hand 1";
    if (cosa.Que != "box") (nunca ? a.Nunca : a.MejorNo).push_back(enLaVentana(cosa.Donde));
  }
  return a;
}

bool CruzaAlguno(const Rect& caja, const std::vector<Rect>& otros) {
  return std::ranges::any_of(otros,
                             [&](const Rect& otro) { return SeCruzan(Dentro(caja, Pelo), otro); });
}

// True if the box could stand somewhere in the window beside what it must not cover. Tries every
// place on a grid.
bool HaySitioLibre(Rect caja, const Alrededores& a, double paso) {
  const int columnas = static_cast<int>((a.Ventana.Ancho - caja.Ancho) / paso);
  const int filas = static_cast<int>((a.Ventana.Alto - caja.Alto) / paso);
  for (int columna = 0; columna <= columnas; ++columna) {
    for (int fila = 0; fila <= filas; ++fila) {
      caja.X = a.Ventana.X + columna * paso;
      caja.Y = a.Ventana.Y + fila * paso;
      if (!CruzaAlguno(caja, a.Nunca)) return true;
    }
  }
  return false;
}

// What is wrong with the place of a box; "" when nothing is. Only the discards, which show the hand
// themselves, may cover something, and only if there is no other place.
std::string TropiezoDeCaja(const Rect& caja, const Alrededores& a, double letra,
                           bool sonDescartes) {
  if (!Contiene(a.Ventana, caja)) return "leaves the window";
  const bool cubre = CruzaAlguno(caja, a.Nunca);
  if (cubre && (!sonDescartes || HaySitioLibre(caja, a, letra))) return "covers the hand or words";
  // With a pixel more, since the middle is rounded.
  const bool cabe = caja.Ancho + 1 <= a.Libre.Ancho && caja.Alto + 1 <= a.Libre.Alto;
  return cabe && (cubre || CruzaAlguno(caja, a.MejorNo)) ? "misses the free cloth" : "";
}

// The bidding dialog, a question and the discards, in letters, with a frame.
constexpr std::array<std::pair<double, double>, 3> Cajas{{{27, 15}, {30, 11}, {30, 20}}};

TEST(SitioDeCaja, CoversNeitherTheHandNorTheSlateInAnyWindow) {
  std::mt19937 azar{5};
  const int escenas = std::max(1, EscenasPorVentana() / 10);
  int fallos = 0;
  EnTodaVentana([&](const Ocasion& o) {
    for (int i = 0; i < escenas && fallos < 10; ++i) {
      const Lamina hoja =
          LaminaDe(EscenaAlAzar(azar), o.Partes.Mesa, o.Letra, LetrasCorrientes(o.Letra));
      const Alrededores a = AlrededoresDe(o, hoja);
      for (const auto& [ancho, alto] : Cajas) {
        const Rect caja = SitioDeCaja(ancho * o.Letra, alto * o.Letra, a);
        const std::string mal = TropiezoDeCaja(caja, a, o.Letra, alto == Cajas.back().second);
        EXPECT_EQ(mal, "") << o.Nombre << ": " << Escrito(caja);
        fallos += mal.empty() ? 0 : 1;
      }
    }
  });
}

TEST(LaminaDe, KeepsTheEnterKeyInItsPlace) {
  std::mt19937 azar{2};
  EnTodaVentana([&](const Ocasion& o) {
    const AnchoDeTexto mide = LetrasCorrientes(o.Letra);
    const Rect una = LaminaDe(EscenaInicial(), o.Partes.Mesa, o.Letra, mide).Enter;
    const Rect otra = LaminaDe(EscenaAlAzar(azar), o.Partes.Mesa, o.Letra, mide).Enter;
    EXPECT_EQ(Escrito(una), Escrito(otra)) << o.Nombre;
    EXPECT_GE(una.Ancho, 5 * o.Letra) << o.Nombre;
    EXPECT_GE(una.Alto, 2.5 * o.Letra) << o.Nombre;
  });
}

TEST(LaminaDe, DrawsNoCardTooSmallToTell) {
  std::mt19937 azar{3};
  EnTodaVentana([&](const Ocasion& o) {
    const Lamina hoja =
        LaminaDe(EscenaAlAzar(azar), o.Partes.Mesa, o.Letra, LetrasCorrientes(o.Letra));
    for (const Pieza& pieza : hoja.Piezas) {
      const auto* const carta = std::get_if<CartaPuesta>(&pieza);
      if (carta == nullptr || carta->Carta == 0) continue;
      EXPECT_GE(carta->Donde.Alto, 44) << o.Nombre << ", seat " << carta->De;
    }
  });
}

TEST(MarcadorDe, StaysInItsPlaceWithoutOverlaps) {
  std::mt19937 azar{4};
  EnTodaVentana([&](const Ocasion& o) {
    const std::vector<Pieza> piezas =
        MarcadorDe(EscenaAlAzar(azar), o.Partes.Tanteo, o.Letra, LetrasCorrientes(o.Letra));
    const Rect sitio = Dentro(o.Partes.Tanteo, -0.01);
    for (std::size_t i = 0; i < piezas.size(); ++i) {
      const Rect una = Dentro(Lugar(piezas[i]), 0.01);
      EXPECT_EQ(Union(sitio, una), sitio) << o.Nombre << ": " << Escrito(una);
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(SeCruzan(una, Lugar(piezas[j])))
            << o.Nombre << ": " << Escrito(una) << " on " << Escrito(Lugar(piezas[j]));
      }
    }
  });
}

}  // namespace
}  // namespace tasca::test
