#pragma once
// Cutting the manual's source into lines, words and numbers.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

// The parts between the separators, without blanks around them. There is always at least one.
std::vector<std::string_view> SplitAt(std::string_view texto, std::string_view separador);

// The lines of a text, without their line feeds. A final line feed ends the last line.
std::vector<std::string_view> LinesOf(std::string_view texto);

// Without blanks around it.
std::string_view WithoutBlanks(std::string_view texto);

// A whole number, also with the minus sign U+2212. Nothing if anything else is in the text.
std::optional<int> WholeNumber(std::string_view texto);

// A heading of the manual.
struct Heading {
  int Level = 0;           // 1 for a chapter
  std::string_view Title;  // UTF-8
};

// The heading that a line of the source is, if it is one.
std::optional<Heading> HeadingOf(std::string_view linea);

// The name by which links refer to a heading, formed as GitHub forms it: in lower case, blanks as
// hyphens, without punctuation.
std::string AnchorOfTitle(std::string_view titulo);

}  // namespace tasca
