// Reading and writing the character file.
#include "characters/character_file.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/line_file.h"
#include "base/numbers.h"
#include "base/replace_file.h"
#include "base/text.h"

namespace tasca {
namespace {

// Where a reader stands: the next phrase goes to (personaje, categoria, hueco).
struct Lectura {
  ComparacionEtiquetas Coinciden = nullptr;
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
  if (en.Personaje == MaximoPersonajes) archivo.Fail(u"hay más de 100 personajes.");
  Personaje& personaje = t.Personajes[++en.Personaje];
  personaje.Nombre = Trim(archivo.Require(u"el nombre del personaje"));
  const std::u16string ordaguero = archivo.Require(u"el valor de ordaguero del personaje");
  personaje.Ordaguero = ValorOrdaguero(std::u16string_view{ordaguero}.substr(0, CifrasOrdaguero));
  personaje.Historia = Trim(archivo.Require(u"la historia del personaje"));
}

// A marker that is none of the known ones only starts the phrases anew.
// Kept: a new record does not set the kind of phrase, so it keeps the last one until the next
// marker.
void LeerMarca(Table& t, LineReader& archivo, Lectura& en, std::u16string_view etiqueta) {
  en.Hueco = 1;
  if (en.Coinciden(etiqueta, EtiquetaDatos)) return LeerDatos(t, archivo, en);
  const int categoria = CategoriaDe(etiqueta, en.Coinciden);
  if (categoria > 0) en.Categoria = categoria;
}

int LeerTodo(Table& t, ComparacionEtiquetas coinciden) {
  LineReader archivo{ArchivoPersonajes(t)};
  Lectura en{.Coinciden = coinciden};
  std::u16string linea;
  while (archivo.Next(linea)) {
    if (Contains(linea, u">")) {
      LeerMarca(t, archivo, en, Before(linea, u'>'));
    } else {
      LeerFrase(t, archivo, en, linea);
    }
  }
  return en.Personaje;
}

// At least three digits, after the sign: 007, -005, 1000.
std::u16string TextoOrdaguero(int valor) {
  const std::u16string cifras = ToText(std::abs(valor));
  const std::size_t ceros = cifras.size() < CifrasOrdaguero ? CifrasOrdaguero - cifras.size() : 0;
  return Join(valor < 0 ? u"-" : u"", std::u16string(ceros, u'0'), cifras);
}

bool SeEscribe(const FixedText<100>& frase) {
  return !frase.Trimmed().empty() && !Contains(frase.Full(), std::u16string_view{u"\0", 1});
}

std::u16string TextoPersonaje(const Table& t, int numero) {
  const Personaje& personaje = t.Personajes[numero];
  std::u16string texto =
      Join(EtiquetaDatos, u">", CrLf, personaje.Nombre.Trimmed(), CrLf,
           TextoOrdaguero(personaje.Ordaguero), CrLf, personaje.Historia.Trimmed(), CrLf);
  for (int categoria = 1; categoria <= std::ssize(EtiquetasMensaje); ++categoria) {
    texto += Join(EtiquetasMensaje.at(static_cast<std::size_t>(categoria) - 1), u">", CrLf);
    for (int hueco = 1; hueco <= HuecosFrase; ++hueco) {
      const FixedText<100>& frase = t.Mensajes[numero][categoria][hueco];
      // Kept: a phrase is written with its padding, unlike the name and the story.
      if (SeEscribe(frase)) texto += Join(frase.Full(), CrLf);
    }
  }
  return texto;
}

}  // namespace

std::filesystem::path ArchivoPersonajes(const Table& t) { return t.Carpeta / "Jugadores.dat"; }

Integer ValorOrdaguero(std::u16string_view texto) {
  constexpr std::size_t Bastantes = 9;
  return LeadingWhole(texto.substr(0, Bastantes));
}

int CategoriaDe(std::u16string_view etiqueta, ComparacionEtiquetas coinciden) {
  const auto* const conocida =
      std::find_if(EtiquetasMensaje.begin(), EtiquetasMensaje.end(),
                   [=](std::u16string_view otra) { return coinciden(etiqueta, otra); });
  const auto posicion = static_cast<int>(conocida - EtiquetasMensaje.begin());
  return conocida == EtiquetasMensaje.end() ? 0 : posicion + 1;
}

void LeerPersonajes(Table& t) { LeerTodo(t, EqualExactly); }

// Kept: the game itself knows the tags only as they are written.
int LeerPersonajesSinMayusculas(Table& t) { return LeerTodo(t, EqualIgnoringCase); }

std::string TextoPersonajes(const Table& t, int cuantos) {
  std::string bytes;
  for (int numero = 1; numero <= cuantos; ++numero) bytes += Encode(TextoPersonaje(t, numero));
  return bytes;
}

void EscribirPersonajes(const Table& t, int cuantos) {
  const std::filesystem::path archivo = ArchivoPersonajes(t);
  BackUpFile(archivo, t.Carpeta / "Jugadores.bak");
  ReplaceFile(archivo, TextoPersonajes(t, cuantos));
}

}  // namespace tasca
