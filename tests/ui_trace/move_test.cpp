// The main loop: keys, sounds, and the state after each of them.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/ui_trace/trace_run.h"

namespace tasca::test {
namespace {

using nlohmann::ordered_json;

TEST(TraceState, HasAllFieldsInTheirOrder) {
  const auto state = TraceFolder{}.Play({Start}).Last();
  std::string names;
  for (const auto& field : state.items()) names += field.key() + " ";
  EXPECT_EQ(names,
            "event Fase SeguirLance RondasMus ParejaCortaMus ManoPorDecidir SeJuegaPunto "
            "OrdenAsiento OrdagueroAsiento Apuesta Declaracion ParejaEnvite OrdenPares TurnoJuego "
            "Piedras Juegos Vacas PiedrasJuego JuegosVaca VacasPartida SonidoActual "
            "CartasCambiadas PosicionSonido SonidosDados Baraja CartaSiguiente DescarteSiguiente "
            "Manos PersonajeAsiento NombreJugador EstiloDirecto UsarNombres UsarExpresiones Text1 "
            "Text2 Text3 draws ");
}

TEST(TraceState, ShowsANewMatch) {
  const auto state = TraceFolder{}.Play({Start}).Last();
  const auto expected = ordered_json::parse(R"({
      "Fase": 0, "SeguirLance": 0, "RondasMus": 0, "ParejaCortaMus": 0, "ManoPorDecidir": -1,
      "SeJuegaPunto": 0, "OrdenAsiento": [1, 2, 3, 4], "OrdagueroAsiento": [0, 10, 90, 50],
      "Apuesta": [0, 0, 0, 0, 0], "Declaracion": [-2, -2, 0], "ParejaEnvite": 0,
      "OrdenPares": [0, 0, 0, 0], "TurnoJuego": [0, 0, 0, 0], "Piedras": [0, 0], "Juegos": [0, 0],
      "Vacas": [0, 0], "PiedrasJuego": 35, "JuegosVaca": 3, "VacasPartida": 3, "SonidoActual": -1,
      "CartasCambiadas": [0, 0, 0, 0], "PosicionSonido": 0, "SonidosDados": 0,
      "CartaSiguiente": 17, "DescarteSiguiente": 1, "PersonajeAsiento": [0, 3, 5, 4],
      "NombreJugador": "Ana", "EstiloDirecto": -1, "UsarNombres": -1, "UsarExpresiones": -1,
      "Text3": "", "draws": 40001})");
  for (const auto& [name, value] : expected.items()) EXPECT_EQ(state[name], value) << name;
  EXPECT_EQ(state["Baraja"].size(), 40U);
  EXPECT_EQ(state["Manos"].size(), 4U);
}

TEST(TraceState, ShowsTheDealAsFourHandsOfFour) {
  const auto state = TraceFolder{}.Play({Start}).Last();
  for (std::size_t seat = 0; seat < 4; ++seat) {
    auto hand = state["Manos"][seat].get<std::vector<int>>();
    auto dealt = state["Baraja"].get<std::vector<int>>();
    dealt = {dealt.begin() + static_cast<std::ptrdiff_t>(4 * seat),
             dealt.begin() + static_cast<std::ptrdiff_t>(4 * seat + 4)};
    std::sort(hand.begin(), hand.end());
    std::sort(dealt.begin(), dealt.end());
    EXPECT_EQ(hand, dealt) << "seat " << seat + 1;
  }
}

TEST(TraceState, KeepsLineBreaksAndAccents) {
  const auto text =
      TraceFolder{}
          .Play({R"({"start": {"clock": [0, 0, 0], "name": "Íñigo", "combos": [4, 1, 2]}})"})
          .Last()["Text2"]
          .get<std::string>();
  EXPECT_EQ(text.substr(0, text.find("Sus cartas")),
            "Partida de\r\nÍñigo y Ramón\r\n contra \r\nBerta y el Cojo\r\n\r\n"
            "Partida al mejor de 3 vacas, cada una  al mejor de 3 juegos de35 piedras.\r\n");
}

TEST(TraceKey, QStartsANewHandWithTwoShuffles) {
  const TraceRun run = TraceFolder{}.Play({Start, R"({"key": 81})"});
  EXPECT_EQ(run.Names(), "sound state sound state");
  EXPECT_EQ(run.Events.at(2)["file"], "Son_ReparteCartas.mp3");
  EXPECT_EQ(run.Last()["draws"], 40001 + 80002);
  EXPECT_EQ(run.Last()["OrdenAsiento"].dump(), "[2,3,4,1]");
}

TEST(TraceKey, ZeroWithShiftAndControlLaysTheHandsOpen) {
  const auto text = [](const char* key) {
    return TraceFolder{}.Play({Start, key}).Last()["Text1"].get<std::string>();
  };
  EXPECT_EQ(text(R"({"key": 48, "shift": 3})").rfind("Ana\r\n", 0), 0U);
  EXPECT_EQ(text(R"({"key": 48, "shift": 1})").find("\r\n"), std::string::npos);
  EXPECT_EQ(text(R"({"key": 48})").find("\r\n"), std::string::npos);
}

TEST(TraceKey, AnyOtherChangesNothingButIsFollowedByAState) {
  const TraceRun run = TraceFolder{}.Play(
      {Start, R"({"key": 65})", R"({"key": -32768, "shift": 32767})", R"({"key": 0})"});
  EXPECT_EQ(run.Names(), "sound state state state state");
  for (std::size_t i = 2; i < 5; ++i) EXPECT_EQ(run.Events.at(i), run.Events.at(1));
}

TEST(TraceSound, TheDealFollowsTheShuffle) {
  const TraceRun run = TraceFolder{}.Play({Start, R"({"sound": 0})", R"({"sound": 0})"});
  EXPECT_EQ(run.Names(), "sound state sound state state");
  EXPECT_EQ(run.Events.at(2)["file"], "Son_ReparteCartas.mp3");
  EXPECT_EQ(run.Events.at(3)["SonidoActual"], -2);
}

TEST(TraceSound, OnlyAnIdlePlayerEndsASound) {
  EXPECT_EQ((TraceFolder{}.Play({Start, R"({"sound": 2})"}).Names()), "sound state state");
  EXPECT_EQ((TraceFolder{}.Play({Start, R"({"sound": 6})"}).Names()), "sound state sound state");
}

// With this clock all four seats want mus in the first round.
constexpr const char* StartWithMus =
    R"({"start": {"clock": [0, 0, 1], "name": "Ana", "combos": [3, 1, 2]}})";

TEST(TraceSound, CardsSoundSeatBySeatAndThenStop) {
  const TraceRun run =
      TraceFolder{}.Play({StartWithMus, Enter, Yes, R"({"text": "1 y 4"})", R"({"sound": 0})",
                          R"({"sound": 0})", R"({"sound": 0})", R"({"sound": 0})"});
  EXPECT_EQ(run.Names(),
            "sound state msgbox inputbox sound state sound state sound state sound state soundstop "
            "state");
  EXPECT_EQ(run.Events.at(4).dump(),
            R"({"event":"sound","file":"Son_DaUnaCarta.wav","count":2,"balance":0,"volume":-320})");
  const auto changed = run.Events.at(5)["CartasCambiadas"].get<std::vector<int>>();
  EXPECT_EQ(changed.at(0), 2);
  EXPECT_EQ(run.Events.at(6)["count"], changed.at(1));
  EXPECT_EQ(run.Events.at(6)["balance"], 300);
  EXPECT_EQ(run.Events.at(6)["volume"], -500);
  EXPECT_EQ(run.Events.at(12).dump(),
            R"({"event":"soundstop","count":1,"balance":0,"volume":-320})");
}

}  // namespace
}  // namespace tasca::test
