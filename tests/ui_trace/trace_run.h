#pragma once
// Playing a trace in memory, in a folder of its own.
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temp_folder.h"

namespace tasca::test {

struct TraceRun {
  int Status = -1;
  std::string Out;
  std::string Err;
  std::vector<nlohmann::ordered_json> Events;

  // The name of every event in order, a blank between them: "sound state msgbox".
  std::string Names() const;
  // The first event of that name; an empty object and a failed test when there is none.
  const nlohmann::ordered_json& First(std::string_view name) const;
  const nlohmann::ordered_json& Last() const;
};

// A folder with a character file: the two default sets, then Berta, el Cojo, Dora and Ramón. Every
// phrase of theirs is its tag and its slot ("QMus1"), of the defaults "QMusI" and "QMusD"; the
// raise has an amount in it ("EnvM&1").
class TraceFolder {
 public:
  TraceFolder();
  // The same with these match parameters and the last player's name "Ana".
  TraceFolder(int piedras, int juegos, int vacas);

  const TempFolder& Files() const { return files_; }

  // Plays the lines; the last one has its line end too.
  TraceRun Play(const std::vector<std::string>& lines) const;

 private:
  TempFolder files_;
};

// The usual lines. The start is at midnight; Dora is the partner, Berta and el Cojo the opponents.
inline constexpr const char* Start =
    R"({"start": {"clock": [0, 0, 0], "name": "Ana", "combos": [3, 1, 2], "checks": [true, true], "option": 0}})";
inline constexpr const char* Enter = R"({"key": 13})";
inline constexpr const char* Yes = R"({"button": "yes"})";
inline constexpr const char* No = R"({"button": "no"})";

std::string Result(int button);

}  // namespace tasca::test
