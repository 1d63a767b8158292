#pragma once
// Files replaced whole and flushed to the disk: at every moment, after any failure and after a
// kill, a path has its old content or its new one.
#include <filesystem>
#include <string_view>

namespace tasca {

// Puts a file with this content in the place of another, or where there was none. Follows links and
// keeps the permissions. Throws RunTimeError when it cannot be done; a read-only file is left
// alone.
void ReplaceFile(const std::filesystem::path& archivo, std::string_view contenido);

// Makes `copia` what `archivo` is now, in the place of any earlier copy; does nothing where there
// is no `archivo`. The copy is a second name for the same file where the disk can give one:
// `archivo` itself is never away, and replacing it parts the two. Throws RunTimeError.
void BackUpFile(const std::filesystem::path& archivo, const std::filesystem::path& copia);

}  // namespace tasca
