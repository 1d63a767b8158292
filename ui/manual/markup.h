#pragma once
// The manual as plain Markdown: its worked examples written out, its pictures as the caller likes.
#include <functional>
#include <string>
#include <string_view>

namespace tasca {

// Writes a picture as Markdown. Gets its reference, "mano:rey-oros,as-copas"
// (card_reference.h).
using PictureWriter = std::function<std::string(std::string_view referencia)>;

// "![Rey de oros, As de copas](mano:rey-oros,as-copas)": the names as alternative text.
std::string PictureByReference(std::string_view referencia);

// All chapters, one after the other.
std::string ManualMarkdown(const PictureWriter& dibujo);

// One chapter.
std::string ChapterMarkdown(std::string_view capitulo, const PictureWriter& dibujo);

}  // namespace tasca
