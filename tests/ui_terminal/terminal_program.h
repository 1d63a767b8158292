#pragma once
// The built program tasca-terminal, at a terminal of its own or at pipes.
#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tasca::test {

// Where the player types and reads: a terminal, or else a pipe.
struct Sides {
  bool TypesAtTerminal = true;
  bool ReadsAtTerminal = true;
  unsigned short Columns = 0;  // of the terminals; 0: it does not tell
};

// Puts the program, not a link to it, into a folder.
void CopyTerminalProgram(const std::filesystem::path& carpeta);

class TerminalProgram {
 public:
  // Starts `orden` as the command env does: variables, then the program, by its path or by its
  // name.
  TerminalProgram(const Sides& lados, std::vector<std::string> orden);
  TerminalProgram(const TerminalProgram&) = delete;
  TerminalProgram& operator=(const TerminalProgram&) = delete;
  // Kills it when it has not ended.
  ~TerminalProgram();

  void Type(const std::string& texto) const;
  // Waits until that has been shown; false when it is not within half a minute.
  bool Shows(const std::string& texto);
  // All that has been shown.
  const std::string& Shown() const { return mostrado_; }
  // Ends the input and gives the exit status.
  int End();

 private:
  bool ReadSome();

  int entrada_ = -1;
  int salida_ = -1;
  pid_t proceso_ = 0;
  bool alTerminal_;
  std::string mostrado_;
};

}  // namespace tasca::test
