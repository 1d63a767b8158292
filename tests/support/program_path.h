#pragma once
// Which program a test starts.
#include <filesystem>

namespace tasca::test {

// A program of the same name in the folder TASCA_PROGRAMS, if there is one; otherwise the one that
// was built.
std::filesystem::path ProgramPath(const std::filesystem::path& construido);

}  // namespace tasca::test
