#pragma once
// Text files read line by line.
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace tasca {

// True when the path leads to something (a dangling link does not), and when the disk cannot tell:
// whoever opens that then says that it cannot be read.
bool FileExists(const std::filesystem::path& archivo);

// Reads the lines of a Windows-1252 file. Lines end in CR LF or LF, the last one perhaps in
// nothing. A line may have up to LargoMaximo bytes, so that memory never grows with a damaged file.
class LineReader {
 public:
  static constexpr std::size_t LargoMaximo = std::size_t{1} << 20U;

  // Throws RunTimeError when the file is missing, is no regular file or cannot be read.
  explicit LineReader(std::filesystem::path archivo);

  // The next line, without its end; false at the end of the file.
  bool Next(std::u16string& linea);
  // The next line; at the end of the file throws RunTimeError: "falta " + `queEs`.
  std::u16string Require(std::u16string_view queEs);
  // The next line's bytes, its line end included; false at the end of the file.
  bool NextBytes(std::string& bytes);
  std::string RequireBytes(std::u16string_view queEs);
  // At the end of the file: throws RunTimeError: "falta " + `queEs`, in the line after the last.
  [[noreturn]] void FailAtEnd(std::u16string_view queEs);

  // Throws RunTimeError that names the file and the line last read.
  [[noreturn]] void Fail(std::u16string_view queHaPasado) const;

 private:
  // The next bytes, at most up to the line's end; empty at the end of the file and where it cannot
  // be read any further.
  std::string_view NextPiece();

  std::filesystem::path ruta_;
  std::ifstream flujo_;
  std::string bloque_;      // what the stream last had ready
  std::size_t usados_ = 0;  // bytes of the block
  int linea_ = 0;
};

// A line's bytes without its CR LF or LF.
std::string_view WithoutLineEnd(std::string_view bytes);

}  // namespace tasca
