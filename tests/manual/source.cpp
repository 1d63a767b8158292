// Cutting the manual's source.
#include "tests/manual/source.h"

#include <gtest/gtest.h>

#include <regex>

#include "ui/manual/chapters.h"
#include "ui/manual/pieces.h"

namespace tasca::test {
namespace {

std::vector<std::string> FirstGroups(const std::string& texto, const std::regex& patron) {
  std::vector<std::string> grupos;
  for (std::sregex_iterator i{texto.begin(), texto.end(), patron}; i != std::sregex_iterator{};
       ++i) {
    grupos.push_back((*i)[1]);
  }
  return grupos;
}

std::vector<std::string> CellsOf(std::string_view fila) {
  std::vector<std::string> celdas;
  for (const auto celda : SplitAt(fila, "|")) celdas.emplace_back(celda);
  // Before the first bar and after the last there is nothing.
  return {celdas.begin() + 1, celdas.end() - 1};
}

}  // namespace

std::string WholeManual() {
  std::string texto;
  for (const std::string_view capitulo : ManualChapters()) texto.append(capitulo).append("\n");
  return texto;
}

Rows TableWithHeading(std::string_view cabecera) {
  const std::string manual = WholeManual();
  const std::vector<std::string_view> lineas = LinesOf(manual);
  Rows filas;
  for (std::size_t i = 0; i < lineas.size(); ++i) {
    if (lineas[i] != cabecera) continue;
    for (std::size_t fila = i + 2; lineas.at(fila).starts_with("|"); ++fila) {
      filas.push_back(CellsOf(lineas[fila]));
    }
  }
  EXPECT_FALSE(filas.empty()) << cabecera;
  return filas;
}

std::vector<std::string> Examples() {
  return FirstGroups(WholeManual(), std::regex{"```ejemplo\n([^`]*)```"});
}

std::set<std::string> Anchors() {
  std::set<std::string> anclas;
  const std::string manual = WholeManual();
  for (const std::string_view linea : LinesOf(manual)) {
    const auto titulo = HeadingOf(linea);
    if (!titulo) continue;
    EXPECT_TRUE(anclas.insert(AnchorOfTitle(titulo->Title)).second) << linea;
  }
  return anclas;
}

std::vector<std::string> LinkTargets() {
  return FirstGroups(WholeManual(), std::regex{R"([^!]\[[^\]]*\]\(([^)]*)\))"});
}

std::vector<std::string> PictureReferences() {
  return FirstGroups(WholeManual(), std::regex{R"(!\[[^\]]*\]\(([^)]*)\))"});
}

std::string SectionOf(std::string_view ancla) {
  const std::string manual = WholeManual();
  std::string seccion;
  bool esEsta = false;
  for (const std::string_view linea : LinesOf(manual)) {
    if (const auto titulo = HeadingOf(linea)) {
      esEsta = AnchorOfTitle(titulo->Title) == ancla;
    } else if (esEsta) {
      seccion.append(linea).append("\n");
    }
  }
  return seccion;
}

}  // namespace tasca::test
