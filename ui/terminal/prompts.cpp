// Each question is repeated until its answer is valid.
#include "ui/terminal/prompts.h"

#include "base/text.h"

namespace tasca {
namespace {

constexpr std::u16string_view ContestaSiONo = u"Conteste \"s\" (sí) o \"n\" (no).";
constexpr std::u16string_view ContestaOpcion =
    u"Escriba uno de los números o el comienzo de uno de los nombres.";
constexpr std::u16string_view ContestaTexto = u"Escriba la respuesta.";
constexpr std::u16string_view ContestaOCancela = u"Escriba la respuesta, o \"-\" para cancelar.";

std::u16string NameOf(const std::vector<Option>& opciones, int numero) {
  for (const Option& opcion : opciones) {
    if (opcion.Numero == numero) return opcion.Texto;
  }
  return {};
}

std::u16string WhatIsWrong(const std::vector<Option>& opciones, const std::vector<int>& posibles) {
  if (posibles.empty()) return Join(u"Eso no se ofrece. ", ContestaOpcion);
  std::u16string nombres;
  for (const int numero : posibles) {
    if (!nombres.empty()) nombres += u" o ";
    nombres += NameOf(opciones, numero);
  }
  return Join(u"Puede ser ", nombres, u". Escriba algo más, o el número.");
}

}  // namespace

std::u16string Prompts::Answer(std::u16string_view pregunta, std::u16string_view ofrece,
                               std::u16string_view seContesta,
                               const std::vector<Option>& opciones) const {
  for (;;) {
    consola_.Prompt(Join(TrimRight(pregunta), u" [", ofrece, u"] "));
    const std::u16string linea = consola_.ReadLine();
    const TypedLine escrita{.Texto = linea,
                            .SeContesta = seContesta,
                            .EsOpcion = !FindOptions(opciones, linea).empty()};
    if (!orden_(escrita)) return std::u16string{Trim(linea)};
  }
}

bool Prompts::YesNo(std::u16string_view pregunta, bool porDefecto) const {
  for (;;) {
    const std::u16string respuesta = Answer(pregunta, porDefecto ? u"S/n" : u"s/N", ContestaSiONo);
    if (respuesta.empty()) return porDefecto;
    if (const auto leida = ReadYesNo(respuesta)) return *leida;
    consola_.Line(ContestaSiONo);
  }
}

int Prompts::Choose(std::u16string_view pregunta, const std::vector<Option>& opciones,
                    std::u16string_view ofrece, int porDefecto) const {
  for (;;) {
    const std::u16string respuesta = Answer(pregunta, ofrece, ContestaOpcion, opciones);
    if (respuesta.empty()) return porDefecto;
    const std::vector<int> posibles = FindOptions(opciones, respuesta);
    if (posibles.size() == 1) return posibles.front();
    consola_.Line(WhatIsWrong(opciones, posibles));
  }
}

std::u16string Prompts::Text(std::u16string_view pregunta, std::u16string_view porDefecto) const {
  const std::u16string respuesta = Answer(pregunta, porDefecto, ContestaTexto);
  return respuesta.empty() ? std::u16string{porDefecto} : respuesta;
}

std::u16string Prompts::TextOrCancel(std::u16string_view pregunta,
                                     std::u16string_view porDefecto) const {
  const std::u16string respuesta = Answer(
      pregunta, Join(porDefecto.empty() ? u"nada" : porDefecto, u"; - cancela"), ContestaOCancela);
  if (respuesta == u"-") return {};
  return respuesta.empty() ? std::u16string{porDefecto} : respuesta;
}

}  // namespace tasca
