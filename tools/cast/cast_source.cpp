// The parser of the cast's source.
#include "tools/cast/cast_source.h"

#include <algorithm>
#include <string>

#include "base/line_file.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "characters/editor.h"
#include "ui/utf8.h"

namespace tasca {
namespace {

class Lector {
 public:
  Lector(Table& t, const std::filesystem::path& archivo) : t_{t}, archivo_{archivo} {}

  int Leer() {
    std::string bytes;
    while (archivo_.NextBytes(bytes)) LeerLinea(SinMarca(FromUtf8(WithoutLineEnd(bytes))));
    return personaje_;
  }

 private:
  // Strips the byte-order mark that some editors write.
  static std::u16string SinMarca(const std::u16string& linea) {
    return ReplaceAll(linea, u"\uFEFF", u"");
  }

  void LeerLinea(std::u16string_view linea) {
    if (Trim(linea).empty() || linea.starts_with(u'#')) return;
    const std::u16string_view clave = Before(linea, u':');
    if (clave.size() == linea.size()) archivo_.Fail(u"la línea no es «clave: texto».");
    const std::u16string_view texto = Trim(linea.substr(clave.size() + 1));
    if (texto.empty()) archivo_.Fail(u"falta el texto.");
    if (clave == u"Nombre") return EmpezarPersonaje(texto);
    if (personaje_ == 0) archivo_.Fail(u"el primer personaje no tiene nombre.");
    if (clave == u"Ordaguero") {
      t_.Personajes[personaje_].Ordaguero = Numero(texto);
    } else if (clave == u"Historia") {
      t_.Personajes[personaje_].Historia = Comprobado(texto, AnchoHistoria);
    } else {
      AnadirFrase(clave, texto);
    }
  }

  void EmpezarPersonaje(std::u16string_view nombre) {
    if (personaje_ == MaximoPersonajes) archivo_.Fail(u"hay más de 100 personajes.");
    t_.Personajes[++personaje_].Nombre = Comprobado(nombre, AnchoNombre);
    frases_ = {};
  }

  void AnadirFrase(std::u16string_view clave, std::u16string_view texto) {
    const int categoria = CategoriaDe(clave, EqualExactly);
    if (categoria == 0) archivo_.Fail(Join(u"no se conoce «", clave, u"»."));
    if (frases_[categoria] == HuecosFrase) archivo_.Fail(u"es la cuarta frase para esta ocasión.");
    const int hueco = ++frases_[categoria];
    t_.Mensajes[personaje_][categoria][hueco] = Comprobado(texto, AnchoFrase);
  }

  std::u16string_view Comprobado(std::u16string_view texto, int ancho) const {
    const std::u16string_view reparo = ReparoAlTexto(texto, static_cast<int>(texto.size()), ancho);
    if (!reparo.empty()) archivo_.Fail(reparo);
    return texto;
  }

  Integer Numero(std::u16string_view texto) const {
    const bool soloCifras = std::all_of(
        texto.begin(), texto.end(), [](char16_t letra) { return letra >= u'0' && letra <= u'9'; });
    if (!soloCifras || texto.size() > CifrasOrdaguero) {
      archivo_.Fail(u"el valor de Ordaguero no es un número de hasta tres cifras.");
    }
    return ValorOrdaguero(texto);
  }

  Table& t_;
  LineReader archivo_;
  int personaje_ = 0;
  // The number of phrases of the current character, by category.
  Array<int, 1, static_cast<int>(EtiquetasMensaje.size())> frases_;
};

}  // namespace

int LeerReparto(Table& t, const std::filesystem::path& archivo) {
  return Lector{t, archivo}.Leer();
}

}  // namespace tasca
