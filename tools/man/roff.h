#pragma once
// Markdown as the manual uses it, written for man(1).
#include <string>
#include <string_view>

namespace tasca {

// The text as roff with the macros of man(7). Headings become sections and subsections, each row of
// a table a paragraph with its first cell as the tag; links lose their targets. Requires Markdown
// without HTML but "<br/>".
std::string RoffOf(std::string_view markdown);

}  // namespace tasca
