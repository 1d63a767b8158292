#pragma once
// Runs the readers and the whole program on a faulty program folder. Each either succeeds or ends
// with one message; every test states which.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// One outcome for each reader and for the program. An error is given by its message without the
// folder's name and without FinDelPrograma: "Jugadores.dat, línea 4: ...".
struct Outcomes {
  std::string Dialog;   // the start-up dialog's reader: "offers N", or an error
  std::string Game;     // the main window's: "reads", or an error
  std::string Editor;   // the editor's: "reads N", or an error
  std::string Program;  // the whole program through a hand: "plays", or an error

  bool operator==(const Outcomes&) const = default;
};

std::ostream& operator<<(std::ostream& salida, const Outcomes& outcomes);

// Runs everything on this folder. The program may write its settings file.
Outcomes OutcomesIn(const std::filesystem::path& carpeta);

// The result of the whole program: the dialog with "Aleatorio" in all lists, then one hand in which
// the human bets in every lance.
struct Played {
  std::string Outcome;
  nlohmann::ordered_json State;  // the first state; null if the table never opened
  std::string Lines;             // the whole output of the trace
};
Played Play(const std::filesystem::path& carpeta);

// The outcomes for a folder that holds only a character file with this content.
Outcomes OutcomesOf(const std::string& archivo);

// Runs `hacer` in a child process and returns the growth of its peak resident memory in MiB, at
// most 255. Failed expectations inside `hacer` are not reported.
int MemoryGrownBy(const std::function<void()>& hacer);

// The message for a file that offers fewer than three characters.
inline constexpr auto TooFewPlayers =
    R"(No hay bastantes personajes en "Jugadores.dat" para elegir al azar: hacen falta tres.)";

// The outcomes of a file that stops everything with the same message.
inline Outcomes AllEndWith(const std::string& mensaje) {
  return {mensaje, mensaje, mensaje, mensaje};
}

// The outcomes of a file that everything reads and that offers at least three characters.
inline Outcomes AllPlay(int ofrecidos, int personajes) {
  return {"offers " + std::to_string(ofrecidos), "reads", "reads " + std::to_string(personajes),
          "plays"};
}

// A test case: a character file and its outcomes.
struct BadFile {
  std::string Name;  // letters and digits: part of the test's name
  std::string Bytes;
  Outcomes Expected;
};

inline void PrintTo(const BadFile& archivo, std::ostream* salida) { *salida << archivo.Name; }

// The name of a test case, for INSTANTIATE_TEST_SUITE_P.
inline constexpr auto ByName = [](const auto& caso) { return caso.param.Name; };

}  // namespace tasca::test
