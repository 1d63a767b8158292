#pragma once
// The manual for a page.
#include <string>

namespace tasca {

// Its chapters as Markdown with one picture for each card, and its headings with their anchors
// (docs/web.md).
std::string JsonDelManual();

}  // namespace tasca
