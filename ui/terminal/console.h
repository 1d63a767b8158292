#pragma once
// Line-based input and output of the terminal.
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

namespace tasca {

// The streams of a session, all UTF-8.
struct TerminalStreams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Err;
  // Whether the terminal echoes the input. Without echo (a pipe, a file) the program ends the line
  // of the prompt itself.
  bool Echoes = false;
  // The descriptor behind `In`, to be polled while sounds play; -1 plays without sound.
  int Keyboard = -1;
  // The current width of `Out` in characters: longer lines are broken between words. Absent or 0
  // for unlimited.
  std::function<std::size_t()> Width = {};
};

// The message of the RunTimeError when the output cannot be written.
inline constexpr std::u16string_view SalidaRota = u"No se puede escribir en la salida.";

class Console {
 public:
  explicit Console(TerminalStreams flujos) : flujos_{std::move(flujos)} {}

  // Starts a new line, writes the text and ends the line. An empty text writes an empty line.
  void Line(std::u16string_view texto);
  // Starts a new line and writes the text, leaving the cursor after it.
  void Prompt(std::u16string_view texto);
  // Ends the current line if it is not empty.
  void EndLine();
  // Writes the message to Err as a line, after flushing Out.
  void Error(std::u16string_view mensaje);

  // Sets a function that runs before each line is read and returns when input is available.
  void WaitWith(std::function<void()> espera) { espera_ = std::move(espera); }

  // Flushes the output and reads a line, without its line end. Throws LeaveProgram at the end of
  // the input and RunTimeError if the output cannot be written.
  std::u16string ReadLine();
  // False if the output cannot be written.
  bool Flush();

 private:
  TerminalStreams flujos_;
  std::function<void()> espera_;
  bool lineaAbierta_ = false;  // the cursor is not at the start of a line
};

}  // namespace tasca
