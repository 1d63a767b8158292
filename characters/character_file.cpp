// Reading the character file.
#include "characters/character_file.h"

#include <algorithm>
#include <string>

#include "base/line_file.h"
#include "base/numbers.h"
#include "base/text.h"

namespace tasca {
namespace {

constexpr int MaximoPersonajes = 100;
constexpr int HuecosFrase = 3;

// Where the reader stands: the next phrase goes to (personaje, categoria, hueco).
struct Lectura {
  int Personaje = 0;
  int Categoria = 1;
  int Hueco = 0;
};

void LeerFrase(Table& t, const LineReader& archivo, Lectura& en, std::u16string_view linea) {
  if (en.Personaje == 0) archivo.Fail(u"hay una frase antes del primer personaje.");
  t.Mensajes[en.Personaje][en.Categoria][en.Hueco] = Trim(linea);
  // Kept: a fourth phrase takes the place of the third.
  en.Hueco = std::min(en.Hueco + 1, HuecosFrase);
}

void LeerDatos(Table& t, LineReader& archivo, Lectura& en) {
  constexpr std::size_t CifrasOrdaguero = 3;
  if (en.Personaje == MaximoPersonajes) archivo.Fail(u"hay más de 100 personajes.");
  Personaje& personaje = t.Personajes[++en.Personaje];
  personaje.Nombre = Trim(archivo.Require(u"el nombre del personaje"));
  const std::u16string ordaguero = archivo.Require(u"el valor de ordaguero del personaje");
  personaje.Ordaguero = LeadingWhole(std::u16string_view{ordaguero}.substr(0, CifrasOrdaguero));
  personaje.Historia = Trim(archivo.Require(u"la historia del personaje"));
}

// A marker that is none of the known ones only starts the phrases anew.
// Kept: a new record does not set the kind of phrase, so it keeps the last one until the next
// marker.
void LeerMarca(Table& t, LineReader& archivo, Lectura& en, std::u16string_view etiqueta) {
  en.Hueco = 1;
  if (etiqueta == EtiquetaDatos) return LeerDatos(t, archivo, en);
  const auto* const marca = std::find(EtiquetasMensaje.begin(), EtiquetasMensaje.end(), etiqueta);
  if (marca != EtiquetasMensaje.end()) {
    en.Categoria = static_cast<int>(marca - EtiquetasMensaje.begin()) + 1;
  }
}

}  // namespace

std::filesystem::path ArchivoPersonajes(const Table& t) { return t.Carpeta / "Jugadores.dat"; }

void LeerPersonajes(Table& t) {
  LineReader archivo{ArchivoPersonajes(t)};
  Lectura en;
  std::u16string linea;
  while (archivo.Next(linea)) {
    if (Contains(linea, u">")) {
      LeerMarca(t, archivo, en, Before(linea, u'>'));
    } else {
      LeerFrase(t, archivo, en, linea);
    }
  }
}

}  // namespace tasca
