// Pares: classes, declaration, decisions and comparison.
#include "lances/pares.h"

#include "base/numbers.h"
#include "base/text.h"
#include "cards/deck.h"
#include "characters/speech.h"
#include "lances/bidding.h"
#include "lances/decisions.h"
#include "lances/declaration.h"
#include "lances/ranking.h"

namespace tasca {
namespace {

constexpr int ClasePar = 1;
constexpr int ClaseMedias = 2;
constexpr int ClaseDuplex = 4;

constexpr PreguntaDeclaracion PreguntaPares{
    .Sobre = Pregunta::Pares,
    .Titulo = u"¿Tiene pares?",
    .SiEnRealidad = u"sí tiene pares, y eso es lo que dice (por lo que pudiera pasar...)",
    .NoEnRealidad = u"no tiene pares y eso es lo que dice (por lo que pudiera pasar...)",
};

int Clase(const std::vector<int>& iguales) {
  switch (iguales.size()) {
    case 1:
      return ClasePar;
    case 3:
      return ClaseMedias;
    case 2:
    case 6:
      return ClaseDuplex;
    default:
      return 0;
  }
}

// Tie value of hands of one class: 100 x first value + 10 x second + third + 0.1 x fourth + ...,
// rounded. The rounding can make unequal hands equal.
int Desempate(const std::vector<int>& iguales) {
  int milesimas = 0;
  int peso = 100000;
  for (const int valor : iguales) {
    milesimas += valor * peso;
    peso /= 10;
  }
  return static_cast<int>(RoundHalfEven(milesimas / 1000.0));
}

// The first and the last pair value of a hand; 0 if missing.
struct ValoresPares {
  int Primero = 0;
  int Segundo = 0;
};

ValoresPares ValoresDe(const std::vector<int>& iguales) {
  ValoresPares valores;
  if (!iguales.empty()) valores.Primero = iguales.front();
  if (iguales.size() > 1) valores.Segundo = iguales.back();
  return valores;
}

Integer FuerzaPares(const Table& t, Seat asiento) {
  const std::vector<int> iguales = CartasIguales(t, asiento);
  const ValoresPares valores = ValoresDe(iguales);
  return Clase(iguales) * 20 + (3 - t.OrdenPares[asiento]) * 2 + 2 * valores.Primero +
         2 * valores.Segundo;
}

// The least strength to accept a bet. It grows with the discard passes.
int UmbralPares(const Table& t) {
  if (t.RondasMus == 0) return 39;
  return t.RondasMus == 1 ? 52 : 59;
}

Decision RespondeOrdagoAPares(const Table& t, Seat asiento) {
  const Marcador m{t, asiento};
  const int fuerza = FuerzaPares(t, asiento);
  if ((m.ContrariosCerca && fuerza > 57) || m.FaltanContrarias == 1) return Decision::Quiero;
  return fuerza > 59 ? Decision::Quiero : Decision::NoQuiero;
}

// The opening of a seat whose pareja refused mus.
Decision AbrePorHaberCortado(const Table& t, Rnd& rnd, Seat asiento) {
  const int clase = Clase(CartasIguales(t, asiento));
  const Marcador m{t, asiento};
  if (m.ContrariosCerca && clase > ClasePar) return Decision::Ordago;
  const float r1 = rnd();
  if (r1 > 0.5F && m.ContrariosCerca) return Decision::Ordago;
  const float r2 = rnd();
  if (r2 < 0.9F && clase > ClasePar) return Decision::Envido;
  const float r3 = rnd();
  if (r3 > 0.75F && clase == ClasePar) return Decision::Envido;
  const bool segundaEsRey = CartaDe(t, asiento, 2).ValorGrande == ValorRey;
  if (t.RondasMus == 0 && segundaEsRey && clase >= ClasePar) return Decision::Envido;
  return Decision::Paso;
}

// One seat declares. If it has pares, `orden` becomes its OrdenPares.
bool DeclararAsiento(Game& g, Seat asiento, int orden) {
  Table& t = g.t;
  const bool tiene = TienePares(t, asiento);
  if (asiento == AsientoHumano) PreguntarDeclaracion(g, PreguntaPares, tiene);
  t.OrdenPares[asiento] = tiene ? orden : 0;
  DiceJugador(t, g.rnd, asiento, tiene ? MessageCategory::TPar : MessageCategory::NPar,
              SinCantidad);
  return tiene;
}

}  // namespace

std::vector<int> CartasIguales(const Table& t, Seat asiento) {
  std::vector<int> iguales;
  for (int i = 1; i <= 3; ++i) {
    const int valor = CartaDe(t, asiento, i).ValorPares;
    for (int j = i + 1; j <= 4; ++j) {
      if (CartaDe(t, asiento, j).ValorPares == valor) iguales.push_back(valor);
    }
  }
  return iguales;
}

bool TienePares(const Table& t, Seat asiento) { return !CartasIguales(t, asiento).empty(); }

void DeclaraPares(Game& g) {
  Table& t = g.t;
  EmpezarRelato(t);
  t.OrdenPares = {};
  Array<bool, 0, 1> tienen;
  int orden = 1;
  for (int i = 1; i <= 4; ++i) {
    if (!DeclararAsiento(g, t.OrdenAsiento[i], orden)) continue;
    ++orden;
    tienen[i % 2] = true;
  }
  if (tienen[0] && tienen[1]) {
    t.Fase = Fase::Pares;
  } else {
    const bool ninguna = !tienen[0] && !tienen[1];
    if (ninguna) t.Apuesta[NumeroLance::Pares] = ApuestaPagada;
    t.Text2 += Join(ninguna ? u"Ninguna de las dos parejas tiene pares"
                            : u"Una de las dos parejas no tiene pares",
                    CrLf);
    t.Fase = Fase::DeclaracionJuego;
  }
  t.Text2 += AvisoContinuar;
}

Decision DecidePares(const Table& t, Rnd& rnd, Seat asiento) {
  if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  if (ParejaDe(asiento) == t.ParejaCortaMus) return AbrePorHaberCortado(t, rnd, asiento);
  const float r = rnd();
  return r > 0.75F && t.OrdenPares[asiento] > 1 ? Decision::Envido : Decision::Paso;
}

Decision RespondePares(const Table& t, Rnd& rnd, Seat asiento) {
  if (t.SeguirLance == EnviteOrdago) return RespondeOrdagoAPares(t, asiento);
  if (const auto decision = OrdagoPorTanteo(t, asiento)) return *decision;
  const Marcador m{t, asiento};
  if (m.ContrariosCerca) return Decision::Callar;
  const int fuerza = FuerzaPares(t, asiento);
  const int umbral = UmbralPares(t);
  const float r = rnd();
  const float empuje = static_cast<float>(t.OrdagueroAsiento[asiento]) / 2.0F;
  if (2 * fuerza > 3 * umbral || r * 100.0F < empuje) return Decision::EnvidoMas;
  return fuerza >= umbral ? Decision::Quiero : Decision::NoQuiero;
}

Pareja GanaPares(const Table& t) {
  constexpr int PesoClase = 10000;  // greater than any tie value
  Array<int, 1, 4> valores;
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    const std::vector<int> iguales = CartasIguales(t, asiento);
    valores[asiento] = Clase(iguales) * PesoClase + Desempate(iguales);
  }
  const Seat mejor = MejorAsiento(t, valores);
  return valores[mejor] == 0 ? -1 : ParejaDe(mejor);
}

