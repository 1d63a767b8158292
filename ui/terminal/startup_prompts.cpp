// One prompt for each control of the start-up dialog.
#include "ui/terminal/startup_prompts.h"

#include "base/errors.h"
#include "base/text.h"
#include "characters/editor.h"
#include "startup/dlg_inicio.h"
#include "ui/manual/asunto.h"
#include "ui/manual/brief.h"
#include "ui/terminal/prompts.h"

namespace tasca {
namespace {

using ComboClick = void (*)(DlgInicio&, int);

std::vector<Option> Entries(const ComboBox& combo) {
  std::vector<Option> opciones;
  int posicion = 0;
  for (const ComboBox::Entrada& entrada : combo.List) {
    opciones.push_back({posicion++, entrada.Texto});
  }
  return opciones;
}

void PrintCharacters(const DlgInicio& d, Console& consola) {
  for (const Option& opcion : Entries(d.Combo1)) {
    consola.Line(Join(opcion.Numero, u" ", opcion.Texto));
  }
}

void PrintStories(const DlgInicio& d, Console& consola) {
  int posicion = 0;
  for (const ComboBox::Entrada& entrada : d.Combo1.List) {
    std::u16string linea = Join(posicion++, u" ", entrada.Texto);
    if (entrada.Personaje > 0) {
      linea += Join(u": ", d.HistoriaInicio[entrada.Personaje].Trimmed());
    }
    consola.Line(linea);
  }
}

// The commands that every prompt accepts instead of an answer.
Prompts::Command Commands(const DlgInicio& d, Console& consola) {
  return [&d, &consola](const TypedLine& linea) {
    const std::u16string orden = Fold(linea.Texto);
    if (orden == u"q" || orden == u"salir") throw LeaveProgram{};
    if (orden != u"?") return false;
    PrintStories(d, consola);
    consola.Line(BriefOf(AnchorOf(Asunto::Inicio)));
    consola.Line(u"Los compañeros se eligen por su número o por su nombre.");
    consola.Line(u"Enter deja lo que está entre corchetes; q sale del juego.");
    return true;
  };
}

// An empty answer keeps the list's choice. A new choice prints the character's story.
void AskCombo(DlgInicio& d, Console& consola, const Prompts& preguntas,
              std::u16string_view etiqueta, const ComboBox& combo, ComboClick click) {
  const std::vector<Option> opciones = Entries(combo);
  const Option& elegida = opciones.at(static_cast<std::size_t>(combo.ListIndex));
  const int posicion = preguntas.Choose(etiqueta, opciones,
                                        Join(elegida.Numero, u" ", elegida.Texto), combo.ListIndex);
  if (posicion == combo.ListIndex) return;
  const std::u16string antes = d.Text4;
  click(d, posicion);
  if (d.Text4 != antes && !d.Text4.empty()) consola.Line(d.Text4);
}

void AskNarration(DlgInicio& d, Console& consola, const Prompts& preguntas) {
  Check1_Click(d, 0, preguntas.YesNo(u"Usar los nombres de los jugadores", d.Check1[0]));
  Check1_Click(d, 1, preguntas.YesNo(u"Usar las expresiones de los jugadores", d.Check1[1]));
  const std::vector<Option> estilos{{0, u"Estilo directo"}, {1, u"Estilo indirecto"}};
  Option1_Click(d, preguntas.Choose(u"Narración: 0 Estilo directo, 1 Estilo indirecto", estilos,
                                    ToText(d.Option1), d.Option1));
  consola.Line(Join(u"Así se contará: ", d.Text3));
}

// The reason why a name is refused, as a sentence for the player; "" if it is accepted.
std::u16string_view ReparoAlNombre(std::u16string_view nombre) {
  if (nombre.size() > AnchoNombre) return NombreDemasiadoLargo;
  if (Contains(nombre, u"\uFFFD")) {
    return u"Alguna letra no ha llegado bien: la terminal debe escribir en UTF-8.";
  }
  return ReparoAlTexto(nombre, static_cast<int>(nombre.size()), AnchoNombre);
}

// A name read from the settings file is accepted unchanged, even if it is invalid as input.
void AskName(DlgInicio& d, Console& consola, const Prompts& preguntas) {
  for (;;) {
    const std::u16string nombre = preguntas.Text(u"Su nombre:", d.Text2);
    const std::u16string_view reparo = nombre == d.Text2 ? u"" : ReparoAlNombre(nombre);
    if (reparo.empty()) {
      d.Text2 = nombre;
      return;
    }
    consola.Line(reparo);
  }
}

void AskEverything(DlgInicio& d, Console& consola, const Prompts& preguntas) {
  AskName(d, consola, preguntas);
  PrintCharacters(d, consola);
  AskCombo(d, consola, preguntas, u"Compañero:", d.Combo1, Combo1_Click);
  AskCombo(d, consola, preguntas, u"Contrario 1:", d.Combo2, Combo2_Click);
  AskCombo(d, consola, preguntas, u"Contrario 2:", d.Combo3, Combo3_Click);
  AskNarration(d, consola, preguntas);
}

}  // namespace

Situacion AskStartup(Session& sesion, Console& consola) {
  DlgInicio& d = sesion.Inicio();
  consola.Line(d.Text1);
  consola.Line(u"Enter deja lo que está entre corchetes; q sale del juego; ? da ayuda.");
  const Prompts preguntas{consola, Commands(d, consola)};
  Situacion situacion = Situacion::EnInicio;
  while (situacion == Situacion::EnInicio) {
    situacion = sesion.EnInicio([&] { AskEverything(d, consola, preguntas); });
    if (situacion == Situacion::EnInicio) situacion = sesion.Aceptar();
  }
  return situacion;
}

}  // namespace tasca
