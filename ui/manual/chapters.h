#pragma once
// The source of the manual: Spanish Markdown, in data/manual/.
//
// Beside plain Markdown a chapter may hold
// - pictures of cards, "![](carta:rey-oros)" or "![](mano:rey-oros,as-copas)" (card_reference.h);
// - worked examples, blocks fenced with "ejemplo" (ejemplo.h);
// - a block quote right after a heading: the section in short (brief.h).
// Links lead to headings only, "[the text](#the-heading)".
#include <span>
#include <string_view>

namespace tasca {

// The chapters in reading order, UTF-8. They are part of the program.
std::span<const std::string_view> ManualChapters();

}  // namespace tasca
