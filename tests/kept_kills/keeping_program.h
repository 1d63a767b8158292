#pragma once
// A child process that plays and keeps a match.
#include <sys/types.h>

#include <optional>
#include <string>

namespace tasca::test {

// Runs keep-on. The destructor kills it.
class KeepingProgram {
 public:
  KeepingProgram(std::string carpeta, std::string estado);
  KeepingProgram(const KeepingProgram&) = delete;
  KeepingProgram& operator=(const KeepingProgram&) = delete;
  ~KeepingProgram();

  // The next line that it prints; nothing once it has ended. Fails the test after a minute.
  std::optional<std::string> NextLine();
  // Kills the program. What it has printed can still be read.
  void Kill();

 private:
  pid_t proceso_ = -1;
  int salida_ = -1;
  std::string leido_;
};

}  // namespace tasca::test
