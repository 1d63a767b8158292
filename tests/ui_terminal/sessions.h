#pragma once
// Playing at the terminal without one: folders to play in, answers in, what was printed out.
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "tests/support/temp_folder.h"
#include "ui/terminal/console.h"

namespace tasca::test {

// A console whose input is a text of lines and whose output can be read. Like a pipe, it does not
// show what is typed.
struct FakeConsole {
  explicit FakeConsole(const std::string& entrada = "", bool echoes = false)
      : In{entrada}, Consola{{.In = In, .Out = Out, .Err = Err, .Echoes = echoes}} {}

  // What was printed since the last call.
  std::string Take();

  std::istringstream In;
  std::ostringstream Out;
  std::ostringstream Err;
  Console Consola;
};

// Writes a character file with the offered characters Berta, el Cojo, Dora and el Tuerto (numbers 3
// to 6, with a story each) and a "mus.ini" that remembers Ana. Every phrase is its tag ("QMus").
void LlenarCarpeta(const TempFolder& carpeta);
// The same with the match parameters given.
void LlenarCarpeta(const TempFolder& carpeta, std::string_view piedras, std::string_view juegos,
                   std::string_view vacas);

// What one types to come in: seven defaults, and the first hand is dealt.
inline const std::string Puerta = "\n\n\n\n\n\n\n";

struct SessionResult {
  int Status = -1;
  std::string Out;
  std::string Err;
};

// Plays a whole session, at ten past nine, with the lines typed; then the input ends.
SessionResult PlayLines(const TempFolder& carpeta, const std::string& lineas);

// Plays a whole session with a player who answers each time the program waits for a line: the
// player is given the last line printed, and gives the next line to type, or nothing to end the
// input. The session fails when it takes more than `maximo` answers.
using Player = std::function<std::optional<std::string>(const std::string& pregunta)>;
SessionResult PlayWith(const TempFolder& carpeta, const Player& jugador, int maximo = 2000);
// The same for a player who hears the loudspeaker.
SessionResult PlayHearing(const TempFolder& carpeta, const Player& jugador, int maximo = 2000);

}  // namespace tasca::test
