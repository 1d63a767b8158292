#pragma once
// A program that saves again and again in a process of its own.
#include <sys/types.h>

#include <string>

namespace tasca::test {

class SavingProgram {
 public:
  SavingProgram(std::string carpeta, int numero);
  SavingProgram(const SavingProgram&) = delete;
  SavingProgram& operator=(const SavingProgram&) = delete;
  ~SavingProgram();

  // Where its dots arrive.
  int Output() const { return salida_; }
  // Takes what has arrived: the number of rounds saved. The test fails for anything but dots, and
  // for a program that has ended.
  int TakeRounds();
  // Kills the program, and starts it anew.
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
