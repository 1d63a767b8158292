#pragma once
// The manual's source cut into what the tests look at.
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tasca::test {

// All chapters as one text.
std::string WholeManual();

// The cells of a table, row by row, without its heading. Fails the test if there is no table whose
// heading row is `cabecera`, "| Carta | Orden |".
using Rows = std::vector<std::vector<std::string>>;
Rows TableWithHeading(std::string_view cabecera);

// The text of every block fenced with "```ejemplo".
std::vector<std::string> Examples();

// The anchors of all headings; fails the test for one that occurs twice.
std::set<std::string> Anchors();

// What is in the parentheses of every link, or of every picture.
std::vector<std::string> LinkTargets();
std::vector<std::string> PictureReferences();

// The lines from a heading to the next one, without the heading. "" if there is no such heading.
std::string SectionOf(std::string_view ancla);

}  // namespace tasca::test
