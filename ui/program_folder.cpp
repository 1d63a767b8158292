// Reads the executable's path from /proc/self/exe.
#include "ui/program_folder.h"

#include <system_error>

namespace tasca {

std::filesystem::path ProgramFolder(const char* orden) {
  std::error_code error;
  const std::filesystem::path propio = std::filesystem::read_symlink("/proc/self/exe", error);
  return (error ? std::filesystem::path{orden} : propio).parent_path();
}

}  // namespace tasca
