// Juegos, vacas and the match.
#include "score/scoreboard.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "base/errors.h"
#include "cards/hand_text.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;
using Tantos = Array<Integer, 0, 1>;

// A table, a generator and a port.
struct SalaSinSemilla {
  Table t = MesaDePrueba();
  Rnd rnd;
  ScriptedPort port;
  Game g{t, rnd, port};
};

constexpr auto OtraPartida = "yesno[Mus]: ¿Desea jugar otra partida? (no icon, default yes)";
constexpr auto OtrosJugadores = "yesno[Mus]: ¿Desea cambiar de jugadores? (no icon, default yes)";
constexpr auto Aplauso = "sound: Son_aplauso.wav x1 balance 0 volume 0";
constexpr auto Reparto = "sound: Son_ReparteCartas.mp3 x1 balance 0 volume 0";
constexpr auto MarcadorACero = "Piedras: 0 / 0;    juegos: 0 / 0;    Vacas: 0 / 0";

TEST(MostrarTanteo, PutsTheHumansParejaFirst) {
  Table t = MesaDePrueba();
  t.Text3 = u"lo de antes";
  t.Piedras = {7, 12};
  t.Juegos = {1, 2};
  t.Vacas = {3, 0};
  MostrarTanteo(t);
  EXPECT_EQ(Utf8(t.Text3), "Piedras: 12 / 7;    juegos: 2 / 1;    Vacas: 0 / 3");
}

TEST(MostrarTanteo, WritesNegativeStonesToo) {
  Table t = MesaDePrueba();
  t.Piedras = {-2, 0};
  MostrarTanteo(t);
  EXPECT_EQ(Utf8(t.Text3), "Piedras: 0 / -2;    juegos: 0 / 0;    Vacas: 0 / 0");
}

TEST(ComprobarVaca, OnlyRefreshesTheScoreboardWithoutAWinner) {
  SalaSinSemilla sala;
  sala.t.Juegos = {1, 1};
  sala.t.Piedras = {3, 4};
  Table esperada = sala.t;
  ComprobarVaca(sala.g);
  esperada.Text3 = u"Piedras: 4 / 3;    juegos: 1 / 1;    Vacas: 0 / 0";
  EXPECT_EQ(sala.t, esperada);
  EXPECT_EQ(sala.port.TakeEvents(), Sucesos{});
}

TEST(ComprobarVaca, GivesTheVacaForTwoJuegosOfThree) {
  SalaSinSemilla sala;
  sala.t.Juegos = {2, 1};
  sala.t.Vacas = {0, 1};
  sala.t.Piedras = {5, 6};
  ComprobarVaca(sala.g);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"box: La pareja 0 gana esta vaca. El resultado ha sido de 1 a 2 partidas.|1 a "
                     "1 vaca."}));
  EXPECT_EQ(sala.t.Juegos, (Tantos{0, 0}));
  EXPECT_EQ(sala.t.Vacas, (Tantos{1, 1}));
  EXPECT_EQ(sala.t.Piedras, (Tantos{5, 6}));
  EXPECT_EQ(Utf8(sala.t.Text3), "Piedras: 6 / 5;    juegos: 0 / 0;    Vacas: 1 / 1");
}

TEST(ComprobarVaca, GivesTheVacaToTheHumansPareja) {
  SalaSinSemilla sala;
  sala.t.Juegos = {0, 2};
  ComprobarVaca(sala.g);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"box: La pareja 1 gana esta vaca. El resultado ha sido de 2 a 0 partidas.|1 a "
                     "0 vaca."}));
  EXPECT_EQ(sala.t.Vacas, (Tantos{0, 1}));
}

TEST(ComprobarVaca, Kept_PrefersTheHumansParejaWhenBothQualify) {
  SalaSinSemilla sala;
  sala.t.Juegos = {3, 2};
  ComprobarVaca(sala.g);
  EXPECT_EQ(sala.t.Vacas, (Tantos{0, 1}));
}

