#pragma once
// The options that every program has, --help and --version; any other is refused.
#include <optional>
#include <string_view>

namespace tasca {

enum class Language { Spanish, English };

// What a program tells of itself.
struct ProgramOptions {
  std::string_view Name;   // as it is called: "tasca-check"
  std::string_view Usage;  // its arguments: " FILE", or ""
  std::string_view About;  // what it does, in whole lines
  Language Speaks = Language::Spanish;
  bool TakesArguments = false;  // else it refuses every argument, not only unknown options
};

// The exit status when the arguments ask for the help or the version, which it has printed then:
// 0, or 2 when that could not be written. Nothing when they do not ask.
std::optional<int> AnswerOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// The exit status (2) when there is an argument that the program does not know, which it has named
// on standard error then. Nothing when there is none.
std::optional<int> RefuseOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// Both, one after the other.
std::optional<int> TakeOptions(const ProgramOptions& programa, int argc, const char* const* argv);

// Tells on standard error how the program is used, and gives its exit status: 2.
int UsageError(const ProgramOptions& programa);

}  // namespace tasca
