#pragma once
// Small helpers on text. Text is UTF-16; a blank is U+0020 and nothing else.
#include <string>
#include <string_view>

namespace tasca {

inline constexpr std::u16string_view CrLf = u"\r\n";

// Without the blanks at both ends; at the right end only.
std::u16string_view Trim(std::u16string_view texto);
std::u16string_view TrimRight(std::u16string_view texto);

// Every occurrence of `buscado` (not empty) replaced.
std::u16string ReplaceAll(std::u16string_view texto, std::u16string_view buscado,
                          std::u16string_view nuevo);

bool Contains(std::u16string_view texto, std::u16string_view buscado);

// The text before the first `letra`, or all of it when there is none.
std::u16string_view Before(std::u16string_view texto, char16_t letra);

// The same text; the same text, the letters A to Z and a to z taken as one.
bool EqualExactly(std::u16string_view uno, std::u16string_view otro);
bool EqualIgnoringCase(std::u16string_view uno, std::u16string_view otro);

// A character that shows nothing and could steer a terminal: below the blank, and 7F to 9F.
constexpr bool IsControl(char16_t letra) {
  return letra < u' ' || (letra >= u'\u007F' && letra <= u'\u009F');
}

// Decimal digits, with "-" for negatives and no leading blank.
std::u16string ToText(int numero);

namespace detail {
inline void Append(std::u16string& texto, std::u16string_view pieza) { texto += pieza; }
inline void Append(std::u16string& texto, int pieza) { texto += ToText(pieza); }
}  // namespace detail

// The pieces one after the other, exactly as they stand; numbers as ToText writes them.
template <class... Piezas>
std::u16string Join(const Piezas&... piezas) {
  std::u16string texto;
  (detail::Append(texto, piezas), ...);
  return texto;
}

}  // namespace tasca