struct CasoLimite {
  int AlMejorDe;
  int HacenFalta;
};

constexpr std::array<CasoLimite, 8> LimitesJuegos{
    {{1, 2}, {2, 1}, {3, 2}, {4, 1}, {5, 2}, {6, 1}, {7, 2}, {999, 2}}};

// The vacas of a pareja after ComprobarVaca, if it has this many juegos.
int VacasWith(int alMejorDe, Pareja pareja, int juegos) {
  SalaSinSemilla sala;
  sala.t.JuegosVaca = alMejorDe;
  sala.t.Juegos[pareja] = juegos;
  ComprobarVaca(sala.g);
  return sala.t.Vacas[pareja];
}

TEST(ComprobarVaca, Kept_NeedsTheRemainderOfJuegosAndOneMore) {
  for (const CasoLimite& caso : LimitesJuegos) {
    for (const Pareja pareja : {0, 1}) {
      EXPECT_EQ(VacasWith(caso.AlMejorDe, pareja, caso.HacenFalta - 1), 0) << caso.AlMejorDe;
      EXPECT_EQ(VacasWith(caso.AlMejorDe, pareja, caso.HacenFalta), 1) << caso.AlMejorDe;
    }
  }
}

// The vacas that a pareja needs to win the match.
constexpr std::array<CasoLimite, 7> LimitesVacas{
    {{1, 1}, {2, 1}, {3, 2}, {4, 1}, {5, 2}, {6, 1}, {7, 2}}};

// Whether the match ends when a pareja reaches this many vacas.
bool MatchEndsWith(int alMejorDe, Pareja pareja, int vacas) {
  SalaSinSemilla sala;
  sala.t.VacasPartida = alMejorDe;
  sala.t.Vacas[pareja] = vacas - 1;
  sala.t.Juegos[pareja] = 2;
  sala.port.Yes().Yes();
  ComprobarVaca(sala.g);
  const bool termina = sala.port.TakeEvents().size() > 1;
  if (!termina) FinPartida(sala.g, pareja);  // uses up the scripted answers
  return termina;
}

TEST(ComprobarVaca, Kept_NeedsTheRemainderOfVacasAndOneMoreForTheMatch) {
  for (const CasoLimite& caso : LimitesVacas) {
    for (const Pareja pareja : {0, 1}) {
      EXPECT_TRUE(MatchEndsWith(caso.AlMejorDe, pareja, caso.HacenFalta)) << caso.AlMejorDe;
      if (caso.HacenFalta == 1) continue;
      EXPECT_FALSE(MatchEndsWith(caso.AlMejorDe, pareja, caso.HacenFalta - 1)) << caso.AlMejorDe;
    }
  }
}

constexpr auto OfrecenDerrota =
    "box: Ha ganado la partida.|Sus contrarios le ofrecen la mano mientras comentan:|"
    "Jugador 2: Derr1|Jugador 4: Derr1";
constexpr auto OfrecenVictoria =
    "box: Ha perdido la partida.|Sus contrarios le ofrecen la mano mientras comentan:|"
    "Jugador 2: Vict1|Jugador 4: Vict1";
constexpr auto VacaGanada =
    "box: La pareja 1 gana esta vaca. El resultado ha sido de 2 a 1 partidas.|2 a 0 vaca.";
constexpr auto VacaACero =
    "box: La pareja 0 gana esta vaca. El resultado ha sido de 0 a 0 partidas.|0 a 0 vaca.";

TEST(ComprobarVaca, EndsTheMatchBeforeTheBoxOfTheVaca) {
  SalaSinSemilla sala;
  sala.t.Juegos = {1, 2};
  sala.t.Vacas = {0, 1};
  sala.port.Yes().Yes();
  ComprobarVaca(sala.g);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"box: La pareja 1gana esta vaca.", Aplauso, OfrecenDerrota, OtraPartida,
                     OtrosJugadores, "change players", VacaGanada}));
  EXPECT_EQ(sala.t.Juegos, (Tantos{0, 0}));
  EXPECT_EQ(Utf8(sala.t.Text3), "Piedras: 0 / 0;    juegos: 0 / 0;    Vacas: 2 / 0");
}

