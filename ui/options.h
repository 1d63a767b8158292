#pragma once
// The command-line options of the programs: --help and --version, and --carpeta for those that read
// the game's files.
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace tasca {

enum class Language { Spanish, English };

// A program's description, from which the help is composed.
struct ProgramOptions {
  std::string_view Name;   // name of the executable: "tasca-check"
  std::string_view Usage;  // its arguments, with a leading blank: " FILE", or ""
  std::string_view About;  // what it does: one or more lines, each ending in a line feed
  Language Speaks = Language::Spanish;
  bool TakesArguments = false;  // false: every argument is refused, not only unknown options
  bool TakesFolder = false;     // whether there is an option --carpeta
};

// Prints the help or the version on standard output if an argument asks for it. Returns the exit
// status: 0, or 2 if the output cannot be written. Returns nothing if no argument asks.
std::optional<int> AnswerOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// Reports the first unknown argument, or a --carpeta without its folder, on standard error and
// returns the exit status 2. Returns nothing if all arguments are allowed.
std::optional<int> RefuseOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// AnswerOptions, then RefuseOptions.
std::optional<int> TakeOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// The folder that the option --carpeta chooses, or else the variable TASCA_CARPETA, as an absolute
// path. Nothing if neither does.
std::optional<std::filesystem::path> ChosenFolder(int argc, const char* const* argv);

// The arguments that are no options of the program, in their order.
std::vector<std::string_view> Operands(const ProgramOptions& programa, int argc,
                                       const char* const* argv);

// Prints the usage line on standard error and returns the exit status 2.
int UsageError(const ProgramOptions& programa);

}  // namespace tasca
