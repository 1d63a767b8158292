// Decoding of file names for messages.
#include "base/path_text.h"

#include "base/code_page.h"
#include "base/text.h"

namespace tasca {
namespace {

std::u16string NameText(const std::filesystem::path& nombre) {
  try {
    return nombre.u16string();
  } catch (const std::exception&) {
    return Decode(nombre.native());
  }
}

}  // namespace

std::u16string PathText(const std::filesystem::path& archivo) {
  std::u16string texto;
  for (const std::filesystem::path& nombre : archivo) {
    if (!texto.empty() && !texto.ends_with(u'/')) texto += u'/';
    texto += NameText(nombre);
  }
  return texto;
}

std::u16string PlaceInFile(const std::filesystem::path& archivo, int linea) {
  return linea > 0 ? Join(PathText(archivo), u", línea ", linea, u": ")
                   : Join(PathText(archivo), u": ");
}

}  // namespace tasca
