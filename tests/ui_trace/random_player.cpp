// Random lines.
#include "tests/ui_trace/random_player.h"

#include <array>
#include <string_view>
#include <utility>

#include "tests/ui_trace/invariants.h"

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

std::string_view ErrorOf(Provocation provocation) {
  switch (provocation) {
    case Provocation::NoPhrases:
      return "Un personaje no tiene nada que decir";
    case Provocation::HugeAmounts:
      return "Desbordamiento";
    default:
      return {};
  }
}

}  // namespace

RandomPlayer::RandomPlayer(Chooser any, Length length, Provocation provocation)
    : any_{std::move(any)}, length_{length}, provocation_{provocation} {}

std::string RandomPlayer::Settings() {
  constexpr std::array<int, 6> stones{1, 5, 12, 25, 40, 200};
  const int piedras = stones.at(static_cast<std::size_t>(any_(6)));
  const int juegos = any_(5) + 1;
  const int vacas = any_(5) + 1;
  return std::to_string(piedras) + "\r\n" + std::to_string(juegos) + "\r\n" +
         std::to_string(vacas) + "\r\nAna> Nombre\r\n";
}

std::string RandomPlayer::Start() {
  before_ = nullptr;  // a new table
  constexpr std::array<std::string_view, 4> seats{"[0, 0, 0]", "[1, 2, 3]", "[3, 0, 1]",
                                                  "[2, 3, 0]"};
  const int hour = any_(24);
  const int minute = any_(60);
  const int second = any_(60);
  const std::string clock = List(hour, minute, second);
  const std::string combos{seats.at(static_cast<std::size_t>(any_(4)))};
  const std::string names = Word(Sometimes(50));
  const std::string phrases = Word(provocation_ != Provocation::NoPhrases);
  const std::string option = std::to_string(any_(2));
  return R"({"start": {"clock": )" + clock + R"(, "combos": )" + combos + R"(, "checks": [)" +
         names + ", " + phrases + R"(], "option": )" + option + "}}";
}

std::string RandomPlayer::Move() {
  if (Sometimes(90)) return R"({"key": 13})";
  if (Sometimes(60)) return R"({"sound": )" + std::to_string(any_(4) * 2) + "}";
  if (Sometimes(30)) return R"({"key": 81})";
  if (Sometimes(50)) return R"({"key": 48, "shift": 3})";
  return R"({"key": )" + std::to_string(any_(256)) + "}";
}

std::string RandomPlayer::Amount() {
  if (Sometimes(15)) return R"({"button": "cancel"})";
  if (Sometimes(10)) return R"({"text": "muchas"})";
  const int greatest = provocation_ == Provocation::HugeAmounts ? 60000 : 12;
  return R"({"text": ")" + std::to_string(any_(greatest)) + "\"}";
}

// Órdagos are rare, or no hand would ever be counted.
std::string RandomPlayer::Button(const ordered_json& dialog) {
  constexpr int againstAnOrdago = -2;
  if (dialog["mode"] == againstAnOrdago) return R"({"result": )" + std::to_string(any_(2)) + "}";
  return R"({"result": )" + std::to_string(Sometimes(5) ? 3 : any_(3)) + "}";
}

std::string RandomPlayer::Answer(const ordered_json& question) {
  if (question["event"] == "dialog") return Button(question);
  if (question["event"] == "inputbox") {
    if (question["title"] != "Sustituir cartas") return Amount();
    return R"({"text": ")" + std::to_string(any_(10000)) + "\"}";
  }
  if (question["text"] == "¿Desea cambiar de jugadores?") return YesOrNo(Sometimes(5));
  if (question["text"] == "¿Desea jugar otra partida?") {
    ++matchesPlayed_;
    return YesOrNo(Sometimes(95));
  }
  return YesOrNo(Sometimes(70));
}

bool RandomPlayer::HasPlayedEnough() const {
  return handsPlayed_ >= length_.Hands || matchesPlayed_ >= length_.Matches;
}

void RandomPlayer::Look(const ordered_json& state) {
  fault_ = FaultIn(state);
  if (fault_.empty() && !before_.is_null()) fault_ = FaultBetween(before_, state);
  const bool ended = state["Fase"] == -1 && !before_.is_null() && before_["Fase"] != -1;
  if (ended) ++handsPlayed_;
  if (before_.is_null()) {
    const ordered_json& seats = state["PersonajeAsiento"];
    seated_.insert(seats.begin() + 1, seats.end());  // the first is the human's
  }
  before_ = state;
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
  return Move();
}

std::string RandomPlayer::FaultOf(const Conversation& game) const {
  if (!fault_.empty()) return fault_;
  if (!game.Err.empty()) return "a message: " + game.Err;
  if (game.Status == 0) return {};
  const std::string_view allowed = ErrorOf(provocation_);
  const bool asked = game.Status == 1 && !allowed.empty() && !game.Rest.empty() &&
                     game.Rest.back().dump().find(allowed) != std::string::npos;
  return asked ? "" : "an end that nobody asked for, status " + std::to_string(game.Status);
}

}  // namespace tasca::test
