// tasca-golden check FOLDER: plays a recorded game and compares what it writes with what is kept.
// tasca-golden accept FOLDER: keeps what it writes now.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "tests/support/temp_folder.h"
#include "tests/traces/compare.h"
#include "tests/traces/game_folder.h"
#include "tests/traces/read_file.h"
#include "ui/trace/session.h"

namespace tasca::test {
namespace {

namespace fs = std::filesystem;

void WriteAll(const fs::path& file, const std::string& text) {
  std::ofstream stream{file, std::ios::binary};
  stream << text;
  if (!stream.flush()) throw std::runtime_error{"cannot write " + file.string()};
}

struct Outcome {
  std::string Out;
  std::string Status;  // one line
};

// Plays in a copy of the folder: the program rewrites the player's name in "mus.ini".
Outcome PlayGame(const fs::path& game) {
  const TempFolder folder;
  FillFolder(folder.Path(), game);
  std::istringstream in{ReadFile(game / "in.jsonl")};
  std::ostringstream out;
  const int status = RunTrace(folder.Path(), in, out, std::cerr);
  return {WithoutFolder(out.str(), folder.Path().string()), std::to_string(status) + "\n"};
}

int Check(const fs::path& game, const Outcome& outcome) {
  const auto difference =
      FirstDifference(LinesOf(ReadFile(game / "out.jsonl")), LinesOf(outcome.Out));
  if (difference) std::cout << (game / "out.jsonl").string() << ", " << *difference << '\n';
  const std::string status = ReadFile(game / "status");
  if (status != outcome.Status) {
    std::cout << "exit status: expected " << status << "got " << outcome.Status;
  }
  return difference || status != outcome.Status ? 1 : 0;
}

int Accept(const fs::path& game, const Outcome& outcome) {
  WriteAll(game / "out.jsonl", outcome.Out);
  WriteAll(game / "status", outcome.Status);
  return 0;
}

int Run(std::string_view command, const fs::path& game) {
  if (command == "check") return Check(game, PlayGame(game));
  if (command == "accept") return Accept(game, PlayGame(game));
  std::cerr << "usage: tasca-golden check|accept FOLDER\n";
  return 2;
}

}  // namespace
}  // namespace tasca::test

int main(int argc, char** argv) {
  try {
    return argc == 3 ? tasca::test::Run(argv[1], std::filesystem::path{argv[2]})
                     : tasca::test::Run("", {});
  } catch (const std::exception& error) {
    std::cerr << "tasca-golden: " << error.what() << '\n';
    return 1;
  }
}
