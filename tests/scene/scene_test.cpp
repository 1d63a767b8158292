// The scene: what can be seen at the table.
#include "scene/scene.h"

#include <gtest/gtest.h>

#include <string>

#include "cards/hand_text.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

// The cards of a seat: "10 . 8 x" is card 10, an empty slot, card 8 and a card face down.
std::string Cards(const Table& t, Seat asiento, Momento momento = Momento::Reposo) {
  std::string linea;
  const Escena escena = EscenaDe(t, momento);
  for (const Naipe& naipe : escena.Asientos[asiento].Naipes) {
    if (!linea.empty()) linea += ' ';
    linea += !naipe.Hay ? "." : naipe.Carta == 0 ? "x" : std::to_string(naipe.Carta);
  }
  return linea;
}

AsientoVisto Seen(const Table& t, Seat asiento, Momento momento = Momento::Reposo) {
  return EscenaDe(t, momento).Asientos[asiento];
}

// The declarations of seats 1 to 4: "si", "no" or "?".
std::string Declared(const Table& t, Momento momento, Declarado AsientoVisto::*lance) {
  std::string linea;
  const Escena escena = EscenaDe(t, momento);
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    const Declarado declarado = escena.Asientos[asiento].*lance;
    if (asiento > 1) linea += ' ';
    linea += declarado == Declarado::SinSaber ? "?" : declarado == Declarado::Si ? "si" : "no";
  }
  return linea;
}

TEST(EscenaDe, ShowsThePlayersCardsWhereTheyLie) {
  Table t = MesaDePrueba();
  t.Manos[1] = {10, 0, 8, 0};
  EXPECT_EQ(Cards(t, 1), "10 . 8 .");
}

TEST(EscenaDe, ShowsTheOthersCardsFaceDownWithTheirGapsAtTheEnd) {
  Table t = MesaDePrueba();
  t.Manos[2] = {10, 9, 8, 7};
  t.Manos[3] = {0, 9, 0, 7};
  t.Manos[4] = {};
  EXPECT_EQ(Cards(t, 2), "x x x x");
  EXPECT_EQ(Cards(t, 3), "x x . .");
  EXPECT_EQ(Cards(t, 4), ". . . .");
}

TEST(EscenaDe, ShowsTheHandsThatTheInputLineShows) {
  Table t = MesaDePrueba();
  t.Manos[2] = {40, 39, 38, 37};
  MostrarManos(t, TodosLosAsientos);
  EXPECT_EQ(Cards(t, 2), "40 39 38 37");
  EXPECT_TRUE(HayManosAbiertas(t));
  MostrarManos(t, AsientoHumano);
  EXPECT_EQ(Cards(t, 2), "x x x x");
  EXPECT_FALSE(HayManosAbiertas(t));
}

TEST(EscenaDe, HidesACardDealtAfterTheHandsWereShown) {
  Table t = MesaDePrueba();
  t.Manos[3] = {40, 39, 38, 37};
  MostrarManos(t, TodosLosAsientos);
  t.Manos[3] = {40, 36, 38, 35};
  EXPECT_EQ(Cards(t, 3), "40 x 38 x");
}

TEST(HayManosAbiertas, LooksAtTheOthersAlone) {
  Table t = MesaDePrueba();
  t.CartasVistas[1] = t.Manos[1];
  EXPECT_FALSE(HayManosAbiertas(t));
  t.CartasVistas[4][4] = t.Manos[4][4];
  EXPECT_TRUE(HayManosAbiertas(t));
}

TEST(HayManosAbiertas, IgnoresEmptySlots) {
  Table t = MesaDePrueba();
  t.Manos = {};
  EXPECT_FALSE(HayManosAbiertas(t));
}

TEST(EscenaDe, NamesTheSeats) {
  Table t = MesaDePrueba();
  t.NombreJugador = u"Doña Ana";
  EXPECT_EQ(Seen(t, 1).Nombre, u"Doña Ana");
  EXPECT_EQ(Seen(t, 2).Nombre, u"Jugador 2");
  t.UsarNombres = true;
  EXPECT_EQ(Seen(t, 1).Nombre, u"Doña Ana");
  EXPECT_EQ(Seen(t, 3).Nombre, u"el Cojo");
}

