// Reading and rewriting "mus.ini".
#include "startup/settings.h"

#include <filesystem>

#include "base/code_page.h"
#include "base/line_file.h"
#include "base/numbers.h"
#include "base/replace_file.h"
#include "base/text.h"

namespace tasca {
namespace {

std::filesystem::path ArchivoAjustes(const Table& t) { return t.Carpeta / "mus.ini"; }

constexpr std::u16string_view QueLineasFaltan = u"alguna de sus cuatro primeras líneas";

// The parameter in the next line; `porDefecto` if it is out of range.
Integer LeerParametro(LineReader& archivo, Integer porDefecto) {
  const double numero = RoundHalfEven(LeadingNumber(archivo.Require(QueLineasFaltan)));
  return numero >= 1 && numero < 1000 ? Integer{static_cast<int>(numero)} : porDefecto;
}

}  // namespace

void LeerParametrosPartida(Table& t) {
  if (!FileExists(ArchivoAjustes(t))) return;
  LineReader archivo{ArchivoAjustes(t)};
  t.PiedrasJuego = LeerParametro(archivo, t.PiedrasJuego);
  t.JuegosVaca = LeerParametro(archivo, t.JuegosVaca);
  t.VacasPartida = LeerParametro(archivo, t.VacasPartida);
}

std::u16string LeerIni(const Table& t) {
  if (!FileExists(ArchivoAjustes(t))) return {};
  LineReader archivo{ArchivoAjustes(t)};
  for (int linea = 1; linea <= 3; ++linea) archivo.Require(QueLineasFaltan);
  const std::u16string linea = archivo.Require(QueLineasFaltan);
  return std::u16string{Trim(Before(linea, u'>'))};
}

void GuardarIni(const Table& t, std::u16string_view nombre) {
  ExigirQueSeGuarde(t, ArchivoAjustes(t));
  if (!FileExists(ArchivoAjustes(t))) return;
  LineReader archivo{ArchivoAjustes(t)};
  std::string contenido;
  for (int linea = 1; linea <= 3; ++linea) contenido += archivo.RequireBytes(QueLineasFaltan);
  const std::string anterior = archivo.RequireBytes(QueLineasFaltan);
  contenido += Encode(Join(nombre, u"> Nombre del último jugador", CrLf));
  contenido += WithoutLineEnd(anterior);
  contenido += Encode(CrLf);
  ReplaceFile(ArchivoAjustes(t), contenido);
}

}  // namespace tasca
