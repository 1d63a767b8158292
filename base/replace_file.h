#pragma once
// Atomic replacement of files. A path always has either its old content or the complete new content
// of one writer: after any failure, after a kill, after a power cut and with concurrent writers.
#include <filesystem>
#include <string_view>

#include "base/write_error.h"

namespace tasca {

// Writes a file with this content, replacing an existing one. Follows symbolic links; a dangling
// link is replaced itself. Keeps the permissions, and the owner and group as far as the user may
// change them. Removes temporary files that killed saves of the same file have left. Throws
// WriteError on failure, also for a read-only file; the old file is then unchanged, unless only
// flushing the folder failed.
void ReplaceFile(const std::filesystem::path& archivo, std::string_view contenido);

// Replaces `copia` by a copy of `archivo` with its permissions, owner and group. Does nothing if
// `archivo` does not exist. Throws WriteError on failure, also if both paths are the same file.
void BackUpFile(const std::filesystem::path& archivo, const std::filesystem::path& copia);

}  // namespace tasca
