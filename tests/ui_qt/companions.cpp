// Writes the data files for a match.
#include "tests/ui_qt/companions.h"

#include "characters/character_file.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

std::string Companero(const std::string& nombre, const std::string& historia) {
  std::string registro = "Datos>\r\n" + nombre + "\r\n040\r\n" + historia + "\r\n";
  for (const std::u16string_view etiqueta : EtiquetasMensaje) {
    registro += Utf8(etiqueta) + ">\r\nDigo " + Utf8(etiqueta) + "\r\n";
  }
  return registro;
}

}  // namespace

void SetTable(const TempFolder& carpeta, const std::string& parametros) {
  carpeta.Write("Jugadores.dat", Companero("Default indirecto", "") +
                                     Companero("Default directo", "") +
                                     Companero("Berta", "Berta cuida cabras.") +
                                     Companero("el Cojo & C\355a", "El Cojo corre.") +
                                     Companero("Dora", "Dora calla."));
  carpeta.Write("mus.ini", parametros + "Ana> Nombre\r\n");
}

}  // namespace tasca::test