TEST(EscenaDe, ShowsTheManoOnceItIsDecided) {
  Table t = MesaDePrueba();
  t.OrdenAsiento = {3, 4, 1, 2};
  for (const Seat asiento : {1, 2, 3, 4}) EXPECT_EQ(Seen(t, asiento).EsMano, asiento == 3);
  t.ManoPorDecidir = true;
  EXPECT_FALSE(Seen(t, 3).EsMano);
}

TEST(EscenaDe, KeepsTheLastWordsOfEverySeat) {
  Table t = MesaDePrueba();
  t.Dichos = {{.Asiento = 2, .Frase = u"Paso"},
              {.Asiento = 1, .Frase = u"Envido"},
              {.Asiento = 2, .Frase = u"No quiero"}};
  EXPECT_EQ(Seen(t, 1).Bocadillo, u"Envido");
  EXPECT_EQ(Seen(t, 2).Bocadillo, u"No quiero");
  EXPECT_EQ(Seen(t, 3).Bocadillo, u"");
  EXPECT_TRUE(Seen(t, 2).HaHabladoElUltimo);
  EXPECT_FALSE(Seen(t, 1).HaHabladoElUltimo);
}

TEST(EscenaDe, SaysWhoseTurnItIs) {
  const Table t = MesaDePrueba();
  EXPECT_EQ(EscenaDe(t, Momento::Pregunta).Toca, Turno::Jugador);
  EXPECT_EQ(EscenaDe(t, Momento::Reposo).Toca, Turno::Enter);
  EXPECT_EQ(EscenaDe(t, Momento::Aviso).Toca, Turno::Nadie);
}

// Badges.

// Seats 1 and 4 have pares, seat 3 has juego; seat 3 speaks first and seat 1 third.
Table Declarada(Fase fase) {
  Table t = MesaDePrueba();
  t.OrdenAsiento = {3, 4, 1, 2};
  t.OrdenPares = {2, 0, 0, 1};
  t.TurnoJuego = {0, 0, 1, 0};
  t.Fase = fase;
  return t;
}

std::string Pares(Fase fase, Momento momento) {
  return Declared(Declarada(fase), momento, &AsientoVisto::Pares);
}

std::string Juego(Fase fase, Momento momento) {
  return Declared(Declarada(fase), momento, &AsientoVisto::Juego);
}

TEST(EscenaDe, ShowsWhoHasParesOnceAllHaveDeclared) {
  for (const Fase fase : {Fase::Mus, Fase::RespuestaPequena}) {
    EXPECT_EQ(Pares(fase, Momento::Pregunta), "? ? ? ?");
  }
  EXPECT_EQ(Pares(Fase::DeclaracionPares, Momento::Reposo), "? ? ? ?");
  for (const Fase fase : {Fase::Pares, Fase::DeclaracionJuego, Fase::Cuenta}) {
    EXPECT_EQ(Pares(fase, Momento::Reposo), "si no no si");
  }
}

TEST(EscenaDe, ShowsThoseBeforeThePlayerWhileThePlayerDeclares) {
  for (const Momento momento : {Momento::Pregunta, Momento::Aviso}) {
    EXPECT_EQ(Pares(Fase::DeclaracionPares, momento), "? ? no si");
    EXPECT_EQ(Juego(Fase::DeclaracionJuego, momento), "? ? si no");
  }
}

TEST(EscenaDe, ShowsWhoHasJuegoOnceAllHaveDeclared) {
  EXPECT_EQ(Juego(Fase::RespuestaPares, Momento::Pregunta), "? ? ? ?");
  EXPECT_EQ(Juego(Fase::DeclaracionJuego, Momento::Reposo), "? ? ? ?");
  EXPECT_EQ(Juego(Fase::Juego, Momento::Reposo), "no no si no");
  EXPECT_EQ(Juego(Fase::Punto, Momento::Reposo), "no no si no");
}

TEST(EscenaDe, KeepsTheBadgesBetweenHandsWhileTheHandsLieOpen) {
  Table t = Declarada(Fase::EmpezarMano);
  EXPECT_EQ(Declared(t, Momento::Reposo, &AsientoVisto::Pares), "? ? ? ?");
  MostrarManos(t, TodosLosAsientos);
  EXPECT_EQ(Declared(t, Momento::Reposo, &AsientoVisto::Pares), "si no no si");
  EXPECT_EQ(Declared(t, Momento::Reposo, &AsientoVisto::Juego), "no no si no");
}

