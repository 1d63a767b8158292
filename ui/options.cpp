// Parsing of the options, and the texts in both languages.
#include "ui/options.h"

#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <system_error>

#include "ui/plain_text.h"
#include "ui/utf8.h"

namespace tasca {
namespace {

constexpr int Wrong = 2;
constexpr std::string_view FolderOption = "--carpeta";

struct Texts {
  std::string_view Usage;
  std::string_view Options;
  std::string_view FolderHelp;
  std::string_view NoFolder;
  std::string_view Unknown;
  std::string_view SeeHelp;
};

const Texts& TextsIn(Language idioma) {
  static constexpr Texts Spanish{
      .Usage = "Uso: ",
      .Options =
          "\n"
          "  --help     muestra esta ayuda\n"
          "  --version  muestra la versión\n",
      .FolderHelp =
          "  --carpeta CARPETA\n"
          "             usa los personajes y los ajustes de esa carpeta;\n"
          "             también la elige la variable TASCA_CARPETA\n",
      .NoFolder = "falta la carpeta después de --carpeta.",
      .Unknown = "no se conoce el argumento \"",
      .SeeHelp = "\"; la ayuda se muestra con --help."};
  static constexpr Texts English{
      .Usage = "usage: ",
      .Options =
          "\n"
          "  --help     prints this help\n"
          "  --version  prints the version\n",
      .FolderHelp =
          "  --carpeta FOLDER\n"
          "             uses the characters and settings of that folder;\n"
          "             the variable TASCA_CARPETA chooses it too\n",
      .NoFolder = "--carpeta needs a folder",
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
  const Texts& textos = TextsIn(programa.Speaks);
  return Text(UsageLine(programa), programa.About, textos.Options,
              programa.TakesFolder ? textos.FolderHelp : "");
}

// Without the program's name. argc may be 0.
std::span<const char* const> ArgumentsOf(int argc, const char* const* argv) {
  if (argc < 1) return {};
  return {argv + 1, static_cast<std::size_t>(argc - 1)};
}

// The arguments by their kinds.
struct Sorted {
  std::optional<std::string_view> Folder;
  bool FolderIsMissing = false;
  std::vector<std::string_view> Others;
};

Sorted Sort(int argc, const char* const* argv) {
  Sorted partes;
  bool sigueCarpeta = false;
  for (const std::string_view argumento : ArgumentsOf(argc, argv)) {
    if (sigueCarpeta || argumento.starts_with("--carpeta=")) {
      partes.Folder = sigueCarpeta ? argumento : argumento.substr(FolderOption.size() + 1);
      partes.FolderIsMissing = partes.FolderIsMissing || partes.Folder->empty();
      sigueCarpeta = false;
    } else if (argumento == FolderOption) {
      sigueCarpeta = true;
    } else {
      partes.Others.push_back(argumento);
    }
  }
  partes.FolderIsMissing = partes.FolderIsMissing || sigueCarpeta;
  return partes;
}

int Refuse(const ProgramOptions& programa, const std::string& motivo) {
  (void)Print(stderr, Text(programa.Name, ": ", motivo, "\n"));
  return Wrong;
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
  for (const std::string_view argumento : Operands(programa, argc, argv)) {
    if (programa.TakesArguments && !argumento.starts_with('-')) continue;
    return Refuse(programa, Text(textos.Unknown, PlainLine(FromUtf8(argumento)), textos.SeeHelp));
  }
  if (programa.TakesFolder && Sort(argc, argv).FolderIsMissing)
    return Refuse(programa, Text(textos.NoFolder));
  return std::nullopt;
}

std::vector<std::string_view> Operands(const ProgramOptions& programa, int argc,
                                       const char* const* argv) {
  if (programa.TakesFolder) return Sort(argc, argv).Others;
  const std::span<const char* const> todos = ArgumentsOf(argc, argv);
  return {todos.begin(), todos.end()};
}

std::optional<std::filesystem::path> ChosenFolder(int argc, const char* const* argv) {
  std::optional<std::filesystem::path> carpeta = Sort(argc, argv).Folder;
  const char* const variable = std::getenv("TASCA_CARPETA");  // NOLINT(concurrency-mt-unsafe)
  if (!carpeta && variable != nullptr && *variable != '\0') carpeta = variable;
  if (!carpeta) return carpeta;
  std::error_code error;
  std::filesystem::path absoluta = std::filesystem::absolute(*carpeta, error);
  return error ? carpeta : absoluta;
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
