// Printing of the texts that have changed.
#include "ui/terminal/screen.h"

#include "base/text.h"
#include "scene/scene.h"
#include "ui/plain_text.h"
#include "ui/spoken/on_demand.h"
#include "ui/terminal/new_text.h"

namespace tasca {
namespace {

void PrintIfAny(Console& consola, std::u16string_view texto) {
  if (!texto.empty()) consola.Line(texto);
}

}  // namespace

void Screen::Show(const Table& t) {
  const NewText nuevo = NewPart(text2_, t.Text2);
  const std::u16string_view lineas = WholeLines(nuevo.Texto);
  const std::u16string_view aviso = nuevo.Texto.substr(lineas.size());
  // Omits a hand that the new lines of the transcript contain.
  const bool cambiaMano = t.Text1 != text1_ && !Contains(nuevo.Texto, t.Text1);
  const std::u16string_view mano = cambiaMano ? std::u16string_view{t.Text1} : u"";
  // The count replaces the transcript and shows the hands first. An accepted órdago shows them
  // after the lines that it appends.
  PrintIfAny(consola_, nuevo.Replaces ? mano : lineas);
  PrintIfAny(consola_, nuevo.Replaces ? lineas : mano);
  if (t.Text3 != text3_) PrintIfAny(consola_, t.Text3);
  if (!aviso.empty()) consola_.Prompt(aviso);
  recital_.Nuevos(t.Text2);
  text1_ = t.Text1;
  text2_ = t.Text2;
  text3_ = t.Text3;
}

void Screen::Repeat() {
  PrintIfAny(consola_, text1_);
  PrintIfAny(consola_, text3_);
}

bool Screen::Tell(const Table& t, std::u16string_view orden) {
  if (orden == u"repite") {
    for (const std::u16string& linea : recital_.Ultimos()) consola_.Line(linea);
    return true;
  }
  const Escena escena = EscenaDe(t, Momento::Pregunta);
  if (orden == u"cartas") {
    consola_.Line(ManoDicha(escena));
  } else if (orden == u"tanteo") {
    consola_.Line(TanteoDicho(escena));
  } else if (orden == u"mano") {
    consola_.Line(ManoDichaPorNombre(escena));
  } else {
    return false;
  }
  return true;
}

void PrintChronicle(Console& consola, std::u16string_view cronica) {
  consola.Line(cronica.empty() ? u"Todavía no se ha dicho nada en la mesa." : cronica);
}

}  // namespace tasca
