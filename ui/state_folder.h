#pragma once
// The user's own folders: for the game's files, and for what the game keeps from one run to the
// next.
#include <filesystem>

namespace tasca {

// Both ignore variables that hold no absolute path. Root also ignores those that lead to another
// user's folder, in which it would leave files that this user cannot change. A folder is empty if
// the home folder is not known either. None is created.

// "$XDG_STATE_HOME/tasca", or "~/.local/state/tasca" without that variable.
std::filesystem::path StateFolder();

// "$XDG_DATA_HOME/tasca", or "~/.local/share/tasca" without that variable.
std::filesystem::path DataFolder();

}  // namespace tasca
