#pragma once
// What comes of a program folder that is not as it should be: either the game plays, or it ends
// with one message. Every test states which.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// The outcomes. An error's is its message without the program's folder before and without the
// sentence that says that the program ends: "Jugadores.dat, línea 4: ...".
struct Outcomes {
  std::string Dialog;   // the start-up dialog's reader: "offers N", or an error
  std::string Game;     // the main window's: "reads", or an error
  std::string Editor;   // the editor's: "reads N", or an error
  std::string Program;  // the whole program through a hand: "plays", or an error

  bool operator==(const Outcomes&) const = default;
};

std::ostream& operator<<(std::ostream& salida, const Outcomes& outcomes);

Outcomes OutcomesIn(const std::filesystem::path& carpeta);

// The whole program alone: the dialog with "Aleatorio" everywhere, then a hand to its end in which
// everybody bets.
struct Played {
  std::string Outcome;
  nlohmann::ordered_json State;  // the first one; null when the table never opened
  std::string Lines;             // all that the trace wrote
};
Played Play(const std::filesystem::path& carpeta);

// The outcomes of a character file alone in a folder.
Outcomes OutcomesOf(const std::string& archivo);

// By how many MiB the memory in use at its peak grows while `hacer` runs, in a process of its own:
// what is expected in there is not told.
int MemoryGrownBy(const std::function<void()>& hacer);

// What several outcomes have in common.
inline constexpr auto TooFewPlayers =
    R"(No hay bastantes personajes en "Jugadores.dat" para elegir al azar: hacen falta tres.)";

// All four of a file that cannot be used at all.
inline Outcomes AllEndWith(const std::string& mensaje) {
  return {mensaje, mensaje, mensaje, mensaje};
}

// A file that all read and that seats three.
inline Outcomes AllPlay(int ofrecidos, int personajes) {
  return {"offers " + std::to_string(ofrecidos), "reads", "reads " + std::to_string(personajes),
          "plays"};
}

// One named input of a table of them.
struct BadFile {
  std::string Name;  // letters and digits
  std::string Bytes;
  Outcomes Expected;
};

inline void PrintTo(const BadFile& archivo, std::ostream* salida) { *salida << archivo.Name; }

inline constexpr auto ByName = [](const testing::TestParamInfo<BadFile>& archivo) {
  return archivo.param.Name;
};

}  // namespace tasca::test
