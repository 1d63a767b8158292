#pragma once
// The player's end of the line: whole lines out, one line in at a time.
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

namespace tasca {

// Where a session is played. With `Echoes` the terminal itself shows what is typed, its Enter
// included; without (a pipe, a file) the program ends the line of the prompt. `Keyboard` is the
// descriptor behind `In` of a player who can hear this machine's loudspeaker; without, the game is
// silent. `Width` gives how many characters a line of `Out` takes at the moment: longer ones are
// broken between words. Lines stay whole where it gives 0, and without it.
struct TerminalStreams {
  std::istream& In;
  std::ostream& Out;
  std::ostream& Err;
  bool Echoes = false;
  int Keyboard = -1;
  std::function<std::size_t()> Width = {};
};

// Why a player who no longer sees the table cannot play on.
inline constexpr std::u16string_view SalidaRota = u"No se puede escribir en la salida.";

class Console {
 public:
  explicit Console(TerminalStreams flujos) : flujos_{std::move(flujos)} {}

  // Writes the text as lines of its own.
  void Line(std::u16string_view texto);
  // Writes the text on a new line and leaves the cursor behind it.
  void Prompt(std::u16string_view texto);
  // Ends a line that a prompt has left open.
  void EndLine();
  // Tells on standard error why the program ends.
  void Error(std::u16string_view mensaje);

  // From now on `espera` runs before each line is read; it returns once there is one.
  void WaitWith(std::function<void()> espera) { espera_ = std::move(espera); }

  // The next line typed, without its line end. Throws LeaveProgram at the end of the input, and
  // RunTimeError when what was written has not arrived.
  std::u16string ReadLine();
  // Sends on what has been written; false when that fails.
  bool Flush();

 private:
  TerminalStreams flujos_;
  std::function<void()> espera_;
  bool lineaAbierta_ = false;
};

}  // namespace tasca
