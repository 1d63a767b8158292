#pragma once
// The seal of kept bytes: the format's name and number, and a checksum. Bytes of another format,
// and damaged ones, do not open.
#include <optional>
#include <string>
#include <string_view>

namespace tasca {

// The values behind `cabecera`, the name and number of their format, and the checksum.
std::string Sellar(std::string_view cabecera, std::string_view valores);

// The values in sealed bytes; nothing if they are not whole or of another format.
std::optional<std::string_view> Abrir(std::string_view cabecera, std::string_view bytes);

// The checksum in bytes that Sellar has written, which tells them from others.
std::string_view SumaSellada(std::string_view cabecera, std::string_view bytes);

}  // namespace tasca
