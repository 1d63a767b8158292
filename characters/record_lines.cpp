// Classifies the lines of a character file.
#include "characters/record_lines.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace tasca {
namespace {

bool LlevaMarca(std::u16string_view linea) { return Contains(linea, u">"); }

}  // namespace

int CategoriaDe(std::u16string_view etiqueta, ComparacionEtiquetas coinciden) {
  const auto* const conocida =
      std::find_if(EtiquetasMensaje.begin(), EtiquetasMensaje.end(),
                   [=](std::u16string_view otra) { return coinciden(etiqueta, otra); });
  const auto posicion = static_cast<int>(conocida - EtiquetasMensaje.begin());
  return conocida == EtiquetasMensaje.end() ? 0 : posicion + 1;
}

std::u16string_view NombreDe(ClaseLinea cabecera) {
  if (cabecera == ClaseLinea::Nombre) return u"el nombre";
  return cabecera == ClaseLinea::Ordaguero ? u"el valor de ordaguero" : u"la historia";
}

ClaseLinea LineasPersonajes::Leer(std::u16string_view linea) {
  if (pendiente_) return LeerCabecera(linea);
  if (lector_ == LectorPersonajes::Inicio) {
    return Contains(linea, u"Datos>") ? EmpezarPersonaje() : ClaseLinea::Ajena;
  }
  if (LlevaMarca(linea)) return LeerMarca(Before(linea, u'>'));
  // Kept: a fourth phrase overwrites the third.
  hueco_ = siguienteHueco_;
  siguienteHueco_ = std::min(siguienteHueco_ + 1, HuecosFrase);
  return ClaseLinea::Frase;
}

// The start-up dialog skips the rest of a record whose name contains "Default".
ClaseLinea LineasPersonajes::LeerCabecera(std::u16string_view linea) {
  const ClaseLinea clase = *pendiente_;
  if (clase == ClaseLinea::Historia) {
    pendiente_.reset();
  } else {
    pendiente_ = clase == ClaseLinea::Nombre ? ClaseLinea::Ordaguero : ClaseLinea::Historia;
  }
  const bool esDeNadie = lector_ == LectorPersonajes::Inicio && clase == ClaseLinea::Nombre &&
                         Contains(linea, u"Default");
  if (!esDeNadie) return clase;
  pendiente_.reset();
  return ClaseLinea::Ajena;
}

// An unknown marker only resets the slot of the next phrase to 1.
// Kept: a new record does not reset the kind of phrase, so phrases before its first marker are of
// the last kind.
ClaseLinea LineasPersonajes::LeerMarca(std::u16string_view etiqueta) {
  const ComparacionEtiquetas coinciden =
      lector_ == LectorPersonajes::Editor ? EqualIgnoringCase : EqualExactly;
  siguienteHueco_ = 1;
  if (coinciden(etiqueta, EtiquetaDatos)) return EmpezarPersonaje();
  const int categoria = CategoriaDe(etiqueta, coinciden);
  if (categoria == 0) return ClaseLinea::Desconocida;
  categoria_ = categoria;
  return ClaseLinea::Categoria;
}

ClaseLinea LineasPersonajes::EmpezarPersonaje() {
  ++personaje_;
  pendiente_ = ClaseLinea::Nombre;
  return ClaseLinea::Personaje;
}

}  // namespace tasca
