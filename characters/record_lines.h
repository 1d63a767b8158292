#pragma once
// The format of the character file: classifies its lines. The file has three readers, which
// classify some lines differently.
#include <array>
#include <optional>
#include <string_view>

#include "table/table.h"

namespace tasca {

// The tags of the kinds of phrase, by MessageCategory - 1. A marker line is a tag followed by ">".
inline constexpr std::array<std::u16string_view, CategoriasMensaje> EtiquetasMensaje{
    u"QMus", u"NMus", u"TPar", u"NPar", u"TJue", u"NJue", u"Paso",
    u"Envi", u"EnvM", u"Orda", u"NQui", u"SQui", u"Vict", u"Derr"};

// The tag of the marker that starts a record.
inline constexpr std::u16string_view EtiquetaDatos = u"Datos";

// The propensity to the órdago is read from this number of characters, and written with at least as
// many digits.
inline constexpr int CifrasOrdaguero = 3;

// Compares the text of a marker with a tag: EqualExactly or EqualIgnoringCase.
using ComparacionEtiquetas = bool (*)(std::u16string_view, std::u16string_view);

// The MessageCategory of a tag; 0 if the tag is unknown.
int CategoriaDe(std::u16string_view etiqueta, ComparacionEtiquetas coinciden);

// The three readers of the file.
enum class LectorPersonajes {
  Juego,   // the game: tags are case-sensitive
  Editor,  // Kept: for the editor tags are case-insensitive
  Inicio,  // the start-up dialog: reads only names and stories
};

// The kinds of line.
enum class ClaseLinea {
  Personaje,    // the marker "Datos>", first line of a record's head
  Nombre,       // second line of the head
  Ordaguero,    // third line of the head
  Historia,     // last line of the head
  Categoria,    // the marker of a kind of phrase
  Desconocida,  // an unknown marker
  Frase,        // a phrase
  Ajena,        // ignored by this reader
};

// The Spanish name of a line of a record's head, with its article: "el nombre", "el valor de
// ordaguero", "la historia".
std::u16string_view NombreDe(ClaseLinea cabecera);

// Classifies the lines of a file for one reader. Keeps the current record, kind of phrase and slot.
class LineasPersonajes {
 public:
  explicit LineasPersonajes(LectorPersonajes lector) : lector_{lector} {}

  // Classifies the next line. Requires that all lines are passed in order, without line ends.
  ClaseLinea Leer(std::u16string_view linea);

  // The number of the current record, from 1; 0 before the first. Has no upper limit.
  int Personaje() const { return personaje_; }
  // The MessageCategory of the current kind of phrase, 1..14.
  int Categoria() const { return categoria_; }
  // The slot (1..3) of the phrase just read; 0 before the first phrase.
  int Hueco() const { return hueco_; }
  // The line of a record's head that must come next; nothing outside a head.
  std::optional<ClaseLinea> CabeceraPendiente() const { return pendiente_; }

 private:
  ClaseLinea LeerCabecera(std::u16string_view linea);
  ClaseLinea LeerMarca(std::u16string_view etiqueta);
  ClaseLinea EmpezarPersonaje();

  LectorPersonajes lector_;
  std::optional<ClaseLinea> pendiente_;
  int personaje_ = 0;
  int categoria_ = 1;
  int hueco_ = 0;
  int siguienteHueco_ = 1;
};

}  // namespace tasca
