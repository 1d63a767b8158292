// Fills the folder.
#include "tests/traces/game_folder.h"

#include "tests/traces/compare.h"
#include "tests/traces/read_file.h"

namespace tasca::test {
namespace fs = std::filesystem;

void FillFolder(const fs::path& folder, const fs::path& game) {
  constexpr auto how = fs::copy_options::recursive | fs::copy_options::overwrite_existing;
  fs::copy(game.parent_path() / "folder", folder, how);
  if (fs::exists(game / "without")) {
    for (const std::string& file : LinesOf(ReadFile(game / "without"))) fs::remove(folder / file);
  }
  if (fs::exists(game / "folder")) fs::copy(game / "folder", folder, how);
}

std::string WithoutFolder(std::string out, const std::string& folder) {
  for (auto at = out.find(folder); at != std::string::npos; at = out.find(folder, at)) {
    out.replace(at, folder.size(), "FOLDER");
  }
  return out;
}

}  // namespace tasca::test
