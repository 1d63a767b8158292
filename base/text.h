#pragma once
// String helpers. Text is UTF-16, a character is one unit, a blank is U+0020 only.
#include <string>
#include <string_view>

namespace tasca {

inline constexpr std::u16string_view CrLf = u"\r\n";

// `texto` without leading and trailing blanks.
std::u16string_view Trim(std::u16string_view texto);
// `texto` without trailing blanks.
std::u16string_view TrimRight(std::u16string_view texto);

// Replaces every occurrence of `buscado`, from left to right. Requires a non-empty `buscado`.
std::u16string ReplaceAll(std::u16string_view texto, std::u16string_view buscado,
                          std::u16string_view nuevo);

// True if `buscado` occurs in `texto`, case-sensitively.
bool Contains(std::u16string_view texto, std::u16string_view buscado);

// The text before the first `letra`; the whole text if it does not occur.
std::u16string_view Before(std::u16string_view texto, char16_t letra);

// Case-sensitive comparison.
bool EqualExactly(std::u16string_view uno, std::u16string_view otro);
// Comparison that ignores the case of the ASCII letters, independent of the locale.
bool EqualIgnoringCase(std::u16string_view uno, std::u16string_view otro);

// True for the control characters U+0000 to U+001F and U+007F to U+009F: they are invisible and
// could control a terminal.
constexpr bool IsControl(char16_t letra) {
  return letra < u' ' || (letra >= u'\u007F' && letra <= u'\u009F');
}

// The number in decimal, with "-" if negative and without padding.
std::u16string ToText(int numero);

namespace detail {
inline void Append(std::u16string& texto, std::u16string_view pieza) { texto += pieza; }
inline void Append(std::u16string& texto, int pieza) { texto += ToText(pieza); }
}  // namespace detail

// Concatenates texts and numbers; numbers are converted by ToText.
template <class... Piezas>
std::u16string Join(const Piezas&... piezas) {
  std::u16string texto;
  (detail::Append(texto, piezas), ...);
  return texto;
}

}  // namespace tasca
