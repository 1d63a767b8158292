// The list's lines become regular expressions.
#include "tests/traces/text_list.h"

#include <algorithm>
#include <stdexcept>

#include "tests/traces/compare.h"
#include "tests/traces/read_file.h"

namespace tasca::test {
namespace {

const std::map<std::string_view, std::string_view> Marcadores{
    {"n", "[0-9]+"},
    {"p", "[01]"},
    {"s", "[1-4]"},
    {"name", "[^\\r\\n]+?"},
    {"card", "[A-Z][a-z ]{9} de [a-z ]{10}"},
    {"hand", "[A-Z][a-z ]{9} de [a-z ]{10}(?:, [A-Z][a-z ]{9} de [a-z ]{10}){3}"},
    {"pad", " +"},
    {"more", "[\\s\\S]*?"},
};

// The escapes of a literal: \r, \n, \0, \" and \\.
std::string WithoutEscapes(std::string_view texto) {
  std::string limpio;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    if (texto[i] != '\\' || i + 1 == texto.size()) {
      limpio += texto[i];
      continue;
    }
    const char letra = texto[++i];
    limpio += letra == 'r' ? '\r' : letra == 'n' ? '\n' : letra == '0' ? '\0' : letra;
  }
  return limpio;
}

std::string Quoted(const std::string& texto) {
  static const std::regex Signos{R"([.^$|()\[\]{}*+?\\])"};
  return std::regex_replace(texto, Signos, R"(\$&)");
}

std::string_view Marcador(std::string_view nombre) {
  const auto conocido = Marcadores.find(nombre);
  if (conocido == Marcadores.end()) {
    throw std::invalid_argument{"no such placeholder: " + std::string{nombre}};
  }
  return conocido->second;
}

// A line of a list: "text": reason.
std::pair<std::string, std::string> TextAndReason(const std::string& linea) {
  const std::size_t corte = linea.rfind("\": ");
  if (linea.front() != '"' || corte == std::string::npos) {
    throw std::invalid_argument{"no text with its reason: " + linea};
  }
  return {WithoutEscapes(std::string_view{linea}.substr(1, corte - 1)), linea.substr(corte + 3)};
}

}  // namespace

TextPattern::TextPattern(std::string_view line) : linea_{line} {
  std::string resto = WithoutEscapes(line);
  std::string expresion;
  if (resto.starts_with('^')) {
    expresion = "(?:^|\\n)";
    resto.erase(0, 1);
  }
  const bool hastaElFinal = resto.ends_with('$');
  if (hastaElFinal) resto.pop_back();
  for (std::size_t abre = 0; abre != std::string::npos;) {
    abre = resto.find('{');
    trozos_.push_back(resto.substr(0, abre));
    expresion += Quoted(trozos_.back());
    if (abre == std::string::npos) break;
    const std::size_t cierra = resto.find('}', abre);
    expresion += Marcador(resto.substr(abre + 1, cierra - abre - 1));
    resto.erase(0, cierra + 1);
  }
  expresion_.assign(expresion + (hastaElFinal ? "$" : ""));
}

bool TextPattern::IsIn(const std::string& text) const {
  const bool puede = std::all_of(trozos_.begin(), trozos_.end(), [&text](const auto& trozo) {
    return text.find(trozo) != std::string::npos;
  });
  return puede && std::regex_search(text, expresion_);
}

TextList ReadTextList(const std::filesystem::path& file) {
  TextList lista;
  std::string parte;
  for (const std::string& linea : LinesOf(ReadFile(file))) {
    if (linea.empty() || linea.starts_with('#')) continue;
    if (linea.starts_with('[')) {
      parte = linea.substr(1, linea.size() - 2);
    } else if (parte == "not in a game") {
      lista.NotInAGame.insert(TextAndReason(linea));
    } else if (parte == "other sources") {
      lista.OtherSources.insert(TextAndReason(linea));
    } else {
      lista.Patterns[parte].emplace_back(linea);
    }
  }
  return lista;
}

std::vector<std::string> LiteralsOf(const std::string& source) {
  static const std::regex Literal{R"--(u"((?:[^"\\\n]|\\.)*)")--"};
  static const std::regex Comentario{R"--((^|[^:"])//[^\n]*)--"};
  const std::string codigo = std::regex_replace(source, Comentario, "$1");
  std::vector<std::string> textos;
  for (std::sregex_iterator i{codigo.begin(), codigo.end(), Literal}, fin; i != fin; ++i) {
    textos.push_back(WithoutEscapes((*i)[1].str()));
  }
  return textos;
}

}  // namespace tasca::test
