#pragma once
// The error of a file that could not be written, with the reason in Spanish.
#include <filesystem>
#include <string>
#include <string_view>

#include "base/errors.h"

namespace tasca {

// Thrown if a file could not be written. Callers that can go on without the save catch it;
// otherwise it ends the program like any RunTimeError.
class WriteError : public RunTimeError {
 public:
  // `motivo` follows a colon in the message and ends in a stop: "no hay permiso para escribir."
  WriteError(const std::filesystem::path& archivo, std::u16string_view motivo);
  // Takes the reason from an errno value.
  WriteError(const std::filesystem::path& archivo, int error);

  // The file and the reason as a sentence: Message() without the end of the program.
  std::u16string Sentence() const;
  // The reason alone, as given to the constructor.
  const std::u16string& Reason() const { return motivo_; }

 private:
  std::u16string archivo_;
  std::u16string motivo_;
};

// Throws WriteError with the reason of errno if `hecho` is false.
void CheckWritten(bool hecho, const std::filesystem::path& archivo);

}  // namespace tasca
