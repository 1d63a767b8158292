#pragma once
// Runs the program tasca-terminal on a pseudo-terminal or on pipes.
#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace tasca::test {

// Whether standard input and standard output are a terminal or a pipe.
struct Sides {
  bool TypesAtTerminal = true;
  bool ReadsAtTerminal = true;
  unsigned short Columns = 0;  // the width of the terminal; 0: unknown
};

inline constexpr Sides Pipes{.TypesAtTerminal = false, .ReadsAtTerminal = false};

// Copies the program into a folder.
void CopyTerminalProgram(const std::filesystem::path& carpeta);

// A running tasca-terminal.
class TerminalProgram {
 public:
  // Starts `orden` like the command env: first variables ("NAME=value"), then the program's path or
  // name.
  TerminalProgram(const Sides& lados, std::vector<std::string> orden);
  TerminalProgram(const TerminalProgram&) = delete;
  TerminalProgram& operator=(const TerminalProgram&) = delete;
  // Kills the program if it has not ended.
  ~TerminalProgram();

  // Writes to its standard input.
  void Type(const std::string& texto) const;
  // Waits until `texto` has been printed; false if it is not within 30 seconds.
  bool Shows(const std::string& texto);
  // The output so far.
  const std::string& Shown() const { return mostrado_; }
  // Closes its standard input, waits for its end and returns the exit status.
  int End();

 private:
  bool ReadSome();

  int entrada_ = -1;
  int salida_ = -1;
  pid_t proceso_ = 0;
  bool alTerminal_;
  TempFolder estado_;  // where the program keeps the match, unless `orden` names another folder
  std::string mostrado_;
};

}  // namespace tasca::test
