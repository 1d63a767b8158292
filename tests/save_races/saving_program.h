#pragma once
// A child process that saves repeatedly.
#include <sys/types.h>

#include <string>

namespace tasca::test {

// Runs save-again. The destructor kills it.
class SavingProgram {
 public:
  // Starts writer `numero` in the folder.
  SavingProgram(std::string carpeta, int numero);
  SavingProgram(const SavingProgram&) = delete;
  SavingProgram& operator=(const SavingProgram&) = delete;
  ~SavingProgram();

  // The descriptor of its standard output, which receives a dot per round.
  int Output() const { return salida_; }
  // Reads the output, waiting if there is none, and returns the number of new rounds. Fails the
  // test if there is anything but dots or if the program has ended.
  int TakeRounds();
  // Kills the program and starts it again.
  void Restart();

 private:
  void Start();
  void Kill();

  std::string carpeta_;
  std::string numero_;
  pid_t proceso_ = -1;
  int salida_ = -1;
};

}  // namespace tasca::test
