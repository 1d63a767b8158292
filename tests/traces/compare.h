#pragma once
// Comparing two traces line by line and field by field.
#include <optional>
#include <string>
#include <vector>

namespace tasca::test {

using TraceLines = std::vector<std::string>;

// The lines of a text; the last one perhaps without its end.
TraceLines LinesOf(const std::string& text);

// Where two traces first differ, for a person to read; nothing when they are the same.
std::optional<std::string> FirstDifference(const TraceLines& expected, const TraceLines& actual);

}  // namespace tasca::test