TEST(ComprobarVaca, Kept_ShowsZerosAfterANewMatchHasBeenSetUp) {
  SalaSinSemilla sala;
  sala.t.Juegos = {2, 1};
  sala.t.Vacas = {1, 1};
  sala.port.Yes().No();
  ComprobarVaca(sala.g);
  EXPECT_EQ(sala.port.TakeEvents(), (Sucesos{"box: La pareja 0gana esta vaca.", OfrecenVictoria,
                                             OtraPartida, OtrosJugadores, Reparto, VacaACero}));
  EXPECT_EQ(sala.port.Preguntas,
            (std::vector<Pregunta>{Pregunta::OtraPartida, Pregunta::CambiarJugadores}));
  EXPECT_EQ(Utf8(sala.t.Text3), MarcadorACero);
}

TEST(FinPartida, Kept_WritesNoBlankBeforeGana) {
  SalaSinSemilla sala;
  sala.port.Yes().Yes();
  FinPartida(sala.g, 0);
  EXPECT_EQ(sala.port.TakeEvents().front(), "box: La pareja 0gana esta vaca.");
}

TEST(FinPartida, NamesTheOpponentsWhenTheyAreCalledByName) {
  SalaSinSemilla sala;
  sala.t.UsarNombres = true;
  sala.t.Mensajes[3][13][1] = u"  ¡Otra será!  ";
  sala.t.Mensajes[5][13][1] = u"Buen juego";
  sala.port.Yes().Yes();
  FinPartida(sala.g, 0);
  EXPECT_EQ(sala.port.TakeEvents().at(1),
            "box: Ha perdido la partida.|Sus contrarios le ofrecen la mano mientras "
            "comentan:|Berta: ¡Otra será!|Dora: Buen juego");
}

TEST(FinPartida, QuotesTheOpponentsPhrasesForTheirDefeat) {
  SalaSinSemilla sala;
  sala.t.UsarNombres = true;
  sala.t.Mensajes[3][14][1] = u"Ya veremos";
  sala.t.Mensajes[5][14][1] = u"";
  sala.port.Yes().Yes();
  FinPartida(sala.g, 1);
  EXPECT_EQ(sala.port.TakeEvents().at(2),
            "box: Ha ganado la partida.|Sus contrarios le ofrecen la mano mientras "
            "comentan:|Berta: Ya veremos|Dora: ");
}

TEST(FinPartida, ApplaudsOnlyTheHumansPareja) {
  for (const Pareja pareja : {0, 1}) {
    SalaSinSemilla sala;
    sala.port.Yes().Yes();
    FinPartida(sala.g, pareja);
    EXPECT_EQ(sala.port.TakeEvents().at(1) == Aplauso, pareja == 1);
  }
}

TEST(FinPartida, LeavesWhenThePlayerWantsNoOtherMatch) {
  SalaSinSemilla sala;
  sala.t.Vacas = {2, 0};
  sala.port.No();
  try {
    FinPartida(sala.g, 0);
    ADD_FAILURE() << "the program goes on";
  } catch (const LeaveProgram& salida) {
    EXPECT_TRUE(salida.PartidaAcabada);
  }
  EXPECT_EQ(sala.port.TakeEvents().back(), OtraPartida);
  EXPECT_EQ(Utf8(sala.t.Text2), "Hasta pronto");
  EXPECT_EQ(sala.t.Vacas, (Tantos{2, 0}));
}

TEST(FinPartida, RequestsOtherPlayersAndChangesNothing) {
  SalaSinSemilla sala;
  sala.t.Vacas = {2, 0};
  sala.t.Piedras = {4, 5};
  const Table antes = sala.t;
  sala.port.Yes().Yes();
  FinPartida(sala.g, 0);
  EXPECT_EQ(sala.port.TakeEvents().back(), "change players");
  EXPECT_EQ(sala.t, antes);
  EXPECT_EQ(sala.rnd.Draws(), 0U);
}

