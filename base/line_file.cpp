// Buffered reading of lines of limited length.
#include "base/line_file.h"

#include <iterator>
#include <utility>

#include "base/code_page.h"
#include "base/errors.h"
#include "base/text.h"

namespace tasca {
namespace fs = std::filesystem;

bool FileExists(const fs::path& archivo) {
  std::error_code error;
  return fs::status(archivo, error).type() != fs::file_type::not_found;
}

LineReader::LineReader(fs::path archivo) : ruta_{std::move(archivo)} {
  std::error_code error;
  const fs::file_status estado = fs::status(ruta_, error);
  if (estado.type() == fs::file_type::not_found) Fail(u"no se encuentra el archivo.");
  if (!fs::status_known(estado)) Fail(u"no se puede leer el archivo.");
  if (!fs::is_regular_file(estado)) Fail(u"no es un archivo.");
  flujo_.open(ruta_, std::ios::binary);
  if (!flujo_) Fail(u"no se puede leer el archivo.");
}

std::string_view LineReader::NextPiece() {
  if (usados_ == bloque_.size() && flujo_.peek() != std::ifstream::traits_type::eof()) {
    bloque_.resize(static_cast<std::size_t>(flujo_.rdbuf()->in_avail()));
    flujo_.read(bloque_.data(), std::ssize(bloque_));
    usados_ = 0;
  }
  const std::string_view quedan = std::string_view{bloque_}.substr(usados_);
  const std::size_t final = quedan.find('\n');
  const std::string_view pieza =
      quedan.substr(0, final == std::string_view::npos ? final : final + 1);
  usados_ += pieza.size();
  return pieza;
}

bool LineReader::NextBytes(std::string& bytes) {
  bytes.clear();
  std::string_view pieza = NextPiece();
  if (pieza.empty() && !flujo_.bad()) return false;
  ++linea_;
  while (!pieza.empty()) {
    bytes += pieza;
    if (bytes.size() > LargoMaximo) Fail(u"la línea es demasiado larga.");
    pieza = bytes.ends_with('\n') ? std::string_view{} : NextPiece();
  }
  if (flujo_.bad()) Fail(u"no se puede leer el archivo.");
  return true;
}

bool LineReader::Next(std::u16string& linea) {
  std::string bytes;
  if (!NextBytes(bytes)) return false;
  linea = Decode(WithoutLineEnd(bytes));
  return true;
}

std::string LineReader::RequireBytes(std::u16string_view queEs) {
  std::string bytes;
  if (!NextBytes(bytes)) FailAtEnd(queEs);
  return bytes;
}

void LineReader::FailAtEnd(std::u16string_view queEs) {
  ++linea_;
  Fail(Join(u"el archivo se acaba y falta ", queEs, u"."));
}

std::u16string LineReader::Require(std::u16string_view queEs) {
  return Decode(WithoutLineEnd(RequireBytes(queEs)));
}

void LineReader::Fail(std::u16string_view queHaPasado) const {
  throw RunTimeError::InFile(ruta_, linea_, queHaPasado);
}

std::string_view WithoutLineEnd(std::string_view bytes) {
  if (bytes.ends_with('\n')) bytes.remove_suffix(1);
  if (bytes.ends_with('\r')) bytes.remove_suffix(1);
  return bytes;
}

}  // namespace tasca
