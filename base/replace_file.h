#pragma once
// Files replaced whole and flushed to the disk: at every moment, after any failure, after a kill
// and while other programs save in the same folder, a path has its old content or one writer's
// whole new one.
#include <filesystem>
#include <string_view>

#include "base/write_error.h"

namespace tasca {

// Puts a file with this content in the place of another, or where there was none. Follows links and
// keeps the permissions, and the owner and group as far as the user may give files away. Removes
// what killed saves have left of the same file. Throws WriteError when it cannot be done; a
// read-only file is left alone.
void ReplaceFile(const std::filesystem::path& archivo, std::string_view contenido);

// Makes `copia` a copy of `archivo`, with its permissions and its owner, in the place of any
// earlier copy; does nothing where there is no `archivo`. Throws WriteError.
void BackUpFile(const std::filesystem::path& archivo, const std::filesystem::path& copia);

}  // namespace tasca
