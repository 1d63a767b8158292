// The start line: the fields of the dialog, refused choices and the clock.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <utility>

#include "tests/support/plain_user.h"
#include "tests/ui_trace/trace_run.h"

namespace tasca::test {
namespace {

std::string StartWith(const std::string& fields) {
  return R"({"start": {"clock": [0, 0, 0], )" + fields + "}}";
}

TEST(TraceStart, ShufflesAndWritesTheStateOfTheNewWindow) {
  const TraceRun run = TraceFolder{}.Play({Start});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(run.Names(), "sound state");
  EXPECT_EQ(run.Events.at(0).dump(),
            R"({"event":"sound","file":"Son_BarajaCartas.mp3","count":1,"balance":0,"volume":0})");
}

TEST(TraceStart, SeatsTheChosenCharacters) {
  const auto state = TraceFolder{}.Play({Start}).Last();
  // Combo1 is the partner, seat 3. The first offered character has number 3.
  EXPECT_EQ(state["PersonajeAsiento"].dump(), "[0,3,5,4]");
  EXPECT_EQ(state["OrdagueroAsiento"].dump(), "[0,10,90,50]");
  EXPECT_EQ(state["NombreJugador"], "Ana");
}

TEST(TraceStart, TrimsTheName) {
  const auto state = TraceFolder{}.Play({StartWith(R"("name": "  Ana ", "combos": [1, 2, 3])")});
  EXPECT_EQ(state.Last()["NombreJugador"], "Ana");
}

TEST(TraceStart, AcceptsANameOfAHundredCharacters) {
  const std::string cien = std::string(96, 'x') + "Ñ€😀";
  const auto state =
      TraceFolder{}.Play({StartWith(R"("name": ")" + cien + R"(", "combos": [1, 2, 3])")}).Last();
  EXPECT_EQ(state["NombreJugador"], cien);
}

TEST(TraceStart, KeepsALongerNameFromTheSettings) {
  const TraceFolder folder;
  const std::string largo(150, 'x');
  folder.Files().Write("mus.ini", "7\r\n3\r\n3\r\n" + largo + "> Nombre\r\n");
  EXPECT_EQ(folder.Play({StartWith(R"("combos": [1, 2, 3])")}).Last()["NombreJugador"], largo);
}

TEST(TraceStart, WithoutANameTakesTheOneThatTheDialogLoaded) {
  const std::string line = StartWith(R"("combos": [1, 2, 3], "checks": [true, true], "option": 0)");
  EXPECT_EQ(TraceFolder{}.Play({line}).Last()["NombreJugador"], "Jugador 1");
  EXPECT_EQ((TraceFolder{35, 3, 3}.Play({line}).Last()["NombreJugador"]), "Ana");
}

TEST(TraceStart, SavesTheName) {
  const TraceFolder folder{7, 3, 3};
  folder.Play({StartWith(R"("name": "Íñigo €", "combos": [1, 2, 3])")});
  EXPECT_EQ(folder.Files().Read("mus.ini"),
            "7\r\n3\r\n3\r\n\xCD\xF1igo \x80> Nombre del \xFAltimo jugador\r\nAna> Nombre\r\n");
}

TEST(TraceStart, PlaysWithoutSavingTheNameAndReportsIt) {
  const TraceFolder folder{7, 3, 3};
  const PlainUser user{folder.Files()};
  std::filesystem::permissions(folder.Files().Path() / "mus.ini", std::filesystem::perms{0444});
  const TraceRun run = folder.Play({Start});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Names(), "msgbox sound state");
  EXPECT_EQ(run.First("msgbox")["text"],
            "No se ha podido guardar su nombre en mus.ini: no hay permiso para escribir. La "
            "partida se juega igual.");
  EXPECT_EQ(run.Last()["NombreJugador"], "Ana");
  EXPECT_EQ(run.Last()["PiedrasJuego"], 7);
}

TEST(TraceStart, SetsTheOptionsOfTheNarration) {
  const auto flags = [](const std::string& fields) {
    const auto state = TraceFolder{}.Play({StartWith(R"("combos": [1, 2, 3])" + fields)}).Last();
    return state["EstiloDirecto"].dump() + " " + state["UsarNombres"].dump() + " " +
           state["UsarExpresiones"].dump();
  };
  EXPECT_EQ(flags(""), "-1 -1 -1");
  EXPECT_EQ(flags(R"(, "option": 1)"), "0 -1 -1");
  EXPECT_EQ(flags(R"(, "checks": [false, true])"), "-1 0 -1");
  EXPECT_EQ(flags(R"(, "checks": [true, false])"), "-1 -1 0");
}

TEST(TraceStart, DrawsAnAleatorioAmongTheOtherCharacters) {
  const auto state = TraceFolder{}.Play({StartWith(R"("combos": [0, 4, 0])")}).Last();
  const auto seats = state["PersonajeAsiento"].get<std::vector<int>>();
  EXPECT_EQ(seats.at(1), 6);
  EXPECT_TRUE(seats.at(2) >= 3 && seats.at(2) <= 5) << seats.at(2);
  EXPECT_TRUE(seats.at(3) >= 3 && seats.at(3) <= 5) << seats.at(3);
  EXPECT_NE(seats.at(2), seats.at(3));
}

TEST(TraceStart, ReadsTheMatchParameters) {
  const auto state = TraceFolder{12, 2, 1}.Play({Start}).Last();
  EXPECT_EQ(state["PiedrasJuego"], 12);
  EXPECT_EQ(state["JuegosVaca"], 2);
  EXPECT_EQ(state["VacasPartida"], 1);
}

// The first deck for this seed: one unused draw, then 20,000 swaps.
std::vector<int> DeckOf(std::uint32_t seed) {
  std::mt19937 engine{seed};
  const auto position = [&engine] {
    const float r = static_cast<float>(engine() >> 8U) * 0x1p-24F;
    return static_cast<std::size_t>(40.0F * r);
  };
  std::vector<int> deck(40);
  for (std::size_t i = 0; i < deck.size(); ++i) deck[i] = static_cast<int>(i) + 1;
  engine();
  for (int i = 0; i < 20000; ++i) {
    const std::size_t a = position();
    const std::size_t b = position();
    std::swap(deck[a], deck[b]);
  }
  return deck;
}

TEST(TraceStart, SeedsFromTheClock) {
  const auto state =
      TraceFolder{}.Play({R"({"start": {"clock": [21, 4, 37], "combos": [1, 2, 3]}})"}).Last();
  EXPECT_EQ(state["Baraja"].get<std::vector<int>>(), DeckOf(22 * 5 * 38));
  EXPECT_EQ(state["draws"], 40001);
}

TEST(TraceStart, AcceptsTheLastSecondOfTheDay) {
  const auto state =
      TraceFolder{}.Play({R"({"start": {"clock": [23, 59, 59], "combos": [1, 2, 3]}})"}).Last();
  EXPECT_EQ(state["Baraja"].get<std::vector<int>>(), DeckOf(86400));
}

TEST(TraceStart, AsksForAnotherStartAfterARefusal) {
  const TraceRun run = TraceFolder{}.Play(
      {StartWith(R"("name": "Eva", "combos": [1, 1, 2], "checks": [false, false], "option": 1)"),
       R"({"start": {"combos": [1, 2, 2], "clock": "ignored"}})",
       R"({"start": {"combos": [1, 2, 3]}})"});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Names(), "msgbox msgbox sound state");
  EXPECT_EQ(
      run.Events.at(0).dump(),
      R"({"event":"msgbox","title":"","text":"Si quiere que Berta sea su pareja de juego, no puede ser también su oponente. ¿Lógico no?","buttons":"ok","icon":"none","default":"ok","texts":["","",""]})");
  EXPECT_EQ(run.Events.at(1)["text"],
            "Lo siento, pero el Cojo no tiene hermanos gemelos que puedan ser su pareja. Elija "
            "otro compañero.");
  // Fields missing in the later lines keep the values of the first one, including the clock.
  const auto& state = run.Last();
  EXPECT_EQ(state["NombreJugador"], "Eva");
  EXPECT_EQ(state["EstiloDirecto"], 0);
  EXPECT_EQ(state["UsarNombres"], 0);
  EXPECT_EQ(state["UsarExpresiones"], 0);
  EXPECT_EQ(state["Baraja"].get<std::vector<int>>(), DeckOf(1));
}

