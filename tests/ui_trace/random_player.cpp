// Writes the choices as lines of a trace.
#include "tests/ui_trace/random_player.h"

#include <string_view>
#include <utility>

#include "ui/utf8.h"

namespace tasca::test {
namespace {

using nlohmann::ordered_json;

std::string List(int a, int b, int c) {
  return "[" + std::to_string(a) + ", " + std::to_string(b) + ", " + std::to_string(c) + "]";
}

std::string Word(bool truth) { return truth ? "true" : "false"; }

std::string YesOrNo(bool yes) {
  return R"({"button": ")" + std::string{yes ? "yes" : "no"} + "\"}";
}

std::string LineOf(const StartChoice& start) {
  const auto& [hour, minute, second] = start.Clock;
  const auto& [partner, right, left] = start.Combos;
  return R"({"start": {"clock": )" + List(hour, minute, second) + R"(, "combos": )" +
         List(partner, right, left) + R"(, "checks": [)" + Word(start.Checks[0]) + ", " +
         Word(start.Checks[1]) + R"(], "option": )" + std::to_string(start.Option) + "}}";
}

std::string LineOf(const MoveChoice& move) {
  if (move.Sound) return R"({"sound": )" + std::to_string(*move.Sound) + "}";
  const std::string shift = move.Shift == 0 ? "" : R"(, "shift": )" + std::to_string(move.Shift);
  return R"({"key": )" + std::to_string(move.Key) + shift + "}";
}

std::u16string TextOf(const ordered_json& value) {
  return FromUtf8(value.get_ref<const std::string&>());
}

// False if the list has a different length.
template <std::size_t N>
bool ReadList(const ordered_json& list, std::array<int, N>& numbers) {
  if (!list.is_array() || list.size() != N) return false;
  list.get_to(numbers);
  return true;
}

// Nothing if a list has a wrong length.
std::optional<Situation> SituationOf(const ordered_json& state) {
  Situation s;
  bool whole = state["Manos"].size() == s.Manos.size();
  for (std::size_t seat = 0; whole && seat < s.Manos.size(); ++seat) {
    whole = ReadList(state["Manos"][seat], s.Manos.at(seat));
  }
  whole = whole && ReadList(state["Baraja"], s.Baraja) &&
          ReadList(state["OrdenAsiento"], s.OrdenAsiento) &&
          ReadList(state["Piedras"], s.Piedras) && ReadList(state["Juegos"], s.Juegos) &&
          ReadList(state["Vacas"], s.Vacas);
  if (!whole) return std::nullopt;
  s.CartaSiguiente = state["CartaSiguiente"];
  s.DescarteSiguiente = state["DescarteSiguiente"];
  s.Fase = state["Fase"];
  s.SeguirLance = state["SeguirLance"];
  s.RondasMus = state["RondasMus"];
  s.JuegosVaca = state["JuegosVaca"];
  s.VacasPartida = state["VacasPartida"];
  s.Text3 = state["Text3"];
  s.Draws = state["draws"];
  return s;
}

}  // namespace

RandomPlayer::RandomPlayer(Chooser any, Length length, Provocation provocation)
    : choices_{std::move(any), provocation}, length_{length}, provocation_{provocation} {}

std::string RandomPlayer::Start() {
  watch_.NewTable();
  return LineOf(choices_.Start());
}

std::string RandomPlayer::Answer(const ordered_json& question) {
  if (question["event"] == "dialog") {
    return R"({"result": )" + std::to_string(choices_.Button(question["mode"])) + "}";
  }
  if (question["event"] != "inputbox") {
    return YesOrNo(choices_.SaysYes(TextOf(question["text"])));
  }
  const std::optional<std::string> typed = choices_.Typed(TextOf(question["title"]));
  return typed ? R"({"text": ")" + *typed + "\"}" : R"({"button": "cancel"})";
}

bool RandomPlayer::HasPlayedEnough() const {
  return HandsPlayed() >= length_.Hands || MatchesPlayed() >= length_.Matches;
}

void RandomPlayer::Look(const ordered_json& state) {
  const std::optional<Situation> situation = SituationOf(state);
  if (situation) watch_.Look(*situation);
  const std::string fault = situation ? watch_.Fault() : "a list of a wrong length";
  if (!fault.empty()) fault_ = fault + ": " + state.dump();
  const ordered_json& seats = state["PersonajeAsiento"];
  seated_.insert(seats.begin() + 1, seats.end());  // without the human's
}

std::optional<std::string> RandomPlayer::operator()(const TraceEvents& events) {
  if (events.empty()) return Start();
  for (const ordered_json& event : events) {
    if (event["event"] == "state" && fault_.empty()) Look(event);
  }
  if (!fault_.empty()) return std::nullopt;
  const ordered_json& last = events.back();
  if (last["event"] != "state") return Answer(last);
  if (HasPlayedEnough()) return std::nullopt;
  return LineOf(choices_.Move());
}

std::string RandomPlayer::FaultOf(const Conversation& game) const {
  if (!fault_.empty()) return fault_;
  if (!game.Err.empty()) return "a message: " + game.Err;
  if (game.Status == 0) return {};
  const std::string allowed = ToUtf8(ErrorOf(provocation_));
  const bool asked = game.Status == 1 && !allowed.empty() && !game.Rest.empty() &&
                     game.Rest.back().dump().find(allowed) != std::string::npos;
  return asked ? "" : "an unexpected end, status " + std::to_string(game.Status);
}

}  // namespace tasca::test
