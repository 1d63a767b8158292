// Commas, quotes and numbers.
#include "ui/web/json.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "ui/utf8.h"

namespace tasca {
namespace {

// Quotes, backslashes and control characters are escaped.
void AppendQuoted(std::string& salida, std::string_view utf8) {
  constexpr std::string_view Cifras = "0123456789abcdef";
  constexpr unsigned char Blanco = 0x20;
  salida += '"';
  for (const char letra : utf8) {
    const auto codigo = static_cast<unsigned char>(letra);
    if (codigo < Blanco) {
      salida += "\\u00";
      salida += Cifras[codigo >> 4U];
      salida += Cifras[codigo & 0xFU];
      continue;
    }
    if (letra == '"' || letra == '\\') salida += '\\';
    salida += letra;
  }
  salida += '"';
}

}  // namespace

void Json::Value(std::u16string_view texto) { Value(std::string_view{ToUtf8(texto)}); }

void Json::Value(std::string_view utf8) {
  Raw({});
  AppendQuoted(texto_, utf8);
}

void Json::Value(int numero) { Raw(std::to_string(numero)); }

// Written from a whole number: independent of the locale, and shorter than by a stream.
void Json::Value(double numero) {
  constexpr long long Unidad = 100'000;
  constexpr std::size_t Decimales = 5;
  const long long redondo = std::llround(numero * static_cast<double>(Unidad));
  std::string texto = redondo < 0 ? "-" : "";
  texto += std::to_string(std::llabs(redondo / Unidad));
  const long long resto = std::llabs(redondo % Unidad);
  if (resto != 0) {
    std::string decimales = std::to_string(resto);
    decimales.insert(0, Decimales - decimales.size(), '0');
    decimales.erase(decimales.find_last_not_of('0') + 1);
    texto += "." + decimales;
  }
  Raw(texto);
}

void Json::Value(const Rect& donde) {
  List(std::array{donde.X, donde.Y, donde.Ancho, donde.Alto}, [this](double lado) { Value(lado); });
}

void Json::Key(std::string_view clave) {
  Value(clave);
  texto_ += ':';
  sigue_ = false;
}

void Json::Raw(std::string_view texto) {
  if (sigue_) texto_ += ',';
  texto_ += texto;
  sigue_ = true;
}

void Json::Open(char signo) {
  Raw({&signo, 1});
  sigue_ = false;
}

void Json::Close(char signo) {
  texto_ += signo;
  sigue_ = true;
}

}  // namespace tasca
