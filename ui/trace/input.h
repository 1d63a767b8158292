#pragma once
// The input of a trace: parses each line and checks that it is of the kind expected next.
#include <array>
#include <istream>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/integer.h"
#include "table/port.h"

namespace tasca {

// An invalid or unexpected line. what() starts with "line N: ".
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Fields of the start-up dialog. An absent field leaves its control unchanged.
struct StartLine {
  std::optional<TimeOfDay> Clock;
  std::optional<std::u16string> Name;
  std::array<int, 3> Combos{};  // list positions (0..), not checked against the lists yet
  std::optional<std::array<bool, 2>> Checks;
  std::optional<int> Option;  // 0 or 1
};

struct KeyLine {
  Integer Code;
  Integer Shift;
};

struct SoundLine {
  Integer PlayState;
};

// A line read while the game waits for a key: exactly one of the two is set.
struct MoveLine {
  std::optional<KeyLine> Key;
  std::optional<SoundLine> Sound;
};

class Input {
 public:
  explicit Input(std::istream& lines) : lines_{lines} {}

  // Reads the next line for the start-up dialog. With `withClock` the clock is mandatory, otherwise
  // it is ignored. Nothing at the end of the input. Throws InputError.
  std::optional<StartLine> NextStart(bool withClock);
  // Reads the next key or sound line. Nothing at the end of the input. Throws InputError.
  std::optional<MoveLine> NextMove();

  // These read the answer to an open question. They throw InputError, also at the end of the input.
  bool AnswerYesNo();
  std::u16string AnswerText();  // "" when cancelled
  // The index (0 to 3) of a button that `dialogo` offers.
  int AnswerDialog(const Dialog& dialogo);

  // Throws InputError with the number of the last line read.
  [[noreturn]] void Reject(std::string_view why) const;

 private:
  // Reads the next line's object. False at the end of the input.
  bool Next(nlohmann::json& object);
  nlohmann::json Answer();

  // Type and range checks; `name` names the field in the message of the InputError that they throw.
  int Whole(const nlohmann::json& value, std::string_view name, int least, int greatest) const;
  Integer Whole16(const nlohmann::json& value, std::string_view name) const;
  bool Truth(const nlohmann::json& value, std::string_view name) const;
  std::u16string Text(const nlohmann::json& value, std::string_view name) const;
  const nlohmann::json& List(const nlohmann::json& object, const char* name,
                             std::size_t size) const;
  TimeOfDay Clock(const nlohmann::json& start) const;

  std::istream& lines_;
  int line_ = 0;
};

}  // namespace tasca
