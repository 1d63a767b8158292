#pragma once
// Runs the terminal face in memory: data files, scripted input and captured output.
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "tests/support/temp_folder.h"
#include "ui/terminal/console.h"

namespace tasca::test {

// A console with the given input and captured output. By default it does not echo the input, like a
// pipe.
struct FakeConsole {
  explicit FakeConsole(const std::string& entrada = "", bool echoes = false)
      : In{entrada}, Consola{{.In = In, .Out = Out, .Err = Err, .Echoes = echoes}} {}

  // The output since the last call.
  std::string Take();

  std::istringstream In;
  std::ostringstream Out;
  std::ostringstream Err;
  Console Consola;
};

// Writes a character file that offers Berta, el Cojo, Dora and el Tuerto (numbers 3 to 6, with
// stories) and a "mus.ini" with the player Ana. Every phrase is its tag ("QMus").
void LlenarCarpeta(const TempFolder& carpeta);
// The same with these match parameters.
void LlenarCarpeta(const TempFolder& carpeta, std::string_view piedras, std::string_view juegos,
                   std::string_view vacas);

// The input that accepts all seven defaults of the start-up questions.
inline const std::string AllDefaults = "\n\n\n\n\n\n\n";

// The result of a session: the exit status and the output.
struct SessionResult {
  int Status = -1;
  std::string Out;
  std::string Err;
};

// Plays a session with these input lines. The time of day is 9:10.
SessionResult PlayLines(const TempFolder& carpeta, const std::string& lineas);

// Plays a session with a player who answers each question. The player gets the last output line and
// returns the next input line, or nothing to end the input. Fails the test after `maximo` answers.
using Player = std::function<std::optional<std::string>(const std::string& pregunta)>;
SessionResult PlayWith(const TempFolder& carpeta, const Player& jugador, int maximo = 2000);
// The same with the sound on.
SessionResult PlayHearing(const TempFolder& carpeta, const Player& jugador, int maximo = 2000);

}  // namespace tasca::test
