#pragma once
// The error of a file that could not be written, and its reasons in words.
#include <filesystem>
#include <string>
#include <string_view>

#include "base/errors.h"

namespace tasca {

// A file could not be written. It ends the program unless its caller can go on without the save.
class WriteError : public RunTimeError {
 public:
  // `motivo` is a sentence that goes on after a colon: "no hay permiso para escribir."
  WriteError(const std::filesystem::path& archivo, std::u16string_view motivo);
  // The reason of an error number of the system's.
  WriteError(const std::filesystem::path& archivo, int error);

  // Which file could not be written, and why: the message without the end of the program.
  std::u16string Sentence() const;
  const std::u16string& Reason() const { return motivo_; }

 private:
  std::u16string archivo_;
  std::u16string motivo_;
};

// Throws the WriteError that errno tells unless `hecho`.
void CheckWritten(bool hecho, const std::filesystem::path& archivo);

}  // namespace tasca
