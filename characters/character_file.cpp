// Stores the lines of the character file in the table and writes them back.
#include "characters/character_file.h"

#include <cstdlib>

#include "base/code_page.h"
#include "base/line_file.h"
#include "base/numbers.h"
#include "base/replace_file.h"
#include "base/text.h"

namespace tasca {
namespace {

Integer PrimerasCifras(std::u16string_view linea) {
  return ValorOrdaguero(linea.substr(0, CifrasOrdaguero));
}

// Stores a line in the field given by its record and kind.
void Guardar(Table& t, const LineReader& archivo, const LineasPersonajes& lineas, ClaseLinea clase,
             std::u16string_view linea) {
  switch (clase) {
    case ClaseLinea::Personaje:
      if (lineas.Personaje() > MaximoPersonajes) archivo.Fail(u"hay más de 100 personajes.");
      break;
    case ClaseLinea::Nombre:
      t.Personajes[lineas.Personaje()].Nombre = Trim(linea);
      break;
    case ClaseLinea::Ordaguero:
      t.Personajes[lineas.Personaje()].Ordaguero = PrimerasCifras(linea);
      break;
    case ClaseLinea::Historia:
      t.Personajes[lineas.Personaje()].Historia = Trim(linea);
      break;
    case ClaseLinea::Frase:
      if (lineas.Personaje() == 0) archivo.Fail(u"hay una frase antes del primer personaje.");
      t.Mensajes[lineas.Personaje()][lineas.Categoria()][lineas.Hueco()] = Trim(linea);
      break;
    case ClaseLinea::Categoria:
    case ClaseLinea::Desconocida:
    case ClaseLinea::Ajena:
      break;
  }
}

int LeerTodo(Table& t, LectorPersonajes lector) {
  LineReader archivo{ArchivoPersonajes(t)};
  LineasPersonajes lineas{lector};
  std::u16string linea;
  while (archivo.Next(linea)) Guardar(t, archivo, lineas, lineas.Leer(linea), linea);
  ExigirCabecera(archivo, lineas);
  return lineas.Personaje();
}

// The number with at least three digits after the sign: 007, -005, 1000.
std::u16string TextoOrdaguero(int valor) {
  const std::u16string cifras = ToText(std::abs(valor));
  const std::size_t ceros = cifras.size() < CifrasOrdaguero ? CifrasOrdaguero - cifras.size() : 0;
  return Join(valor < 0 ? u"-" : u"", std::u16string(ceros, u'0'), cifras);
}

bool SeEscribe(const FixedText<AnchoFrase>& frase) {
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
      const FixedText<AnchoFrase>& frase = t.Mensajes[numero][categoria][hueco];
      // Kept: phrases are written with their padding, names and stories without.
      if (SeEscribe(frase)) texto += Join(frase.Full(), CrLf);
    }
  }
  return texto;
}

}  // namespace

std::filesystem::path ArchivoPersonajes(const Table& t) {
  return t.Carpeta / t.ArchivoDePersonajes;
}

std::filesystem::path CopiaDeSeguridad(std::filesystem::path archivo) {
  if (archivo.extension() == ".dat") return archivo.replace_extension(".bak");
  return archivo += ".bak";
}

Integer ValorOrdaguero(std::u16string_view texto) {
  constexpr std::size_t Bastantes = 9;
  return LeadingWhole(texto.substr(0, Bastantes));
}

bool SeLeeComoSeEscribe(int ordaguero) {
  return PrimerasCifras(TextoOrdaguero(ordaguero)) == ordaguero;
}

void ExigirCabecera(LineReader& archivo, const LineasPersonajes& lineas) {
  if (const auto falta = lineas.CabeceraPendiente()) {
    archivo.FailAtEnd(Join(NombreDe(*falta), u" del personaje"));
  }
}

void LeerPersonajes(Table& t) { LeerTodo(t, LectorPersonajes::Juego); }

int LeerPersonajesSinMayusculas(Table& t) { return LeerTodo(t, LectorPersonajes::Editor); }

std::string TextoPersonajes(const Table& t, int cuantos) {
  std::string bytes;
  for (int numero = 1; numero <= cuantos; ++numero) bytes += Encode(TextoPersonaje(t, numero));
  return bytes;
}

void EscribirPersonajes(const Table& t, int cuantos) {
  const std::filesystem::path archivo = ArchivoPersonajes(t);
  ExigirQueSeGuarde(t, archivo);
  BackUpFile(archivo, CopiaDeSeguridad(archivo));
  ReplaceFile(archivo, TextoPersonajes(t, cuantos));
}

}  // namespace tasca
