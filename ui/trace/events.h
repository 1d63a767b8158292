#pragma once
// The lines that a trace writes: one JSON object each, in UTF-8, flushed at once.
#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <stdexcept>
#include <string_view>

#include "base/rnd.h"
#include "table/port.h"

namespace tasca {

// The output takes no more lines.
class OutputError : public std::runtime_error {
 public:
  OutputError() : std::runtime_error{"the output cannot be written"} {}
};

// All of these throw OutputError. A question carries the texts of the main window as they stand.
class Events {
 public:
  explicit Events(std::ostream& lines) : lines_{lines} {}

  void MsgBox(const Table& t, std::u16string_view texto);
  void YesNoBox(const Table& t, const YesNoQuestion& pregunta);
  void InputBox(const Table& t, const InputQuestion& pregunta);
  void ShowDialog(const Table& t, const Dialog& dialogo);

  // The media player opens a file, or stops, with the settings that it has now.
  void Sound(const Table& t, std::u16string_view archivo);
  void SoundStop(const Table& t);

  // All of the table, and how far the generator has gone.
  void State(const Table& t, const Rnd& rnd);
  // The game is over: "quit", "players" or "error" with what the player is told.
  void End(std::string_view reason, std::u16string_view texto = {});

 private:
  void Write(const nlohmann::ordered_json& event);

  std::ostream& lines_;
};

}  // namespace tasca
