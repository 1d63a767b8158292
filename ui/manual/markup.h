#pragma once
// The manual as plain Markdown: its worked examples written out, its pictures as the caller likes.
#include <functional>
#include <string>
#include <string_view>

namespace tasca {

// Writes a picture as Markdown. Gets its reference, "mano:rey-oros,as-copas"
// (card_reference.h).
using PictureWriter = std::function<std::string(std::string_view referencia)>;

// One picture for each card, "![Rey de oros](carta:rey-oros) ![As de copas](carta:as-copas)", so
// that a hand can be broken into lines. The names are the alternative text.
std::string PicturesOfCards(std::string_view referencia);

// All chapters, one after the other.
std::string ManualMarkdown(const PictureWriter& dibujo);

// One chapter.
std::string ChapterMarkdown(std::string_view capitulo, const PictureWriter& dibujo);

}  // namespace tasca
