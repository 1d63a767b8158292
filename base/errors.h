#pragma once
// The two ways in which a rule ends the program: a run-time error, and leaving the table for good.
// Rules throw them; the session and the editor's window catch them, each in one place.
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace tasca {

// A condition that ends the program. The message is Spanish, for the player.
class RunTimeError : public std::exception {
 public:
  // `queHaPasado` is one or more sentences; the sentence that says that the program ends is added.
  explicit RunTimeError(std::u16string_view queHaPasado);

  // The same for a fault in a file, after its place.
  static RunTimeError InFile(const std::filesystem::path& archivo, int linea,
                             std::u16string_view queHaPasado);

  // An error whose whole message the player has already read in a box of the rules' own.
  static RunTimeError AlreadyShown(std::u16string_view mensaje);

  // The whole message for the player.
  const std::u16string& Message() const { return mensaje_; }
  // True when a face has nothing left to show.
  bool Shown() const { return mostrado_; }
  const char* what() const noexcept override { return "tasca::RunTimeError"; }

 private:
  std::u16string mensaje_;
  bool mostrado_ = false;
};

// The player does not want another match: the program ends at once, with exit status 0.
struct LeaveProgram {};

// The three errors of the language itself. Each throws RunTimeError.
[[noreturn]] void ThrowOverflow();
[[noreturn]] void ThrowIndexOutOfRange();
[[noreturn]] void ThrowInvalidCall(std::u16string_view consejo);

}  // namespace tasca
