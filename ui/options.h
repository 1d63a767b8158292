#pragma once
// The command-line options of every program: --help and --version.
#include <optional>
#include <string_view>

namespace tasca {

enum class Language { Spanish, English };

// A program's description, from which the help is composed.
struct ProgramOptions {
  std::string_view Name;   // name of the executable: "tasca-check"
  std::string_view Usage;  // its arguments, with a leading blank: " FILE", or ""
  std::string_view About;  // what it does: one or more lines, each ending in a line feed
  Language Speaks = Language::Spanish;
  bool TakesArguments = false;  // false: every argument is refused, not only unknown options
};

// Prints the help or the version on standard output if an argument asks for it. Returns the exit
// status: 0, or 2 if the output cannot be written. Returns nothing if no argument asks.
std::optional<int> AnswerOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// Reports the first unknown argument on standard error and returns the exit status 2. Returns
// nothing if all arguments are allowed.
std::optional<int> RefuseOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// AnswerOptions, then RefuseOptions.
std::optional<int> TakeOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// Prints the usage line on standard error and returns the exit status 2.
int UsageError(const ProgramOptions& programa);

}  // namespace tasca
