// Parsing of --help and --version, and the texts in both languages.
#include "ui/options.h"

#include <cstdio>
#include <span>
#include <string>

#include "ui/plain_text.h"
#include "ui/utf8.h"

namespace tasca {
namespace {

constexpr int Wrong = 2;

struct Texts {
  std::string_view Usage;
  std::string_view Options;
  std::string_view Unknown;
  std::string_view SeeHelp;
};

const Texts& TextsIn(Language idioma) {
  static constexpr Texts Spanish{.Usage = "Uso: ",
                                 .Options =
                                     "\n"
                                     "  --help     muestra esta ayuda\n"
                                     "  --version  muestra la versión\n",
                                 .Unknown = "no se conoce el argumento \"",
                                 .SeeHelp = "\"; la ayuda se muestra con --help."};
  static constexpr Texts English{.Usage = "usage: ",
                                 .Options =
                                     "\n"
                                     "  --help     prints this help\n"
                                     "  --version  prints the version\n",
                                 .Unknown = "unknown argument \"",
                                 .SeeHelp = "\"; --help prints the help"};
  return idioma == Language::Spanish ? Spanish : English;
}

template <class... Pieces>
std::string Text(const Pieces&... piezas) {
  std::string texto;
  (texto.append(piezas), ...);
  return texto;
}

bool Print(std::FILE* donde, const std::string& texto) {
  return std::fputs(texto.c_str(), donde) >= 0 && std::fflush(donde) == 0;
}

std::string UsageLine(const ProgramOptions& programa) {
  return Text(TextsIn(programa.Speaks).Usage, programa.Name, programa.Usage, "\n");
}

std::string Help(const ProgramOptions& programa) {
  return Text(UsageLine(programa), programa.About, TextsIn(programa.Speaks).Options);
}

// Without the program's name. argc may be 0.
std::span<const char* const> ArgumentsOf(int argc, const char* const* argv) {
  if (argc < 1) return {};
  return {argv + 1, static_cast<std::size_t>(argc - 1)};
}

}  // namespace

std::optional<int> AnswerOptions(const ProgramOptions& programa, int argc,
                                 const char* const* argv) {
  for (const std::string_view argumento : ArgumentsOf(argc, argv)) {
    const bool pideAyuda = argumento == "--help";
    if (!pideAyuda && argumento != "--version") continue;
    const std::string texto =
        pideAyuda ? Help(programa) : Text(programa.Name, " ", TASCA_VERSION, "\n");
    return Print(stdout, texto) ? 0 : Wrong;
  }
  return std::nullopt;
}

std::optional<int> RefuseOptions(const ProgramOptions& programa, int argc,
                                 const char* const* argv) {
  const Texts& textos = TextsIn(programa.Speaks);
  for (const std::string_view argumento : ArgumentsOf(argc, argv)) {
    if (programa.TakesArguments && !argumento.starts_with('-')) continue;
    (void)Print(stderr, Text(programa.Name, ": ", textos.Unknown, PlainLine(FromUtf8(argumento)),
                             textos.SeeHelp, "\n"));
    return Wrong;
  }
  return std::nullopt;
}

std::optional<int> TakeOptions(const ProgramOptions& programa, int argc, const char* const* argv) {
  const std::optional<int> atendida = AnswerOptions(programa, argc, argv);
  return atendida ? atendida : RefuseOptions(programa, argc, argv);
}

int UsageError(const ProgramOptions& programa) {
  (void)Print(stderr, UsageLine(programa));
  return Wrong;
}

}  // namespace tasca
