#pragma once
// Plays a trace in memory, in a temporary folder.
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// The result of a trace.
struct TraceRun {
  int Status = -1;
  std::string Out;
  std::string Err;
  std::vector<nlohmann::ordered_json> Events;

  // The names of the events, separated by blanks: "sound state msgbox".
  std::string Names() const;
  // The first event of that name. If there is none, fails the test and returns an empty object.
  const nlohmann::ordered_json& First(std::string_view name) const;
  const nlohmann::ordered_json& Last() const;
};

// A folder with a character file: the two default sets, then Berta, el Cojo, Dora and Ramón. A
// phrase is its tag and its slot ("QMus1"), in the default sets "QMusI" and "QMusD". The phrases
// for raises contain the amount ("EnvM&1").
class TraceFolder {
 public:
  TraceFolder();
  // The same with these match parameters and the last player's name "Ana".
  TraceFolder(int piedras, int juegos, int vacas);

  const TempFolder& Files() const { return files_; }

  // Plays the lines, each with a line end.
  TraceRun Play(const std::vector<std::string>& lines) const;

 private:
  TempFolder files_;
};

// Common lines. The clock of the start is midnight; Dora is the partner, Berta and el Cojo the
// opponents.
inline constexpr const char* Start =
    R"({"start": {"clock": [0, 0, 0], "name": "Ana", "combos": [3, 1, 2], "checks": [true, true], "option": 0}})";
inline constexpr const char* Enter = R"({"key": 13})";
inline constexpr const char* Yes = R"({"button": "yes"})";
inline constexpr const char* No = R"({"button": "no"})";

// The answer to the bidding dialog.
std::string Result(int button);

}  // namespace tasca::test
