// tasca-trace FOLDER: the game over standard input and output, one JSON object a line.
#include <exception>
#include <iostream>

#include "ui/trace/session.h"

int main(int argc, char** argv) {
  try {
    if (argc != 2) {
      std::cerr << "usage: tasca-trace FOLDER (the one with Jugadores.dat)\n";
      return 2;
    }
    std::ios::sync_with_stdio(false);
    return tasca::RunTrace(argv[1], std::cin, std::cout, std::cerr);
  } catch (const std::exception& error) {
    std::cerr << "tasca-trace: " << error.what() << '\n';
    return 1;
  }
}