TEST(EscenaDe, ShowsNoBadgesOfADeclarationAfterAnAcceptedOrdago) {
  Table t = Declarada(Fase::EmpezarMano);
  MostrarManos(t, TodosLosAsientos);
  t.Apuesta[NumeroLance::Pares] = EnviteOrdago;
  EXPECT_EQ(Declared(t, Momento::Reposo, &AsientoVisto::Pares), "si no no si");
  EXPECT_EQ(Declared(t, Momento::Reposo, &AsientoVisto::Juego), "? ? ? ?");
  t.Apuesta[NumeroLance::Pequena] = EnviteOrdago;
  EXPECT_EQ(Declared(t, Momento::Reposo, &AsientoVisto::Pares), "? ? ? ?");
}

TEST(EscenaDe, TellsHowManyCardsEachSeatChangedRightAfterTheDiscards) {
  Table t = MesaDePrueba();
  t.CartasCambiadas = {2, 0, 4, 1};
  t.Fase = Fase::Mus;
  t.RondasMus = 1;
  EXPECT_EQ(Seen(t, 1).CartasCambiadas, Integer{2});
  EXPECT_EQ(Seen(t, 2).CartasCambiadas, Integer{0});
  EXPECT_EQ(Seen(t, 1, Momento::Pregunta).CartasCambiadas, std::nullopt);
  t.Fase = Fase::Grande;
  EXPECT_EQ(Seen(t, 1).CartasCambiadas, std::nullopt);
  t.Fase = Fase::Mus;
  t.RondasMus = 0;
  EXPECT_EQ(Seen(t, 1).CartasCambiadas, std::nullopt);
}

// Piles and score.

TEST(EscenaDe, ShowsPilesOneToThreeThick) {
  struct Caso {
    int Siguiente;  // of the deck; 40 leaves one card
    int Grosor;
  };
  for (const Caso& caso :
       {Caso{1, 3}, Caso{12, 3}, Caso{13, 2}, Caso{26, 2}, Caso{27, 1}, Caso{40, 1}}) {
    Table t = MesaDePrueba();
    t.CartaSiguiente = caso.Siguiente;
    t.DescarteSiguiente = 42 - caso.Siguiente;  // as many discards as cards left in the deck
    const Escena escena = EscenaDe(t, Momento::Reposo);
    EXPECT_EQ(escena.GrosorMazo, caso.Grosor) << caso.Siguiente;
    EXPECT_EQ(escena.GrosorDescartes, caso.Grosor) << caso.Siguiente;
  }
  Table t = MesaDePrueba();
  t.DescarteSiguiente = 1;
  EXPECT_EQ(EscenaDe(t, Momento::Reposo).GrosorDescartes, 0);
}

TEST(EscenaDe, ShowsTheScoreOfBothParejas) {
  Table t = MesaDePrueba();
  t.Piedras = {7, 31};
  t.Juegos = {1, 0};
  t.Vacas = {0, 2};
  const Escena escena = EscenaDe(t, Momento::Reposo);
  EXPECT_EQ(
      escena.Tanteo[0],
      (TanteoVisto{
          .Piedras = 7, .Juegos = 1, .Vacas = 0, .JuegosParaVaca = 2, .VacasParaPartida = 2}));
  EXPECT_EQ(
      escena.Tanteo[1],
      (TanteoVisto{
          .Piedras = 31, .Juegos = 0, .Vacas = 2, .JuegosParaVaca = 2, .VacasParaPartida = 2}));
}

TEST(EscenaDe, Kept_CountsWhatWinsByTheRemainder) {
  struct Caso {
    int AlMejorDe;
    int Juegos;
    int Vacas;
  };
  // At best of one juego, two are needed. A match of one vaca needs one.
  for (const Caso& caso :
       {Caso{1, 2, 1}, Caso{2, 1, 1}, Caso{3, 2, 2}, Caso{4, 1, 1}, Caso{5, 2, 2}}) {
    Table t = MesaDePrueba();
    t.JuegosVaca = caso.AlMejorDe;
    t.VacasPartida = caso.AlMejorDe;
    const TanteoVisto tanteo = EscenaDe(t, Momento::Reposo).Tanteo[1];
    EXPECT_EQ(tanteo.JuegosParaVaca, caso.Juegos) << caso.AlMejorDe;
    EXPECT_EQ(tanteo.VacasParaPartida, caso.Vacas) << caso.AlMejorDe;
  }
}

}  // namespace
}  // namespace tasca::test
