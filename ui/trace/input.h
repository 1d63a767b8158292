#pragma once
// The lines that a trace reads: each is parsed and checked against what the game waits for.
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

// A line that does not fit what is waited for. what() starts with its number.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The start-up dialog's fields; one that the line leaves out is not to be touched.
struct StartLine {
  std::optional<TimeOfDay> Clock;
  std::optional<std::u16string> Name;
  std::array<int, 3> Combos{};
  std::optional<std::array<bool, 2>> Checks;
  std::optional<int> Option;
};

struct KeyLine {
  Integer Code;
  Integer Shift;
};

struct SoundLine {
  Integer PlayState;
};

// A line of the main loop: one of the two.
struct MoveLine {
  std::optional<KeyLine> Key;
  std::optional<SoundLine> Sound;
};

class Input {
 public:
  explicit Input(std::istream& lines) : lines_{lines} {}

  // What the dialog and the main loop wait for; nothing at the end of the input. Throw InputError.
  // Only the first start line has a clock, and must have one.
  std::optional<StartLine> NextStart(bool withClock);
  std::optional<MoveLine> NextMove();

  // The answer to an open question; the end of the input is an error too. Throw InputError.
  bool AnswerYesNo();
  std::u16string AnswerText();  // "" when cancelled
  int AnswerDialog(const Dialog& dialogo);

  // Throws InputError for the line last read.
  [[noreturn]] void Reject(std::string_view why) const;

 private:
  bool Next(nlohmann::json& object);
  nlohmann::json Answer();

  int Whole(const nlohmann::json& value, std::string_view name, int least, int greatest) const;
  Integer Whole16(const nlohmann::json& value, std::string_view name) const;
  bool Truth(const nlohmann::json& value, std::string_view name) const;
  std::u16string Text(const nlohmann::json& value, std::string_view name) const;
  std::u16string Name(const nlohmann::json& value) const;
  const nlohmann::json& List(const nlohmann::json& object, const char* name,
                             std::size_t size) const;
  TimeOfDay Clock(const nlohmann::json& start) const;

  std::istream& lines_;
  int line_ = 0;
};

}  // namespace tasca
