// The entries of the text boxes' menus.
#include "ui/qt/spanish.h"

#include <array>
#include <string_view>

namespace tasca {
namespace {

struct Entrada {
  std::string_view Texto;
  const char16_t* EnCastellano;
};

constexpr std::array<Entrada, 7> Entradas{{
    {"&Undo", u"&Deshacer"},
    {"&Redo", u"&Rehacer"},
    {"Cu&t", u"Cor&tar"},
    {"&Copy", u"&Copiar"},
    {"&Paste", u"&Pegar"},
    {"Delete", u"Eliminar"},
    {"Select All", u"Seleccionar todo"},
}};

}  // namespace

QString Spanish::translate(const char* /*contexto*/, const char* texto, const char* /*aclaracion*/,
                           int /*n*/) const {
  for (const Entrada& entrada : Entradas) {
    if (entrada.Texto == texto) return QString::fromUtf16(entrada.EnCastellano);
  }
  return {};
}

}  // namespace tasca
