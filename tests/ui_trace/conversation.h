#pragma once
// Plays a trace whose input depends on the game's output.
#include <filesystem>
#include <functional>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

namespace tasca::test {

using TraceEvents = std::vector<nlohmann::ordered_json>;

// Gets the events since its last line (none at the start) and returns the next line, or nothing to
// end the input.
using Player = std::function<std::optional<std::string>(const TraceEvents&)>;

// The exit status, the whole input and output, and the messages.
struct Conversation {
  int Status = -1;
  std::string In;
  std::string Out;
  std::string Err;
  TraceEvents Rest;  // the events after the last line
};

// Plays a trace in this folder until it ends.
Conversation Converse(const std::filesystem::path& folder, const Player& player);

}  // namespace tasca::test
