#pragma once
// The user's folder for what the game keeps from one run to the next.
#include <filesystem>

namespace tasca {

// "$XDG_STATE_HOME/tasca", or "~/.local/state/tasca" if that variable is unset or not an absolute
// path. Empty if the home folder is not known either. Does not create the folder.
std::filesystem::path StateFolder();

}  // namespace tasca
