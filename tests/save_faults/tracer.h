#pragma once
// A program that saves, run under a tracer that makes its system calls fail.
#include <string>
#include <vector>

namespace tasca::test {

// How a command ended, and what it said.
struct Outcome {
  int Status = 0;  // exit status, or 128 + signal
  std::string Output;
};

Outcome RunCommand(const std::string& orden);

// Whether this machine lets a program be traced at all.
bool MachineTraces();

// A system call of the save: its name, how many of that name the process has made by then, and the
// whole call as the tracer writes it.
struct Call {
  std::string Name;
  int Count = 0;
  std::string Text = {};
};

// Calls that only order memory know nothing of disks.
bool IsAboutFiles(const Call& llamada);

// The calls between the save's two marks, of a save that goes well; `opciones` is what the tracer
// does to every call.
std::vector<Call> CallsOf(const std::string& opciones, const std::string& orden);

// The save with a fault ("error=EIO", "signal=KILL") at that call.
Outcome RunWithFault(const std::string& opciones, const std::string& orden, const Call& llamada,
                     const std::string& fallo);

}  // namespace tasca::test