namespace {

constexpr Lance Pares{
    .Numero = NumeroLance::Pares,
    .Encabezado = u"Los pares\r\n",
    .EncabezadoReemplaza = true,
    .EmpiezaSinEnvite = true,
    .TituloApertura = u"Los pares",
    .TituloCantidad = u"Envite a Pares",
    .TituloRespuesta = u"Envite a pares",
    .TituloCantidadAlSubir = u"Envite a pares",
    .EnPaso = u"Los pares quedan en paso\r\nPulse enter para continuar\r\n",
    .OrdagoGanado = u"órdago a pares querido y ganado por la pareja ",
    .Aviso = AvisoContinuar,
    .SiEnvidan = Fase::RespuestaPares,
    .SiPasan = Fase::DeclaracionJuego,
    .TrasRespuesta = Fase::DeclaracionJuego,
    .YaContado = u"",
    .Envidadas = u" envidadas a pares",
    .UnaEnPaso = u"",
    .RefrescosAlRehusar = 1,
    .DeclaraAlRehusar = false,
    .AvisoTrasOrdago = true,
    .PuedeHablar = TienePares,
    .Decide = DecidePares,
    .Responde = RespondePares,
    .Gana = [](Game& g) { return GanaPares(g.t); },
};

}  // namespace

const Lance& DatosPares() { return Pares; }

void LancePares(Game& g) { AbrirLance(g, Pares); }
void EnvitePares(Game& g) { ResponderLance(g, Pares); }

}  // namespace tasca
