#pragma once
// The two exceptions with which a rule ends the program: RunTimeError and LeaveProgram. The session
// and the editor's window catch them, each in one place.
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>

namespace tasca {

// An error that ends the program with a failure exit status. The message is Spanish, for the
// player.
class RunTimeError : public std::exception {
 public:
  // `queHaPasado` is one or more complete sentences. Appends the sentence that the program ends.
  explicit RunTimeError(std::u16string_view queHaPasado);

  // An error in a file: prefixes the message with the path and the line (PlaceInFile).
  static RunTimeError InFile(const std::filesystem::path& archivo, int linea,
                             std::u16string_view queHaPasado);

  // An error whose message a rule has already shown in a message box. `mensaje` is the complete
  // message; nothing is appended.
  static RunTimeError AlreadyShown(std::u16string_view mensaje);

  // The complete message for the player.
  const std::u16string& Message() const { return mensaje_; }
  // The message without the sentence that the program ends, for who goes on after the error.
  std::u16string_view WhatHappened() const;
  // True if the player has already read the message: a face must not show it again.
  bool Shown() const { return mostrado_; }
  // A constant: the text is in Message().
  const char* what() const noexcept override { return "tasca::RunTimeError"; }

 private:
  std::u16string mensaje_;
  bool mostrado_ = false;
};

// Thrown when the player leaves or declines another match: the program ends at once with exit
// status 0.
struct LeaveProgram {
  bool PartidaAcabada = false;  // the match has been played to its end
};

// Throws RunTimeError: a number does not fit an Integer.
[[noreturn]] void ThrowOverflow();
// Throws RunTimeError: an index is outside its array or list.
[[noreturn]] void ThrowIndexOutOfRange();
// Throws RunTimeError: invalid argument. `consejo` is a sentence that tells the player what to do.
[[noreturn]] void ThrowInvalidCall(std::u16string_view consejo);

}  // namespace tasca
