// Gives every test program, and the programs that it starts, folders of states and data of their
// own. The user's matches and characters must not be touched.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

class OwnState {
 public:
  OwnState() {
    std::error_code error;
    carpeta_ = (std::filesystem::temp_directory_path(error) / "tasca-state-XXXXXX").string();
    const bool creada = !error && ::mkdtemp(carpeta_.data()) != nullptr;
    // NOLINTBEGIN(concurrency-mt-unsafe): before main
    if (creada && ::setenv("XDG_STATE_HOME", carpeta_.c_str(), 1) == 0 &&
        ::setenv("XDG_DATA_HOME", carpeta_.c_str(), 1) == 0 && ::unsetenv("TASCA_CARPETA") == 0)
      return;
    // NOLINTEND(concurrency-mt-unsafe)
    (void)std::fputs("no folder for the tests' state\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }
  OwnState(const OwnState&) = delete;
  OwnState& operator=(const OwnState&) = delete;
  // A forked process must leave the folder to the first one.
  ~OwnState() {
    std::error_code error;
    if (::getpid() == duena_) std::filesystem::remove_all(carpeta_, error);
  }

 private:
  std::string carpeta_;
  pid_t duena_ = ::getpid();
};

const OwnState propia;

}  // namespace
