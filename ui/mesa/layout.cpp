// The whole picture, from the cloth upwards.
#include "ui/mesa/layout.h"

#include <algorithm>
#include <cmath>

#include "ui/mesa/measures.h"
#include "ui/mesa/palabras.h"
#include "ui/mesa/seats.h"

namespace tasca {
namespace {

bool HaDicho(const Escena& escena) { return !escena.Asientos[AsientoHumano].Bocadillo.empty(); }

// The inlay of the cloth, between the partner and the slate. It stays where it is whatever is
// played.
void PonerEstrella(const Composicion& c) {
  const double arriba = c.M.Util.Y + std::max(c.M.AltoOtros, ConDistintivos * c.M.f) + 0.4 * c.M.f;
  const double lado = std::round(std::min(c.M.Techo - arriba, c.M.Util.Ancho * 0.42) * 0.98);
  if (lado < 5 * c.M.f) return;
  const double y = (arriba + c.M.Techo - lado) / 2;
  c.Hoja.Piezas.insert(c.Hoja.Piezas.begin(), Adorno{{std::round(c.M.Util.CentroX() - lado / 2),
                                                      std::round(y), lado, lado},
                                                     ClaseAdorno::Estrella});
}

void PonerMonton(const Composicion& c, int grosor, std::u16string_view texto, double x, double y,
                 double alto) {
  if (grosor <= 0) return;
  const double ancho = alto * ProporcionCarta;
  const Rect donde{x, y, ancho, alto};
  const double rotulo = c.Mide(texto, {0.9, false}) + 1;
  c.Hoja.Piezas.emplace_back(
      Monton{donde,
             {donde.CentroX() - rotulo / 2, donde.Abajo() + 0.35 * c.M.f, rotulo, 1.4 * c.M.f},
             grosor,
             std::u16string{texto}});
}

// Deck and discards in the middle of the free cloth.
void PonerMontones(const Composicion& c) {
  const double f = c.M.f;
  const Rect& libre = c.Hoja.Libre;
  const double alto = std::floor(std::min(c.M.Mano.Alto * 0.42, libre.Alto - 2.6 * f));
  const double ancho = alto * ProporcionCarta;
  if (alto < 3 * f || 2 * ancho + 4.4 * f > libre.Ancho) return;
  const double y = std::round(libre.CentroY() - alto / 2 - 0.6 * f);
  PonerMonton(c, c.Vista.GrosorMazo, PalabraMazo, std::round(libre.CentroX() - ancho - 1.6 * f), y,
              alto);
  PonerMonton(c, c.Vista.GrosorDescartes, PalabraDescartes, std::round(libre.CentroX() + 1.6 * f),
              y, alto);
}

// A glass above the Enter key; olives where the player's words leave them room.
void PonerAdornos(const Composicion& c) {
  const double f = c.M.f;
  const double lado = c.M.Mano.X - c.M.Util.X;
  const double r = std::min(2.5 * f, lado * 0.24);
  const double abajo = c.M.Enter.Y - f;
  if (r < 1.2 * f || c.M.Mano.Y + 2 * r + 0.4 * f > abajo) return;
  const double y = c.M.Mano.Y + 0.3 * f;
  c.Hoja.Piezas.emplace_back(
      Adorno{{c.M.Util.Derecha() - 2 * r - 0.4 * f, y, 2 * r, 2 * r}, ClaseAdorno::Vaso});
  if (HaDicho(c.Vista)) return;
  c.Hoja.Piezas.emplace_back(
      Adorno{{c.M.Util.X + 0.4 * f, y, 2 * r, 2 * r}, ClaseAdorno::Aceitunas});
}

}  // namespace

Lamina LaminaDe(const Escena& escena, const Rect& donde, double letra, const AnchoDeTexto& mide) {
  const Medidas m = MedidasDe(escena, donde, letra);
  Lamina hoja;
  hoja.Suelo = donde;
  hoja.Madera = m.Madera;
  hoja.Pano = m.Pano;
  hoja.Letra = letra;
  hoja.Mano = m.Mano;
  hoja.Enter = m.Enter;
  const Composicion c{escena, m, mide, hoja};
  if (m.Abierta) {
    PonerOtrosAbiertos(c);
  } else {
    PonerOtrosTapados(c);
  }
  if (!m.Baja && !m.Abierta) PonerMontones(c);
  PonerEstrella(c);
  PonerPizarra(c);
  PonerJugador(c);
  if (!m.Baja && !m.PlacaEncima && !m.Apretada) PonerAdornos(c);
  return hoja;
}

}  // namespace tasca
