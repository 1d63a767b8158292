// Writing examples and pictures out.
#include "ui/manual/markup.h"

#include <array>

#include "ui/manual/card_reference.h"
#include "ui/manual/chapters.h"
#include "ui/manual/ejemplo.h"
#include "ui/manual/pieces.h"

namespace tasca {
namespace {

constexpr std::string_view ExampleFence = "```ejemplo";
constexpr std::string_view Fence = "```";

std::string Text(std::initializer_list<std::string_view> piezas) {
  std::string texto;
  for (const std::string_view pieza : piezas) texto += pieza;
  return texto;
}

std::string_view NameOfSeat(Seat asiento) {
  static constexpr std::array<std::string_view, 4> nombres{"Usted", "Contrario 1", "Compañero",
                                                           "Contrario 2"};
  return nombres.at(static_cast<std::size_t>(asiento - 1));
}

std::string_view NameOfLance(NumeroLance lance) {
  static constexpr std::array<std::string_view, 5> nombres{"Grande", "Pequeña", "Pares", "Juego",
                                                           "Punto"};
  return nombres.at(static_cast<std::size_t>(lance) - 1);
}

// A picture, and under those of a hand the names of its cards: not every reader knows them, or sees
// them.
std::string PictureWritten(std::string_view referencia, const PictureWriter& dibujo) {
  std::string escrita = dibujo(referencia);
  if (referencia.starts_with("mano:")) {
    escrita += "<br/>" + CardsInWords(CardsOfReference(referencia));
  }
  return escrita;
}

// Replaces every picture of a line.
std::string WithPictures(std::string_view linea, const PictureWriter& dibujo) {
  constexpr std::string_view principio = "![](";
  std::string escrita;
  for (;;) {
    const std::size_t desde = linea.find(principio);
    const std::size_t fin = desde == std::string_view::npos ? desde : linea.find(')', desde);
    if (fin == std::string_view::npos) return escrita += linea;
    escrita += linea.substr(0, desde);
    const std::size_t cual = desde + principio.size();
    escrita += PictureWritten(linea.substr(cual, fin - cual), dibujo);
    linea.remove_prefix(fin + 1);
  }
}

std::string ReferenceOf(const std::vector<int>& cartas) {
  std::string referencia = "mano:";
  for (const int carta : cartas) {
    if (!referencia.ends_with(':')) referencia += ',';
    referencia += NameOfCard(carta);
  }
  return referencia;
}

std::string HandsWritten(const Ejemplo& ejemplo, const PictureWriter& dibujo) {
  std::string tabla = "| Quién | Cartas |\n|---|---|\n";
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    tabla += Text({"| **", NameOfSeat(asiento), "**", asiento == ejemplo.Mano ? ", mano" : "",
                   " | ", PictureWritten(ReferenceOf(ejemplo.Manos[asiento]), dibujo), " |\n"});
  }
  return tabla + "\n";
}

std::string StonesWritten(int piedras) {
  return std::to_string(piedras) + (piedras == 1 ? " piedra" : " piedras");
}

// "«Envido 4»", "«3 más»".
std::string WordsWritten(const Habla& habla) {
  const std::string cuantas = std::to_string(habla.Piedras);
  if (habla.Palabras.starts_with("sube")) return Text({"«", cuantas, " más»"});
  if (habla.Palabras.starts_with("envido ")) return Text({"«Envido ", cuantas, "»"});
  if (habla.Palabras == "no quiero") return "«No quiero»";
  if (habla.Palabras == "órdago") return "«¡Órdago!»";
  if (habla.Palabras == "quiero") return "«Quiero»";
  return habla.Palabras == "paso" ? "«Paso»" : "«Envido»";
}

std::string BettingWritten(const LanceEjemplo& lance) {
  if (lance.Modo == ModoEjemplo::TodosPasan) return " Todos pasan.";
  if (lance.Modo == ModoEjemplo::SinEnvite) return " No se envida.";
  std::string dicho;
  for (const Habla& habla : lance.Hablas) {
    dicho +=
        Text({dicho.empty() ? " " : "; ", NameOfSeat(habla.Asiento), ": ", WordsWritten(habla)});
  }
  return dicho.empty() ? dicho : dicho + ".";
}

std::string TakingWritten(const LanceEjemplo& lance) {
  if (lance.Cobros.empty()) return " **No se cuenta.**";
  if (lance.Modo == ModoEjemplo::SoloGana) {
    return Text({" **Gana la pareja ", std::to_string(lance.Cobros.front().De), ".**"});
  }
  std::string cobros;
  for (const Cobro& cobro : lance.Cobros) {
    cobros += Text({cobros.empty() ? "" : "; ", StonesWritten(cobro.Piedras), " para la pareja ",
                    std::to_string(cobro.De)});
  }
  return Text({" **", cobros, ".**"});
}

std::string ScoreWritten(const TanteoEjemplo& tanteo) {
  return std::to_string(tanteo.Nuestras) + " a " + std::to_string(tanteo.Suyas);
}

std::string EndingWritten(const Ejemplo& ejemplo) {
  if (!ejemplo.Despues) return {};
  const std::string tanteo = ScoreWritten(*ejemplo.Despues);
  if (!ejemplo.GanaElJuego) return Text({"\nEl tanteo queda en ", tanteo, ".\n"});
  return Text(
      {"\nLa pareja ", std::to_string(*ejemplo.GanaElJuego), " gana el juego por ", tanteo, ".\n"});
}

std::string ExampleWritten(std::string_view fuente, const PictureWriter& dibujo) {
  const Ejemplo ejemplo = LeerEjemplo(fuente);
  std::string escrito = HandsWritten(ejemplo, dibujo);
  if (ejemplo.Antes) escrito += Text({"Van ", ScoreWritten(*ejemplo.Antes), ".\n\n"});
  for (const LanceEjemplo& lance : ejemplo.Lances) {
    escrito += Text({"- **", NameOfLance(lance.Numero), ".**", BettingWritten(lance),
                     TakingWritten(lance), " ", lance.Porque, "\n"});
  }
  return escrito + EndingWritten(ejemplo);
}

}  // namespace

std::string PicturesOfCards(std::string_view referencia) {
  std::string dibujos;
  for (const int carta : CardsOfReference(referencia)) {
    dibujos += Text({dibujos.empty() ? "" : " ", "![", CardsInWords({carta}),
                     "](carta:", NameOfCard(carta), ")"});
  }
  return dibujos;
}

std::string ChapterMarkdown(std::string_view capitulo, const PictureWriter& dibujo) {
  std::string escrito;
  while (!capitulo.empty()) {
    const std::size_t desde = capitulo.find(ExampleFence);
    for (const std::string_view linea : LinesOf(capitulo.substr(0, desde))) {
      escrito += WithPictures(linea, dibujo) + "\n";
    }
    if (desde == std::string_view::npos) break;
    capitulo.remove_prefix(desde + ExampleFence.size() + 1);
    const std::size_t fin = capitulo.find(Fence);
    escrito += ExampleWritten(capitulo.substr(0, fin), dibujo);
    capitulo.remove_prefix(fin + Fence.size() + 1);
  }
  return escrito;
}

std::string ManualMarkdown(const PictureWriter& dibujo) {
  std::string manual;
  for (const std::string_view capitulo : ManualChapters()) {
    if (!manual.empty()) manual += "\n";
    manual += ChapterMarkdown(capitulo, dibujo);
  }
  return manual;
}

}  // namespace tasca
