// The first line that differs, and in it the first field.
#include "tests/traces/compare.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

namespace tasca::test {
namespace {

using nlohmann::ordered_json;

std::string Both(const std::string& where, const std::string& expected, const std::string& actual) {
  return where + "\n  expected " + expected + "\n  got      " + actual;
}

std::string FieldOr(const ordered_json& event, const std::string& name) {
  return event.contains(name) ? event[name].dump() : "nothing";
}

std::optional<std::string> DifferentField(const ordered_json& expected,
                                          const ordered_json& actual) {
  for (const ordered_json* const event : {&expected, &actual}) {
    for (const auto& field : event->items()) {
      const std::string wanted = FieldOr(expected, field.key());
      const std::string got = FieldOr(actual, field.key());
      if (wanted != got) return Both(", field " + field.key(), wanted, got);
    }
  }
  return std::nullopt;
}

std::string DifferentLine(const std::string& expected, const std::string& actual) {
  const ordered_json wanted = ordered_json::parse(expected, nullptr, false);
  const ordered_json got = ordered_json::parse(actual, nullptr, false);
  if (!wanted.is_object() || !got.is_object()) return Both("", expected, actual);
  const auto field = DifferentField(wanted, got);
  return " (" + FieldOr(wanted, "event") + ")" +
         (field ? *field : Both(", in how it is written", expected, actual));
}

}  // namespace

TraceLines LinesOf(const std::string& text) {
  TraceLines lines;
  std::istringstream stream{text};
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::optional<std::string> FirstDifference(const TraceLines& expected, const TraceLines& actual) {
  const std::size_t both = std::min(expected.size(), actual.size());
  for (std::size_t i = 0; i < both; ++i) {
    if (expected[i] == actual[i]) continue;
    return "line " + std::to_string(i + 1) + DifferentLine(expected[i], actual[i]);
  }
  if (expected.size() == actual.size()) return std::nullopt;
  return Both("line " + std::to_string(both + 1),
              both < expected.size() ? expected[both] : "the end",
              both < actual.size() ? actual[both] : "the end");
}

}  // namespace tasca::test
