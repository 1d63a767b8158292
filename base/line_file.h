#pragma once
// Reads text files line by line.
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace tasca {

// True if something exists there, or if that cannot be determined; opening it then reports the
// error. False for a dangling symbolic link.
bool FileExists(const std::filesystem::path& archivo);

// Reads the lines of a Windows-1252 file. Lines end in CR LF or LF; the last line may have no line
// end. A longer line than LargoMaximo is an error, so that a damaged file cannot exhaust memory.
// Every reading function throws RunTimeError if the file cannot be read or a line is too long.
class LineReader {
 public:
  // Maximum length of a line in bytes, line end included.
  static constexpr std::size_t LargoMaximo = std::size_t{1} << 20U;

  // Opens the file. Throws RunTimeError if it is missing, is not a regular file or cannot be read.
  explicit LineReader(std::filesystem::path archivo);

  // Reads the next line into `linea`, decoded and without its line end. False at the end of the
  // file.
  bool Next(std::u16string& linea);
  // Returns the next line like Next. Calls FailAtEnd(queEs) at the end of the file.
  std::u16string Require(std::u16string_view queEs);
  // Reads the bytes of the next line, line end included. False at the end of the file.
  bool NextBytes(std::string& bytes);
  // Returns the next line like NextBytes. Calls FailAtEnd(queEs) at the end of the file.
  std::string RequireBytes(std::u16string_view queEs);
  // Throws RunTimeError: the file ends and "falta " + `queEs`. Names the line after the last one.
  [[noreturn]] void FailAtEnd(std::u16string_view queEs);

  // Throws RunTimeError with `queHaPasado`, the file and the line last read. A file of which no
  // line has been read is named without a line.
  [[noreturn]] void Fail(std::u16string_view queHaPasado) const;

 private:
  // The next buffered bytes, at most to the end of the line. Empty at the end of the file and after
  // a read error. Valid until the next call.
  std::string_view NextPiece();

  std::filesystem::path ruta_;
  std::ifstream flujo_;
  std::string bloque_;      // the buffered bytes
  std::size_t usados_ = 0;  // how many of them have been returned
  int linea_ = 0;           // number of the line last read, from 1
};

// `bytes` without a trailing CR LF, LF or CR.
std::string_view WithoutLineEnd(std::string_view bytes);

}  // namespace tasca