TEST(FinPartida, StartsAnotherMatchWithTheSamePlayers) {
  SalaSinSemilla sala;
  Table& t = sala.t;
  t.Piedras = {4, 5};
  t.Juegos = {2, 1};
  t.Vacas = {2, 1};
  t.PiedrasJuego = 40;
  t.JuegosVaca = 5;
  t.VacasPartida = 1;
  t.Fase = Fase::Cuenta;
  t.OrdenAsiento = {3, 4, 1, 2};
  sala.port.Yes().No();
  FinPartida(sala.g, 0);
  EXPECT_EQ(t.Piedras, (Tantos{0, 0}));
  EXPECT_EQ(t.Juegos, (Tantos{0, 0}));
  EXPECT_EQ(t.Vacas, (Tantos{0, 0}));
  EXPECT_EQ(t.PiedrasJuego, 40);
  EXPECT_EQ(t.JuegosVaca, 5);
  EXPECT_EQ(t.VacasPartida, 1);
  EXPECT_EQ(t.OrdenAsiento, (Array<Integer, 1, 4>{4, 1, 2, 3}));
  EXPECT_FALSE(t.ManoPorDecidir);
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_EQ(Utf8(t.Text2), "Sus cartas son\r\n" + Utf8(TextoMano(t)) +
                               "\r\nEl jugador 4 es mano.\r\npulse Enter para empezar");
  EXPECT_EQ(sala.rnd.Draws(), 80002U);
}

TEST(GanaJuego, CreditsTheJuegoAndWaitsForANewHand) {
  SalaSinSemilla sala;
  Table& t = sala.t;
  t.Piedras = {30, 12};
  t.Fase = Fase::RespuestaGrande;
  t.Text2 = u"lo de antes";
  GanaJuego(sala.g, 1);
  EXPECT_EQ(t.Juegos, (Tantos{0, 1}));
  EXPECT_EQ(t.Piedras, (Tantos{0, 0}));
  EXPECT_EQ(t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(Utf8(t.Text2), "Pulse enter para empezar una nueva mano");
  EXPECT_EQ(Utf8(t.Text3), "Piedras: 0 / 0;    juegos: 1 / 0;    Vacas: 0 / 0");
  EXPECT_EQ(sala.port.TakeEvents(), Sucesos{});
}

TEST(GanaJuego, MayWinTheVaca) {
  SalaSinSemilla sala;
  sala.t.Juegos = {1, 1};
  GanaJuego(sala.g, 0);
  EXPECT_EQ(sala.port.TakeEvents(),
            (Sucesos{"box: La pareja 0 gana esta vaca. El resultado ha sido de 1 a 2 partidas.|0 a "
                     "1 vaca."}));
  EXPECT_EQ(Utf8(sala.t.Text3), "Piedras: 0 / 0;    juegos: 0 / 0;    Vacas: 0 / 1");
  EXPECT_EQ(Utf8(sala.t.Text2), "Pulse enter para empezar una nueva mano");
}

TEST(GanaJuego, Kept_WaitsForANewHandAfterAnotherMatchHasDealtOne) {
  // The new match has already dealt a hand, but the current step ends as usual.
  SalaSinSemilla sala;
  sala.t.Juegos = {1, 0};
  sala.t.Vacas = {1, 0};
  sala.port.Yes().No();
  GanaJuego(sala.g, 0);
  EXPECT_EQ(sala.t.Fase, Fase::EmpezarMano);
  EXPECT_EQ(Utf8(sala.t.Text2), "Pulse enter para empezar una nueva mano");
  EXPECT_EQ(Utf8(sala.t.Text3), MarcadorACero);
}

}  // namespace
}  // namespace tasca::test
