// The start of a match.
#include "match/start.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/errors.h"
#include "cards/deck.h"
#include "cards/hand_text.h"
#include "tests/support/draw_list.h"
#include "tests/support/scripted_port.h"
#include "tests/support/tables.h"
#include "tests/support/temp_folder.h"

namespace tasca::test {
namespace {

using Sucesos = std::vector<std::string>;

// Six characters in Windows-1252, with one phrase for the third.
constexpr auto Personajes =
    "Datos>\r\nDefault indirecto\r\n000\r\n\r\nQMus>\r\nque quiere mus\r\n"
    "Datos>\r\nDefault directo\r\n000\r\n\r\nQMus>\r\nMus\r\n"
    "Datos>\r\n  La boticaria \r\n040\r\nUna historia\r\nNMus>\r\nNo hay mus, se\xF1or\r\n"
    "Datos>\r\nEl t\xEDo Zarandel\r\n075\r\n\r\n"
    "Datos>\r\nel Cojo\r\n051\r\n\r\n"
    "Datos>\r\nDora\r\n099\r\n\r\n";

// A folder with the character file, and a table after the start-up dialog: La boticaria at seat 2,
// El tío Zarandel at seat 3, el Cojo at seat 4.
struct Casa {
  TempFolder carpeta;
  Table t;
  Rnd rnd;
  ScriptedPort port;
  Game g{t, rnd, port};

