#pragma once
// The output of a trace: one JSON object a line, in UTF-8, flushed after each line.
#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <stdexcept>
#include <string_view>

#include "base/rnd.h"
#include "table/port.h"

namespace tasca {

// Writing to the output has failed.
class OutputError : public std::runtime_error {
 public:
  OutputError() : std::runtime_error{"the output cannot be written"} {}
};

// Writes one event a call (docs/trace-protocol.md). Every operation throws OutputError if the line
// cannot be written. Question events include the current Text1, Text2 and Text3.
class Events {
 public:
  explicit Events(std::ostream& lines) : lines_{lines} {}

  // A question to the player.
  void MsgBox(const Table& t, std::u16string_view texto);
  void YesNoBox(const Table& t, const YesNoQuestion& pregunta);
  void InputBox(const Table& t, const InputQuestion& pregunta);
  void ShowDialog(const Table& t, const Dialog& dialogo);

  // The media player opens a file, or stops; with its current settings.
  void Sound(const Table& t, std::u16string_view archivo);
  void SoundStop(const Table& t);

  // All fields of the table, and the number of draws since the last seeding.
  void State(const Table& t, const Rnd& rnd);
  // The game has ended. `reason` is "quit", "players" or "error"; `texto` is the error's message.
  void End(std::string_view reason, std::u16string_view texto = {});

 private:
  void Write(const nlohmann::ordered_json& event);

  std::ostream& lines_;
};

}  // namespace tasca
