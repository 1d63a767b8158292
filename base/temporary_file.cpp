// Creates, locks and renames a temporary file, and removes the leftovers of killed saves.
#include "base/temporary_file.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include "base/write_error.h"

namespace tasca {
namespace fs = std::filesystem;

namespace {

// The name of a temporary file of "mus.ini": "mus.ini.guardando-k3TzQ9.tmp".
constexpr std::string_view Marca = ".guardando-";
constexpr std::size_t LetrasAlAzar = 6;
constexpr std::string_view Final = ".tmp";

bool IsTemporaryOf(const std::string& destino, const std::string& nombre) {
  const std::string principio = destino + std::string{Marca};
  return nombre.size() == principio.size() + LetrasAlAzar + Final.size() &&
         nombre.starts_with(principio) && nombre.ends_with(Final);
}

// Between open() and flock() the file may have been renamed and the name given to another file:
// compares the inodes before unlinking.
void RemoveIfLeftover(const fs::path& ruta) {
  const Descriptor archivo{ruta, OpenMode::ReadItself};
  if (!archivo.IsOpen() || !archivo.Lock()) return;
  const std::optional<FileStatus> abierto = archivo.Status();
  if (!abierto) return;
  const std::optional<FileStatus> deEseNombre = StatusOfLink(ruta);
  if (deEseNombre && abierto->Inode == deEseNombre->Inode && abierto->IsRegular) Unlink(ruta);
}

fs::path FolderOf(const fs::path& archivo) {
  const fs::path madre = archivo.parent_path();
  return madre.empty() ? "." : madre;
}

// Ignores errors: a leftover does no harm, and the next save tries again.
void RemoveLeftovers(const fs::path& destino) {
  std::error_code error;
  fs::directory_iterator entrada{FolderOf(destino), error};
  for (; !error && entrada != fs::directory_iterator{}; entrada.increment(error)) {
    const fs::path& ruta = entrada->path();
    if (IsTemporaryOf(destino.filename(), ruta.filename())) RemoveIfLeftover(ruta);
  }
}

}  // namespace

TemporaryFile::TemporaryFile(fs::path destino) : destino_{std::move(destino)} {
  RemoveLeftovers(destino_);
  do {
    archivo_.emplace(destino_.native() + std::string{Marca}, Final, ruta_);
    CheckWritten(archivo_->IsOpen(), destino_);
  } while (!IsMine());
}

TemporaryFile::~TemporaryFile() {
  if (!colocado_) Unlink(ruta_);
}

void TemporaryFile::Write(std::string_view contenido,
                          const std::optional<FileStatus>& anterior) const {
  constexpr unsigned PermisosNormales = 0644;
  const unsigned permisos = anterior ? anterior->Permissions : PermisosNormales;
  CheckWritten((!anterior || GiveTo(*anterior)) && archivo_->SetPermissions(permisos) &&
                   archivo_->Write(contenido) && archivo_->Flush(),
               destino_);
}

void TemporaryFile::TakeItsPlace() {
  if (std::rename(ruta_.c_str(), destino_.c_str()) != 0) {
    if (errno == ENOENT) throw WriteError{destino_, u"ha desaparecido el archivo temporal."};
    throw WriteError{destino_, errno};
  }
  colocado_ = true;
  const Descriptor carpeta{FolderOf(destino_), OpenMode::Folder};
  CheckWritten(carpeta.IsOpen() && carpeta.Flush(), destino_);
}

// False if another save has locked or removed the new file as a leftover.
bool TemporaryFile::IsMine() const {
  if (!archivo_->Lock() && errno == EWOULDBLOCK) return false;
  const std::optional<FileStatus> datos = archivo_->Status();
  return !datos || datos->Links > 0;
}

// Restores the owner and group of the old file. Only root may change the owner; an ordinary user
// gets EPERM. Then the user becomes the owner, and the group is kept if the user belongs to it. The
// permissions are kept in every case.
bool TemporaryFile::GiveTo(const FileStatus& anterior) const {
  if (archivo_->SetOwner(anterior.Owner, anterior.Group)) return true;
  if (errno != EPERM) return false;
  return archivo_->SetGroup(anterior.Group) || errno == EPERM;
}

}  // namespace tasca