TEST(TraceStart, ALaterStartMayChangeEveryField) {
  const auto state =
      TraceFolder{}
          .Play({StartWith(R"("combos": [1, 1, 2])"),
                 R"({"start": {"name": "Eva", "combos": [1, 2, 3], "checks": [false, true],)"
                 R"( "option": 1}})"})
          .Last();
  EXPECT_EQ(state["NombreJugador"], "Eva");
  EXPECT_EQ(state["EstiloDirecto"], 0);
  EXPECT_EQ(state["UsarNombres"], 0);
}

TEST(TraceStart, EndsNormallyWithoutAnyLine) {
  const TraceRun run = TraceFolder{}.Play({});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Out + run.Err, "");
}

TEST(TraceStart, EndsNormallyWhileTheDialogIsOpen) {
  const TraceRun run = TraceFolder{}.Play({StartWith(R"("combos": [1, 1, 1])")});
  EXPECT_EQ(run.Status, 0);
  EXPECT_EQ(run.Names(), "msgbox");
  EXPECT_EQ(run.Err, "");
}

TEST(TraceStart, ReportsAMissingCharacterFileAndEndsInAnError) {
  const TraceFolder folder;
  std::filesystem::remove(folder.Files().Path() / "Jugadores.dat");
  const TraceRun run = folder.Play({Start, Enter});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(
      run.Out,
      R"({"event":"msgbox","title":"","text":"No se encuentra el archivo con los datos de los personajes. El programa va a terminar su ejecución.","buttons":"ok","icon":"none","default":"ok","texts":["","",""]})"
      "\n"
      R"({"event":"end","reason":"error","text":"No se encuentra el archivo con los datos de los personajes. El programa va a terminar su ejecución."})"
      "\n");
}

TEST(TraceStart, EndsInAnErrorWhenASettingsFileIsCutShort) {
  const TraceFolder folder;
  folder.Files().Write("mus.ini", "35\r\n3\r\n");
  const TraceRun run = folder.Play({Start});
  EXPECT_EQ(run.Status, 1);
  EXPECT_EQ(run.Names(), "end");
  EXPECT_EQ(run.Last()["reason"], "error");
  EXPECT_NE(run.Last()["text"].get<std::string>().find("mus.ini"), std::string::npos);
}

}  // namespace
}  // namespace tasca::test
