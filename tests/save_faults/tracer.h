#pragma once
// Runs a program under strace, which can make one of its system calls fail.
#include <string>
#include <vector>

namespace tasca::test {

// The result of a command.
struct Outcome {
  int Status = 0;      // exit status, or 128 + signal
  std::string Output;  // of standard output
};

// Runs a shell command. Standard error is discarded. The status is -1 if it could not be started.
Outcome RunCommand(const std::string& orden);

// Whether strace is installed and may trace.
bool MachineTraces();

// A system call: its name, its number among the process's calls of that name (from 1), and its line
// in the trace.
struct Call {
  std::string Name;
  int Count = 0;
  std::string Text = {};
};

// False for calls that only manage memory or threads.
bool IsAboutFiles(const Call& llamada);

// Runs a save without faults and returns the calls between its two marks (getppid). `opciones` are
// strace options.
std::vector<Call> CallsOf(const std::string& opciones, const std::string& orden);

// Runs the save with a fault ("error=EIO", "signal=KILL") at that call.
Outcome RunWithFault(const std::string& opciones, const std::string& orden, const Call& llamada,
                     const std::string& fallo);

}  // namespace tasca::test
