// Writing and reading the steps.
#include "keep/archivo_cronica.h"

#include <system_error>

#include "keep/flujos.h"

namespace tasca {
namespace {

constexpr std::uint64_t LargoMaximoCronica = std::uint64_t{1} << 26U;

std::u16string Ensanchar(std::string_view bytes) {
  std::u16string texto;
  for (const char byte : bytes) texto += static_cast<unsigned char>(byte);
  return texto;
}

}  // namespace

// An open file is only appended to, and a new one replaces the old one with its first step: at any
// moment the file leads to the match that is kept.
void ArchivoCronica::Anotar(const Apunte& apunte, std::string_view partida) {
  EscritorPartida paso;
  paso.Numero(apunte.Nuevo, {});
  paso.Texto(apunte.Texto);
  paso.Texto(Ensanchar(partida));
  const std::filesystem::path nueva = ruta_.string() + ".nueva";
  const bool creado = apunte.Nuevo && !abierto_;
  if (creado) {
    Unlink(nueva);
    abierto_.emplace(nueva, OpenMode::ReadWriteOrCreate);
  }
  if (!abierto_) return;
  std::error_code error;
  const bool escrito = abierto_->IsOpen() && abierto_->Write(paso.Bytes());
  if (escrito && creado) std::filesystem::rename(nueva, ruta_, error);
  if (!escrito || error) Quitar();
}

// A program that was killed, or a full disk, may have left a part of the last step.
std::optional<std::u16string> ArchivoCronica::Leer(std::string_view partida) const {
  const std::optional<FileStatus> datos = StatusOf(ruta_);
  if (!datos || !datos->IsRegular || datos->Size > LargoMaximoCronica) return std::nullopt;
  const Descriptor archivo{ruta_, OpenMode::Read};
  const std::string bytes = archivo.IsOpen() ? archivo.Read().value_or("") : "";
  const std::u16string buscada = Ensanchar(partida);
  std::optional<std::u16string> hallado;
  std::u16string todo;
  for (LectorPartida lector{bytes}; !lector.BienLeido();) {
    bool nueva = false;
    std::u16string texto;
    std::u16string alcanzada;
    lector.Numero(nueva, {0, 1});
    lector.Texto(texto);
    lector.Texto(alcanzada);
    if (!lector.VaBien()) break;
    if (nueva) todo.clear();
    todo += texto;
    if (alcanzada == buscada) hallado = todo;
  }
  return hallado;
}

void ArchivoCronica::Quitar() {
  abierto_.reset();
  Unlink(ruta_);
}

}  // namespace tasca
