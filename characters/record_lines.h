#pragma once
// What each line of a character file is: the one place that knows the format. The file has three
// readers, and they do not take every line alike.
#include <array>
#include <optional>
#include <string_view>

#include "table/table.h"

namespace tasca {

// The file tags, by MessageCategory - 1.
inline constexpr std::array<std::u16string_view, CategoriasMensaje> EtiquetasMensaje{
    u"QMus", u"NMus", u"TPar", u"NPar", u"TJue", u"NJue", u"Paso",
    u"Envi", u"EnvM", u"Orda", u"NQui", u"SQui", u"Vict", u"Derr"};

// The marker that starts a record.
inline constexpr std::u16string_view EtiquetaDatos = u"Datos";

// How many characters of the propensity to the órdago are read, and at least written.
inline constexpr int CifrasOrdaguero = 3;

// Compares the text of a marker with a tag.
using ComparacionEtiquetas = bool (*)(std::u16string_view, std::u16string_view);

// The MessageCategory of a tag, 0 when there is none.
int CategoriaDe(std::u16string_view etiqueta, ComparacionEtiquetas coinciden);

enum class LectorPersonajes {
  Juego,   // knows the tags only as they are written
  Editor,  // Kept: knows them in upper and lower case
  Inicio,  // the start-up dialog: looks for names and stories alone
};

enum class ClaseLinea {
  Personaje,    // starts a record
  Nombre,       // these three follow it
  Ordaguero,    //
  Historia,     //
  Categoria,    // a marker: phrases of that kind follow
  Desconocida,  // a marker that is none of the known ones
  Frase,        //
  Ajena,        // means nothing to this reader
};

// "el nombre", "el valor de ordaguero", "la historia": a line of a record's head.
std::u16string_view NombreDe(ClaseLinea cabecera);

// Follows a reader through the file, line by line.
class LineasPersonajes {
 public:
  explicit LineasPersonajes(LectorPersonajes lector) : lector_{lector} {}

  // What the next line is.
  ClaseLinea Leer(std::u16string_view linea);

  // The record that the line belongs to, from 1; 0 before the first.
  int Personaje() const { return personaje_; }
  // Where a phrase goes: the MessageCategory, and the slot (1..3) of the phrase just read.
  int Categoria() const { return categoria_; }
  int Hueco() const { return hueco_; }
  // The line of a record's head that comes next; none outside a head.
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
