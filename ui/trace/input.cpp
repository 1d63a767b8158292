// Strict parsing: 1.0 is not accepted as an integer, nor 1 as a boolean.
#include "ui/trace/input.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>

#include "base/text.h"
#include "table/dialog.h"
#include "ui/utf8.h"

namespace tasca {

using nlohmann::json;

void Input::Reject(std::string_view why) const {
  throw InputError{"line " + std::to_string(line_) + ": " + std::string{why}};
}

bool Input::Next(json& object) {
  std::string text;
  ++line_;
  if (!std::getline(lines_, text)) return false;
  object = json::parse(text, nullptr, false);
  if (!object.is_object()) Reject("not a JSON object");
  return true;
}

json Input::Answer() {
  json object;
  if (!Next(object)) Reject("the input ends while a question is open");
  return object;
}

int Input::Whole(const json& value, std::string_view name, int least, int greatest) const {
  const auto outside = [least, greatest](auto number) {
    return number < least || number > greatest;
  };
  const bool fits = value.is_number_unsigned()
                        ? value.get<std::uint64_t>() <= INT16_MAX && !outside(value.get<int>())
                        : value.is_number_integer() && !outside(value.get<std::int64_t>());
  if (!fits) {
    Reject(std::string{name} + " is no whole number from " + std::to_string(least) + " to " +
           std::to_string(greatest));
  }
  return value.get<int>();
}

Integer Input::Whole16(const json& value, std::string_view name) const {
  return Whole(value, name, INT16_MIN, INT16_MAX);
}

bool Input::Truth(const json& value, std::string_view name) const {
  if (!value.is_boolean()) Reject(std::string{name} + " is neither true nor false");
  return value.get<bool>();
}

std::u16string Input::Text(const json& value, std::string_view name) const {
  if (!value.is_string()) Reject(std::string{name} + " is no text");
  return FromUtf8(value.get_ref<const std::string&>());
}

const json& Input::List(const json& object, const char* name, std::size_t size) const {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_array() || found->size() != size) {
    Reject("start needs " + std::string{name} + ", a list of " + std::to_string(size));
  }
  return *found;
}

TimeOfDay Input::Clock(const json& start) const {
  const json& clock = List(start, "clock", 3);
  return {.Hora = Whole(clock[0], "the hour", 0, 23),
          .Minuto = Whole(clock[1], "the minute", 0, 59),
          .Segundo = Whole(clock[2], "the second", 0, 59)};
}

std::optional<StartLine> Input::NextStart(bool withClock) {
  json object;
  if (!Next(object)) return std::nullopt;
  const auto found = object.find("start");
  if (found == object.end() || !found->is_object()) Reject("a start is waited for");
  const json& start = *found;

  StartLine line;
  if (withClock) line.Clock = Clock(start);
  if (start.contains("name")) line.Name = Text(start["name"], "name");
  const json& combos = List(start, "combos", line.Combos.size());
  std::transform(combos.begin(), combos.end(), line.Combos.begin(), [this](const json& position) {
    return Whole(position, "a position of combos", 0, INT16_MAX);
  });
  if (start.contains("checks")) {
    const json& checks = List(start, "checks", 2);
    line.Checks = {Truth(checks[0], "a box of checks"), Truth(checks[1], "a box of checks")};
  }
  if (start.contains("option")) line.Option = Whole(start["option"], "option", 0, 1);
  return line;
}

std::optional<MoveLine> Input::NextMove() {
  json object;
  if (!Next(object)) return std::nullopt;
  if (object.contains("key") == object.contains("sound")) Reject("a key or a sound is waited for");
  MoveLine line;
  if (object.contains("sound")) {
    line.Sound = SoundLine{Whole16(object["sound"], "sound")};
    return line;
  }
  line.Key = KeyLine{Whole16(object["key"], "key"), 0};
  if (object.contains("shift")) line.Key->Shift = Whole16(object["shift"], "shift");
  return line;
}

bool Input::AnswerYesNo() {
  const json answer = Answer();
  const auto button = answer.find("button");
  const bool yes = button != answer.end() && *button == "yes";
  const bool no = button != answer.end() && *button == "no";
  if (!yes && !no) Reject(R"(button "yes" or "no" is waited for)");
  return yes;
}

std::u16string Input::AnswerText() {
  const json answer = Answer();
  if (answer.contains("text") == answer.contains("button")) {
    Reject(R"(text or button "cancel" is waited for)");
  }
  if (answer.contains("text")) return Text(answer["text"], "text");
  if (answer["button"] != "cancel") Reject(R"(an input box has the button "cancel")");
  return {};
}

int Input::AnswerDialog(const Dialog& dialogo) {
  constexpr int LastButton = 3;
  const json answer = Answer();
  if (!answer.contains("result")) Reject("a result of the dialog is waited for");
  const int index = Whole(answer["result"], "result", 0, LastButton);
  const DialogButton& button = dialogo.Command1[index];
  if (!button.Visible || !button.Enabled) Reject("the dialog does not offer that button now");
  return index;
}

}  // namespace tasca
