#pragma once
// A trace whose next line depends on what the game has just told.
#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace tasca::test {

using TraceEvents = std::vector<nlohmann::ordered_json>;

// Is given the events since its last line (none at the start) and says the next line; nothing ends
// the input.
using Player = std::function<std::optional<std::string>(const TraceEvents&)>;

struct Conversation {
  int Status = -1;
  std::string In;
  std::string Out;
  std::string Err;
  TraceEvents Rest;  // the events after the last line
};

Conversation Converse(const std::filesystem::path& folder, const Player& player);

}  // namespace tasca::test