  Casa() {
    carpeta.Write("Jugadores.dat", Personajes);
    t.Carpeta = carpeta.Path();
    t.PersonajeAsiento = {0, 3, 4, 5};
    t.NombreJugador = u"Ana";
    port.Hora = {.Hora = 21, .Minuto = 4, .Segundo = 37};
  }
};

// The text of Form_Load after the match's description.
std::string Cartas(const Table& t) {
  return "Sus cartas son \r\n" + Utf8(TextoMano(t)) + "\r\nPulse enter para empezar";
}

constexpr auto Titulo =
    "Partida de\r\nAna y El tío Zarandel\r\n contra \r\nLa boticaria y el Cojo\r\n\r\n";
constexpr auto Descripcion =
    "Partida al mejor de 3 vacas, cada una  al mejor de 3 juegos de35 piedras.\r\n";

TEST(Form_Load, DealsTheSameCardsInTheSameSecond) {
  Casa una;
  Casa otra;
  otra.rnd();
  Form_Load(una.g);
  Form_Load(otra.g);
  EXPECT_EQ(una.t.Manos, otra.t.Manos);
  otra.port.Hora.Segundo += 1;
  Form_Load(otra.g);
  EXPECT_NE(una.t.Manos, otra.t.Manos);
}

TEST(Form_Load, SetsUpTheTable) {
  Casa casa;
  Table& t = casa.t;
  t.PersonajeAsiento[0] = 7;
  Form_Load(casa.g);
  EXPECT_EQ(t.PersonajeAsiento, (Array<Integer, 0, 3>{0, 3, 4, 5}));
  EXPECT_EQ(t.OrdenAsiento, (Array<Integer, 1, 4>{1, 2, 3, 4}));
  EXPECT_TRUE(t.ManoPorDecidir);
  EXPECT_EQ(t.Fase, Fase::Mus);
  EXPECT_EQ(t.PiedrasJuego, 35);
  EXPECT_EQ(t.JuegosVaca, 3);
  EXPECT_EQ(t.VacasPartida, 3);
  EXPECT_EQ(t.Text3, u"");
}

TEST(Form_Load, Kept_SetsTheDeclarationsOfParesAndJuegoButNotOfThePunto) {
  Casa casa;
  Form_Load(casa.g);
  EXPECT_EQ(casa.t.Declaracion, (Array<Integer, 3, 5>{-2, -2, 0}));
}

TEST(Form_Load, ResetsForm1) {
  Casa casa;
  Form_Load(casa.g);
  const Table primera = casa.t;
  casa.t.Piedras = {5, 6};
  casa.t.Juegos = {1, 1};
  casa.t.Vacas = {1, 0};
  casa.t.Apuesta = {1, 2, 3, 4, 5};
  casa.t.Declaracion[NumeroLance::Punto] = 1;
  casa.t.ParejaEnvite = 1;
  casa.t.RondasMus = 4;
  casa.t.SeJuegaPunto = true;
  casa.t.OrdenAsiento = {3, 4, 1, 2};
  casa.t.ManoPorDecidir = false;
  casa.t.Mp1.Volumen = -700;
  casa.t.Text3 = u"marcador";
  Form_Load(casa.g);
  EXPECT_EQ(casa.t, primera);
}

TEST(Form_Load, ReadsTheCharacters) {
  Casa casa;
  Form_Load(casa.g);
  EXPECT_EQ(Utf8(casa.t.Personajes[3].Nombre.Trimmed()), "La boticaria");
  EXPECT_EQ(Utf8(Mensaje(casa.t, 3, MessageCategory::NMus, 1).Trimmed()), "No hay mus, señor");
}

TEST(Form_Load, GivesEachComputerSeatItsCharactersOrdaguero) {
  Casa casa;
  casa.t.Personajes[0].Ordaguero = 88;
  Form_Load(casa.g);
  EXPECT_EQ(casa.t.OrdagueroAsiento, (Array<Integer, 1, 4>{0, 40, 75, 51}));
}

TEST(Form_Load, TakesTheMatchFromTheSettings) {
  Casa casa;
  casa.carpeta.Write("mus.ini", "40 piedras\r\n5\r\n1\r\nAna\r\n");
  Form_Load(casa.g);
  EXPECT_EQ(casa.t.PiedrasJuego, 40);
  EXPECT_EQ(casa.t.JuegosVaca, 5);
  EXPECT_EQ(casa.t.VacasPartida, 1);
}

TEST(Form_Load, DealsFromADeckShuffledOnce) {
  Casa casa;
  Form_Load(casa.g);
  EXPECT_EQ(casa.rnd.Draws(), 40001U);
  Casa otra;
  otra.rnd.Seed(4180);
  CrearBaraja(otra.t, otra.rnd);
  for (Seat asiento = 1; asiento <= 4; ++asiento) Repartir(otra.g, asiento, 4);
  EXPECT_EQ(casa.t.Baraja, otra.t.Baraja);
  EXPECT_EQ(casa.t.Manos, otra.t.Manos);
  EXPECT_EQ(casa.t.CartaSiguiente, 17);
  EXPECT_EQ(casa.t.DescarteSiguiente, 1);
}

TEST(Form_Load, SoundsTheShuffle) {
  Casa casa;
  Form_Load(casa.g);
  EXPECT_EQ(casa.port.TakeEvents(), (Sucesos{"sound: Son_BarajaCartas.mp3 x1 balance 0 volume 0"}));
  EXPECT_EQ(casa.t.SonidoActual, -1);
}

TEST(Form_Load, ShowsTheHumansHand) {
  Casa casa;
  Form_Load(casa.g);
  EXPECT_EQ(casa.t.Text1, TextoMano(casa.t));
}

TEST(Form_Load, Kept_WritesTheTitleAndTheDescriptionWithItsOddBlanks) {
  Casa casa;
  casa.t.NombreJugador = u"  Ana ";
  Form_Load(casa.g);
  EXPECT_EQ(Utf8(casa.t.Text2), std::string{Titulo} + Descripcion + Cartas(casa.t));
}

TEST(Form_Load, NamesTheCharactersWhateverTheOptions) {
  Casa casa;
  casa.t.UsarNombres = false;
  Form_Load(casa.g);
  EXPECT_TRUE(Utf8(casa.t.Text2).starts_with(Titulo));
}

TEST(Form_Load, WritesNoTitleWithoutACharacterAtSeat2) {
  Casa casa;
  casa.t.PersonajeAsiento = {0, 0, 4, 5};
  Form_Load(casa.g);
  EXPECT_EQ(Utf8(casa.t.Text2), Descripcion + Cartas(casa.t));
}

struct CasoDescripcion {
  std::string Ajustes;
  std::string Texto;
};

TEST(Form_Load, Kept_DescribesEveryKindOfMatch) {
  const std::vector<CasoDescripcion> casos{
      {"35\r\n1\r\n1\r\n", "Partida  a una vaca  a un juego de 35 piedras.\r\n"},
      {"40\r\n1\r\n3\r\n", "Partida al mejor de 3 vacas, cada una  a un juego de 40 piedras.\r\n"},
      {"25\r\n5\r\n1\r\n", "Partida  a una vaca  al mejor de 5 juegos de25 piedras.\r\n"},
      {"1\r\n2\r\n2\r\n",
       "Partida al mejor de 2 vacas, cada una  al mejor de 2 juegos de1 piedras.\r\n"},
      {"999\r\n999\r\n999\r\n",
       "Partida al mejor de 999 vacas, cada una  al mejor de 999 juegos de999 piedras.\r\n"},
  };
  for (const CasoDescripcion& caso : casos) {
    Casa casa;
    casa.carpeta.Write("mus.ini", caso.Ajustes);
    Form_Load(casa.g);
    EXPECT_EQ(Utf8(casa.t.Text2), Titulo + caso.Texto + Cartas(casa.t));
  }
}

TEST(Form_Load, EndsTheProgramWithoutTheCharacterFile) {
  Casa casa;
  std::filesystem::remove(casa.carpeta.Path() / "Jugadores.dat");
  EXPECT_THROW(Form_Load(casa.g), RunTimeError);
}

TEST(Form_Load, EndsTheProgramForASettingsFileCutShort) {
  Casa casa;
  casa.carpeta.Write("mus.ini", "35\r\n3\r\n");
  EXPECT_THROW(Form_Load(casa.g), RunTimeError);
}

}  // namespace
}  // namespace tasca::test
